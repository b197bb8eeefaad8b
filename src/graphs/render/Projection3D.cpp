#include "graphs/render/Projection3D.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "graphs/render/Pinceaux.h"

namespace norvane {
namespace {

constexpr double kDegres = 3.14159265358979323846 / 180.0;
constexpr double kHauteurVisuelle = 0.62;  // of the width

// Shade of a face by its normal: lit from above and from the front.
double Eclairage(const Point3D& n) {
  if (n.z < -0.5) return 1.0;
  return std::clamp(0.78 + 0.42 * n.y - 0.1 * n.z, 0.6, 1.3);
}

QBrush BrosseDeFace(const Prisme& prisme, double eclairage) {
  if (prisme.brosse.style() == Qt::NoBrush) return Qt::NoBrush;
  if (prisme.facesHachees || std::abs(eclairage - 1.0) < 1e-9) return prisme.brosse;
  return QBrush(Teinte(prisme.couleur, eclairage));
}

double SurfaceSignee(const QPolygonF& p) {
  double surface = 0;
  for (qsizetype i = 0; i < p.size(); ++i) {
    const QPointF a = p[i], b = p[(i + 1) % p.size()];
    surface += a.x() * b.y() - b.x() * a.y();
  }
  return surface / 2;
}

}  // namespace

Projection3D::Projection3D(double elevation, double rotation, double largeur, double profondeur)
    : elevation_(std::clamp(elevation, 0.0, 60.0) * kDegres),
      rotation_(std::clamp(rotation, -60.0, 60.0) * kDegres),
      largeur_(std::max(1.0, largeur)),
      profondeur_(std::max(1.0, profondeur)),
      etirementZ_(std::clamp(0.9 * profondeur_ / largeur_, 0.1, 0.7) / profondeur_) {}

Point3D Projection3D::Visuel(const Point3D& p) const {
  return {p.x / largeur_ - 0.5, p.y * kHauteurVisuelle, p.z * etirementZ_ - profondeur_ * etirementZ_ / 2};
}

QPointF Projection3D::Plan(const Point3D& p) const {
  const Point3D v = Visuel(p);
  const double xr = v.x * std::cos(rotation_) + v.z * std::sin(rotation_);
  const double zr = -v.x * std::sin(rotation_) + v.z * std::cos(rotation_);
  return {xr, v.y * std::cos(elevation_) + zr * std::sin(elevation_)};
}

double Projection3D::Profondeur(const Point3D& p) const {
  const Point3D v = Visuel(p);
  const double zr = -v.x * std::sin(rotation_) + v.z * std::cos(rotation_);
  return zr * std::cos(elevation_) - v.y * std::sin(elevation_);
}

bool Projection3D::Visible(const Point3D& n) const {
  // Gradient of the depth along each axis of the box.
  const double gx = -std::sin(rotation_) * std::cos(elevation_) / largeur_;
  const double gy = -std::sin(elevation_) * kHauteurVisuelle;
  const double gz = std::cos(rotation_) * std::cos(elevation_) * etirementZ_;
  return n.x * gx + n.y * gy + n.z * gz < -1e-12;
}

void Projection3D::Ajuster(const QRectF& zone) {
  double minX = std::numeric_limits<double>::max(), maxX = -minX, minY = minX, maxY = -minX;
  for (const double x : {0.0, largeur_}) {
    for (const double y : {0.0, 1.0}) {
      for (const double z : {0.0, profondeur_}) {
        const QPointF q = Plan({x, y, z});
        minX = std::min(minX, q.x()), maxX = std::max(maxX, q.x());
        minY = std::min(minY, q.y()), maxY = std::max(maxY, q.y());
      }
    }
  }
  echelleX_ = zone.width() / std::max(1e-9, maxX - minX);
  echelleY_ = zone.height() / std::max(1e-9, maxY - minY);
  origine_ = QPointF(zone.left() - minX * echelleX_, zone.bottom() + minY * echelleY_);
}

QPointF Projection3D::Projeter(const Point3D& p) const {
  const QPointF q = Plan(p);
  return {origine_.x() + q.x() * echelleX_, origine_.y() - q.y() * echelleY_};
}

void DessinerPrismes(QPainter& peintre, const Projection3D& vue, std::vector<Prisme> prismes) {
  // Solids stand in rows of depth and side by side along x, never inside one
  // another: the farthest row first, then along x from the far side, then
  // upwards, so that each one covers only what lies behind it.
  const auto cle = [&vue](const Prisme& p) {
    const QRectF bornes = p.profil.boundingRect();
    return std::array<double, 3>{vue.Profondeur({0, 0, (p.z0 + p.z1) / 2}) - vue.Profondeur({0, 0, 0}),
                                 vue.Profondeur({bornes.center().x(), 0, 0}) - vue.Profondeur({0, 0, 0}),
                                 -bornes.center().y()};
  };
  std::stable_sort(prismes.begin(), prismes.end(), [&](const Prisme& a, const Prisme& b) {
    const auto ca = cle(a), cb = cle(b);
    for (std::size_t i = 0; i < 3; ++i) {
      if (std::abs(ca[i] - cb[i]) > 1e-9) return ca[i] > cb[i];
    }
    return false;
  });
  peintre.save();
  for (Prisme& prisme : prismes) {
    if (SurfaceSignee(prisme.profil) < 0) std::reverse(prisme.profil.begin(), prisme.profil.end());
    const QPolygonF& p = prisme.profil;
    peintre.setPen(prisme.bord);
    // Sides, one a segment of the outline.
    for (qsizetype i = 0; i < p.size(); ++i) {
      const QPointF a = p[i], b = p[(i + 1) % p.size()];
      const double dx = b.x() - a.x(), dy = b.y() - a.y();
      const double norme = std::hypot(dx, dy);
      if (norme < 1e-12) continue;
      const Point3D normale{dy / norme, -dx / norme, 0};
      if (!vue.Visible(normale)) continue;
      const QPolygonF face{vue.Projeter({a.x(), a.y(), prisme.z0}), vue.Projeter({b.x(), b.y(), prisme.z0}),
                           vue.Projeter({b.x(), b.y(), prisme.z1}), vue.Projeter({a.x(), a.y(), prisme.z1})};
      peintre.setBrush(BrosseDeFace(prisme, Eclairage(normale)));
      peintre.drawPolygon(face);
    }
    // The front (or the back, seen from behind).
    const bool devant = vue.Visible({0, 0, -1});
    QPolygonF face;
    for (const QPointF& a : p) face << vue.Projeter({a.x(), a.y(), devant ? prisme.z0 : prisme.z1});
    peintre.setBrush(BrosseDeFace(prisme, devant ? 1.0 : 0.7));
    peintre.drawPolygon(face);
  }
  peintre.restore();
}

}  // namespace norvane
