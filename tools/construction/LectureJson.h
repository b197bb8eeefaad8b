// Reading of the JSON descriptions: each object is read through an ObjetJson,
// which converts texts from UTF-8 to Windows-1252, replaces "{racine}" by the
// installation's root, and notes in the journal what does not fit (a text
// longer than its field, which is cut; a key that nothing reads, a misspelt
// one most likely). A value of the wrong type throws ErreurDescription: the
// builder's way out of the depths of a description, which its entry points
// (DescriptionJson.h) turn into a failed Resultat.
#pragma once

#include <array>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace norvane::construction {

using Json = nlohmann::ordered_json;

struct ErreurDescription : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct Journal {
  std::string racine;  // replaces "{racine}" in texts
  std::vector<std::string> avertissements;
  // Notes that depend on where the tree is built, not on the description: a
  // text cut because the root put in its "{racine}" is long.
  std::vector<std::string> remarques;
};

class ObjetJson {
 public:
  // `lieu` names the object in messages ("dossier MARTIN.TVL, general").
  ObjetJson(const Json& valeur, std::string lieu, Journal& journal);

  const std::string& Lieu() const { return lieu_; }
  Journal& Notes() const { return journal_; }
  bool A(const char* cle) const;
  // The value of the key, marked as read; nullptr when absent.
  const Json* Valeur(const char* cle);

  // A text for a field of `largeur` bytes; empty when absent.
  std::string Texte(const char* cle, std::size_t largeur);
  // A text left in UTF-8, for the name of a file on disk.
  std::string TexteUtf8(const char* cle);
  int16_t Entier16(const char* cle, int16_t parDefaut = 0);
  int32_t Entier32(const char* cle, int32_t parDefaut = 0);
  float Flottant(const char* cle, float parDefaut = 0);
  double Double(const char* cle, double parDefaut = 0);
  bool Booleen(const char* cle, bool parDefaut = false);
  // An array of at most N numbers, the rest zeros.
  template <std::size_t N>
  std::array<float, N> Flottants(const char* cle) {
    std::array<float, N> valeurs{};
    RemplirFlottants(cle, valeurs.data(), N);
    return valeurs;
  }
  // The elements of an array (an absent key gives none).
  std::vector<const Json*> Elements(const char* cle);

  // Notes every key that was never read.
  void Terminer();

 private:
  void RemplirFlottants(const char* cle, float* valeurs, std::size_t nombre);
  [[noreturn]] void Erreur(const std::string& cle, const std::string& attendu) const;

  const Json& valeur_;
  std::string lieu_;
  Journal& journal_;
  std::set<std::string> lues_;
};

// An empty JSON object, for an ObjetJson over an absent key.
const Json& ObjetVide();

// UTF-8 text of a description to Windows-1252, "{racine}" replaced; a note in
// the journal when it is longer than `largeur` (0: no limit).
std::string TexteEtude(const std::string& utf8, std::size_t largeur, const std::string& lieu, Journal& journal);
// The Windows-1252 text as it stands, with the same note when it is too long.
std::string LargeurVerifiee(std::string texte, std::size_t largeur, const std::string& lieu, Journal& journal);

}  // namespace norvane::construction
