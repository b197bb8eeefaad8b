#include "cerfa/ProducteursCerfa.h"

#include "cerfa/TableCerfa.h"
#include "cerfa/TableauEmprunts.h"
#include "cerfa/TableauFinancement.h"
#include "cerfa/TableauFinancementAnnuel.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"

namespace norvane {

std::optional<std::string> TableauCerfa(ContexteTableau& contexte, const std::string& debutLigne,
                                        double& totalGeneral) {
  const DefinitionLue definition = LireDefinition(contexte.LigneEnCours().Definition.Texte);
  const std::string cle = LireReferenceDecimales(definition.reste).reference.substr(0, 5);
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
    if (std::optional<std::string> rtf = TableauCerfa(contexte, debutLigne, TotalGeneral)) return *rtf;
  }
  return ProducteursTables::LignesPredefinies(contexte, sorte, debutLigne);
}

}  // namespace norvane
