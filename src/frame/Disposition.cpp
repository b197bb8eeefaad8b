#include "frame/Disposition.h"

namespace norvane {

std::string NomElement(const ChampDisposition& champ, std::size_t rang) {
  std::string nom(champ.nom);
  if (champ.nombre == 1) return nom;
  if (champ.lignes > 0) {
    return nom + "(" + std::to_string(rang % champ.lignes) + ", " + std::to_string(rang / champ.lignes) + ")";
  }
  return nom + "(" + std::to_string(rang) + ")";
}

std::string ChampA(std::span<const ChampDisposition> champs, std::size_t position) {
  for (const ChampDisposition& champ : champs) {
    if (position >= champ.debut && position < champ.Fin()) {
      return NomElement(champ, (position - champ.debut) / champ.largeur);
    }
  }
  return {};
}

}  // namespace norvane
