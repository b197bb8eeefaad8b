// The choice trees of the table editor, as data: the generic tables (line
// kind "Lignes pré-définies"), the value names of a crop block, and the
// series of a crop, a perennial crop and a free activity (line kinds scult,
// scltp and ALani).
// Nodes come parent first; texts are UTF-8, keys ASCII. Groups have the
// image "rep", leaves "puce".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/Catalogues.h"

namespace norvane {

// Groups "cultu", "cultp", "imemp", "prime" and their items; an item's key is
// what follows the group in the definition ("imemp:inve1:...").
std::vector<NoeudArbre> ArbreTablesGeneriques();

// The key of an item once its variant is chosen in the list beside the tree:
// immo0, subv0 and empt0 take the list index as last digit (0 to 2); finan
// takes "n", "a" or "p" (index 0 to 2). Other keys stay as they are. The
// older keys immos, subvt and emprt read as immo0, subv0 and empt0.
std::string ArticleAvecVariante(std::string_view article, int indice);

// The definition of a pre-defined line and the text its first label cell
// gets: "<group>:<item>:<decimales>:<affichage>" and "<group> : <item>".
std::string DefinitionPredefinie(std::string_view groupe, std::string_view article, int decimales, int affichage);
std::string LibellePredefini(std::string_view groupe, std::string_view article);

// Value names of a crop block (cultu lines); each leaf's key is the name.
std::vector<NoeudArbre> ArbreValeursCultures();
// Series of the current crop (scult): leaves keyed by their reference ("@14").
std::vector<NoeudArbre> ArbreSeriesCulture();
// Series of the current perennial crop (scltp), by group. A leaf whose
// reference is not known has the key "" and cannot be chosen.
std::vector<NoeudArbre> ArbreSeriesCulturePerenne();
// Series of the current free activity (ALani): groups and sub-groups keyed
// in lower case, leaves keyed by their record ("@16"), the same rule for
// leaves without a record. A text that ends open ("Vente réformes (") is
// shown as it stands.
std::vector<NoeudArbre> ArbreSeriesActivite();

}  // namespace norvane
