// The scan of a slice of text for codes, the interpretation of one code, and
// the insertion of its value in the code's place.
#include <algorithm>
#include <exception>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "template/Interpreteur.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

constexpr std::string_view kCodeErrone = "< Portion de code erronée dans le modèle de document >";

void SignalerBalise(Generation& generation, std::string_view texte) {
  generation.messages.AfficherMessage(std::string(kAppelant), std::string(kTitreErreur), std::string(texte),
                                      std::string(kConseilModifier), "");
}

// The chain under a guard: whatever fails inside one code leaves that code as
// it stands, and the generation goes on.
IssueCode ResoudreSousGarde(Generation& generation, std::string& code, bool explication) {
  try {
    return ResoudreCode(generation, code, explication);
  } catch (const std::exception&) {
    IssueCode issue;
    issue.inchange = true;
    return issue;
  }
}

}  // namespace

int16_t InterpreterPortion(Generation& generation, std::string& texte, bool explication) {
  int16_t resultat = -1;
  auto p = ChercherSansCasse(texte, kMarqueDebut);
  while (p != std::string::npos) {
    std::size_t q = p + kMarqueDebut.size();
    const auto suivant = texte.find(kMarqueDebut, q);
    const auto fin = texte.find(kMarqueFin, q);
    // A missing end mark counts as lying before any further start mark. When
    // a start mark comes first, the inner code is taken next and the outer
    // mark stays in the text as it stands.
    if (suivant == std::string::npos || fin == std::string::npos || fin < suivant) {
      if (fin != std::string::npos && fin > p) {
        resultat = InterpreterCode(generation, texte, p, q, fin, explication, false);
      } else if (fin == std::string::npos) {
        SignalerBalise(generation,
                       "Norvane ne trouve pas une balise \")#\" dans le modèle de document utilisé pour la création.");
      } else {
        SignalerBalise(generation,
                       "une portion de code est mal balisée dans le modèle de document choisi pour la création.");
      }
    }
    p = texte.find(kMarqueDebut, q);
  }
  return resultat;
}

int16_t InterpreterCode(Generation& generation, std::string& texte, std::size_t debut, std::size_t& suite,
                        std::size_t fin, bool explication, bool sansAnnotation) {
  if (fin < debut + kMarqueDebut.size() || fin + kMarqueFin.size() > texte.size()) {
    suite = std::min(texte.size(), fin + kMarqueFin.size());
    return -1;
  }
  std::string code = texte.substr(debut + kMarqueDebut.size(), fin - debut - kMarqueDebut.size());
  if (!sansAnnotation) generation.etat.CodeCourant = std::string(kMarqueDebut) + code + std::string(kMarqueFin);
  NettoyerCode(code);
  generation.etat.TransfoPerenne = false;
  const std::string nettoye = code;

  if (CommencePar(code, "si(", true)) {
    switch (EvaluerCondition(generation, code)) {
      case Condition::Fausse:
        suite = InsererValeur(generation, texte, debut, fin, "\\v", sansAnnotation);
        return 0;
      case Condition::Erronee:
        suite = InsererValeur(generation, texte, debut, fin, Utf8VersCp1252(kCodeErrone), sansAnnotation);
        return -1;
      case Condition::Vraie:
        break;
    }
  }
  const IssueCode issue = ResoudreSousGarde(generation, code, explication);
  suite = issue.inchange ? fin + kMarqueFin.size()
                         : InsererValeur(generation, texte, debut, fin, issue.valeur, sansAnnotation);
  if (explication) MontrerExplication(generation, nettoye, issue);
  return -1;
}

std::size_t InsererValeur(Generation& generation, std::string& texte, std::size_t debut, std::size_t fin,
                          const std::string& valeur, bool sansAnnotation) {
  std::optional<std::string> insere;
  if (!sansAnnotation) insere = AnnotationInfo(generation.etat.CodeCourant);
  if (!insere) {
    insere = Trim(valeur);
    if (insere->empty()) *insere = "\\~";
    if (!sansAnnotation && generation.session.options.SansAnnotation == 0) {
      insere = AnnotationValeur(generation, *insere);
    }
  }
  debut = std::min(debut, texte.size());
  const auto apres = std::min(texte.size(), std::max(debut, fin + kMarqueFin.size()));
  texte.replace(debut, apres - debut, *insere);
  return debut + insere->size();
}

}  // namespace norvane
