// DOSSIER <dossier .TVL>: prints what a dossier holds (general record,
// organisations, series files), to check a dossier from the terminal.
#include "app/VerbeDossier.h"

#include <iostream>

#include "frame/Texte.h"
#include "study/ApercuDossier.h"

namespace norvane {

int VerbeDossier(Application& application) {
  const std::string chemin = application.Param(2);
  if (EstBlanc(chemin)) {
    std::cerr << "Usage : norvane DOSSIER <dossier .TVL>\n";
    return 2;
  }
  const Session& session = application.session;
  return DecrireDossier(chemin, session, std::cout) ? 0 : 1;
}

}  // namespace norvane
