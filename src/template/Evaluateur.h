// The arithmetic of formulas, once every LG reference has become a number.
#pragma once

#include <string>

namespace norvane {

// Numbers with "." as decimal mark, + - * / ^, unary minus, brackets, usual
// precedence, double precision. 0 for anything it cannot compute.
double EvaluerExpression(const std::string& expression);

}  // namespace norvane
