#include "graphs/render/Axes2D.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace norvane {
namespace {

constexpr double kPointsGraduations = 9;
const QColor kCouleurAxe(70, 70, 70);
const QColor kCouleurGrille(222, 222, 222);
const QColor kCouleurLibelle(45, 45, 45);

double Ecart(const Mesures& mesures) { return mesures.Twips(60); }

TexteOriente TitreAxe(const AxeGraphique& axe, int orientation) {
  return TexteOriente{TexteAffiche(axe.Libelle), PoliceGraphique(axe.TailleAxe > 0 ? axe.TailleAxe : 10),
                      false, orientation};
}

QPen TraitAxe(const AxeGraphique& axe, const Mesures& mesures) {
  QPen trait(kCouleurAxe, mesures.Trait(axe.EpaisseurAxe));
  trait.setCapStyle(Qt::SquareCap);
  return trait;
}

double LargeurLibelles(const QFontMetricsF& metriques, const Echelle& echelle) {
  double largeur = 0;
  for (const double v : echelle.Graduations()) {
    largeur = std::max(largeur, metriques.horizontalAdvance(LibelleNombre(v, echelle.decimales)));
  }
  return largeur;
}

std::vector<QString> LibellesX(const Repere2D& repere, const Scene& scene) {
  std::vector<QString> libelles;
  if (repere.x) {
    // Years on a numeric X axis are written as years, without a thousands blank.
    const bool annees = repere.x->min >= 1800 && repere.x->max <= 2200 && repere.x->decimales == 0;
    for (const double v : repere.x->Graduations()) {
      libelles.push_back(annees ? QString::number(std::lround(v)) : LibelleNombre(v, repere.x->decimales));
    }
  } else {
    libelles = scene.categories;
  }
  return libelles;
}

// Chooses how category labels stand and returns the height they need.
double PoserLibellesX(Repere2D& repere, const Scene& scene, const QFontMetricsF& metriques) {
  const std::vector<QString> libelles = LibellesX(repere, scene);
  double plusLarge = 0;
  for (const QString& l : libelles) plusLarge = std::max(plusLarge, metriques.horizontalAdvance(l));
  const double ligne = metriques.lineSpacing();
  const double place = repere.x ? repere.zone.width() / static_cast<double>(std::max<std::size_t>(1, libelles.size()))
                                 : repere.LargeurCategorie();
  repere.pose = PoseLibelles::Droits;
  repere.pasLibelles = 1;
  if (plusLarge + ligne * 0.5 <= place) return ligne;
  if (!repere.x && plusLarge / 2 + ligne <= place) {
    repere.pose = PoseLibelles::SurDeuxLignes;
    return 2 * ligne;
  }
  repere.pose = PoseLibelles::Penches;
  repere.pasLibelles = std::max(1, static_cast<int>(std::ceil(ligne * 1.6 / std::max(1.0, place))));
  return std::min(plusLarge, repere.zone.height() / 3) * std::sqrt(0.5) + ligne;
}

void DessinerLibelleX(QPainter& peintre, const Repere2D& repere, double x, double y, const QString& libelle,
                      const QFontMetricsF& metriques) {
  const double ligne = metriques.lineSpacing();
  if (repere.pose == PoseLibelles::Penches) {
    peintre.save();
    peintre.translate(x + ligne * 0.3, y);
    peintre.rotate(-45);
    const double largeur = metriques.horizontalAdvance(libelle);
    peintre.drawText(QRectF(-largeur, -ligne / 2, largeur, ligne), Qt::AlignRight | Qt::AlignVCenter, libelle);
    peintre.restore();
    return;
  }
  const double place = repere.x ? ligne * 8 : repere.LargeurCategorie();
  const int drapeaux = Qt::AlignHCenter | Qt::AlignTop | (repere.pose == PoseLibelles::SurDeuxLignes ? Qt::TextWordWrap : 0);
  peintre.drawText(QRectF(x - place / 2, y, place, ligne * 2), drapeaux, libelle);
}

void DessinerGraduationsY(QPainter& peintre, const Repere2D& repere, bool secondaire, const QFontMetricsF& metriques,
                          const Mesures& mesures) {
  const Echelle& echelle = secondaire ? repere.y2 : repere.y;
  const double ecart = Ecart(mesures);
  for (const double v : echelle.Graduations()) {
    const double y = repere.Y(v, secondaire);
    const QString texte = LibelleNombre(v, echelle.decimales);
    const double largeur = metriques.horizontalAdvance(texte);
    const double x = secondaire ? repere.zone.right() + ecart : repere.zone.left() - ecart - largeur;
    peintre.drawText(QRectF(x, y - metriques.height() / 2, largeur + 1, metriques.height()),
                     static_cast<int>(Qt::AlignVCenter) | static_cast<int>(secondaire ? Qt::AlignLeft : Qt::AlignRight), texte);
  }
}

}  // namespace

double Repere2D::LargeurCategorie() const { return zone.width() / std::max(1, nbCategories); }

double Repere2D::XCategorie(int categorie) const { return zone.left() + (categorie + 0.5) * LargeurCategorie(); }

double Repere2D::X(double valeur) const { return x ? zone.left() + x->Fraction(valeur) * zone.width() : zone.left(); }

double Repere2D::Y(double valeur, bool secondaire) const {
  const Echelle& echelle = secondaire && avecY2 ? y2 : y;
  return zone.bottom() - echelle.Fraction(valeur) * zone.height();
}

