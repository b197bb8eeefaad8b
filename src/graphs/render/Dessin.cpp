#include "graphs/render/Dessin.h"

#include <QPainter>
#include <cmath>

#include "graphs/render/ApplicationQt.h"
#include "graphs/render/Graphique2D.h"
#include "graphs/render/MiseEnPage.h"
#include "graphs/render/NuageXY.h"
#include "graphs/render/Secteurs.h"
#include "graphs/render/Series3D.h"

namespace norvane {
namespace {

constexpr double kPointsTitreParDefaut = 16;
constexpr double kPointsNote = 9;
constexpr double kPointsLegende = 9;
constexpr double kPoucesParMetre = 0.0254;

TextesGraphique TextesDe(const ModeleGraphique& modele) {
  TextesGraphique textes;
  const double taille = modele.TailleTitre > 0 ? modele.TailleTitre : kPointsTitreParDefaut;
  textes.titre = TexteOriente{TexteAffiche(modele.Titre), PoliceGraphique(taille, true),
                              modele.TexteTitre.RetourTexte == 1, modele.TexteTitre.Orientation};
  // The note never wraps: its wrap flag is the legend's.
  textes.note = TexteOriente{TexteAffiche(modele.Commentaire), PoliceGraphique(kPointsNote), false,
                             modele.TexteNote.Orientation};
  textes.note.police.setItalic(true);
  textes.legende.police = PoliceGraphique(kPointsLegende);
  textes.legende.retour = modele.TexteNote.RetourTexte == 1;
  textes.avecLegende = modele.Legende == 1;
  return textes;
}

void DessinerTrace(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                   const Mesures& mesures) {
  if (scene.type == kSecteurs2D) {
    DessinerSecteurs(peintre, scene, trace, mesures);
  } else if (scene.type == kXY2D) {
    DessinerNuageXY(peintre, modele, scene, trace, mesures);
  } else if (scene.troisD) {
    DessinerGraphique3D(peintre, modele, scene, trace, mesures);
  } else {
    DessinerGraphique2D(peintre, modele, scene, trace, mesures);
  }
}

}  // namespace

void DessinerGraphique(QPainter& peintre, const ModeleGraphique& modele, const GrilleGraphique& grille,
                       const QRectF& cadre) {
  const Mesures mesures{cadre.width() / kLargeurGraphiqueTwips};
  const Scene scene = PreparerScene(modele, grille, mesures);
  TextesGraphique textes = TextesDe(modele);
  peintre.save();
  peintre.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  peintre.fillRect(cadre, Qt::white);
  peintre.setClipRect(cadre);
  const Zones zones = PlacerZones(peintre, modele, scene, textes, cadre, mesures);
  DessinerTrace(peintre, modele, scene, zones.trace, mesures);
  peintre.setPen(QColor(25, 25, 25));
  DessinerTexte(peintre, zones.titre, textes.titre);
  if (textes.avecLegende) DessinerLegende(peintre, zones.legende, scene, textes.legende, mesures);
  peintre.setPen(QColor(80, 80, 80));
  DessinerTexte(peintre, zones.note, textes.note);
  peintre.restore();
}

void DessinerSurImage(QImage& image, const ModeleGraphique& modele, const GrilleGraphique& grille,
                      double resolution) {
  AssurerApplicationQt();
  const auto pixels = [resolution](int twips) {
    return static_cast<int>(std::lround(twips * resolution / 1440.0));
  };
  const QSize taille(pixels(kLargeurGraphiqueTwips), pixels(kHauteurGraphiqueTwips));
  if (image.size() != taille || image.format() != QImage::Format_RGB32) image = QImage(taille, QImage::Format_RGB32);
  const int pointsParMetre = static_cast<int>(std::lround(resolution / kPoucesParMetre));
  image.setDotsPerMeterX(pointsParMetre);
  image.setDotsPerMeterY(pointsParMetre);
  QPainter peintre(&image);
  DessinerGraphique(peintre, modele, grille, QRectF(0, 0, image.width(), image.height()));
}

QImage DessinerImage(const ModeleGraphique& modele, const GrilleGraphique& grille, double resolution) {
  QImage image;
  DessinerSurImage(image, modele, grille, resolution);
  return image;
}

}  // namespace norvane
