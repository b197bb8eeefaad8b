#include "frame/LecteurBinaire.h"

#include <bit>
#include <cstring>

namespace norvane {
namespace {

static_assert(std::endian::native == std::endian::little, "study files are little-endian");

template <typename T>
void EcrireBrut(std::string& sortie, T valeur) {
  char octets[sizeof(T)];
  std::memcpy(octets, &valeur, sizeof(T));
  sortie.append(octets, sizeof(T));
}

}  // namespace

// False once a read has failed, or when `largeur` bytes do not remain; the
// first failure is remembered.
bool LecteurBinaire::Disponible(std::size_t largeur, const ChampDisposition* champ, std::size_t rang) {
  if (echec_) return false;
  if (position_ <= octets_.size() && largeur <= octets_.size() - position_) return true;
  echec_ = EchecLecture{base_ + position_, champ != nullptr ? NomElement(*champ, rang) : std::string()};
  return false;
}

bool LecteurBinaire::Prendre(void* destination, std::size_t largeur, const ChampDisposition* champ,
                             std::size_t rang) {
  if (!Disponible(largeur, champ, rang)) return false;
  std::memcpy(destination, octets_.data() + position_, largeur);
  position_ += largeur;
  return true;
}

ErreurLecture LecteurBinaire::Erreur(std::string texte, std::string fichier, uint64_t enregistrement) const {
  ErreurLecture erreur{std::move(texte), std::move(fichier), enregistrement, {}, base_ + position_};
  if (echec_) {
    erreur.champ = echec_->champ;
    erreur.octet = echec_->octet;
  }
  return erreur;
}

bool LecteurBinaire::Lire(int16_t& valeur) { return Prendre(&valeur, sizeof valeur); }
bool LecteurBinaire::Lire(int32_t& valeur) { return Prendre(&valeur, sizeof valeur); }
bool LecteurBinaire::Lire(float& valeur) { return Prendre(&valeur, sizeof valeur); }
bool LecteurBinaire::Lire(double& valeur) { return Prendre(&valeur, sizeof valeur); }

bool LecteurBinaire::Lire(int16_t& valeur, const ChampDisposition& champ, std::size_t rang) {
  return Prendre(&valeur, sizeof valeur, &champ, rang);
}
bool LecteurBinaire::Lire(int32_t& valeur, const ChampDisposition& champ, std::size_t rang) {
  return Prendre(&valeur, sizeof valeur, &champ, rang);
}
bool LecteurBinaire::Lire(float& valeur, const ChampDisposition& champ, std::size_t rang) {
  return Prendre(&valeur, sizeof valeur, &champ, rang);
}

bool LecteurBinaire::LireTexte(std::string& valeur, std::size_t largeur) {
  if (!Disponible(largeur, nullptr, 0)) return false;
  valeur.assign(octets_.data() + position_, largeur);
  position_ += largeur;
  return true;
}

bool LecteurBinaire::LireTexte(std::string& valeur, const ChampDisposition& champ, std::size_t rang) {
  if (!Disponible(champ.largeur, &champ, rang)) return false;
  valeur.assign(octets_.data() + position_, champ.largeur);
  position_ += champ.largeur;
  return true;
}

bool LecteurBinaire::Sauter(std::size_t largeur) {
  if (!Disponible(largeur, nullptr, 0)) return false;
  position_ += largeur;
  return true;
}

bool LecteurBinaire::Sauter(const ChampDisposition& champ) {
  if (!Disponible(champ.largeur * champ.nombre, &champ, 0)) return false;
  position_ += champ.largeur * champ.nombre;
  return true;
}

void EcrireEntier16(std::string& sortie, int16_t valeur) { EcrireBrut(sortie, valeur); }
void EcrireEntier32(std::string& sortie, int32_t valeur) { EcrireBrut(sortie, valeur); }
void EcrireFlottant(std::string& sortie, float valeur) { EcrireBrut(sortie, valeur); }
void EcrireDouble(std::string& sortie, double valeur) { EcrireBrut(sortie, valeur); }

void EcrireTexteFixe(std::string& sortie, std::string_view valeur, std::size_t largeur) {
  std::string champ(valeur.substr(0, largeur));
  champ.resize(largeur, ' ');
  sortie += champ;
}

}  // namespace norvane
