#include "graphs/render/Textes.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace norvane {
namespace {

bool EstTourne(int orientation) { return orientation == 3 || orientation == 4; }

int Drapeaux(const TexteOriente& texte) {
  return Qt::AlignCenter | (texte.retour ? Qt::TextWordWrap : 0);
}

// Size of the text read horizontally within `largeur`.
QSizeF TailleHorizontale(QPainter& peintre, const TexteOriente& texte, double largeur) {
  const QFontMetricsF metriques(texte.police, peintre.device());
  const QRectF bornes(0, 0, std::max(1.0, largeur), 1e6);
  return metriques.boundingRect(bornes, Drapeaux(texte), texte.texte).size();
}

// Letters one under the other: the widest letter, one line a letter.
QSizeF TailleEmpilee(QPainter& peintre, const TexteOriente& texte) {
  const QFontMetricsF metriques(texte.police, peintre.device());
  double largeur = 0;
  for (const QChar lettre : texte.texte) largeur = std::max(largeur, metriques.horizontalAdvance(lettre));
  return {largeur, metriques.lineSpacing() * static_cast<double>(texte.texte.size())};
}

}  // namespace

QSizeF MesurerTexte(QPainter& peintre, const TexteOriente& texte, double longueurMax) {
  if (texte.texte.isEmpty()) return {0, 0};
  if (texte.orientation == 2) return TailleEmpilee(peintre, texte);
  const QSizeF taille = TailleHorizontale(peintre, texte, longueurMax);
  const QSizeF ajustee(std::min(taille.width(), std::max(1.0, longueurMax)), taille.height());
  return EstTourne(texte.orientation) ? ajustee.transposed() : ajustee;
}

void DessinerTexte(QPainter& peintre, const QRectF& zone, const TexteOriente& texte) {
  if (texte.texte.isEmpty()) return;
  peintre.save();
  peintre.setFont(texte.police);
  if (texte.orientation == 2) {
    const QFontMetricsF metriques(texte.police, peintre.device());
    const double hauteur = metriques.lineSpacing() * static_cast<double>(texte.texte.size());
    double y = zone.center().y() - hauteur / 2;
    for (const QChar lettre : texte.texte) {
      peintre.drawText(QRectF(zone.left(), y, zone.width(), metriques.lineSpacing()), Qt::AlignCenter, QString(lettre));
      y += metriques.lineSpacing();
    }
  } else if (EstTourne(texte.orientation)) {
    peintre.translate(zone.center());
    peintre.rotate(texte.orientation == 3 ? -90 : 90);
    const QRectF tournee(-zone.height() / 2, -zone.width() / 2, zone.height(), zone.width());
    peintre.drawText(tournee, Drapeaux(texte), texte.texte);
  } else {
    peintre.drawText(zone, Drapeaux(texte), texte.texte);
  }
  peintre.restore();
}

}  // namespace norvane
