#include "graphs/render/Empilement.h"

#include <algorithm>

namespace norvane {

Pile Empiler(const Scene& scene) {
  Pile pile;
  const std::size_t nbCategories = scene.categories.size();
  // Running tops of each axis, positive and negative apart.
  std::vector<double> positifs[2] = {std::vector<double>(nbCategories), std::vector<double>(nbCategories)};
  std::vector<double> negatifs[2] = {std::vector<double>(nbCategories), std::vector<double>(nbCategories)};
  for (const SerieDessinee& serie : scene.series) {
    std::vector<double> bas(nbCategories, 0.0), haut(nbCategories, 0.0);
    const int axe = serie.axeSecondaire ? 1 : 0;
    for (std::size_t c = 0; c < nbCategories && c < serie.valeurs.size(); ++c) {
      const double v = serie.valeurs[c];
      if (!scene.empile) {
        haut[c] = v;
        continue;
      }
      double& cumul = v >= 0 ? positifs[axe][c] : negatifs[axe][c];
      bas[c] = cumul;
      cumul += v;
      haut[c] = cumul;
    }
    pile.bas.push_back(std::move(bas));
    pile.haut.push_back(std::move(haut));
  }
  return pile;
}

Echelle EchelleAxe(const Scene& scene, const Pile& pile, bool secondaire) {
  double bas = 0, haut = 0;
  for (std::size_t k = 0; k < scene.series.size(); ++k) {
    if (scene.series[k].axeSecondaire != secondaire) continue;
    for (const double v : pile.haut[k]) bas = std::min(bas, v), haut = std::max(haut, v);
    for (const double v : pile.bas[k]) bas = std::min(bas, v), haut = std::max(haut, v);
  }
  return EchelleRonde(bas, haut);
}

}  // namespace norvane
