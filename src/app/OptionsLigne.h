// Options of the headless verbs ("--remplacer", "--reponse=oui"...), taken out
// of the argument list before the verb's own arguments are read.
#pragma once

#include <string>
#include <vector>

#include "app/Application.h"

namespace norvane {

// Removes every argument that starts with "--" from `arguments` and returns
// what they ask for; an option not understood lands in `inconnues`.
OptionsLigne ExtraireOptions(std::vector<std::string>& arguments);

}  // namespace norvane
