#include "graphs/render/Axes3D.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace norvane {
namespace {

const QColor kCouleurLibelle(45, 45, 45);
const QColor kCouleurGrille(205, 205, 205);

double Ecart(const Mesures& mesures) { return mesures.Twips(60); }

double LargeurValeurs(const QFontMetricsF& metriques, const Echelle& echelle) {
  double largeur = 0;
  for (const double v : echelle.Graduations()) {
    largeur = std::max(largeur, metriques.horizontalAdvance(LibelleNombre(v, echelle.decimales)));
  }
  return largeur;
}

double LargeurTextes(const QFontMetricsF& metriques, const std::vector<QString>& textes) {
  double largeur = 0;
  for (const QString& t : textes) largeur = std::max(largeur, metriques.horizontalAdvance(t));
  return largeur;
}

std::vector<QString> NomsDesRangs(const Scene& scene, int nbRangs) {
  std::vector<QString> noms;
  if (nbRangs > 1) {
    for (const SerieDessinee& s : scene.series) noms.push_back(s.nom);
  }
  return noms;
}

// Side of the box where the side wall stands and the other where rows are named.
double XParoi(const Repere3D& r) { return r.vue.VueDeDroite() ? 0.0 : r.vue.Largeur(); }
double XRangs(const Repere3D& r) { return r.vue.VueDeDroite() ? r.vue.Largeur() : 0.0; }

QPolygonF Face(const Projection3D& vue, std::initializer_list<Point3D> coins) {
  QPolygonF face;
  for (const Point3D& p : coins) face << vue.Projeter(p);
  return face;
}

}  // namespace

std::vector<int> RangerSeries(const Scene& scene) {
  const std::size_t n = scene.series.size();
  std::vector<int> rangs(n, 0);
  if (scene.empile) return rangs;
  std::vector<double> moyennes(n, 0.0);
  for (std::size_t k = 0; k < n; ++k) {
    for (const double v : scene.series[k].valeurs) moyennes[k] += std::abs(v);
  }
  std::vector<std::size_t> ordre(n);
  for (std::size_t k = 0; k < n; ++k) ordre[k] = k;
  std::stable_sort(ordre.begin(), ordre.end(), [&](std::size_t a, std::size_t b) { return moyennes[a] > moyennes[b]; });
  for (std::size_t place = 0; place < n; ++place) rangs[ordre[place]] = static_cast<int>(n - 1 - place);
  return rangs;
}

double Repere3D::Hauteur(double valeur, bool secondaire) const {
  return (secondaire && avecY2 ? y2 : y).Fraction(valeur);
}

Repere3D PreparerRepere3D(QPainter& peintre, const Scene& scene, const StyleAxes& style, const QRectF& trace,
                          Repere3D repere, const Mesures& mesures) {
  const QFontMetricsF metriques(style.graduations, peintre.device());
  const double ecart = Ecart(mesures);
  const double ligne = metriques.lineSpacing();
  const QSizeF titreY = MesurerTexte(peintre, style.titreY, trace.height());
  const QSizeF titreY2 = MesurerTexte(peintre, style.titreY2, trace.height());
  const QSizeF titreX = MesurerTexte(peintre, style.titreX, trace.width());
  const QSizeF titreZ = MesurerTexte(peintre, style.titreZ, trace.width() / 3);
  const double largeurCategories = LargeurTextes(metriques, scene.categories);
  double gauche = LargeurValeurs(metriques, repere.y) + 2 * ecart + (titreY.width() > 0 ? titreY.width() + ecart : 0);
  double droite = std::max(LargeurTextes(metriques, NomsDesRangs(scene, repere.nbRangs)) + 2 * ecart,
                           std::max(titreZ.width(), ligne));
  if (repere.avecY2) {
    droite = std::max(droite, LargeurValeurs(metriques, repere.y2) + 2 * ecart + (titreY2.width() > 0 ? titreY2.width() + ecart : 0));
  }
  if (!repere.vue.VueDeDroite()) std::swap(gauche, droite), gauche = std::max(gauche, droite);
  const double basTitres = titreX.height() > 0 ? titreX.height() + ecart : 0;
  QRectF zone(trace.left() + gauche, trace.top() + ligne, trace.width() - gauche - droite,
              trace.height() - ligne - (ligne + ecart + basTitres));
  repere.vue.Ajuster(zone);
  // Room each category has along the front edge; labels turn or thin out when
  // they would touch.
  const double place = std::abs(repere.vue.Projeter({1, 0, 0}).x() - repere.vue.Projeter({0, 0, 0}).x());
  if (largeurCategories + ligne * 0.5 > place) {
    repere.libellesPenches = true;
    repere.pasLibelles = std::max(1, static_cast<int>(std::ceil(ligne * 1.6 / std::max(1.0, place))));
    const double hauteur = std::min(largeurCategories, trace.height() / 4) * std::sqrt(0.5) + ligne;
    zone.setBottom(trace.bottom() - hauteur - ecart - basTitres);
    repere.vue.Ajuster(zone);
  }
  return repere;
}

