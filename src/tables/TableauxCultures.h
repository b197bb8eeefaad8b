// Crops in tables: a table repeated for every crop or perennial crop of the
// dossier ("culture..." and "cultper..." codes) with its heading, the rows
// of a "cultu" or "cultp" line (one a crop), and the crop values of cells.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "tables/Cultures.h"

namespace norvane {

struct ContexteTableau;
struct Generation;
class ProducteursTables;
class TableauxDocument;

// The tables of a "culture..." or "cultper..." code, the prefix included.
std::string GenererTableauxCulture(ProducteursTables& producteurs, Generation& generation,
                                   TableauxDocument& tableaux, const std::string& code);

// The long headings of style 1, and the box "ACTIVITE :" of style 2 (also
// used by the free activities). `couleur` is BaseCouleurs + 1.
std::string EnteteCulture(Generation& generation, const FicheCulture& culture, int couleur);
std::string EnteteCulturePerenne(const FicheCulturePerenne& culture, int couleur);
std::string BoiteActivite(std::string_view nom, int couleur, int fond);
// "\par \plain \qr\fs20\cf<couleur>\b <chapitre>-<compteur>", closed by
// "\par \plain " before the box of style 2.
std::string NumeroChapitre(int couleur, int chapitre, int compteur, int16_t styleTitre);

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
