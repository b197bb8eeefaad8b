#include "graphs/render/Graphique2D.h"

#include <QPainter>

#include "graphs/render/Aires2D.h"
#include "graphs/render/Barres2D.h"
#include "graphs/render/Courbes2D.h"

namespace norvane {

void DessinerGraphique2D(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                         const Mesures& mesures) {
  const Pile pile = Empiler(scene);
  const StyleAxes style = StyleDesAxes(modele, mesures);
  Repere2D repere;
  repere.y = EchelleAxe(scene, pile, false);
  repere.avecY2 = scene.UtiliseAxeSecondaire();
  if (repere.avecY2) repere.y2 = EchelleAxe(scene, pile, true);
  repere = PreparerRepere2D(peintre, scene, style, trace, repere, mesures);
  DessinerFond2D(peintre, repere, mesures);
  // Filled shapes first, lines last, so that nothing hides a line.
  std::vector<std::size_t> parForme[4];
  for (std::size_t k = 0; k < scene.series.size(); ++k) {
    parForme[static_cast<int>(scene.series[k].forme)].push_back(k);
  }
  const Trace2D t{peintre, repere, scene, pile, mesures};
  peintre.save();
  peintre.setClipRect(repere.zone.adjusted(-2, -mesures.Twips(200), 2, 2));
  DessinerAires2D(t, parForme[static_cast<int>(Forme::Aire)]);
  DessinerEscaliers2D(t, parForme[static_cast<int>(Forme::Escalier)]);
  DessinerBarres2D(t, parForme[static_cast<int>(Forme::Barre)]);
  DessinerCourbes2D(t, parForme[static_cast<int>(Forme::Courbe)]);
  peintre.restore();
  DessinerAxes2D(peintre, repere, scene, style, trace, mesures);
}

}  // namespace norvane
