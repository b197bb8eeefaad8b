// The value columns of a table line: how many, how wide, which are written.
//
// N is the number of dossiers compared in a multi-dossier model (whose years
// mode is then 0), 1 in years mode 3, otherwise the study's number of years.
// Every column is LargeurValeurs / N wide, rounded half to even, whatever
// number of columns is really written: years mode 1 writes N + 1 columns
// (year 0 first), mode 2 only the first and the last year, mode 3 none.
#pragma once

#include <cstdint>

#include "tables/ModeleTableau.h"

namespace norvane {

struct ColonnesValeurs {
  int nombre = 0;      // N
  int32_t largeur = 0;  // twips of one column
  int premiere = 1;    // 0 in years mode 1
  int derniere = 0;    // N
  int16_t modeAnnees = 0;

  // True when column c gets a cell.
  bool Ecrite(int c) const { return modeAnnees != 3 && (modeAnnees != 2 || c == 1 || c == nombre); }
};

// The columns of a line printed in `modeAnnees` for a study of `nbAnEtude`
// years. N is held to 0..15, the room of the value table.
ColonnesValeurs CalculerColonnes(const ModeleTableau& modele, int16_t nbAnEtude, int16_t modeAnnees);

}  // namespace norvane
