#include "graphs/render/Pinceaux.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

namespace norvane {
namespace {

constexpr int kCoteMotif = 14;

// Diagonal hatching in the colour on a pale ground of the same colour, drawn
// thick enough to stay visible once printed.
QImage Hachures(const QColor& couleur) {
  QImage motif(kCoteMotif, kCoteMotif, QImage::Format_ARGB32_Premultiplied);
  motif.fill(Teinte(couleur, 1.8));
  QPainter peintre(&motif);
  peintre.setRenderHint(QPainter::Antialiasing);
  peintre.setPen(QPen(couleur, 3.0));
  for (int decalage = -kCoteMotif; decalage <= kCoteMotif; decalage += kCoteMotif) {
    peintre.drawLine(QPointF(decalage, kCoteMotif), QPointF(decalage + kCoteMotif, 0));
  }
  return motif;
}

}  // namespace

QColor Teinte(const QColor& couleur, double facteur) {
  if (facteur <= 1.0) {
    return QColor::fromRgbF(static_cast<float>(couleur.redF() * facteur), static_cast<float>(couleur.greenF() * facteur),
                            static_cast<float>(couleur.blueF() * facteur), couleur.alphaF());
  }
  const double vers = std::min(1.0, facteur - 1.0);  // share of white mixed in
  const auto melange = [vers](float c) { return static_cast<float>(c + (1.0 - c) * vers); };
  return QColor::fromRgbF(melange(couleur.redF()), melange(couleur.greenF()), melange(couleur.blueF()), couleur.alphaF());
}

QBrush BrosseSerie(const SerieDessinee& serie, double teinte) {
  const QColor couleur = Teinte(serie.couleur, teinte);
  switch (serie.brosse) {
    case kBrosseVide: return Qt::NoBrush;
    case kBrosseHachuree: return QBrush(Hachures(couleur));
    default: return QBrush(couleur);
  }
}

QPen TraitSerie(const SerieDessinee& serie) {
  QPen trait(serie.couleur, serie.epaisseur);
  trait.setCapStyle(Qt::RoundCap);
  trait.setJoinStyle(Qt::RoundJoin);
  return trait;
}

QPen BordForme(const Mesures& mesures) {
  QPen bord(QColor(40, 40, 40), std::max(1.0, mesures.Twips(8)));
  bord.setJoinStyle(Qt::MiterJoin);
  return bord;
}

}  // namespace norvane