StyleAxes StyleDesAxes(const ModeleGraphique& modele, const Mesures& mesures) {
  StyleAxes style;
  style.titreX = TitreAxe(modele.AxeX, kHorizontal);
  style.titreY = TitreAxe(modele.AxeY, kVerticalPivote1);
  style.titreY2 = TitreAxe(modele.AxeY2, kVerticalPivote2);
  style.titreZ = TitreAxe(modele.AxeZ, kHorizontal);
  style.traitX = TraitAxe(modele.AxeX, mesures);
  style.traitY = TraitAxe(modele.AxeY, mesures);
  style.traitY2 = TraitAxe(modele.AxeY2, mesures);
  style.traitZ = TraitAxe(modele.AxeZ, mesures);
  style.graduations = PoliceGraphique(kPointsGraduations);
  return style;
}

Repere2D PreparerRepere2D(QPainter& peintre, const Scene& scene, const StyleAxes& style, const QRectF& trace,
                          Repere2D repere, const Mesures& mesures) {
  const QFontMetricsF metriques(style.graduations, peintre.device());
  const double ecart = Ecart(mesures);
  repere.nbCategories = static_cast<int>(scene.categories.size());
  const QSizeF titreY = MesurerTexte(peintre, style.titreY, trace.height());
  const QSizeF titreY2 = MesurerTexte(peintre, style.titreY2, trace.height());
  const QSizeF titreX = MesurerTexte(peintre, style.titreX, trace.width());
  double gauche = LargeurLibelles(metriques, repere.y) + 2 * ecart;
  if (titreY.width() > 0) gauche += titreY.width() + ecart;
  // Room for half the last label of the X axis, past the plot's right edge.
  double droite = metriques.horizontalAdvance(QStringLiteral("0000")) / 2;
  if (repere.x) droite = std::max(droite, metriques.horizontalAdvance(LibelleNombre(repere.x->max, repere.x->decimales)) / 2 + ecart);
  if (repere.avecY2) droite = LargeurLibelles(metriques, repere.y2) + 2 * ecart + (titreY2.width() > 0 ? titreY2.width() + ecart : 0);
  repere.zone = QRectF(trace.left() + gauche, trace.top() + metriques.height() / 2, trace.width() - gauche - droite,
                       trace.height() - metriques.height() / 2);
  const double bas = PoserLibellesX(repere, scene, metriques) + ecart + (titreX.height() > 0 ? titreX.height() + ecart : 0);
  repere.zone.setBottom(trace.bottom() - bas);
  if (repere.zone.width() < 10 || repere.zone.height() < 10) repere.zone = trace;
  return repere;
}

void DessinerFond2D(QPainter& peintre, const Repere2D& repere, const Mesures& mesures) {
  peintre.save();
  peintre.fillRect(repere.zone, Qt::white);
  peintre.setPen(QPen(kCouleurGrille, mesures.Trait(8)));
  for (const double v : repere.y.Graduations()) {
    const double y = repere.Y(v);
    peintre.drawLine(QPointF(repere.zone.left(), y), QPointF(repere.zone.right(), y));
  }
  peintre.restore();
}

void DessinerAxes2D(QPainter& peintre, const Repere2D& repere, const Scene& scene, const StyleAxes& style,
                    const QRectF& trace, const Mesures& mesures) {
  const QFontMetricsF metriques(style.graduations, peintre.device());
  const QRectF& z = repere.zone;
  const double ecart = Ecart(mesures);
  peintre.save();
  // Zero line when the values cross it; otherwise the X axis at the bottom.
  const double yZero = repere.y.min < 0 && repere.y.max > 0 ? repere.Y(0) : z.bottom();
  peintre.setPen(style.traitX);
  peintre.drawLine(QPointF(z.left(), yZero), QPointF(z.right(), yZero));
  peintre.setPen(style.traitY);
  peintre.drawLine(z.topLeft(), z.bottomLeft());
  if (repere.avecY2) {
    peintre.setPen(style.traitY2);
    peintre.drawLine(z.topRight(), z.bottomRight());
  }
  peintre.setFont(style.graduations);
  peintre.setPen(kCouleurLibelle);
  DessinerGraduationsY(peintre, repere, false, metriques, mesures);
  if (repere.avecY2) DessinerGraduationsY(peintre, repere, true, metriques, mesures);
  const std::vector<QString> libelles = LibellesX(repere, scene);
  for (std::size_t i = 0; i < libelles.size(); i += static_cast<std::size_t>(repere.pasLibelles)) {
    const double x = repere.x ? repere.X(repere.x->Graduations()[i]) : repere.XCategorie(static_cast<int>(i));
    DessinerLibelleX(peintre, repere, x, z.bottom() + ecart, libelles[i], metriques);
  }
  peintre.setPen(kCouleurLibelle);
  const QSizeF tx = MesurerTexte(peintre, style.titreX, trace.width());
  DessinerTexte(peintre, QRectF(z.left(), trace.bottom() - tx.height(), z.width(), tx.height()), style.titreX);
  const QSizeF ty = MesurerTexte(peintre, style.titreY, trace.height());
  DessinerTexte(peintre, QRectF(trace.left(), z.top(), ty.width(), z.height()), style.titreY);
  if (repere.avecY2) {
    const QSizeF ty2 = MesurerTexte(peintre, style.titreY2, trace.height());
    DessinerTexte(peintre, QRectF(trace.right() - ty2.width(), z.top(), ty2.width(), z.height()), style.titreY2);
  }
  peintre.restore();
}

}  // namespace norvane
