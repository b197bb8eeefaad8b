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

#include "tables/ModeleTableau.h"
#include "tables/TableauxDocument.h"
#include "template/Generation.h"

namespace norvane {

// What the producers of one table work with.
struct ContexteTableau {
  Generation& generation;
  TableauxDocument& tableaux;
  ModeleTableau& modele;

  EtatTableaux& etat() { return tableaux.etat; }
  const LigneTableau& LigneEnCours() const;
};

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
std::string LigneOrdinaire(ContexteTableau& contexte, const std::string& entete);
std::string LigneEspace(ContexteTableau& contexte);
std::string LignesPrimes(ContexteTableau& contexte, const std::string& entete);

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
