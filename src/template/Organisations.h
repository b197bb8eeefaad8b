// ORGA codes: a field of one of the organisations of the parameter file.
#pragma once

#include <string>

#include "template/Generation.h"
#include "template/IssueCode.h"

namespace norvane {

// ORGA + field + index.
IssueCode ChampOrganisation(Generation& generation, const std::string& code);

}  // namespace norvane
