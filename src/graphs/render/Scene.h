// What a chart draws, taken from the model and its data grid: the categories
// of the X axis, the series with their colour, pen, brush and kind, and the
// pixel measures of the picture being drawn.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <vector>

#include "graphs/DessinGraphique.h"

class QPainter;

namespace norvane {

// How one series is drawn.
enum class Forme { Barre, Courbe, Aire, Escalier };

struct SerieDessinee {
  QString nom;
  QColor couleur;
  Forme forme = Forme::Barre;
  bool axeSecondaire = false;
  double epaisseur = 1;         // pen of the series, pixels
  int brosse = kBrosseSolide;   // BrosseGraphique
  std::vector<double> valeurs;  // one per category
  std::vector<double> abscisses;  // XY chart: the X of each value
};

struct Scene {
  int type = kXY2D;        // 1 to 12; any other type of the model draws as 2D XY
  bool troisD = false;
  bool empile = false;
  std::vector<QString> categories;
  std::vector<SerieDessinee> series;
  // Gaps, as fractions: between bars of a group (of a bar's width), between
  // groups (of a bar's width), between rows of series in 3D (of a row's depth).
  double espaceBarres = 0;
  double espaceAnnees = 1;
  double espaceSeries = 0.5;

  bool UtiliseAxeSecondaire() const;
};

// Measures of the picture: pixels a twip, so that twips of the chart, point
// sizes of fonts and pen widths all land at the same scale.
struct Mesures {
  double pixelsParTwip = 1;
  double Twips(double twips) const { return twips * pixelsParTwip; }
  // A pen width given in twips, never thinner than one pixel.
  double Trait(double twips) const;
};

// The font of every text of the chart (Arial's metric twin when installed).
QFont PoliceGraphique(double points, bool gras = false);

// A text of the model or of the grid (Windows-1252, padded) as shown.
QString TexteAffiche(const std::string& texteCp1252);

// Years become categories and columns series; with InversionDataSeries the
// other way round. A shown series past the model's NbSeries takes a colour of
// a fixed palette. Colours above 255 are held to 255. In an XY chart the
// series go by pairs, X then Y; a last series alone stands against the years.
Scene PreparerScene(const ModeleGraphique& modele, const GrilleGraphique& grille, const Mesures& mesures);

}  // namespace norvane
