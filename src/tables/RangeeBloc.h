// One row of a predefined block (assets, loans, investments, crops): cells
// added left to right at given right edges, each with the format of the
// line's definition cell and an alignment of its own.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "tables/CellulesRtf.h"

namespace norvane {

class RangeeBloc {
 public:
  // `format`: the line's cell format; `debut` the row start.
  RangeeBloc(const CelluleRtf& format, int32_t baseCouleurs, std::string debut)
      : format_(format), baseCouleurs_(baseCouleurs), entete_(std::move(debut)) {}

  // A cell ending at `droite` twips, aligned "l", "c" or "r", its text RTF
  // ready; `couleur` replaces the format's colour number, `gras` sets bold.
  RangeeBloc& Cellule(std::string_view texte, int32_t droite, std::string_view alignement,
                      std::optional<int> couleur = std::nullopt, bool gras = false);

  // The whole row, closed by "\row\pard \plain ".
  std::string Fermer() const;

 private:
  CelluleRtf format_;
  int32_t baseCouleurs_;
  std::string entete_;
  std::string cellules_;
};

// The format of a definition cell with its top border taken off.
CelluleRtf FormatBloc(const std::string& police, const std::string& cadre);

}  // namespace norvane
