// Tool tips: an "INFO:code:size:title:text:mark" code becomes an RTF
// annotation anchored on its mark. It is written from the literal code as the
// template holds it (CodeCourant), so that its texts keep their case and
// blanks; a "_" stands for a blank.
#include "template/InfoBulle.h"

#include <array>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

constexpr std::string_view kDebutInfo = "#TVL(INFO:";
constexpr std::string_view kIdentifiant = "47317183";

// The four fields before the mark, and the mark (all that stands behind the
// fourth ":"). std::nullopt when a ":" is missing.
std::optional<std::array<std::string, 5>> Champs(std::string corps) {
  std::array<std::string, 5> champs;
  for (std::size_t i = 0; i < 4; ++i) {
    const auto deuxPoints = corps.find(':');
    if (deuxPoints == std::string::npos) return std::nullopt;
    champs[i] = corps.substr(0, deuxPoints);
    corps.erase(0, deuxPoints + 1);
  }
  champs[4] = corps;
  return champs;
}

}  // namespace

std::optional<std::string> AnnotationInfo(const std::string& codeCourant) {
  const auto deuxPoints = codeCourant.find(':');
  if (deuxPoints == std::string::npos || Majuscules(codeCourant.substr(0, deuxPoints + 1)) != kDebutInfo) {
    return std::nullopt;
  }
  std::string corps = codeCourant.substr(kDebutInfo.size());
  if (FinitPar(corps, ")#")) corps.resize(corps.size() - 2);
  const auto champs = Champs(RemplacerTout(corps, "_", " "));
  if (!champs) return std::string(" ");
  const auto& [code, taille, titre, infos, repereBrut] = *champs;
  const std::string repere = EstBlanc(repereBrut) ? std::string("\\~") : repereBrut;
  const std::string id(kIdentifiant);
  return "{\\fs22 {\\*\\atrfstart " + id + "}" + repere + "}{\\cs15\\v\\fs" +
         std::to_string(2 * static_cast<int>(Entier16De(taille))) + " {\\*\\atrfend " + id + "}{\\*\\atnid " +
         Trim(code) + "}{\\*\\atnauthor " + titre + " " + "}\\chatn {\\*\\annotation {\\*\\atnref " + id + "}" +
         "{" + infos + "}}}";
}

// Kept for SansAnnotation 0, which the settings never leave in force: each
// value then carries its code as a hidden annotation.
std::string AnnotationValeur(const Generation& generation, const std::string& valeur) {
  const std::string id(kIdentifiant);
  const auto& options = generation.session.options;
  return "{\\fs22 {\\*\\atrfstart " + id + "}" + valeur + "}{\\cs15\\v\\cf" +
         std::to_string(14 + generation.etat.ProchaineCouleur) + "\\fs" +
         (options.CouleurMarqueur != 0 ? "2" : "16") + " {\\*\\atrfend " + id +
         "}{\\*\\atnid TVL}{\\*\\atnauthor " + Utf8VersCp1252("Code Norvane pour la construction de la donnée ") +
         "}\\chatn {\\*\\annotation {\\*\\atnref " + id + "}{" + generation.etat.CodeCourant + "}}}";
}

}  // namespace norvane
