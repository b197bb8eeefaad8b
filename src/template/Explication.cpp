// Explain mode: the help box that tells what a selected code shows and what
// it would give with the dossier in hand. Table, crop and graph codes are not
// computed there: their box tells what kind of table or which graph it is.
#include "template/Explication.h"

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

constexpr std::string_view kTitre = "Interprétation d'un code Norvane";
constexpr std::string_view kEstLeCode = " est le code pour afficher ";
constexpr std::string_view kExemple =
    "Par exemple, pour le dossier Tervol actuellement lié à Norvane, le résultat du code serait ";

std::string Entete(const std::string& code) {
  return std::string(kMarqueDebut) + Cp1252VersUtf8(code) + std::string(kMarqueFin) + std::string(kEstLeCode);
}

// The value as the box shows it: each "\par " a blank.
std::string ValeurMontree(const std::string& valeur) {
  return Cp1252VersUtf8(Trim(RemplacerTout(valeur, "\\par ", " ")));
}

}  // namespace

void MontrerExplication(Generation& generation, const std::string& code, const IssueCode& issue) {
  if (issue.aide.empty()) return;
  std::string texte = Entete(code) + issue.aide;
  std::string conseil = std::string(kExemple) + ": " + ValeurMontree(issue.valeur);
  switch (issue.forme) {
    case FormeAide::Normale:
      break;
    case FormeAide::Precision:
      conseil = std::string(kExemple) + issue.precision + " " + ValeurMontree(issue.valeur);
      break;
    case FormeAide::TexteSeul:
      texte = issue.aide;
      conseil.clear();
      break;
  }
  generation.messages.AfficherMessage(std::string(kAppelant), std::string(kTitre), texte, conseil, "Aide");
}

// "#tvl(<code>)# est le code d'un tableau <kind>": tabd1 shows one column of
// one dossier, tabd<n> compares n dossiers, any other tab code runs over the
// years; crop and free-activity codes have their own words. A code of 51
// characters or more is shown as its first 50 and "... ".
std::string AideTableau(const std::string& code) {
  std::string sorte = "pluri-annuel.";
  if (CommencePar(code, "culture") || CommencePar(code, "cultper")) {
    sorte = "des cultures ( pérennes ou non ).";
  } else if (CommencePar(code, "actlibr")) {
    sorte = "des activités libres animales.";
  } else if (code.size() > 3 && code[3] == 'd') {
    const int32_t n = EntierDe(code.substr(4, 1));
    sorte = n == 1 ? "affichant une seule colonne de valeurs sur 1 dossier."
                   : "permettant de comparer les données de " + std::to_string(n) + " dossiers.";
  }
  const std::string montre = code.size() >= 51 ? code.substr(0, 50) + "... " : code;
  return std::string(kMarqueDebut) + Cp1252VersUtf8(montre) + std::string(kMarqueFin) + " est le code d'un tableau " +
         sorte;
}

// "#tvl(<code>)# est le code pour afficher le graphique "<title>".": the
// title is what stands before the first ";" of the body, "_" read as blanks,
// or "Inconnu" when the body has no ";".
std::string AideGraphique(const std::string& code) {
  const std::string corps = code.size() > 5 ? code.substr(4, code.size() - 5) : std::string();
  const auto pointVirgule = corps.find(';');
  const std::string titre =
      pointVirgule == std::string::npos ? "Inconnu" : Cp1252VersUtf8(RemplacerTout(corps.substr(0, pointVirgule), "_", " "));
  const std::string montre = code.size() > 50 ? code.substr(0, 50) + "..." : code;
  return std::string(kMarqueDebut) + Cp1252VersUtf8(montre) + std::string(kMarqueFin) + std::string(kEstLeCode) +
         "le graphique \"" + titre + "\".";
}

}  // namespace norvane
