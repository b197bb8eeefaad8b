// LG references of a formula replaced by numbers (or, for the display of a
// formula, by the labels of what they name):
//   LG(<file>-<record>)        a series of the dossier, current year
//   LG(<file>-<record>!A<n>)   the same in year n; "!A-1" the year before
//   LG<n>                      line n of the table being generated
// The scan moves forward past each replacement, so a label that itself holds
// "LG" is never taken for a reference, the loop always ends, and the work is
// linear in the length of the formula.
#include "template/References.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "frame/Texte.h"
#include "template/SeriesFormules.h"

namespace norvane {
namespace {

constexpr int kLignesMax = 511;
constexpr int kAnneesLignesMax = 15;
// Characters that end the number of an LGn reference ("\xB2" is the "²" of Windows-1252).
constexpr std::string_view kFinsLGn = "+-*/()\xB2^&|: ";

// A number as it enters the formula: the float's shortest text, "." as mark.
std::string TexteValeur(float valeur) {
  if (!std::isfinite(valeur)) return "0";
  char tampon[32];
  auto res = std::to_chars(tampon, tampon + sizeof tampon, valeur);
  return std::string(tampon, res.ptr);
}

// The box of a faulty LG(...) reference.
void ErreurTotal(Generation& generation, int16_t annee, const std::string& diagnostic) {
  generation.messages.AfficherMessage(
      "Formules", annee >= 0 ? "Tableau incorrect dans le modèle de document." : "Formule de total incorrecte.",
      "La formule de calcul d'une ligne de total est erronée.", diagnostic, "");
}

void RefusLigneTableau(Generation& generation) {
  generation.messages.AfficherMessage(
      "Formules", "Formule erronée. Insertion impossible.",
      "Votre formule contient le code LGn qui désigne une ligne n de tableau. \n"
      "Vous ne pouvez utiliser ce type de code ici, utilisez la formulation LG<nomFic-numEnreg>\n"
      "en sélectionnant vos séries de données directement dans l'arbre de choix ci-contre.",
      "", "");
}

// What line `ligne` of the table stands for in the formula.
std::string ValeurLigneTableau(Generation& generation, int32_t ligne, int16_t annee) {
  if (annee == -2) {
    RefusLigneTableau(generation);
    return {};
  }
  const LignesTableau* lignes = generation.lignes;
  bool ligneValide = lignes != nullptr && ligne >= 1 && ligne <= kLignesMax;
  if (annee == -1) return ligneValide ? lignes->Texte(ligne) : std::string();
  bool anneeValide = annee >= 0 && annee <= kAnneesLignesMax;
  return TexteValeur(ligneValide && anneeValide ? lignes->Valeur(ligne, annee) : 0.0f);
}

// What stands for one reference of the formula, and where the formula goes
// on behind it. The readers below return std::nullopt (after their box) when
// the reference is malformed.
struct Remplacement {
  std::string valeur;
  std::size_t suite;  // index behind the reference in the formula
};

std::optional<Remplacement> ReferenceSerie(Generation& generation, std::string_view formule, std::size_t p,
                                           int16_t annee) {
  std::size_t fermante = formule.find(')', p + 3);
  if (fermante == std::string_view::npos) {
    ErreurTotal(generation, annee, "Diagnostic : Il manque la parenthèse fermante après le code d'un LG.");
    return std::nullopt;
  }
  std::string reference(formule.substr(p + 3, fermante - p - 3));
  if (reference.find('-') == std::string::npos) {
    ErreurTotal(generation, annee,
                "Diagnostic : Concernant le code entre parenthèses d'un LG, il manque le tiret entre le nom du "
                "fichier et le numéro d'enregistrement.");
    return std::nullopt;
  }
  std::string valeur =
      annee >= 0 ? TexteValeur(ValeurLigne(generation, reference, annee)) : LibelleLigne(generation, reference);
  return Remplacement{std::move(valeur), fermante + 1};
}

std::optional<Remplacement> ReferenceLigne(Generation& generation, std::string_view formule, std::size_t p,
                                           int16_t annee) {
  std::size_t fin = std::min(formule.find_first_of(kFinsLGn, p + 2), formule.size());
  std::string_view numero = formule.substr(p + 2, fin - p - 2);
  if (numero.empty() || numero[0] < '0' || numero[0] > '9') {
    generation.messages.AfficherMessage("Formules", "Formule erronée.",
                                        "Il manque le code après un LG qui n'a pas de sens écrit tout seul", "", "");
    return std::nullopt;
  }
  return Remplacement{ValeurLigneTableau(generation, EntierDe(numero), annee), fin};
}

}  // namespace

// The result is built in one pass: text up to each reference is copied, the
// reference's value appended, and the scan resumes behind the reference. On a
// malformed reference the rest of the formula is copied as it stands.
std::string RemplacerReferences(Generation& generation, const std::string& formule, int16_t annee) {
  std::string texte = RemplacerTout(formule, "_", " ");
  std::string resultat;
  std::size_t i = 0;
  for (std::size_t p; (p = texte.find("LG", i)) != std::string::npos;) {
    resultat.append(texte, i, p - i);
    i = p;
    bool serie = p + 2 < texte.size() && texte[p + 2] == '(';
    std::optional<Remplacement> r =
        serie ? ReferenceSerie(generation, texte, p, annee) : ReferenceLigne(generation, texte, p, annee);
    if (!r) break;
    resultat += r->valeur;
    i = r->suite;
  }
  resultat.append(texte, i);
  return resultat;
}

}  // namespace norvane
