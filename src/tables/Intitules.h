// Heading texts of the value columns: one per study year, or one per
// compared dossier. Texts are Windows-1252 and may hold "\par ".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "frame/Ports.h"

namespace norvane {

// The heading kind that a line "entete:<reste>" asks of its value columns:
// the text before the first ":" of `reste`, "1" when it holds none;
// std::nullopt in years mode 2 of a one-dossier table, whose first and last
// columns show the start and end texts instead.
std::optional<std::string> SorteIntitule(std::string_view reste, bool multiDossier, int16_t modeAnnees);

// A year heading kind that IntituleAnnee knows: "1" to "7".
bool SorteIntituleAnneeConnue(std::string_view sorte);

// The box IntituleAnnee shows for any other kind.
inline constexpr char kIntituleIncorrect[] = "Le format de la ligne d'intitulé d'un tableau est incorrect.";

// Heading of exercise `c` (0: the year before the study) of a study that
// starts on `dateDebut` ("JJ/MM/AAAA"), in heading kind "1" to "7". Any other
// kind is told through `messages` and gives an empty text; so does a start
// date that is no date, for the kinds that need it.
std::string IntituleAnnee(std::string_view dateDebut, int c, std::string_view sorte, PortMessages& messages);

// Heading of compared dossier `c`, named `nomDossier`, in kind "1" to "6";
// any other kind gives an empty text.
std::string IntituleDossier(std::string_view nomDossier, int c, std::string_view sorte);

}  // namespace norvane
