// ORGA codes: a field of one of the 20 organisations of the parameter file.
// The code is "ORGA" + field + index: the last character is the index and
// the field stands between "ORGA" and it; a field ending in "1" gives that
// "1" to the index, so ORGANOM12 reads organisation 12 and ORGANOM1
// organisation 1. The field is compared without regard to case.
#include "template/Organisations.h"

#include "frame/Texte.h"
#include "study/TexteEtude.h"
#include "template/Directives.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

// The help of these codes has always been that of the moisCFin family.
constexpr std::string_view kAideOrga =
    "le mois de fin d'exercice <d> écrit en clair ( abrégé si le mois fait plus de 4 lettres ).";

std::string ValeurChamp(Generation& generation, const Organisation& orga, const std::string& champ) {
  if (champ == "SIGLE") return TexteEtudePourRtf(orga.Sigle);
  if (champ == "NOM") return TexteEtudePourRtf(orga.Nom);
  if (champ == "RUE") return TexteEtudePourRtf(orga.Rue);
  if (champ == "VILLE") return TexteEtudePourRtf(orga.Ville);
  if (champ == "TEL") return TexteEtudePourRtf(orga.Telephone);
  if (champ == "FAX") return TexteEtudePourRtf(orga.Fax);
  if (champ == "LOGO") return EstBlanc(orga.Logo) ? std::string() : ImageVersRtf(generation, Trim(orga.Logo));
  return "??";
}

}  // namespace

IssueCode ChampOrganisation(Generation& generation, const std::string& code) {
  std::string champ = code.size() > 5 ? code.substr(4, code.size() - 5) : std::string();
  std::string indice = code.size() > 4 ? code.substr(code.size() - 1) : std::string();
  if (!champ.empty() && champ.back() == '1') {
    champ.pop_back();
    indice = "1" + indice;
  }
  const int32_t n = EntierDe(indice);
  IssueCode issue;
  issue.valeur = n >= 0 && n < 20 ? ValeurChamp(generation, generation.session.Organisations[static_cast<std::size_t>(n)], Majuscules(champ))
                                  : std::string("??");
  issue.aide = RemplacerTout(kAideOrga, "<d>", code.empty() ? std::string() : code.substr(code.size() - 1));
  return issue;
}

}  // namespace norvane