void DessinerParois3D(QPainter& peintre, const Repere3D& r, const StyleAxes& style, const Mesures& mesures) {
  const Projection3D& v = r.vue;
  const double w = v.Largeur(), d = v.ProfondeurBoite(), xp = XParoi(r);
  peintre.save();
  peintre.setPen(QPen(QColor(185, 185, 185), mesures.Trait(8)));
  peintre.setBrush(QColor(244, 245, 247));
  peintre.drawPolygon(Face(v, {{0, 0, d}, {w, 0, d}, {w, 1, d}, {0, 1, d}}));
  peintre.setBrush(QColor(234, 236, 240));
  peintre.drawPolygon(Face(v, {{xp, 0, 0}, {xp, 0, d}, {xp, 1, d}, {xp, 1, 0}}));
  peintre.setBrush(QColor(222, 225, 230));
  peintre.drawPolygon(Face(v, {{0, 0, 0}, {w, 0, 0}, {w, 0, d}, {0, 0, d}}));
  peintre.setPen(QPen(kCouleurGrille, mesures.Trait(8)));
  for (const double valeur : r.y.Graduations()) {
    const double h = r.y.Fraction(valeur);
    if (h <= 1e-9) continue;
    peintre.drawPolyline(Face(v, {{xp, h, 0}, {xp, h, d}, {w - xp, h, d}}));
  }
  peintre.setPen(style.traitX);
  peintre.drawLine(v.Projeter({0, 0, 0}), v.Projeter({w, 0, 0}));
  peintre.setPen(style.traitZ);
  peintre.drawLine(v.Projeter({w - xp, 0, 0}), v.Projeter({w - xp, 0, d}));
  peintre.setPen(style.traitY);
  peintre.drawLine(v.Projeter({xp, 0, 0}), v.Projeter({xp, 1, 0}));
  if (r.avecY2) {
    peintre.setPen(style.traitY2);
    peintre.drawLine(v.Projeter({w - xp, 0, d}), v.Projeter({w - xp, 1, d}));
  }
  peintre.restore();
}

