// The 3D view: a box of categories (x), values (y, 0 to 1) and rows of
// series (z, depth) turned by the rotation about the vertical and tilted by
// the elevation, then fitted into a place of the picture. Solids are prisms:
// a flat outline in x, y pushed back from one depth to another, each face
// shaded by where it looks, drawn from the farthest to the nearest.
#pragma once

#include <QBrush>
#include <QPen>
#include <QPolygonF>
#include <QRectF>
#include <vector>

class QPainter;

namespace norvane {

struct Point3D {
  double x = 0;
  double y = 0;
  double z = 0;
};

class Projection3D {
 public:
  // `largeur`: categories; `profondeur`: rows of series; heights run 0 to 1.
  // Angles in degrees; the rotation is held to -60..60, the elevation to 0..60.
  Projection3D(double elevation, double rotation, double largeur, double profondeur);

  // Scales the view so that the box fills `zone`.
  void Ajuster(const QRectF& zone);
  QPointF Projeter(const Point3D& p) const;
  // Distance from the viewer, larger is farther.
  double Profondeur(const Point3D& p) const;
  // True when a face whose outward normal is n looks at the viewer.
  bool Visible(const Point3D& normale) const;
  double Largeur() const { return largeur_; }
  double ProfondeurBoite() const { return profondeur_; }
  bool VueDeDroite() const { return rotation_ >= 0; }

 private:
  Point3D Visuel(const Point3D& p) const;  // box units to the shape drawn
  QPointF Plan(const Point3D& p) const;    // turned and tilted, before fitting

  double elevation_;
  double rotation_;
  double largeur_;
  double profondeur_;
  double etirementZ_;
  double echelleX_ = 1;
  double echelleY_ = 1;
  QPointF origine_;
};

struct Prisme {
  QPolygonF profil;  // in x, y, counter-clockwise
  double z0 = 0;
  double z1 = 1;
  QBrush brosse;     // front face; others are shaded from it
  QColor couleur;    // the colour shaded for the side faces
  QPen bord;
  bool facesHachees = false;  // hatched brush: the sides keep the pattern
};

// Draws the prisms, the farthest first.
void DessinerPrismes(QPainter& peintre, const Projection3D& vue, std::vector<Prisme> prismes);

}  // namespace norvane
