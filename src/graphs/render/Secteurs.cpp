// Pies: one pie a category, a slice a series, its share written on it.
#include "graphs/render/Secteurs.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "graphs/render/Echelle.h"
#include "graphs/render/Pinceaux.h"

namespace norvane {
namespace {

constexpr double kPi = 3.14159265358979323846;

void DessinerUnSecteur(QPainter& peintre, const Scene& scene, std::size_t categorie, const QRectF& place,
                       const Mesures& mesures) {
  const QFont police = PoliceGraphique(8);
  const QFontMetricsF metriques(police, peintre.device());
  const QRectF libelle(place.left(), place.bottom() - metriques.lineSpacing(), place.width(), metriques.lineSpacing());
  // Room around the disc for the shares of thin slices, written outside.
  const double rayon = std::max(1.0, std::min(place.width(), place.height() - metriques.lineSpacing() * 1.5) / 2 * 0.8);
  const QPointF centre(place.center().x(), place.top() + (place.height() - metriques.lineSpacing() * 1.5) / 2);
  double total = 0;
  for (const SerieDessinee& s : scene.series) total += std::abs(s.valeurs[categorie]);
  peintre.setFont(police);
  peintre.setPen(QColor(45, 45, 45));
  if (scene.categories.size() > 1) peintre.drawText(libelle, Qt::AlignCenter, scene.categories[categorie]);
  const QRectF disque(centre.x() - rayon, centre.y() - rayon, 2 * rayon, 2 * rayon);
  if (total <= 0) {
    peintre.setPen(QPen(QColor(200, 200, 200), mesures.Trait(10)));
    peintre.setBrush(Qt::NoBrush);
    peintre.drawEllipse(disque);
    return;
  }
  double angle = 90;  // from the top, clockwise
  for (const SerieDessinee& serie : scene.series) {
    const double part = std::abs(serie.valeurs[categorie]) / total;
    if (part <= 0) continue;
    const double etendue = -part * 360;
    peintre.setPen(QPen(Qt::white, mesures.Trait(14)));
    peintre.setBrush(BrosseSerie(serie));
    peintre.drawPie(disque, static_cast<int>(std::lround(angle * 16)), static_cast<int>(std::lround(etendue * 16)));
    if (part >= 0.02) {
      const double milieu = (angle + etendue / 2) * kPi / 180;
      const QString texte = LibelleNombre(part * 100, 1) + QStringLiteral("\u00a0%");
      const QSizeF taille(metriques.horizontalAdvance(texte) + 4, metriques.height());
      // A share goes inside its slice when the slice is wide enough for it,
      // otherwise just outside, on the side it points to.
      const bool dedans = part * 2 * kPi * rayon * 0.62 >= taille.width() * 1.15;
      const double distance = dedans ? 0.62 : 1.06;
      const QPointF ici(centre.x() + std::cos(milieu) * rayon * distance, centre.y() - std::sin(milieu) * rayon * distance);
      QRectF boite(ici - QPointF(taille.width() / 2, taille.height() / 2), taille);
      if (!dedans) {
        boite.moveLeft(std::cos(milieu) >= 0 ? ici.x() : ici.x() - taille.width());
        boite.moveTop(ici.y() - taille.height() * (0.5 + 0.5 * std::sin(milieu)));
      }
      peintre.setPen(Qt::NoPen);
      peintre.setBrush(QColor(255, 255, 255, 200));
      peintre.drawRoundedRect(boite, 3, 3);
      peintre.setPen(QColor(30, 30, 30));
      peintre.drawText(boite, Qt::AlignCenter, texte);
    }
    angle += etendue;
  }
}

}  // namespace

void DessinerSecteurs(QPainter& peintre, const Scene& scene, const QRectF& trace, const Mesures& mesures) {
  const std::size_t n = scene.categories.size();
  if (n == 0) return;
  const int colonnes = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(n) * trace.width() / trace.height())));
  const int nbColonnes = std::clamp(colonnes, 1, static_cast<int>(n));
  const int nbRangs = static_cast<int>((n + static_cast<std::size_t>(nbColonnes) - 1) / static_cast<std::size_t>(nbColonnes));
  const double largeur = trace.width() / nbColonnes;
  const double hauteur = trace.height() / nbRangs;
  peintre.save();
  for (std::size_t c = 0; c < n; ++c) {
    const int rang = static_cast<int>(c) / nbColonnes;
    const int colonne = static_cast<int>(c) % nbColonnes;
    // The last row is centred when it is not full.
    const int dansRang = std::min(nbColonnes, static_cast<int>(n) - rang * nbColonnes);
    const double decalage = (nbColonnes - dansRang) * largeur / 2;
    const QRectF place(trace.left() + decalage + colonne * largeur, trace.top() + rang * hauteur, largeur, hauteur);
    DessinerUnSecteur(peintre, scene, c, place.adjusted(largeur * 0.04, hauteur * 0.03, -largeur * 0.04, 0), mesures);
  }
  peintre.restore();
}

}  // namespace norvane
