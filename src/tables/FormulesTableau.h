// Total formulas of a table line as the editor checks and renumbers them.
// A formula names other lines as LG<n> (line n of this table, same column) or
// a series as LG(<file>-<record>[!A<year>|!A-1]); a word ends at one of the
// operators + - * / ( ) ² ^ & | : or at a blank.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "frame/Ports.h"
#include "tables/ModeleTableau.h"

namespace norvane {

// Why a free formula is refused: the box's title and text (UTF-8).
struct RefusFormule {
  std::string titre;
  std::string texte;
};

// Checks a free formula (totalC) of a table of `nbLignes` lines: not empty,
// each LG( closed and holding its "-", each other LG followed by the number
// of a line of the table. std::nullopt when it is valid.
std::optional<RefusFormule> ValiderFormule(std::string_view formule, int nbLignes);

// The refusal of an LGn in a formula used outside a table.
std::optional<RefusFormule> RefuserLignesHorsTableau(std::string_view formule);

// Adapts the total formula of line `ligne` (1-based) after a line was
// inserted after `pivot` (`suppression` false) or removed at `pivot`
// (`suppression` true): LGn above the pivot move by one; LG(...) never
// change. A formula that comes to name an undefined line, or the removed
// line, is erased and the user told; a changed one is rewritten without its
// ":decimals:display" tail, and the user told. Lines that are not totals are
// left alone.
void RenumeroterFormule(ModeleTableau& modele, int pivot, int ligne, bool suppression, PortMessages& messages);

}  // namespace norvane
