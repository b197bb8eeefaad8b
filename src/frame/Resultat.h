// The one way a reader of outside data reports a failure: a value, or an
// error that says what went wrong (a French text for the user) and where
// (file, record, field, byte offset, and line for a text file). Readers that keep what they could read
// return the error beside the data they filled.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace norvane {

struct ErreurLecture {
  std::string texte;            // French, as the user sees it
  std::string fichier;          // name or path of the file; empty for bytes in memory
  uint64_t enregistrement = 0;  // from 1; 0 when the file has no records
  std::string champ;            // "NomAssocie(2)", "Intitule"...; empty when unknown
  uint64_t octet = 0;           // offset in the file where reading failed
  uint64_t ligne = 0;           // from 1 in a text file; 0 in a binary one

  // "fichier X, enregistrement 3, champ Intitule, octet 214" with the parts
  // that are known; a text file's line comes last: "octet 214, ligne 5".
  std::string Position() const;
};

template <typename T>
class Resultat {
 public:
  Resultat(T valeur) : contenu_(std::move(valeur)) {}                 // NOLINT: implicit on purpose
  Resultat(ErreurLecture erreur) : contenu_(std::move(erreur)) {}     // NOLINT

  bool Ok() const { return contenu_.index() == 0; }
  explicit operator bool() const { return Ok(); }
  const T& Valeur() const { return std::get<0>(contenu_); }
  T& Valeur() { return std::get<0>(contenu_); }
  const T& operator*() const { return Valeur(); }
  const T* operator->() const { return &Valeur(); }
  const ErreurLecture& Erreur() const { return std::get<1>(contenu_); }

 private:
  std::variant<T, ErreurLecture> contenu_;
};

// A result with nothing to carry but success or the error.
template <>
class Resultat<void> {
 public:
  Resultat() = default;
  Resultat(ErreurLecture erreur) : erreur_(std::move(erreur)) {}  // NOLINT

  bool Ok() const { return !erreur_; }
  explicit operator bool() const { return Ok(); }
  const ErreurLecture& Erreur() const { return *erreur_; }

 private:
  std::optional<ErreurLecture> erreur_;
};

}  // namespace norvane
