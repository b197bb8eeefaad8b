// A bounds-checked reader over the bytes of a binary file. Every read past the
// end fails without touching its destination, so a short file leaves the
// fields behind its end as they were, and `Ok()` tells whether all reads so
// far succeeded. The first failed read is remembered with its byte offset in
// the file and the field it was reading, so that a caller can say where a
// damaged file goes wrong. Integers and floats are little-endian.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "frame/Disposition.h"
#include "frame/Resultat.h"

namespace norvane {

// Where the first failed read of a LecteurBinaire stood.
struct EchecLecture {
  uint64_t octet;     // offset in the file of the field that could not be read
  std::string champ;  // its name; empty when the read named none
};

class LecteurBinaire {
 public:
  // `base`: offset in the file of the first of `octets`, for the offsets reported.
  explicit LecteurBinaire(std::string_view octets, uint64_t base = 0) : octets_(octets), base_(base) {}

  bool Ok() const { return !echec_; }
  std::size_t Position() const { return position_; }
  std::size_t Taille() const { return octets_.size(); }
  void Aller(std::size_t position) { position_ = position; }
  const std::optional<EchecLecture>& Echec() const { return echec_; }
  // The first failure as an error of the file `fichier`, record `enregistrement`
  // (0: none), with the French `texte`; call it only when !Ok().
  ErreurLecture Erreur(std::string texte, std::string fichier, uint64_t enregistrement = 0) const;

  // Each returns false (and sets Ok() to false) when the field runs past the end.
  bool Lire(int16_t& valeur);
  bool Lire(int32_t& valeur);
  bool Lire(float& valeur);
  bool Lire(double& valeur);
  // A fixed-width text field, kept with its padding.
  bool LireTexte(std::string& valeur, std::size_t largeur);
  bool Sauter(std::size_t largeur);

  // The same, for element `rang` of a field of a record layout: the width is
  // the layout's, and a failure names the element.
  bool Lire(int16_t& valeur, const ChampDisposition& champ, std::size_t rang = 0);
  bool Lire(int32_t& valeur, const ChampDisposition& champ, std::size_t rang = 0);
  bool Lire(float& valeur, const ChampDisposition& champ, std::size_t rang = 0);
  bool LireTexte(std::string& valeur, const ChampDisposition& champ, std::size_t rang = 0);
  bool Sauter(const ChampDisposition& champ);

 private:
  bool Disponible(std::size_t largeur, const ChampDisposition* champ, std::size_t rang);
  bool Prendre(void* destination, std::size_t largeur, const ChampDisposition* champ = nullptr,
               std::size_t rang = 0);

  std::string_view octets_;
  uint64_t base_ = 0;
  std::size_t position_ = 0;
  std::optional<EchecLecture> echec_;
};

// Little-endian writing of the same fields, for the stores the program writes.
void EcrireEntier16(std::string& sortie, int16_t valeur);
void EcrireEntier32(std::string& sortie, int32_t valeur);
void EcrireFlottant(std::string& sortie, float valeur);
void EcrireDouble(std::string& sortie, double valeur);
// A fixed-width text: cut to `largeur`, padded with blanks.
void EcrireTexteFixe(std::string& sortie, std::string_view valeur, std::size_t largeur);

}  // namespace norvane
