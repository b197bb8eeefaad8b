// The code "formule:<year>a:<expression>[:<decimals>]" and the calculator
// behind it: references replaced, then the arithmetic, then the number's text.
#include "template/Evaluateur.h"
#include "template/Formules.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "template/References.h"

namespace norvane {
namespace {

constexpr std::string_view kPrefixeFormule = "formule:";
constexpr int16_t kDecimalesAutomatiques = 7;

// A malformed code: the box, and the placeholder that stands in the result.
std::string CodeMalRenseigne(Generation& generation, const std::string& code, const std::string& manque) {
  generation.messages.AfficherMessage(
      "Formules", kTitreErreurDetectee,
      "La portion de code \"" + Cp1252VersUtf8(code) + "\" dans le modèle est mal renseignée : " + manque,
      "Modifier le modèle de document pour que l'erreur n'apparaisse plus.", "");
  return Utf8VersCp1252("<Code Mal renseigné : valeur non calculée>");
}

// A double that a 32-bit float cannot hold counts as a value that could not
// be computed.
float VersFloat(double valeur) {
  if (!std::isfinite(valeur) || std::fabs(valeur) > std::numeric_limits<float>::max()) return 0.0f;
  return static_cast<float>(valeur);
}

// A formula worked out as 0 is no fault of the run; a listening port is
// told why.
void ConstaterEchec(Generation& generation, const std::string& formule, EchecCalcul echec) {
  if (!generation.messages.EcouteConstats()) return;
  const std::string debut = "La formule \"" + Cp1252VersUtf8(RemplacerTout(formule, "_", " ")) + "\" ne peut être calculée";
  if (echec == EchecCalcul::Syntaxe) {
    generation.messages.Constater(Constat::FormuleIllisible,
                                  debut + " : son écriture n'est pas comprise (opérateur, nombre ou parenthèse mal "
                                          "placé) ; le document affichera 0.");
  } else {
    generation.messages.Constater(Constat::CalculImpossible,
                                  debut + " avec les valeurs du dossier (division par zéro ou nombre hors limites) "
                                          "; le document affichera 0.");
  }
}

}  // namespace

std::string ValeurCodeFormule(Generation& generation, const std::string& code) {
  std::string_view reste = code;
  if (CommencePar(reste, kPrefixeFormule)) reste.remove_prefix(kPrefixeFormule.size());
  std::size_t deuxPoints = reste.find(':');
  if (deuxPoints == std::string_view::npos) {
    return CodeMalRenseigne(generation, code,
                            "il manque le caractère \":\" séparant l'année d'étude de la formule à calculer.");
  }
  std::string_view specAnnee = reste.substr(0, deuxPoints);
  std::size_t a = specAnnee.find('a');
  if (a == std::string_view::npos) {
    return CodeMalRenseigne(
        generation, code,
        "il manque l'indicateur \"a\" suivant l'année d'exercice sur laquelle doit être fait le calcul.");
  }
  int16_t annee = Entier16De(Trim(specAnnee.substr(0, a)));
  return CalculerFormule(generation, std::string(reste.substr(deuxPoints + 1)), annee);
}

std::string CalculerFormule(Generation& generation, const std::string& formule, int16_t annee) {
  std::string expression = formule;
  int16_t decimales = kDecimalesAutomatiques;
  std::size_t deuxPoints = formule.find(':');
  if (deuxPoints != std::string::npos) {
    decimales = Entier16De(std::string_view(formule).substr(deuxPoints + 1));
    expression.resize(deuxPoints);
  }
  const std::string ecrite = expression;
  expression = RemplacerReferences(generation, expression, annee);
  std::replace(expression.begin(), expression.end(), ',', '.');
  CalculExpression calcul = CalculerExpression(expression);
  const float valeur = VersFloat(calcul.valeur);
  if (valeur == 0.0f && calcul.valeur != 0.0) calcul.echec = EchecCalcul::Arithmetique;
  if (calcul.echec != EchecCalcul::Aucun) ConstaterEchec(generation, ecrite, calcul.echec);
  return FormatNombre(valeur, decimales, false);
}

}  // namespace norvane
