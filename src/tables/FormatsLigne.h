// Line kinds as the editor offers them, and the formats a line gets when its
// kind is chosen; the program's 16 colours and how a screen colour maps onto
// them. Model texts are Windows-1252; list texts here are UTF-8 (shown).
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Options.h"
#include "tables/ModeleTableau.h"

namespace norvane {

// Index in the editor's list "Type de ligne".
enum class TypeLigne : int {
  Intitule = 0,         // entete
  Serie = 1,            // serie
  Espace = 2,           // espace
  Calcul = 3,           // totalS, totalC
  Predefinie = 4,       // cultu, cultp, imemp, prime
  SerieCulture = 5,     // scult
  SerieCulturePerenne = 6,  // scltp
  SerieActiviteLibre = 7,   // ALani
  SautPage = 8,         // newpg
};
inline constexpr int kNombreTypesLigne = 9;

// The list's texts, in its order.
extern const std::array<const char*, kNombreTypesLigne> kTextesTypesLigne;
// The zero-line option's list (index = option 0 to 3).
extern const std::array<const char*, 4> kTextesAffichage;

// A new heading line's definition (Windows-1252).
extern const char kDefinitionIntituleParDefaut[];

// Default size and alignment of cells from the settings TailleCellule and
// AlignCellule.
DefautsCellule DefautsDesOptions(const Options& options);

// Gives line `ligne` the defaults of a kind: the label texts (all nine take
// the first one's, "TOTAL" for a calculation, none for a pre-defined block),
// the bold label format, the definition's text and format, and the frames of
// the kind's pair of settings (FormatLigne: cells, then values).
void AppliquerTypeLigne(LigneTableau& ligne, TypeLigne type, const Options& options);

// The program's colours, numbered 1 to 16, as 0xRRGGBB.
extern const std::array<uint32_t, 16> kPaletteCouleurs;
inline constexpr int16_t kCouleurHorsPalette = 17;
inline constexpr int16_t kCouleurFondParDefaut = 8;  // white

// Number of a colour picked on screen (0xRRGGBB): an exact match in a table
// of screen colours that folds near shades onto the palette (0xCFCFCF is 16,
// 0xDFDFDF and 0xEFEFEF are 8); 17 for any other colour.
int16_t NumeroCouleur(uint32_t rgb);

}  // namespace norvane
