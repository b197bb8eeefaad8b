#include "construction/EnregistrementFixe.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "frame/LecteurBinaire.h"

namespace norvane::construction {

EnregistrementFixe& EnregistrementFixe::Poser(std::size_t position, std::string_view champ) {
  if (position > octets_.size() || champ.size() > octets_.size() - position) {
    throw std::logic_error("champ hors de l'enregistrement à l'octet " + std::to_string(position));
  }
  octets_.replace(position, champ.size(), champ);
  return *this;
}

EnregistrementFixe& EnregistrementFixe::Texte(std::size_t position, std::string_view valeur, std::size_t largeur) {
  std::string champ;
  EcrireTexteFixe(champ, valeur, largeur);
  return Poser(position, champ);
}

EnregistrementFixe& EnregistrementFixe::Blancs(std::size_t position, std::size_t largeur) {
  return Poser(position, std::string(largeur, ' '));
}

EnregistrementFixe& EnregistrementFixe::Entier16(std::size_t position, int16_t valeur) {
  return Nombre(position, valeur, EcrireEntier16);
}

EnregistrementFixe& EnregistrementFixe::Entier32(std::size_t position, int32_t valeur) {
  return Nombre(position, valeur, EcrireEntier32);
}

EnregistrementFixe& EnregistrementFixe::Flottant(std::size_t position, float valeur) {
  return Nombre(position, valeur, EcrireFlottant);
}

EnregistrementFixe& EnregistrementFixe::Double(std::size_t position, double valeur) {
  return Nombre(position, valeur, EcrireDouble);
}

EnregistrementFixe& EnregistrementFixe::Flottants(std::size_t position, const float* valeurs, std::size_t nombre) {
  for (std::size_t i = 0; i < nombre; ++i) Flottant(position + 4 * i, valeurs[i]);
  return *this;
}

void EcrireOctets(const std::string& chemin, std::string_view octets) {
  const std::filesystem::path fichier(chemin);
  if (fichier.has_parent_path()) std::filesystem::create_directories(fichier.parent_path());
  std::ofstream flux(fichier, std::ios::binary | std::ios::trunc);
  flux.write(octets.data(), static_cast<std::streamsize>(octets.size()));
  if (!flux) throw std::runtime_error("impossible d'écrire le fichier " + chemin);
}

}  // namespace norvane::construction
