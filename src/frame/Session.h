// State of the frame that lives as long as the process: the program's
// folders, the dossier slots and the settings. The study subsystem extends it
// with the current dossier's records (study/Session.h); what belongs to one
// generation only lives in the template engine.
#pragma once

#include <array>
#include <string>

#include "frame/Options.h"

namespace norvane {

struct SessionCadre {
  // Folders of the installation, each ending with "/" once derived (InitChemins).
  std::string RepWinTervol;
  std::string RepDatacfg;
  std::string RepModelGraph;
  std::string RepNorvane;
  std::string RepModlDocs;
  std::string RepImages;
  std::string RepSkin;
  std::string RepGuide;

  // Dossier slots: 0 is the current dossier, 1 to 9 those of a table that
  // compares dossiers. The folder of slot n is RepDossier[n] + NomDossier[n].
  std::array<std::string, 10> RepDossier;
  std::array<std::string, 10> NomDossier;

  Options options;
};

}  // namespace norvane
