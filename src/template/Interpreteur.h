// The code interpreter: cleaning of a code, the fixed dispatch chain, the
// general fields of the dossier, and the insertion of a value in the text.
// Positions are 0-based indexes into the text.
#pragma once

#include <cstdint>
#include <string>

#include "template/Generation.h"

namespace norvane {

// Scans `texte` for "#tvl(" ... ")#" codes and interprets each in place.
// Returns -1, or 0 when the last code was a false condition.
int16_t InterpreterPortion(Generation& generation, std::string& texte, bool explication);

// Interprets the code whose start mark is at `debut` and end mark at `fin`;
// `suite` comes back as the index behind the inserted value.
int16_t InterpreterCode(Generation& generation, std::string& texte, std::size_t debut, std::size_t& suite,
                        std::size_t fin, bool explication, bool sansAnnotation);

// Replaces texte[debut, fin + 2) by the trimmed value ("\~" when empty);
// returns the index behind the value.
std::size_t InsererValeur(Generation& generation, std::string& texte, std::size_t debut, std::size_t fin,
                          const std::string& valeur, bool sansAnnotation);

}  // namespace norvane
