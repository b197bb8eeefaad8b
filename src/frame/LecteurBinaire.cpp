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

bool LecteurBinaire::Prendre(void* destination, std::size_t largeur) {
  if (!ok_ || position_ > octets_.size() || largeur > octets_.size() - position_) {
    ok_ = false;
    return false;
  }
  std::memcpy(destination, octets_.data() + position_, largeur);
  position_ += largeur;
  return true;
}

bool LecteurBinaire::Lire(int16_t& valeur) { return Prendre(&valeur, sizeof valeur); }
bool LecteurBinaire::Lire(int32_t& valeur) { return Prendre(&valeur, sizeof valeur); }
bool LecteurBinaire::Lire(float& valeur) { return Prendre(&valeur, sizeof valeur); }
bool LecteurBinaire::Lire(double& valeur) { return Prendre(&valeur, sizeof valeur); }

bool LecteurBinaire::LireTexte(std::string& valeur, std::size_t largeur) {
  if (!ok_ || position_ > octets_.size() || largeur > octets_.size() - position_) {
    ok_ = false;
    return false;
  }
  valeur.assign(octets_.data() + position_, largeur);
  position_ += largeur;
  return true;
}

bool LecteurBinaire::Sauter(std::size_t largeur) {
  if (!ok_ || position_ > octets_.size() || largeur > octets_.size() - position_) {
    ok_ = false;
    return false;
  }
  position_ += largeur;
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
