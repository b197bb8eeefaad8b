// The rows of the ordinary, spacing and premium line kinds of a table.
#pragma once

#include <string>

#include "tables/ContexteTableau.h"

namespace norvane {

// The RTF of line LigneCourante of each kind, or "VALEURS NULLES"; `entete`
// is the row start of the line.
std::string LigneOrdinaire(ContexteTableau& contexte, const std::string& entete);
// The same row with `premierLibelle` (RTF ready) in its first label cell.
std::string LigneOrdinaire(ContexteTableau& contexte, const std::string& entete, const std::string& premierLibelle);
std::string LigneEspace(ContexteTableau& contexte);
std::string LignesPrimes(ContexteTableau& contexte, const std::string& entete);

}  // namespace norvane
