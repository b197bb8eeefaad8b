// What the graph engine asks of a chart drawer: the data grid of one chart,
// and the port through which a model and its grid become an RTF picture.
// The core fills the grid (SeriesGraphique.h) and the missing colours; the
// drawer (graphs/render, with Qt) draws and encodes.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "graphs/ModeleGraphique.h"

namespace norvane {

// Size of every chart in a document, twips.
inline constexpr int kLargeurGraphiqueTwips = 7905;
inline constexpr int kHauteurGraphiqueTwips = 5865;

// The data of one chart: one column per series (1 to NbSeries of the model,
// in order), one row per study year. Labels are Windows-1252 bytes: a column
// keeps the series' NomSerie with its padding, a row is the calendar year in
// decimal ("2025").
struct GrilleGraphique {
  std::vector<std::string> LibellesLignes;    // one per row
  std::vector<std::string> LibellesColonnes;  // one per column
  std::vector<std::vector<double>> Valeurs;   // Valeurs[ligne][colonne]

  int NbLignes() const { return static_cast<int>(LibellesLignes.size()); }
  int NbColonnes() const { return static_cast<int>(LibellesColonnes.size()); }
  // Value of a cell (0-based); 0 outside the grid.
  double Valeur(int ligne, int colonne) const;
  // Empties the grid and sizes it to `lignes` x `colonnes`, values 0, labels empty.
  void Dimensionner(int lignes, int colonnes);
};

// The chart drawer. The model comes with its colours completed
// (CompleterCouleurs) and the grid filled (RemplirGrille); every other field
// of the record is the drawer's to honour, NbSeries 0 being an empty chart.
class PortDessinGraphique {
 public:
  virtual ~PortDessinGraphique();
  // The RTF picture group of the chart ("{\pict ...}"), drawn at
  // kLargeurGraphiqueTwips x kHauteurGraphiqueTwips; empty on failure.
  // The drawer also leaves the last chart drawn as graphSvg.bmp in the
  // installation's ModelGraph folder, which it is given when it is made.
  virtual std::string ImageGraphique(const ModeleGraphique& modele, const GrilleGraphique& grille) = 0;
};

// Gives each series in use that has no colour (0, 0, 0) one drawn at random:
// red, green then blue each become the whole part of r x 255 + 100, r taken
// from `hasard` in [0, 1). The result lies between 100 and 354 and is kept in
// the model as it is; a drawer holds it to 255.
void CompleterCouleurs(ModeleGraphique& modele, const std::function<double()>& hasard);

}  // namespace norvane
