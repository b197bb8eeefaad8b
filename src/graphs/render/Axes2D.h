// The frame of a flat chart: value axes on the left (and on the right for the
// second Y axis), categories or values along the bottom, axis titles in their
// sizes, pens in their widths, a light grid at each round step.
#pragma once

#include <QPen>
#include <QRectF>
#include <optional>

#include "graphs/render/Echelle.h"
#include "graphs/render/Scene.h"
#include "graphs/render/Textes.h"

class QPainter;

namespace norvane {

// How category labels fit under their slots.
enum class PoseLibelles { Droits, SurDeuxLignes, Penches };

struct Repere2D {
  QRectF zone;  // inside the axes
  Echelle y;
  Echelle y2;
  bool avecY2 = false;
  std::optional<Echelle> x;  // numeric X axis (XY chart); categories otherwise
  int nbCategories = 0;
  PoseLibelles pose = PoseLibelles::Droits;
  int pasLibelles = 1;  // one category label in so many

  double LargeurCategorie() const;
  double XCategorie(int categorie) const;  // centre of the slot
  double X(double valeur) const;           // numeric X axis
  double Y(double valeur, bool secondaire = false) const;
};

// Titles, pens and label font of the four axes, from the model.
struct StyleAxes {
  TexteOriente titreX;
  TexteOriente titreY;
  TexteOriente titreY2;
  TexteOriente titreZ;  // 3D only
  QPen traitX;
  QPen traitY;
  QPen traitY2;
  QPen traitZ;
  QFont graduations;
};

StyleAxes StyleDesAxes(const ModeleGraphique& modele, const Mesures& mesures);

// Fits the axes, their labels and titles into `trace`; the scales are given.
Repere2D PreparerRepere2D(QPainter& peintre, const Scene& scene, const StyleAxes& style, const QRectF& trace,
                          Repere2D repere, const Mesures& mesures);
// White ground and grid, drawn before the series.
void DessinerFond2D(QPainter& peintre, const Repere2D& repere, const Mesures& mesures);
// Axis lines, labels and titles, drawn over the series.
void DessinerAxes2D(QPainter& peintre, const Repere2D& repere, const Scene& scene, const StyleAxes& style,
                    const QRectF& trace, const Mesures& mesures);

}  // namespace norvane
