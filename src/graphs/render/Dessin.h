// A whole chart: title, plot, legend and note, drawn from the model and its
// data grid onto a painter, or into a picture of the chart's size.
#pragma once

#include <QImage>
#include <QRectF>

#include "graphs/DessinGraphique.h"

class QPainter;

namespace norvane {

// Print resolution of the charts put into documents.
inline constexpr double kResolutionGraphique = 200;

// Draws the chart into `cadre` (pixels of the painter's device), which stands
// for the 7905 x 5865 twips of the chart.
void DessinerGraphique(QPainter& peintre, const ModeleGraphique& modele, const GrilleGraphique& grille,
                       const QRectF& cadre);

// The chart as a picture of 7905 x 5865 twips at `resolution` dots an inch,
// the resolution recorded in the picture. Starts Qt when it is not yet.
QImage DessinerImage(const ModeleGraphique& modele, const GrilleGraphique& grille,
                     double resolution = kResolutionGraphique);
// The same into `image`, whose memory is reused when it has the right size
// already: a run that draws many charts makes its canvas once.
void DessinerSurImage(QImage& image, const ModeleGraphique& modele, const GrilleGraphique& grille,
                      double resolution = kResolutionGraphique);

}  // namespace norvane
