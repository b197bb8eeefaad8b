// Heading texts of the value columns: one per study year, or one per
// compared dossier. Texts are Windows-1252 and may hold "\par ".
#pragma once

#include <string>
#include <string_view>

#include "frame/Ports.h"

namespace norvane {

// Heading of exercise `c` (0: the year before the study) of a study that
// starts on `dateDebut` ("JJ/MM/AAAA"), in heading kind "1" to "7". Any other
// kind is told through `messages` and gives an empty text; so does a start
// date that is no date, for the kinds that need it.
std::string IntituleAnnee(std::string_view dateDebut, int c, std::string_view sorte, PortMessages& messages);

// Heading of compared dossier `c`, named `nomDossier`, in kind "1" to "6";
// any other kind gives an empty text.
std::string IntituleDossier(std::string_view nomDossier, int c, std::string_view sorte);

}  // namespace norvane
