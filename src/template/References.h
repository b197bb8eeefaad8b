// LG references of a formula replaced by numbers, or by labels for display.
#pragma once

#include <cstdint>
#include <string>

#include "template/Generation.h"

namespace norvane {

// `annee`: year index 0..15; -1 puts table line texts and series labels in
// place of values; -2 means no table exists, so LGn is refused.
std::string RemplacerReferences(Generation& generation, const std::string& formule, int16_t annee);

}  // namespace norvane
