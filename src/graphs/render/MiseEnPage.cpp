#include "graphs/render/MiseEnPage.h"

#include <algorithm>

namespace norvane {
namespace {

bool EstVertical(const TexteOriente& texte) { return texte.orientation >= 2 && texte.orientation <= 4; }

// A placed text keeps the corner the model gives (top left) and grows to
// the size its text needs.
QRectF PlacerTexte(const QRectF& voulu, const QSizeF& besoin, const QRectF& cadre) {
  QRectF zone(voulu.topLeft(), voulu.size().expandedTo(besoin));
  if (zone.right() > cadre.right()) zone.moveRight(cadre.right());
  if (zone.bottom() > cadre.bottom()) zone.moveBottom(cadre.bottom());
  zone.moveLeft(std::max(zone.left(), cadre.left()));
  zone.moveTop(std::max(zone.top(), cadre.top()));
  return zone;
}

Zones ZonesPlacees(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const TextesGraphique& textes,
                   const QRectF& cadre, const Mesures& mesures) {
  Zones zones;
  const QRectF titre = RectangleEnPixels(modele.RectTitre, cadre, mesures);
  const QRectF note = RectangleEnPixels(modele.RectNote, cadre, mesures);
  const QRectF legende = RectangleEnPixels(modele.RectLegende, cadre, mesures);
  const double largeurTexte = EstVertical(textes.titre) ? cadre.height() : cadre.width();
  zones.titre = PlacerTexte(titre, MesurerTexte(peintre, textes.titre, std::max(titre.width(), largeurTexte / 2)), cadre);
  zones.note = PlacerTexte(note, MesurerTexte(peintre, textes.note, cadre.width()), cadre);
  if (textes.avecLegende) {
    const double largeur = std::max(legende.width(), cadre.width() / 5);
    zones.legende = PlacerTexte(legende, MesurerLegende(peintre, scene, textes.legende, largeur, mesures), cadre);
  }
  // The plot keeps at least a quarter of the chart each way.
  QRectF trace = RectangleEnPixels(modele.RectPlot, cadre, mesures);
  trace.setSize(trace.size().expandedTo(cadre.size() / 4));
  zones.trace = PlacerTexte(trace, trace.size(), cadre);
  return zones;
}

Zones ZonesAutomatiques(QPainter& peintre, const Scene& scene, TextesGraphique& textes, const QRectF& cadre,
                        const Mesures& mesures) {
  const double marge = mesures.Twips(120);
  QRectF reste = cadre.adjusted(marge, marge, -marge, -marge);
  Zones zones;
  if (EstVertical(textes.titre)) {
    const QSizeF t = MesurerTexte(peintre, textes.titre, reste.height());
    zones.titre = QRectF(reste.left(), reste.top(), t.width(), reste.height());
    reste.setLeft(reste.left() + t.width() + marge);
  } else if (!textes.titre.texte.isEmpty()) {
    const QSizeF t = MesurerTexte(peintre, textes.titre, reste.width());
    zones.titre = QRectF(reste.left(), reste.top(), reste.width(), t.height());
    reste.setTop(reste.top() + t.height() + marge);
  }
  if (EstVertical(textes.note)) {
    const QSizeF n = MesurerTexte(peintre, textes.note, reste.height());
    zones.note = QRectF(reste.right() - n.width(), reste.top(), n.width(), reste.height());
    reste.setRight(reste.right() - n.width() - marge);
  } else if (!textes.note.texte.isEmpty()) {
    const QSizeF n = MesurerTexte(peintre, textes.note, reste.width());
    zones.note = QRectF(reste.left(), reste.bottom() - n.height(), reste.width(), n.height());
    reste.setBottom(reste.bottom() - n.height() - marge / 2);
  }
  if (textes.avecLegende && !scene.series.empty()) {
    textes.legende.enLignes = true;
    const QSizeF l = MesurerLegende(peintre, scene, textes.legende, reste.width(), mesures);
    const double hauteur = std::min(l.height(), reste.height() / 3);
    zones.legende = QRectF(reste.center().x() - l.width() / 2, reste.bottom() - hauteur, l.width(), hauteur);
    reste.setBottom(reste.bottom() - hauteur - marge);
  }
  zones.trace = reste;
  return zones;
}

}  // namespace

QRectF RectangleEnPixels(const RectGraphique& rect, const QRectF& cadre, const Mesures& mesures) {
  const double hauteur = kHauteurGraphiqueTwips;
  const QPointF haut(mesures.Twips(rect.MinX), mesures.Twips(hauteur - rect.MaxY));
  const QPointF bas(mesures.Twips(rect.MaxX), mesures.Twips(hauteur - rect.MinY));
  return QRectF(haut, bas).normalized().translated(cadre.topLeft());
}

Zones PlacerZones(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, TextesGraphique& textes,
                  const QRectF& cadre, const Mesures& mesures) {
  if (modele.RectPlot.EstVide()) return ZonesAutomatiques(peintre, scene, textes, cadre, mesures);
  textes.legende.enLignes = false;
  const QRectF voulue = RectangleEnPixels(modele.RectLegende, cadre, mesures);
  textes.legende.enLignes = voulue.width() > 2.5 * voulue.height();
  return ZonesPlacees(peintre, modele, scene, textes, cadre, mesures);
}

}  // namespace norvane
