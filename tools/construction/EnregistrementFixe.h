// A fixed-length record being built, field by field at explicit offsets, as
// the parent product lays its study files out: texts blank-padded with no
// terminator, integers and floats little-endian. Bytes no field covers stay 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace norvane::construction {

class EnregistrementFixe {
 public:
  explicit EnregistrementFixe(std::size_t longueur) : octets_(longueur, '\0') {}

  // A text cut to `largeur` and padded with blanks (Windows-1252 bytes).
  EnregistrementFixe& Texte(std::size_t position, std::string_view valeur, std::size_t largeur);
  // `largeur` blanks: a text field kept empty.
  EnregistrementFixe& Blancs(std::size_t position, std::size_t largeur);
  EnregistrementFixe& Entier16(std::size_t position, int16_t valeur);
  EnregistrementFixe& Entier32(std::size_t position, int32_t valeur);
  EnregistrementFixe& Flottant(std::size_t position, float valeur);
  EnregistrementFixe& Double(std::size_t position, double valeur);
  // `nombre` floats in a row, from `valeurs`.
  EnregistrementFixe& Flottants(std::size_t position, const float* valeurs, std::size_t nombre);

  const std::string& Octets() const { return octets_; }

 private:
  EnregistrementFixe& Poser(std::size_t position, std::string_view champ);
  // A number written by one of the little-endian writers of LecteurBinaire.h.
  template <typename T>
  EnregistrementFixe& Nombre(std::size_t position, T valeur, void (*ecrire)(std::string&, T)) {
    std::string champ;
    ecrire(champ, valeur);
    return Poser(position, champ);
  }

  std::string octets_;
};

// Writes `octets` as the whole file `chemin`, making its folders first.
// Throws std::runtime_error when the file cannot be written.
void EcrireOctets(const std::string& chemin, std::string_view octets);

}  // namespace norvane::construction
