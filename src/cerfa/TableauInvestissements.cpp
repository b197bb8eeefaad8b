#include "cerfa/TableauInvestissements.h"

#include <utility>

#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "study/TexteEtude.h"
#include "tables/ContexteTableau.h"
#include "tables/DefinitionLigne.h"
#include "tables/LignesRtf.h"

namespace norvane {
namespace {

// Assets with a row of their own; those after share one.
constexpr std::size_t kLignesPropres = 5;

std::string Rangee(ContexteTableau& contexte, const std::string& debutLigne, const std::string& libelle) {
  std::string rtf = LigneOrdinaire(contexte, debutLigne, libelle);
  return rtf == kValeursNulles ? std::string() : rtf;
}

}  // namespace

std::string TableauInvestissements(ContexteTableau& contexte, const std::string& debutLigne,
                                   ImmosCourantes& courantes) {
  courantes.clear();
  std::string rtf = Rangee(contexte, debutLigne, "Parts sociales emprunts");
  ImmosCourantes autres;
  std::size_t compte = 0;
  for (const FicheImmo& immo : ChargerImmos(DossierDuSlot(contexte.generation.session, 0))) {
    if (immo.Nouveau != 1) continue;
    if (++compte > kLignesPropres) {
      autres.push_back(immo);
      continue;
    }
    courantes = {immo};
    rtf += Rangee(contexte, debutLigne, TexteEtudePourRtf(Trim(immo.Libelle)));
  }
  if (!autres.empty()) {
    courantes = std::move(autres);
    rtf += Rangee(contexte, debutLigne, "Autres immobilisations");
  }
  courantes.clear();
  return rtf;
}

std::string ValeurCerfa(const ImmosCourantes& courantes, const std::string& reste, int numero) {
  if (courantes.empty() || numero < 0 || numero >= static_cast<int>(kExercicesImmo)) return {};
  float somme = 0;
  for (const FicheImmo& immo : courantes) somme += immo.MontantsAnnuels[static_cast<std::size_t>(numero)];
  return FormatNombre(somme, LireReferenceDecimales(reste).decimales, false);
}

}  // namespace norvane
