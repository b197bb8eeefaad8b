#include "graphs/render/Aires2D.h"

#include <QPainter>

#include "graphs/render/Pinceaux.h"

namespace norvane {

void DessinerAires2D(const Trace2D& t, const std::vector<std::size_t>& series) {
  t.peintre.save();
  const bool superposees = !t.scene.empile && series.size() > 1;
  for (const std::size_t k : series) {
    const SerieDessinee& serie = t.scene.series[k];
    QPolygonF haut, bas;
    for (int c = 0; c < t.repere.nbCategories; ++c) {
      const auto ci = static_cast<std::size_t>(c);
      const double x = t.repere.XCategorie(c);
      haut << QPointF(x, t.repere.Y(t.pile.haut[k][ci], serie.axeSecondaire));
      bas << QPointF(x, t.repere.Y(t.pile.bas[k][ci], serie.axeSecondaire));
    }
    if (haut.isEmpty()) continue;
    DessinerBande(t, serie, haut, bas, {superposees ? 0.6 : 1.0, 0.7, false});
  }
  t.peintre.restore();
}

void DessinerBande(const Trace2D& t, const SerieDessinee& serie, const QPolygonF& haut, const QPolygonF& bas,
                   const StyleBande& style) {
  QPolygonF forme = haut;
  for (auto p = bas.crbegin(); p != bas.crend(); ++p) forme << *p;
  t.peintre.setPen(Qt::NoPen);
  t.peintre.setBrush(BrosseSerie(serie));
  t.peintre.setOpacity(style.opacite);
  t.peintre.drawPolygon(forme);
  t.peintre.setOpacity(1.0);
  QPen trait = TraitSerie(serie);
  trait.setColor(Teinte(serie.couleur, style.teinteBord));
  if (style.anglesVifs) {
    trait.setCapStyle(Qt::FlatCap);
    trait.setJoinStyle(Qt::MiterJoin);
  }
  t.peintre.setPen(trait);
  t.peintre.drawPolyline(haut);
}

}  // namespace norvane
