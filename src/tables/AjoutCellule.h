// One cell of a table row, and the values printed in it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tables/ContexteTableau.h"

namespace norvane {

// Appends one model cell ("Texte;<9 Police>;<5 Cadre>") to a row: its
// definitions to `entete`, its contents to `cellules`. `position` is the
// running right edge, in twips. With `texteFixe` the cell is a label at the
// current position; otherwise it is a line definition that expands to the
// value columns (years mode `modeAnnees`), and `cellules` may come back as
// "VALEURS NULLES". `numeroSerie` other than 0 reads asset figures by
// column. False when the line cannot be made (a definition without ":").
bool AjouterCellule(ContexteTableau& contexte, std::string_view quinzeChamps, std::string& entete,
                    std::string& cellules, int32_t& position, bool texteFixe, int16_t modeAnnees,
                    int16_t numeroSerie);

// A computed value made printable: stored for column `annee` of the line in
// hand (when `annee` is not negative), its colour made red in `cellules` when
// negative and the model asks it, and a zero printed as a blank.
std::string PreparerValeur(ContexteTableau& contexte, std::string texte, std::string& cellules, int annee);

// The number a printed value stands for ("-1 234,50" reads -1234.5).
float ValeurDuTexte(std::string_view texte);

}  // namespace norvane
