// The rows of a "cultu" or "cultp" line (one a crop), and the crop values of
// cells.
#pragma once

#include <array>
#include <string>

#include "tables/Cultures.h"

namespace norvane {

struct ContexteTableau;
struct Generation;
class ProducteursTables;

// The sums of "assolement" by group, filled by a "cultu" line: sale crops
// (types 1 and 2), fodder crops (3), market-garden crops (4); exercise n at
// index n - 1.
struct TotauxAssolement {
  std::array<std::array<float, 9>, 3> groupes{};
};

std::string LignesCultures(ProducteursTables& producteurs, ContexteTableau& contexte, const std::string& debut);
std::string LignesCulturesPerennes(ProducteursTables& producteurs, ContexteTableau& contexte,
                                   const std::string& debut);

// "<name>[:<decimals>]" of the crop in hand, or a total; empty for a name
// that is none of them.
std::string ValeurCulture(const FicheCulture& culture, const TotauxAssolement& totaux, const std::string& reste,
                          int annee);
std::string ValeurCulturePerenne(Generation& generation, const FicheCulturePerenne& culture,
                                 const std::string& reste, int annee);
// "@<reference>[:<decimals>]" of a "scult" (`perenne` false) or "scltp" line.
std::string ValeurSerieCulture(Generation& generation, const ProducteursTables& producteurs, bool perenne,
                               const std::string& reste, int annee);

}  // namespace norvane
