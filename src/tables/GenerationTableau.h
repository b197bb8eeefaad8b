// A table code becomes RTF, row by row, from the model decoded out of it.
//
// A row is "\plain \trowd", the gap and height when above 10 twips, "\trqc"
// (centred) or "\trleft0", then one cell definition per column, then the
// cells' contents, then "\row\pard\plain ". Label columns come first, each
// as wide as the model says; the line's definition then expands to the value
// columns (see ColonnesValeurs.h). A line that is not to be shown comes back
// as the literal "VALEURS NULLES" and is left out.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tables/ContexteTableau.h"
#include "tables/ModeleTableau.h"
#include "tables/TableauxDocument.h"
#include "template/Generation.h"

namespace norvane {

// The RTF of the table of `code` (its text from "tab", as the template holds
// it). `styleTitre` is the title style of the per-crop table that calls it.
// Empty when the table is left out (its dossiers cannot be had).
std::string GenererTableau(Generation& generation, TableauxDocument& tableaux, const std::string& code,
                           int16_t styleTitre = 1);

// Spaces removed; the RTF escapes of the accented letters that a label may
// hold (\'e0 \'e2 \'e7 \'e8 \'e9 \'ea \'ee \'f4 \'f9 \'fb) turned into the
// letters, any other \'xx dropped.
std::string NettoyerCodeTableau(std::string_view code);

// The row start of a line.
std::string DebutLigne(const ModeleTableau& modele, const LigneTableau& ligne);

// The RTF of line LigneCourante, or "VALEURS NULLES".
std::string LigneRTF(ContexteTableau& contexte);

}  // namespace norvane
