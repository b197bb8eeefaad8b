// A model cell as RTF: its fifteen fields split, the cell definition that goes
// into the row start and the opening of its contents.
//
// Fields: Texte; then Police: font number, size in points, colour number,
// bold, italic, underline, strike-through, shadow, alignment letter; then
// Cadre: top, bottom, left, right border (0 none, 1 single, 2 double),
// background colour number. Colour numbers are positions in the program's 16
// colours, shifted by BaseCouleurs where they enter the document.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace norvane {

inline constexpr int kNumeroPoliceParDefaut = 5006;

// The character format of a cell or a paragraph (the nine Police fields).
struct PoliceRtf {
  int police = kNumeroPoliceParDefaut;  // below 5000 already replaced by 5006
  double taille = 0;              // points, as written in the field
  int couleur = 0;
  std::array<bool, 5> drapeaux{};  // bold, italic, underline, strike-through, shadow
  std::string alignement;          // "l", "c", "r" (or whatever the field says)
};

struct CelluleRtf {
  std::string texte;  // a blank when the field is empty
  PoliceRtf police;
  std::array<std::string, 4> bordures;  // top, bottom, left, right, as written
  int fond = 0;
};

// Reads nine Police fields from `champs` starting at field `premier`.
PoliceRtf LirePolice(std::string_view texteSepare, std::size_t premier = 0);

// Splits "Texte;<9 Police fields>;<5 Cadre fields>"; missing fields are empty.
CelluleRtf DecouperCellule(std::string_view quinzeChamps);

// "\fs" value of a cell: the size truncated, times two; 0 gives 16.
int DemiPointsCellule(double taille);

// The two pieces of a cell that do not depend on its place: the definition
// up to "\cellx", and the opening of its contents. A cell repeated over the
// value columns is prepared once.
struct CellulePreparee {
  std::string definition;  // borders, "\clvertalc\clcbpat<n>\cellx"
  std::string ouverture;   // "\q<a>\intbl\clvertalb{\fs<n>\f<n>\cf<n>" and the flags
};
CellulePreparee PreparerCellule(const CelluleRtf& cellule, int32_t baseCouleurs);
// Appends a prepared cell whose right edge is `position`.
void EcrireCellule(const CellulePreparee& cellule, int32_t position, std::string& entete, std::string& cellules);

// Appends one cell to a row: its definition (borders, alignment, background,
// right edge `position`) to `entete`, the opening of its contents (alignment,
// then an open group with size, font, colour and flags) to `cellules`. The
// caller appends a blank, the text and "}\cell".
void DefinirCellule(const CelluleRtf& cellule, int32_t position, int32_t baseCouleurs, std::string& entete,
                    std::string& cellules);

// The format of a stand-alone paragraph: "\q<a>\f<font>\fs<size>\cf<colour>"
// and the flags, without the blank that follows (size doubled, 0 kept).
std::string FormatParagraphe(const PoliceRtf& police, int32_t baseCouleurs);

}  // namespace norvane
