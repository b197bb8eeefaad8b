// A table model: the reusable description of a table that a template prints.
// Which label columns it has, which value columns are generated, and line by
// line what each row shows and how each cell looks.
//
// Texts are Windows-1252 bytes, as in tableaux.txt and in templates.
// Arrays are 0-based here: Lignes[0] is line 1 of the model, Cellules[0] the
// first label column, Largeurs[0] its width. Every line and every cell exists
// whatever NbLignes and NbColonnes say; only the first NbLignes lines and the
// first NbColonnes cells of each mean anything (the others are kept, never
// printed nor written to a code).
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

inline constexpr int kLignesMax = 511;        // lines of a model
inline constexpr int kColonnesMax = 9;        // label columns of a model
inline constexpr char kCadreParDefaut[] = "1;1;1;1;8";
// What an empty Cadre becomes when a model is written: no border, white.
inline constexpr char kCadreReparation[] = "0;0;0;0;8";
inline constexpr char kNomNouveauTableau[] = "Nouveau tableau";
inline constexpr char kDossierParDefaut[] = "Divers";

// Default size and alignment of a new cell: settings TailleCellule and
// AlignCellule. A size of 0 reads as 10; an empty alignment reads as "l".
struct DefautsCellule {
  int16_t Taille = 10;
  std::string Alignement = "l";
};

// "5006;<taille>;1;0;0;0;0;0;<alignement>": font 5006, colour 1 (black),
// no flag.
std::string PoliceParDefaut(const DefautsCellule& defauts = {});
// The same for the defaults of DefautsCellule{}.
inline constexpr char kPoliceParDefaut[] = "5006;10;1;0;0;0;0;0;l";

// One cell: three texts.
//   Police: font number; size in points; colour number; bold; italic;
//           underline; strike-through; shadow; alignment letter (l, c, r).
//           The five flags take 1 for on.
//   Cadre:  top, bottom, left, right border (0 none, 1 single, 2 double);
//           background colour number.
// Colour numbers are 1 to 16 of the program's palette (17: not in it).
struct CelluleTableau {
  std::string Texte;                         // label; for a Definition, the line-kind text
  std::string Police = kPoliceParDefaut;     // nine fields separated by ";"
  std::string Cadre = kCadreParDefaut;       // five fields separated by ";"

  bool operator==(const CelluleTableau&) const = default;
};

struct LigneTableau {
  int16_t Hauteur = 280;  // row height, twips (\trrh); 10 or less: automatic
  int16_t Marge = 120;    // half gap between cells, twips (\trgaph)
  std::array<CelluleTableau, kColonnesMax> Cellules;  // one per label column
  // Its Texte is the line kind ("entete:...", "serie:...", "totalS:...", ...);
  // its Police and Cadre format the value cells.
  CelluleTableau Definition;
  // Multi-dossier models only: the year read from each dossier by a "serie"
  // line, written as "<n>@" in front of the definition. One digit.
  int16_t NumSerie = 0;

  bool operator==(const LigneTableau&) const = default;
};

struct ModeleTableau {
  std::string Nom = kNomNouveauTableau;
  int16_t NbLignes = 1;       // lines in use, 1 to 511
  int16_t Centre = 1;         // 1: the table is centred on the page
  int16_t StyleTitre = 1;     // per-crop and per-activity tables: title before each table
  int16_t NumChapitre = -1;   // per-crop and per-activity tables: chapter number; -1 none
  int16_t MultiDossier = 0;   // 1: comparison of dossiers; 0: one dossier over its years
  int16_t NbDossiers = 2;     // dossiers compared, 1 to 9
  // Which years get a value column: 0 every study year, 1 every year and the
  // start year (year 0), 2 the first and the last year only, 3 none.
  int16_t ModeAnnees = 0;
  int16_t ChoixColValeurs = 0;  // editor's list index; neither in the code nor in the file
  // 0 classic, 1 one table per crop, 2 one per perennial crop, 3 one per free activity.
  int16_t TypeTableau = 0;
  int16_t NbColonnes = 1;     // label columns, 1 to 9
  std::array<int16_t, kColonnesMax> Largeurs = {2000, 2000, 2000, 2000, 2000, 2000, 2000, 2000, 2000};
  int16_t LargeurValeurs = 7200;  // all value columns together, twips
  std::string DossierTableau = kDossierParDefaut;
  std::string SousDossierTableau;   // empty: directly in the folder
  int16_t NegatifsRouges = 1;       // 1: negative values print in red
  std::vector<LigneTableau> Lignes = std::vector<LigneTableau>(kLignesMax);  // always 511

  bool operator==(const ModeleTableau&) const = default;
};

// A new model with the defaults above, every cell of its 511 lines given the
// default Police of `defauts`.
ModeleTableau NouveauModele(const DefautsCellule& defauts = {});
// A line with the defaults: empty texts, height 280, gap 120.
LigneTableau NouvelleLigne(const DefautsCellule& defauts = {});

}  // namespace norvane
