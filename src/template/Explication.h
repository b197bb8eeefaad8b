// Explanation boxes of the explain mode.
#pragma once

#include <string>

#include "template/Generation.h"
#include "template/IssueCode.h"

namespace norvane {

// Explanation boxes.
void MontrerExplication(Generation& generation, const std::string& code, const IssueCode& issue);
std::string AideTableau(const std::string& code);
std::string AideGraphique(const std::string& code);

}  // namespace norvane
