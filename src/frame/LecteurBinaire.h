// A bounds-checked reader over the bytes of a binary file. Every read past the
// end fails without touching its destination, so a short file leaves the
// fields behind its end as they were, and `Ok()` tells whether all reads so
// far succeeded. Integers and floats are little-endian.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace norvane {

class LecteurBinaire {
 public:
  explicit LecteurBinaire(std::string_view octets) : octets_(octets) {}

  bool Ok() const { return ok_; }
  std::size_t Position() const { return position_; }
  std::size_t Taille() const { return octets_.size(); }
  void Aller(std::size_t position) { position_ = position; }

  // Each returns false (and sets Ok() to false) when the field runs past the end.
  bool Lire(int16_t& valeur);
  bool Lire(int32_t& valeur);
  bool Lire(float& valeur);
  bool Lire(double& valeur);
  // A fixed-width text field, kept with its padding.
  bool LireTexte(std::string& valeur, std::size_t largeur);
  bool Sauter(std::size_t largeur);

 private:
  bool Prendre(void* destination, std::size_t largeur);

  std::string_view octets_;
  std::size_t position_ = 0;
  bool ok_ = true;
};

// Little-endian writing of the same fields, for the stores the program writes.
void EcrireEntier16(std::string& sortie, int16_t valeur);
void EcrireEntier32(std::string& sortie, int32_t valeur);
void EcrireFlottant(std::string& sortie, float valeur);
void EcrireDouble(std::string& sortie, double valeur);
// A fixed-width text: cut to `largeur`, padded with blanks.
void EcrireTexteFixe(std::string& sortie, std::string_view valeur, std::size_t largeur);

}  // namespace norvane
