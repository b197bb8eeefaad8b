// What the tables of the Cerfa report share: the format of the line that
// asks for them, rows with the borders of the printed form, amounts with
// their colour, the figures of IMMORES.DON and PDE.DON, and the padding that
// brings a table body to 27 lines.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "tables/CellulesRtf.h"
#include "tables/RangeeBloc.h"

namespace norvane {

struct ContexteTableau;
struct Generation;

// Lines of a table body before its closing summary.
inline constexpr int kLignesCorpsCerfa = 27;

struct TableCerfa {
  ContexteTableau& contexte;
  CelluleRtf format;    // the line's definition cell, all four borders kept
  std::string debut;    // row start, its gap narrowed
  int16_t decimales;

  // A row whose cells have the given top and bottom borders, and the left
  // and right ones of the form's columns unless `cotes` is false.
  RangeeBloc Rangee(bool haut = true, bool bas = true, bool cotes = true) const;
  // An amount with the table's decimals; 0 prints blank.
  std::string Montant(double valeur) const;
  // Colour number of an amount: 6 (red) when negative and the model asks
  // red negatives, otherwise 1. Exactly 0 is never red.
  int Couleur(double valeur) const;
  // Line `ligne` of exercise `c` (1 to 5) of IMMORES.DON; a missing figure
  // reads 0.
  float SerieImmo(int c, int ligne) const;
  // Line `ligne` of PDE.DON: the figures beyond the fifth exercise.
  float SeriePde(int ligne) const;
};

// The table of an "imemp" line of the model in hand: its format and row
// start, and the decimals behind the second ":" (7 when absent).
TableCerfa OuvrirTableCerfa(ContexteTableau& contexte, const std::string& debutLigne);

// Empty rows with the given right edges, in groups of three (top border on
// the first, bottom border on the third), as many groups as fit in the
// lines left below 27; none once 27 lines are printed.
std::string BourrageCerfa(const TableCerfa& table, int lignesImprimees, std::span<const int32_t> bords);

// A text of the program (UTF-8 in the code) as the document's bytes.
std::string TexteCerfa(std::string_view utf8);

}  // namespace norvane
