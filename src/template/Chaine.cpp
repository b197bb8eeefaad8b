// The dispatch chain of a cleaned code, after its condition: the vocabulary
// words in table order, then ORGA, INFO:, INI:, date(, crop and activity
// tables, tables, graphs, formulas, and last the series form. The first hit
// decides. Words are case-sensitive; ORGA, INFO: and INI: are not.
#include "template/IssueCode.h"

#include <algorithm>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "template/Directives.h"
#include "template/Formules.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

constexpr std::string_view kAideInfo = "une info-bulle ( annotation ) placée sur le texte repère.";
constexpr std::string_view kAideIni = "une donnée lue dans le fichier donnees.INI.";
constexpr std::string_view kAideDate = "une date fixe ou mise à jour au moment de la création du document résultat.";

IssueCode Valeur(std::string valeur, std::string_view aide) {
  IssueCode issue;
  issue.valeur = std::move(valeur);
  issue.aide = std::string(aide);
  return issue;
}

IssueCode Inchange(std::string aide = {}) {
  IssueCode issue;
  issue.inchange = true;
  issue.aide = std::move(aide);
  issue.forme = FormeAide::TexteSeul;
  return issue;
}

// A port's answer, or the code left as it stands when there is no port or the
// port does not handle it.
IssueCode Produit(const std::optional<std::string>& produit) { return produit ? Valeur(*produit, {}) : Inchange(); }

// In explain mode tables and graphs are not computed: their help alone.
IssueCode CodeTableau(Generation& g, const std::string& code, bool explication) {
  if (explication) return Inchange(AideTableau(code));
  return Produit(g.tableaux != nullptr ? g.tableaux->GenererTableau(g, code) : std::nullopt);
}

IssueCode CodeGraphique(Generation& g, const std::string& code, bool explication) {
  if (explication) return Inchange(AideGraphique(code));
  return Produit(g.graphiques != nullptr ? g.graphiques->GenererGraphique(g, code) : std::nullopt);
}

// file + name - selector [: year]: the "-" is the second one when there are
// two (a file name may hold one).
IssueCode CodeSerie(Generation& g, std::string code) {
  auto tiret = code.find('-');
  if (const auto second = code.find('-', tiret + 1); second != std::string::npos) tiret = second;
  int16_t annee = -1;
  if (const auto deuxPoints = code.find(':'); deuxPoints != std::string::npos) {
    annee = Entier16De(code.substr(deuxPoints + 1));
    code.resize(deuxPoints);
  }
  int16_t decimales = -1;
  const auto position = static_cast<int16_t>(std::min<std::size_t>(tiret, 32767));
  return Valeur(LireSerie(g.Series(), code, position, annee, decimales, 0), kAideSerie);
}

IssueCode CodeInconnu(Generation& g, const std::string& code) {
  g.messages.AfficherMessage(std::string(kAppelant), std::string(kTitreErreur),
                             "La portion de code \"" + Cp1252VersUtf8(code) +
                                 "\" dans le modèle est inconnue de l'interpréteur Norvane.",
                             std::string(kConseilModifier), "");
  return Inchange();
}

}  // namespace

IssueCode ResoudreCode(Generation& generation, std::string& code, bool explication) {
  if (auto champ = ChampGeneral(generation, code)) return *champ;
  if (Majuscules(code.substr(0, 4)) == "ORGA") return ChampOrganisation(generation, code);
  if (CommencePar(code, "INFO:", true)) return Valeur(" ", kAideInfo);
  if (CommencePar(code, "INI:", true)) return Valeur(LireDonneeIni(generation, code), kAideIni);
  if (CommencePar(code, "date(")) return Valeur(LireDate(generation, code), kAideDate);
  if (CommencePar(code, "culture") || CommencePar(code, "cultper") || CommencePar(code, "actlibr") ||
      CommencePar(code, "tab")) {
    return CodeTableau(generation, code, explication);
  }
  if (CommencePar(code, "gph(")) return CodeGraphique(generation, code, explication);
  if (CommencePar(code, "formule:")) return Valeur(ValeurCodeFormule(generation, code), kAideSerie);
  if (code.find('-') != std::string::npos) return CodeSerie(generation, code);
  return CodeInconnu(generation, code);
}

}  // namespace norvane
