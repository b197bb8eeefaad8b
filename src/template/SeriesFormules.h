// Series named inside a formula: their value for the calculation, their label
// for the display of a formula.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "template/Generation.h"

namespace norvane {

// Value of the series `reference` ("<file>-<record>[!A<year>]") in year
// `annee` of the dossier in slot 0.
float ValeurLigne(Generation& generation, std::string& reference, int16_t annee);
// A dossier is linked in slot 0: series values can be read.
bool DossierChoisi(const Session& session);

// Title of the box a series reference gives when no dossier is linked.
inline constexpr std::string_view kTitreDossierAbsent = "Dossier Tervol non sélectionné !";
std::string LibelleLigne(Generation& generation, std::string& reference);

}  // namespace norvane
