#include "cerfa/ProducteursCerfa.h"

#include "cerfa/TableCerfa.h"
#include "cerfa/TableauEmprunts.h"
#include "cerfa/TableauFinancement.h"
#include "cerfa/TableauFinancementAnnuel.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"

namespace norvane {

std::optional<std::string> TableauCerfa(ContexteTableau& contexte, const std::string& debutLigne,
                                        ProducteursCerfa& producteurs) {
  const DefinitionLue definition = LireDefinition(contexte.LigneEnCours().Definition.Texte);
  const std::string cle = LireReferenceDecimales(definition.reste).reference.substr(0, 5);
  double& totalGeneral = producteurs.TotalGeneral;
  if (cle == "inve1") return TableauInvestissements(contexte, debutLigne, producteurs.ImmoCourant);
  if (cle == "finap") return TableauFinancement(OuvrirTableCerfa(contexte, debutLigne), totalGeneral);
  if (cle == "finan" || cle == "finaa") {
    return TableauFinancementAnnuel(OuvrirTableCerfa(contexte, debutLigne), cle[4] == 'a', totalGeneral);
  }
  if (cle == "empr2" || cle == "empr3") return TableauEmprunts(OuvrirTableCerfa(contexte, debutLigne), cle[4] == '3');
  return std::nullopt;
}

std::string ProducteursCerfa::LignesPredefinies(ContexteTableau& contexte, std::string_view sorte,
                                                const std::string& debutLigne) {
  if (sorte == "imemp") {
    if (std::optional<std::string> rtf = TableauCerfa(contexte, debutLigne, *this)) return *rtf;
  }
  return ProducteursTables::LignesPredefinies(contexte, sorte, debutLigne);
}

std::string ProducteursCerfa::ValeurSpeciale(ContexteTableau& contexte, std::string_view sorte,
                                             const std::string& reste, int c) {
  if (sorte == "imemp") return ValeurCerfa(ImmoCourant, reste, c);
  return ProducteursTables::ValeurSpeciale(contexte, sorte, reste, c);
}

}  // namespace norvane
