// The whole session: the frame's folders, slots and settings, and the records
// of the current dossier that the study readers fill.
#pragma once

#include <array>
#include <cstdint>

#include "frame/Session.h"
#include "study/Enregistrements.h"

namespace norvane {

struct Session : SessionCadre {
  DossierGeneral InfoDossier;
  std::array<Organisation, 20> Organisations;
  int16_t ParamFinal = 0;
  SerieDonnees SerieCourante;
};

}  // namespace norvane
