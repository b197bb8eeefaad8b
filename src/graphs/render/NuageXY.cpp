// XY charts: each series a line of points placed by their X and their Y.
#include "graphs/render/NuageXY.h"

#include <QPainter>
#include <algorithm>

#include "graphs/render/Axes2D.h"
#include "graphs/render/Courbes2D.h"
#include "graphs/render/Pinceaux.h"
#include "graphs/render/Trace2D.h"

namespace norvane {
namespace {

Echelle EchelleDe(const Scene& scene, bool abscisses, bool secondaire) {
  double bas = 0, haut = 0;
  bool premier = true;
  for (const SerieDessinee& serie : scene.series) {
    if (!abscisses && serie.axeSecondaire != secondaire) continue;
    for (const double v : abscisses ? serie.abscisses : serie.valeurs) {
      bas = premier ? v : std::min(bas, v);
      haut = premier ? v : std::max(haut, v);
      premier = false;
    }
  }
  // Years and other far-off X stand on a range of their own; values on zero.
  return EchelleRonde(bas, haut, 5, !abscisses);
}

}  // namespace

void DessinerNuageXY(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                     const Mesures& mesures) {
  const StyleAxes style = StyleDesAxes(modele, mesures);
  Repere2D repere;
  repere.x = EchelleDe(scene, true, false);
  repere.y = EchelleDe(scene, false, false);
  repere.avecY2 = scene.UtiliseAxeSecondaire();
  if (repere.avecY2) repere.y2 = EchelleDe(scene, false, true);
  repere = PreparerRepere2D(peintre, scene, style, trace, repere, mesures);
  DessinerFond2D(peintre, repere, mesures);
  peintre.save();
  peintre.setClipRect(repere.zone.adjusted(-mesures.Twips(100), -mesures.Twips(100), mesures.Twips(100), 2));
  for (const SerieDessinee& serie : scene.series) {
    std::vector<QPointF> points;
    for (std::size_t i = 0; i < serie.valeurs.size() && i < serie.abscisses.size(); ++i) {
      points.emplace_back(repere.X(serie.abscisses[i]), repere.Y(serie.valeurs[i], serie.axeSecondaire));
    }
    peintre.setPen(TraitSerie(serie));
    peintre.drawPolyline(points.data(), static_cast<int>(points.size()));
    DessinerPoints(peintre, points, serie);
  }
  peintre.restore();
  DessinerAxes2D(peintre, repere, scene, style, trace, mesures);
}

}  // namespace norvane
