// Crops in tables: a table repeated for every crop or perennial crop of the
// dossier ("culture..." and "cultper..." codes) with its heading.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tables/Cultures.h"

namespace norvane {

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

}  // namespace norvane
