// Formula calculation: LG references replaced by numbers, then the arithmetic.
#pragma once

#include <cstdint>
#include <string>

#include "template/Generation.h"

namespace norvane {

// Value of a "formule:<n>a:<expression>[:<decimals>]" code; `code` is the
// cleaned code with its prefix. On a malformed code the box is shown and the
// text "<Code Mal renseigné : valeur non calculée>" is returned.
std::string ValeurCodeFormule(Generation& generation, const std::string& code);

// `annee`: year index 0..15; -1 shows table line texts in place of values;
// -2 means no table exists, so LGn is refused.
std::string CalculerFormule(Generation& generation, const std::string& formule, int16_t annee);

}  // namespace norvane
