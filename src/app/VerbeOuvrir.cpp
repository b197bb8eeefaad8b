// OUVRIR <dossier .TVL> <document>: a document of the dossier's folder opened
// in the user's LibreOffice ("#tvl#" stands for a blank in both).
#include "app/VerbeOuvrir.h"

#include <iostream>

#include "app/EditeurLigneCommande.h"
#include "frame/Encodage.h"
#include "frame/LigneCommande.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "study/DossierGeneral.h"

namespace norvane {

int VerbeOuvrir(Application& application) {
  if (application.Param(2).empty() || application.Param(3).empty()) {
    std::cerr << "Usage : norvane OUVRIR <dossier .TVL> <document>\n";
    return 2;
  }
  Session& session = application.session;
  DecouperArgumentDossier(application.Param(2), session);
  std::string nom = RemplacerBlancs(application.Param(3), "#tvl#");
  if (!FinitPar(nom, ".rtf", true)) nom += ".rtf";
  const std::string chemin = JoindreChemin(session.RepDossier[0] + session.NomDossier[0], nom);
  ChargerInfoDossier(session);
  if (!ResoudreChemin(chemin)) {
    std::cerr << "Norvane : le document « " << Cp1252VersUtf8(chemin) << " » est introuvable.\n";
    return 1;
  }
  LierEditeurSiAucun(application);
  EditeurLigneCommande editeur(session.options, application.messages);
  return editeur.Ouvrir(CheminReel(chemin)) ? 0 : 1;
}

}  // namespace norvane
