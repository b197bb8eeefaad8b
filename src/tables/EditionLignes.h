// Lines of a model as the editor inserts, removes, moves and duplicates them.
// Line numbers are 1-based, as the user sees them. Only the texts of a line
// (its nine cells and its definition) travel; its height, gap and series
// year stay with the position. Total formulas follow the lines they name.
#pragma once

#include "frame/Ports.h"
#include "tables/ModeleTableau.h"

namespace norvane {

// Inserts a line with the defaults after line `apres` (0: before line 1).
// Refused at 511 lines. False when refused.
bool InsererLigne(ModeleTableau& modele, int apres, PortMessages& messages, const DefautsCellule& defauts = {});

// Removes line `ligne`; each following line moves up and has its formula
// renumbered. False when there is no line to remove.
bool SupprimerLigne(ModeleTableau& modele, int ligne, PortMessages& messages);

// Moves line `ligne` before (`avant`) or after line `cible`. A move renumbers
// the lines, so every LGn formula of the table is erased and told (LG(...)
// stays). False when refused (the same line, or a place it already holds).
bool DeplacerLigne(ModeleTableau& modele, int ligne, int cible, bool avant, PortMessages& messages,
                   const DefautsCellule& defauts = {});

// Adds a copy of line `ligne` (texts, height, gap) at the end of the table.
// False when the table is full or there is no such line.
bool DupliquerLigne(ModeleTableau& modele, int ligne);

}  // namespace norvane
