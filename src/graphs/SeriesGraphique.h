// The data of a chart: the yearly values of its series, read from the .DON
// files of the current dossier, or example values when there is no dossier.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "frame/Ports.h"
#include "graphs/DessinGraphique.h"
#include "graphs/ModeleGraphique.h"
#include "study/Session.h"

namespace norvane {

// Years a series file holds: index 0 is the year before the study, 1 to 13
// the study years.
inline constexpr int kAnneesSerie = 14;
using ValeursSerie = std::array<float, kAnneesSerie>;

// Where the values of a chart come from.
struct SourceValeursGraphique {
  std::string dossier;         // folder of the current dossier, where its .DON files are
  int16_t NbAnEtude = 0;       // rows of the grid: the years in force
  int16_t PremiereAnnee = 0;   // calendar year of study year 1
  bool valeursExemple = false; // example values: no dossier was given and the chart is not generated
};

// The source of a session: the dossier of slot 0, its study years and first
// year as the general record (with any override of the years) holds them.
SourceValeursGraphique SourceDeSession(const Session& session, bool valeursExemple);

// The fourteen yearly values of the record of `fichier` (in `dossier`, found
// without regard to case) whose trimmed code is the trimmed `code`; all zero
// when the file or the record is missing. Records are read in order, the
// first match wins.
ValeursSerie LireValeursSerie(const std::string& dossier, const std::string& fichier, const std::string& code);
// The same, std::nullopt when the file or the record is missing.
std::optional<ValeursSerie> TrouverValeursSerie(const std::string& dossier, const std::string& fichier,
                                                const std::string& code);

// Fills the grid of a chart: one column per series in use, labelled with its
// NomSerie; NbAnEtude rows (NbSeries when there are no years), labelled with
// their calendar years, valued from study year 1 on. Example values are
// (sin(r) + 6.28) x 1000 for row r. More rows than a series file holds years
// (13): `messages` says so, the grid stays empty and it returns false.
bool RemplirGrille(const ModeleGraphique& modele, const SourceValeursGraphique& source, GrilleGraphique& grille,
                   PortMessages& messages);

}  // namespace norvane
