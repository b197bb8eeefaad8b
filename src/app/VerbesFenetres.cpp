// Verbs whose job is a window: the dossier argument is taken apart and the
// dossier loaded, as the window would need it. The windows come with the
// graphical build; a run without them says so and fails, so that a calling
// script notices.
#include "app/VerbesFenetres.h"

#include <iostream>

#include "frame/LigneCommande.h"
#include "study/DossierGeneral.h"

namespace norvane {
namespace {

int FenetreAbsente(Application& application, const char* fenetre) {
  DecouperArgumentDossier(application.Param(2), application.session);
  ChargerInfoDossier(application.session);
  std::cerr << "Norvane : la fenêtre « " << fenetre
            << " » n'est pas disponible dans cette version en ligne de commande.\n";
  return 3;
}

}  // namespace

int VerbeCreer(Application& a) { return FenetreAbsente(a, "Création de documents"); }
int VerbeCerfa(Application& a) { return FenetreAbsente(a, "Création du rapport PDE Cerfa"); }
int VerbeGraph(Application& a) { return FenetreAbsente(a, "Edition des graphiques"); }

}  // namespace norvane
