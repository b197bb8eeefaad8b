#include "app/Travail.h"

#include <iostream>

#include "app/EditeurLigneCommande.h"
#include "frame/LigneCommande.h"

namespace norvane {

void PlacerDossier(Session& session, int slot, const std::string& argument) {
  Session decoupe;
  DecouperArgumentDossier(argument, decoupe);
  session.RepDossier[slot] = decoupe.RepDossier[0];
  session.NomDossier[slot] = decoupe.NomDossier[0];
}

bool PlacerDossiers(Application& application, const std::string& dossier) {
  if (!dossier.empty()) PlacerDossier(application.session, 0, dossier);
  const auto& autres = application.options.comparer;
  if (autres.size() > 9) {
    std::cerr << "Norvane : neuf dossiers à comparer au plus (--comparer).\n";
    return false;
  }
  for (std::size_t n = 0; n < autres.size(); ++n) PlacerDossier(application.session, static_cast<int>(n + 1), autres[n]);
  return true;
}

Travail::Travail(Application& application, PortMessages* messages)
    : editeur_(std::make_unique<EditeurLigneCommande>(application.session.options, application.messages)),
      generation_(application.session, messages ? *messages : application.messages, application.progression,
                  aucuneEntite_) {
  generation_.editeur = editeur_.get();
  if (application.options.annees > 0) generation_.AnneesCerfa = static_cast<int16_t>(application.options.annees);
}

Travail::~Travail() = default;

}  // namespace norvane
