// The frame of a 3D chart: floor, back wall and side wall with the grid of
// the value axis, values along the front edge, categories under the floor,
// the names of the series rows along the depth, and the axis titles.
#pragma once

#include <optional>

#include "graphs/render/Axes2D.h"
#include "graphs/render/Projection3D.h"

namespace norvane {

struct Repere3D {
  Projection3D vue{0, 0, 1, 1};
  Echelle y;
  Echelle y2;
  bool avecY2 = false;
  int nbCategories = 0;
  int nbRangs = 1;               // rows of series in depth
  bool libellesPenches = false;  // category labels turned to fit
  int pasLibelles = 1;
  std::vector<int> rangs;        // row of each series, 0 at the front

  // Height in the box (0 to 1) of a value on its axis.
  double Hauteur(double valeur, bool secondaire) const;
};

// Rows of the series: the largest on average at the back, so that the
// smaller ones stand in front of it and stay in sight; all in row 0 when
// stacked.
std::vector<int> RangerSeries(const Scene& scene);

// Fits the box and the labels around it into `trace`.
Repere3D PreparerRepere3D(QPainter& peintre, const Scene& scene, const StyleAxes& style, const QRectF& trace,
                          Repere3D repere, const Mesures& mesures);
void DessinerParois3D(QPainter& peintre, const Repere3D& repere, const StyleAxes& style, const Mesures& mesures);
void DessinerAxes3D(QPainter& peintre, const Repere3D& repere, const Scene& scene, const StyleAxes& style,
                    const QRectF& trace, const Mesures& mesures);

}  // namespace norvane
