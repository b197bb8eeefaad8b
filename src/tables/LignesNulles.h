// Lines whose values are all zero: shown, dropped, or shown on the user's
// word, as the line's display option says (0 always, 1 dropped, 2 asked,
// 3 never shown though its values are kept for the totals).
#pragma once

#include <string>

#include "tables/DefinitionLigne.h"

namespace norvane {

struct ContexteTableau;

// After the value columns of the line in hand (`nombre` is N): turns
// `cellules` into "VALEURS NULLES" when the line is not to be shown.
void AppliquerOptionZeros(ContexteTableau& contexte, const DefinitionLue& definition, int nombre,
                          std::string& cellules);

}  // namespace norvane
