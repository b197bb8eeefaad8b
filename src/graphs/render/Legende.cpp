#include "graphs/render/Legende.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <vector>

#include "graphs/render/Pinceaux.h"

namespace norvane {
namespace {

struct Disposition {
  std::vector<QRectF> entrees;  // relative to the legend's inner top-left
  QSizeF taille;                // of all entries
};

double CotePastille(QPainter& peintre, const QFont& police) {
  return QFontMetricsF(police, peintre.device()).height() * 0.75;
}

double Marge(const Mesures& mesures) { return mesures.Twips(70); }

QSizeF TailleNom(QPainter& peintre, const QString& nom, const StyleLegende& style, double largeurMax) {
  const QFontMetricsF metriques(style.police, peintre.device());
  const int drapeaux = style.retour ? Qt::TextWordWrap : 0;
  return metriques.boundingRect(QRectF(0, 0, std::max(1.0, largeurMax), 1e6), drapeaux, nom).size();
}

Disposition Disposer(QPainter& peintre, const Scene& scene, const StyleLegende& style, double largeur,
                     const Mesures& mesures) {
  const double pastille = CotePastille(peintre, style.police);
  const double ecart = pastille * 0.6;
  const double largeurNom = std::max(1.0, largeur - pastille - ecart);
  Disposition d;
  double x = 0, y = 0, hauteurRang = 0;
  for (const SerieDessinee& serie : scene.series) {
    const QSizeF nom = TailleNom(peintre, serie.nom, style, style.enLignes ? largeurNom : largeurNom);
    const QSizeF entree(pastille + ecart + nom.width(), std::max(nom.height(), pastille));
    if (style.enLignes && x > 0 && x + entree.width() > largeur) {
      x = 0;
      y += hauteurRang + ecart * 0.5;
      hauteurRang = 0;
    }
    d.entrees.emplace_back(QPointF(x, y), entree);
    d.taille.setWidth(std::max(d.taille.width(), x + entree.width()));
    if (style.enLignes) {
      x += entree.width() + pastille * 2;
      hauteurRang = std::max(hauteurRang, entree.height());
    } else {
      y += entree.height() + ecart * 0.5;
    }
  }
  d.taille.setHeight(style.enLignes ? y + hauteurRang : std::max(0.0, y - ecart * 0.5));
  (void)mesures;
  return d;
}

void DessinerPastille(QPainter& peintre, const QRectF& carre, const SerieDessinee& serie, const Mesures& mesures) {
  if (serie.forme == Forme::Courbe) {
    const double y = carre.center().y();
    QPen trait = TraitSerie(serie);
    trait.setWidthF(std::min(trait.widthF(), carre.height() / 2));
    peintre.setPen(trait);
    peintre.drawLine(QPointF(carre.left() - carre.width() * 0.3, y), QPointF(carre.right() + carre.width() * 0.3, y));
    peintre.setBrush(serie.couleur);
    peintre.setPen(Qt::NoPen);
    peintre.drawEllipse(carre.center(), carre.width() * 0.28, carre.width() * 0.28);
    return;
  }
  peintre.setPen(BordForme(mesures));
  peintre.setBrush(BrosseSerie(serie));
  peintre.drawRect(carre);
}

}  // namespace

QSizeF MesurerLegende(QPainter& peintre, const Scene& scene, const StyleLegende& style, double largeurMax,
                      const Mesures& mesures) {
  if (scene.series.empty()) return {0, 0};
  const double marge = Marge(mesures);
  const Disposition d = Disposer(peintre, scene, style, largeurMax - 2 * marge, mesures);
  return d.taille + QSizeF(2 * marge, 2 * marge);
}

void DessinerLegende(QPainter& peintre, const QRectF& zone, const Scene& scene, const StyleLegende& style,
                     const Mesures& mesures) {
  if (scene.series.empty() || zone.isEmpty()) return;
  const double marge = Marge(mesures);
  const Disposition d = Disposer(peintre, scene, style, zone.width() - 2 * marge, mesures);
  peintre.save();
  peintre.setPen(QPen(QColor(190, 190, 190), mesures.Trait(10)));
  peintre.setBrush(Qt::white);
  peintre.drawRect(zone);
  // Entries centred in the frame when it is larger than they need.
  const QPointF origine(zone.left() + std::max(marge, (zone.width() - d.taille.width()) / 2),
                        zone.top() + std::max(marge, (zone.height() - d.taille.height()) / 2));
  const double pastille = CotePastille(peintre, style.police);
  peintre.setFont(style.police);
  for (std::size_t i = 0; i < d.entrees.size(); ++i) {
    const QRectF entree = d.entrees[i].translated(origine);
    const QRectF carre(entree.left(), entree.center().y() - pastille / 2, pastille, pastille);
    DessinerPastille(peintre, carre, scene.series[i], mesures);
    peintre.setPen(QColor(30, 30, 30));
    const QRectF nom(carre.right() + pastille * 0.6, entree.top(), entree.right() - carre.right() - pastille * 0.6 + 1,
                     entree.height());
    peintre.drawText(nom, Qt::AlignVCenter | Qt::AlignLeft | (style.retour ? Qt::TextWordWrap : 0),
                     scene.series[i].nom);
  }
  peintre.restore();
}

}  // namespace norvane
