// Formula calculation: LG references replaced by numbers, then the arithmetic.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "template/Generation.h"

namespace norvane {

// Value of a "formule:<n>a:<expression>[:<decimals>]" code; `code` is the
// cleaned code with its prefix. On a malformed code the box is shown and the
// text "<Code Mal renseigné : valeur non calculée>" is returned.
std::string ValeurCodeFormule(Generation& generation, const std::string& code);

// `annee`: year index 0..15; -1 shows table line texts in place of values;
// -2 means no table exists, so LGn is refused.
std::string CalculerFormule(Generation& generation, const std::string& formule, int16_t annee);
std::string RemplacerReferences(Generation& generation, const std::string& formule, int16_t annee);
float ValeurLigne(Generation& generation, std::string& reference, int16_t annee);
// A dossier is linked in slot 0: series values can be read.
bool DossierChoisi(const Session& session);

// Title of the box a series reference gives when no dossier is linked.
inline constexpr std::string_view kTitreDossierAbsent = "Dossier Tervol non sélectionné !";
std::string LibelleLigne(Generation& generation, std::string& reference);

// The arithmetic: numbers with "." as decimal mark, + - * / ^, unary minus,
// brackets, usual precedence, double precision. 0 for anything it cannot compute.
double EvaluerExpression(const std::string& expression);

}  // namespace norvane
