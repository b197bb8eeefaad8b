// The investments table of the Cerfa report ("imemp:inve1"): the line of the
// model in hand repeated for the dossier's new assets, its value cells
// showing each asset's amounts by exercise.
#pragma once

#include <string>
#include <vector>

#include "tables/ImmoEmprunts.h"

namespace norvane {

struct ContexteTableau;

// The assets whose amounts the value cells of the row being made show. Empty
// outside the asset rows, and the cells are then blank.
using ImmosCourantes = std::vector<FicheImmo>;

// The rows of the line in hand: "Parts sociales emprunts" first, then one row
// per new asset (Nouveau 1), in file order, labelled with its trimmed label,
// for the first five; the sixth and those after it share one row "Autres
// immobilisations", whose values are their sums. `courantes` holds the assets
// of each row while it is made, and is empty again at the end.
std::string TableauInvestissements(ContexteTableau& contexte, const std::string& debutLigne,
                                   ImmosCourantes& courantes);

// Exercise `numero` (0 to 25) of the assets in hand, summed, with the decimals
// behind the ":" of `reste` ("inve1:<decimals>", 7 when absent). Empty with no
// asset in hand or an exercise out of that range.
std::string ValeurCerfa(const ImmosCourantes& courantes, const std::string& reste, int numero);

}  // namespace norvane
