// The generator's side of the bound word processor: which driver serves it,
// and the boxes shown when none does.
#pragma once

#include <string>

#include "frame/Options.h"
#include "template/Generation.h"

namespace norvane {

constexpr int kEditeurWord = 1;
constexpr int kEditeurWordPro = 2;
constexpr int kEditeurOpenOffice = 3;

// 1, 2 or 3 by the bound word processor's executable name; 0 for none.
int IndexEditeur(const Options& options);

// Saves the document under `chemin` through the bound word processor, in the
// format of its extension; with no word processor bound, the box says so
// with the given advice.
void SauvegarderParEditeur(Generation& generation, const std::string& chemin, const std::string& conseil);

}  // namespace norvane
