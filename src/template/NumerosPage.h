// Page numbers numPage2 / numPage2bis, counted through one generation.
#pragma once

#include <string>

#include "template/Generation.h"

namespace norvane {

// numPage2 / numPage2bis: "\v0 2-<n>", "\v0 2bis-<n>", one counter for both.
std::string NumeroPage(Generation& generation, const std::string& code);

}  // namespace norvane
