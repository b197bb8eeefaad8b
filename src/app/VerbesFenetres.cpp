// Verbs whose job is a window. The windows come with the graphical build; a
// run without them says so and fails, so that a calling script notices.
#include <iostream>

#include "app/Verbes.h"

namespace norvane {
namespace {

int FenetreAbsente(const char* fenetre) {
  std::cerr << "Norvane : la fenêtre « " << fenetre
            << " » n'est pas disponible dans cette version en ligne de commande.\n";
  return 3;
}

}  // namespace

int VerbeOuvrir(Application&) { return FenetreAbsente("Ouverture d'un document"); }
int VerbeCreer(Application&) { return FenetreAbsente("Création de documents"); }
int VerbeCerfa(Application&) { return FenetreAbsente("Création du rapport PDE Cerfa"); }
int VerbeGraph(Application&) { return FenetreAbsente("Edition des graphiques"); }

}  // namespace norvane
