#include "graphs/render/Barres2D.h"

#include <QPainter>
#include <algorithm>

#include "graphs/render/Pinceaux.h"

namespace norvane {
namespace {

// Width of one bar in a slot holding `n` bars with their gaps.
double LargeurBarre(double slot, int n, const Scene& scene) {
  const double parts = n + (n - 1) * scene.espaceBarres + scene.espaceAnnees;
  return slot / std::max(parts, static_cast<double>(n) * 0.5);
}

}  // namespace

void DessinerBarres2D(const Trace2D& t, const std::vector<std::size_t>& series) {
  if (series.empty()) return;
  const int n = t.scene.empile ? 1 : static_cast<int>(series.size());
  const double slot = t.repere.LargeurCategorie();
  const double barre = LargeurBarre(slot, n, t.scene);
  const double pas = barre * (1 + t.scene.espaceBarres);
  const double groupe = barre * n + (n - 1) * barre * t.scene.espaceBarres;
  t.peintre.save();
  t.peintre.setPen(BordForme(t.mesures));
  for (int c = 0; c < t.repere.nbCategories; ++c) {
    const double debut = t.repere.XCategorie(c) - groupe / 2;
    for (std::size_t i = 0; i < series.size(); ++i) {
      const std::size_t k = series[i];
      const SerieDessinee& serie = t.scene.series[k];
      const auto ci = static_cast<std::size_t>(c);
      const double x = debut + (t.scene.empile ? 0.0 : pas * static_cast<double>(i));
      const double y1 = t.repere.Y(t.pile.bas[k][ci], serie.axeSecondaire);
      const double y2 = t.repere.Y(t.pile.haut[k][ci], serie.axeSecondaire);
      t.peintre.setBrush(BrosseSerie(serie));
      t.peintre.drawRect(QRectF(QPointF(x, std::min(y1, y2)), QPointF(x + barre, std::max(y1, y2))));
    }
  }
  t.peintre.restore();
}

}  // namespace norvane
