// The arithmetic of formulas, once every LG reference has become a number.
#pragma once

#include <string>

namespace norvane {

// Numbers with "." as decimal mark, + - * / ^, unary minus, brackets, usual
// precedence, double precision. 0 for anything it cannot compute.
double EvaluerExpression(const std::string& expression);

// Why an expression gives no value: its text cannot be read, or it is read
// and the arithmetic fails (a division by zero, 0^0, an overflow). A failure
// of the arithmetic stops the reading, so a fault of the text behind it is
// not seen.
enum class EchecCalcul { Aucun, Syntaxe, Arithmetique };
struct CalculExpression {
  double valeur = 0.0;  // 0 on a failure
  EchecCalcul echec = EchecCalcul::Aucun;
};
CalculExpression CalculerExpression(const std::string& expression);

}  // namespace norvane
