// Small text cutters of the model store: bracketed fields and the parts of a
// text around the n-th separator.
#pragma once

#include <string>
#include <string_view>

namespace norvane {

inline constexpr char kErreurCrochets[] = "erreur";

// The text between the first "[" and the next "]"; `texte` becomes what
// follows that "]". "erreur" when a bracket is missing: `texte` then keeps
// what follows the "[", or stays whole when there is no "[".
std::string ExtraireCrochets(std::string& texte);
std::string_view ExtraireCrochets(std::string_view& texte);

// What lies left, or right, of the n-th (from 1) occurrence of `separateur`;
// "-1" when the text holds fewer than n of them.
std::string GaucheDe(std::string_view texte, std::string_view separateur, int n);
std::string DroiteDe(std::string_view texte, std::string_view separateur, int n);

}  // namespace norvane
