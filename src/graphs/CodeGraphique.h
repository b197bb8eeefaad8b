// The graph code: a whole model as text, so that a template carries its
// charts. Its body is 45 head fields each followed by ";", then NbSeries
// groups "[" code ";" name ";" type ";" file ";" axis ";" red ";" green ";"
// blue ";" width ";" brush "]", the brush being one character:
//
//   POS FIELD                         POS FIELD
//   0   Titre                         26  Elevation
//   1   TypeGraph                     27  Rotation
//   2   Legende                       28  TexteTitre.RetourTexte
//   3   NbSeries                      29  TexteTitre.Orientation
//   4   Empile                        30  TexteNote.RetourTexte
//   5   Commentaire                   31  TexteNote.Orientation
//   6   InversionDataSeries           32-34 AxeX: Libelle, TailleAxe, EpaisseurAxe
//   7   EspaceBarres                  35-37 AxeY: same
//   8   EspaceAnnees                  38-40 AxeY2: same
//   9   EspaceSeries                  41-43 AxeZ: same
//   10-13 RectTitre: min X, max X, min Y, max Y
//   14-17 RectPlot   18-21 RectLegende   22-25 RectNote        44  TailleTitre
//
// Texts are written trimmed; floats as their shortest text with a decimal
// comma, and read with a comma or a point. ";", "[" and "]" have no escape.
// Reserved fields do not travel. Texts are Windows-1252.
#pragma once

#include <string>

#include "frame/Ports.h"
#include "graphs/ModeleGraphique.h"

namespace norvane {

inline constexpr int kChampsEnteteGraphique = 45;
inline constexpr int kChampsSerieGraphique = 10;

// "gph(" body ")" of a model. The model itself is left as it is.
std::string ConstruireCodeGraphique(const ModeleGraphique& modele);

// Body of a gph(...) code: the text between "gph(" and the last character.
std::string CorpsCodeGraphique(const std::string& code);

// The code as it goes into a template: "#tvl(" + code + ")#", each blank
// written "_".
std::string CodeGraphiqueInsere(const ModeleGraphique& modele);

// How the reading of a body ended.
enum class LectureCode {
  Complete,          // every field read (fewer head fields than 45 is no error)
  CrochetManquant,   // a series group did not start with "["
  ChampNonNumerique  // a number field held something else
};

// What LireCodeGraphique found.
struct IssueLectureCode {
  LectureCode etat = LectureCode::Complete;
  int serie = 0;         // CrochetManquant: the series k (1-based) not found
  int champ = -1;        // ChampNonNumerique: head position (0..44), or the place in a series group (0..9)
  std::string texte;     // ChampNonNumerique: the field as it stood
};

// Parses a body into `modele`. Head fields are taken while the text holds a
// ";" and fewer than 45 are read; fields not reached keep what the model held.
// Then NbSeries groups (0 to 10 of them). Anything left over is ignored, and
// so are the model's reserved fields and its series behind NbSeries. Reading
// stops at the first fault, leaving what was stored so far.
IssueLectureCode LireCodeGraphique(ModeleGraphique& modele, std::string corps);

// The message of a fault of LireCodeGraphique, in the template's box; nothing
// for LectureCode::Complete.
void SignalerLectureCode(PortMessages& messages, const ModeleGraphique& modele, const IssueLectureCode& issue);

// Cleans a body as it comes from the RTF of a template: every blank removed;
// "\'e0" "\'e2" "\'e7" "\'e8" "\'e9" "\'ea" "\'ee" "\'f4" "\'f9" "\'fb" (lower
// case only) become their letters, any other "\'xx" is dropped; last, every
// "_" becomes a blank.
std::string PreparerCodeGraphique(std::string code);

// A float as a code writes it: its shortest text, decimal comma ("12,5");
// a value that is not finite is written 0.
std::string TexteFlottantCode(float valeur);

}  // namespace norvane