void DessinerAxes3D(QPainter& peintre, const Repere3D& r, const Scene& scene, const StyleAxes& style,
                    const QRectF& trace, const Mesures& mesures) {
  const Projection3D& v = r.vue;
  const QFontMetricsF metriques(style.graduations, peintre.device());
  const double ecart = Ecart(mesures), ligne = metriques.lineSpacing();
  const double w = v.Largeur(), d = v.ProfondeurBoite();
  const bool droite = v.VueDeDroite();
  peintre.save();
  peintre.setFont(style.graduations);
  peintre.setPen(kCouleurLibelle);
  const auto libelleA = [&](QPointF ancre, const QString& texte, bool aDroite) {
    const double l = metriques.horizontalAdvance(texte);
    const QRectF boite(aDroite ? ancre.x() + ecart : ancre.x() - ecart - l, ancre.y() - ligne / 2, l + 1, ligne);
    peintre.drawText(boite, static_cast<int>(Qt::AlignVCenter) | static_cast<int>(aDroite ? Qt::AlignLeft : Qt::AlignRight), texte);
  };
  // Values on the front edge of the side wall; the second axis at the back.
  for (const double valeur : r.y.Graduations()) {
    libelleA(v.Projeter({droite ? 0.0 : w, r.y.Fraction(valeur), 0}), LibelleNombre(valeur, r.y.decimales), !droite);
  }
  if (r.avecY2) {
    for (const double valeur : r.y2.Graduations()) {
      libelleA(v.Projeter({droite ? w : 0.0, r.y2.Fraction(valeur), d}), LibelleNombre(valeur, r.y2.decimales), droite);
    }
  }
  // Names of the rows along the floor's far side.
  const std::vector<QString> rangs = NomsDesRangs(scene, r.nbRangs);
  if (!rangs.empty()) {
    const double place = std::abs(v.Projeter({XRangs(r), 0, 1}).y() - v.Projeter({XRangs(r), 0, 0}).y());
    const auto pas = static_cast<std::size_t>(std::max(1.0, std::ceil(ligne * 0.95 / std::max(1.0, place))));
    // Names from the front row backwards, thinned when rows are too close.
    for (std::size_t rang = 0; rang < rangs.size(); rang += pas) {
      for (std::size_t k = 0; k < rangs.size() && k < r.rangs.size(); ++k) {
        if (r.rangs[k] != static_cast<int>(rang)) continue;
        libelleA(v.Projeter({XRangs(r), 0, static_cast<double>(rang) + 0.5}), rangs[k], droite);
      }
    }
  }
  // Categories under the front edge.
  double basLibelles = v.Projeter({0, 0, 0}).y();
  for (int c = 0; c < static_cast<int>(scene.categories.size()); c += r.pasLibelles) {
    const QPointF ancre = v.Projeter({c + 0.5, 0, 0}) + QPointF(0, ecart);
    const QString& texte = scene.categories[static_cast<std::size_t>(c)];
    const double l = metriques.horizontalAdvance(texte);
    if (r.libellesPenches) {
      peintre.save();
      peintre.translate(ancre + QPointF(ligne * 0.3, 0));
      peintre.rotate(-45);
      peintre.drawText(QRectF(-l, -ligne / 2, l, ligne), Qt::AlignRight | Qt::AlignVCenter, texte);
      peintre.restore();
      basLibelles = std::max(basLibelles, ancre.y() + l * std::sqrt(0.5) + ligne / 2);
    } else {
      peintre.drawText(QRectF(ancre.x() - l / 2 - 1, ancre.y(), l + 2, ligne), Qt::AlignCenter, texte);
      basLibelles = std::max(basLibelles, ancre.y() + ligne);
    }
  }
  // Axis titles: X under the labels, Y beside the values, Z by the rows, Y2 on the right.
  const QSizeF tx = MesurerTexte(peintre, style.titreX, trace.width());
  DessinerTexte(peintre, QRectF(trace.left(), std::min(basLibelles + ecart, trace.bottom() - tx.height()), trace.width(), tx.height()), style.titreX);
  const QSizeF ty = MesurerTexte(peintre, style.titreY, trace.height());
  DessinerTexte(peintre, QRectF(trace.left(), trace.top(), ty.width(), trace.height()), style.titreY);
  const QSizeF tz = MesurerTexte(peintre, style.titreZ, trace.width() / 3);
  const QPointF coinZ = v.Projeter({XRangs(r), 0, 0});
  DessinerTexte(peintre, QRectF(droite ? coinZ.x() : coinZ.x() - tz.width(), coinZ.y() + ecart, tz.width(), tz.height()), style.titreZ);
  if (r.avecY2) {
    const QSizeF ty2 = MesurerTexte(peintre, style.titreY2, trace.height());
    DessinerTexte(peintre, QRectF(trace.right() - ty2.width(), trace.top(), ty2.width(), trace.height()), style.titreY2);
  }
  peintre.restore();
}

}  // namespace norvane
