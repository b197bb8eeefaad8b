// Whole rewrite of a file through a temporary file and a rename.
#pragma once

#include <string>
#include <string_view>

namespace norvane {

// Writes a whole file through a temporary file in the same folder renamed over
// the old one. Returns false on failure, leaving any old file intact.
bool EcrireFichierAtomique(const std::string& chemin, std::string_view contenu);

}  // namespace norvane
