// Conditions "si(...)alors:" of the code language.
#pragma once

#include <string>

#include "template/Generation.h"

namespace norvane {

// si(condition)alors:code. On Vraie, `code` is left holding what stands
// behind ")alors:".
enum class Condition { Vraie, Fausse, Erronee };
Condition EvaluerCondition(Generation& generation, std::string& code);

}  // namespace norvane
