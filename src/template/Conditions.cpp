// Conditions "si(...)alors:".
//
// A condition ending in "<>0" is false when its text, or the series it names
// (column 7 always, decimals of the record, current dossier), is empty or
// "0"; a formatted zero such as "0,00" is true. "transfoperenne=vrai" turns on
// the transformation line of the perennial crop tables. Anything else is true.
#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "template/Conditions.h"
#include "template/Textes.h"

namespace norvane {
namespace {

constexpr std::string_view kAlors = ")alors:";

void SignalerAlorsManquant(Generation& generation, const std::string& code) {
  const std::string extrait = code.size() > 50 ? code.substr(0, 50) + "..." : code;
  generation.messages.AfficherMessage(
      std::string(kAppelant), std::string(kTitreErreur),
      "La portion de code \"" + Cp1252VersUtf8(extrait) +
          "\" dans le modèle est mal renseignée : il manque la balise \")alors:\" de fin d'une condition Si... "
          "Alors...",
      std::string(kConseilModifier), "");
}

bool TestNonNul(Generation& generation, std::string condition) {
  std::string texte = condition;
  const auto tiret = condition.find('-');
  if (tiret != std::string::npos && tiret <= 32767) {
    int16_t annee = 7;
    int16_t decimales = -1;
    texte = LireSerie(generation.Series(), condition, static_cast<int16_t>(tiret), annee, decimales, 0);
  }
  return !texte.empty() && texte != "0";
}

}  // namespace

Condition EvaluerCondition(Generation& generation, std::string& code) {
  const auto alors = ChercherSansCasse(code, kAlors, 3);
  if (alors == std::string::npos) {
    SignalerAlorsManquant(generation, code);
    return Condition::Erronee;
  }
  std::string condition = code.substr(3, alors - 3);
  code = code.substr(alors + kAlors.size());
  if (FinitPar(condition, "<>0")) {
    condition.resize(condition.size() - 3);
    return TestNonNul(generation, condition) ? Condition::Vraie : Condition::Fausse;
  }
  if (Minuscules(condition) == "transfoperenne=vrai") generation.etat.TransfoPerenne = true;
  return Condition::Vraie;
}

}  // namespace norvane
