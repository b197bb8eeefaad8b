// PDE: the PDE Cerfa report made from the stock templates as the creation
// dialog's PDE frame makes it: one page (--page) or the whole report, with
// the company sheets for a company, or for an individual farm when the user
// answers yes (--reponse), over the years of the frame's years box
// (--annees, "5" when not given). The rest is the ordinary creation of a
// document, with its conversion to the result's format.
#include "app/VerbePDE.h"

#include <iostream>

#include "app/Travail.h"
#include "cerfa/ChoixPDE.h"
#include "study/DossierGeneral.h"

namespace norvane {

int VerbePDE(Application& application) {
  Session& session = application.session;
  // The dossier of the command line is the dossier of the dialog: none there
  // is refused as the dialog refuses it, whatever the settings remember.
  PlacerDossier(session, 0, application.Param(2));
  if (!DossierLiePDE(session, application.messages)) return 1;
  if (application.Param(3).empty()) {
    std::cerr << "Usage : norvane PDE <dossier .TVL> <résultat> [--page=0..15] [--annees=N] [--reponse=oui|non]\n";
    return 2;
  }
  if (!PlacerDossiers(application, application.Param(2))) return 1;
  ChargerInfoDossier(session);
  const bool societe = session.InfoDossier.TypeExploitation == 1;
  const std::string modele = session.RepNorvane + ModelePDE(application.options.page, societe, application.messages);
  const std::string texteAnnees = application.options.annees.value_or(std::to_string(kAnneesPDEParDefaut));
  return GenererDocument(application, modele, application.Param(3), NombreAnneesPDE(texteAnnees));
}

}  // namespace norvane
