// State that lives as long as the process: the program's folders, the dossier
// slots, the current dossier's records and the settings. What belongs to one
// generation only (page counter, colour count...) lives in the template engine.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "frame/Options.h"
#include "study/Enregistrements.h"

namespace norvane {

struct Session {
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

  DossierGeneral InfoDossier;
  std::array<Organisation, 20> Organisations;
  int16_t ParamFinal = 0;
  SerieDonnees SerieCourante;

  Options options;
};

}  // namespace norvane
