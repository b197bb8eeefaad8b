#include "graphs/render/Courbes2D.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "graphs/render/Aires2D.h"
#include "graphs/render/Pinceaux.h"

namespace norvane {

void DessinerPoints(QPainter& peintre, const std::vector<QPointF>& points, const SerieDessinee& serie) {
  const double rayon = serie.epaisseur * 1.2 + 2;
  peintre.save();
  peintre.setPen(QPen(Qt::white, std::max(1.0, rayon * 0.35)));
  peintre.setBrush(serie.couleur);
  for (const QPointF& p : points) peintre.drawEllipse(p, rayon, rayon);
  peintre.restore();
}

void DessinerCourbes2D(const Trace2D& t, const std::vector<std::size_t>& series) {
  t.peintre.save();
  for (const std::size_t k : series) {
    const SerieDessinee& serie = t.scene.series[k];
    std::vector<QPointF> points;
    for (int c = 0; c < t.repere.nbCategories; ++c) {
      points.emplace_back(t.repere.XCategorie(c), t.repere.Y(t.pile.haut[k][static_cast<std::size_t>(c)], serie.axeSecondaire));
    }
    t.peintre.setPen(TraitSerie(serie));
    t.peintre.setBrush(Qt::NoBrush);
    t.peintre.drawPolyline(points.data(), static_cast<int>(points.size()));
    DessinerPoints(t.peintre, points, serie);
  }
  t.peintre.restore();
}

void DessinerEscaliers2D(const Trace2D& t, const std::vector<std::size_t>& series) {
  const double slot = t.repere.LargeurCategorie();
  t.peintre.save();
  // Steps laid over one another stay readable when their fill lets the
  // others show through.
  const bool superposes = !t.scene.empile && series.size() > 1;
  for (const std::size_t k : series) {
    const SerieDessinee& serie = t.scene.series[k];
    QPolygonF haut, bas;
    for (int c = 0; c < t.repere.nbCategories; ++c) {
      const auto ci = static_cast<std::size_t>(c);
      const double x0 = t.repere.XCategorie(c) - slot / 2;
      const double yh = t.repere.Y(t.pile.haut[k][ci], serie.axeSecondaire);
      const double yb = t.repere.Y(t.pile.bas[k][ci], serie.axeSecondaire);
      haut << QPointF(x0, yh) << QPointF(x0 + slot, yh);
      bas << QPointF(x0, yb) << QPointF(x0 + slot, yb);
    }
    if (haut.isEmpty()) continue;
    DessinerBande(t, serie, haut, bas, {superposes ? 0.55 : 1.0, 0.75, true});
  }
  t.peintre.restore();
}

}  // namespace norvane
