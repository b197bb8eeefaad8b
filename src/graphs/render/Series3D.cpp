// The series of a 3D chart as solids: bars as boxes, lines as ribbons, areas
// as slabs, steps as joined blocks; each series in its row of depth, or all
// in one row when stacked.
#include "graphs/render/Series3D.h"

#include <QPainter>
#include <algorithm>

#include "graphs/render/Axes3D.h"
#include "graphs/render/Empilement.h"
#include "graphs/render/Pinceaux.h"

namespace norvane {
namespace {

constexpr double kDefautElevation = 22;
constexpr double kDefautRotation = 28;

struct Rang {
  double z0 = 0;
  double z1 = 1;
};

Rang RangDe(const Repere3D& r, std::size_t k, double profondeurSerie) {
  const double z = r.rangs[k];
  const double marge = (1 - profondeurSerie) / 2;
  return {z + marge, z + 1 - marge};
}

Prisme PrismeDe(const SerieDessinee& serie, QPolygonF profil, Rang rang, const Mesures& mesures) {
  Prisme p;
  p.profil = std::move(profil);
  p.z0 = rang.z0;
  p.z1 = rang.z1;
  p.brosse = BrosseSerie(serie);
  p.couleur = serie.couleur;
  p.facesHachees = serie.brosse == kBrosseHachuree;
  p.bord = QPen(Teinte(serie.couleur, 0.45), std::max(1.0, mesures.Twips(6)));
  p.bord.setJoinStyle(Qt::MiterJoin);
  return p;
}

void AjouterSerie(std::vector<Prisme>& prismes, const Repere3D& r, const Scene& scene, const Pile& pile,
                  std::size_t k, const Mesures& mesures) {
  const SerieDessinee& serie = scene.series[k];
  const Rang rang = RangDe(r, k, 1 / (1 + scene.espaceSeries));
  const bool sec = serie.axeSecondaire;
  const auto h = [&](const std::vector<double>& v, int c) { return r.Hauteur(v[static_cast<std::size_t>(c)], sec); };
  const auto& bas = pile.bas[k];
  const auto& haut = pile.haut[k];
  const double barre = 1 / (1 + scene.espaceAnnees);
  for (int c = 0; c < r.nbCategories; ++c) {
    switch (serie.forme) {
      case Forme::Barre: {
        const double x0 = c + (1 - barre) / 2, x1 = x0 + barre;
        prismes.push_back(PrismeDe(serie, QPolygonF(QRectF(QPointF(x0, h(bas, c)), QPointF(x1, h(haut, c)))), rang, mesures));
        break;
      }
      case Forme::Escalier:
        prismes.push_back(PrismeDe(serie, QPolygonF(QRectF(QPointF(c, h(bas, c)), QPointF(c + 1, h(haut, c)))), rang, mesures));
        break;
      case Forme::Aire:
        if (c + 1 < r.nbCategories) {
          const QPolygonF profil{QPointF(c + 0.5, h(bas, c)), QPointF(c + 1.5, h(bas, c + 1)),
                                 QPointF(c + 1.5, h(haut, c + 1)), QPointF(c + 0.5, h(haut, c))};
          prismes.push_back(PrismeDe(serie, profil, rang, mesures));
        }
        break;
      case Forme::Courbe:
        if (c + 1 < r.nbCategories) {
          // A ribbon: the segment with a little thickness, so that it shows
          // from above as a band and from the front as a line.
          const double e = std::max(0.012, serie.epaisseur / 600.0);
          const QPolygonF profil{QPointF(c + 0.5, h(haut, c) - e), QPointF(c + 1.5, h(haut, c + 1) - e),
                                 QPointF(c + 1.5, h(haut, c + 1) + e), QPointF(c + 0.5, h(haut, c) + e)};
          Prisme p = PrismeDe(serie, profil, rang, mesures);
          p.brosse = QBrush(serie.couleur);
          p.facesHachees = false;
          prismes.push_back(std::move(p));
        }
        break;
    }
  }
}

}  // namespace

void DessinerGraphique3D(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                         const Mesures& mesures) {
  const Pile pile = Empiler(scene);
  const StyleAxes style = StyleDesAxes(modele, mesures);
  const bool vueStockee = !modele.RectPlot.EstVide();
  const int nbRangs = scene.empile ? 1 : std::max<int>(1, static_cast<int>(scene.series.size()));
  const int nbCategories = std::max<int>(1, static_cast<int>(scene.categories.size()));
  Repere3D repere;
  repere.vue = Projection3D(vueStockee ? modele.Elevation : kDefautElevation,
                            vueStockee ? modele.Rotation : kDefautRotation, nbCategories, nbRangs);
  repere.nbCategories = static_cast<int>(scene.categories.size());
  repere.nbRangs = nbRangs;
  repere.rangs = RangerSeries(scene);
  repere.y = EchelleAxe(scene, pile, false);
  repere.avecY2 = scene.UtiliseAxeSecondaire();
  if (repere.avecY2) repere.y2 = EchelleAxe(scene, pile, true);
  repere = PreparerRepere3D(peintre, scene, style, trace, repere, mesures);
  DessinerParois3D(peintre, repere, style, mesures);
  std::vector<Prisme> prismes;
  for (std::size_t k = 0; k < scene.series.size(); ++k) AjouterSerie(prismes, repere, scene, pile, k, mesures);
  DessinerPrismes(peintre, repere.vue, std::move(prismes));
  DessinerAxes3D(peintre, repere, scene, style, trace, mesures);
}

}  // namespace norvane
