// Cleaning of a code: the RTF a word processor left inside it, and the marks
// the interpreter takes out.
#pragma once

#include <string>
#include <string_view>

namespace norvane {

// Removes the RTF a word processor left inside a code.
void NettoyerCode(std::string& texte);

// Removes `marque` and the digit behind it, or the mark itself when no digit
// follows: -1 when the mark is absent, 1 otherwise.
int EnleverMarque(std::string& texte, std::string_view marque);

}  // namespace norvane
