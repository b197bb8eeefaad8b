// The plot of each kind of chart, drawn inside the place the layout gives it:
// flat charts over categories, 3D charts, pies and XY charts.
#pragma once

#include <QRectF>

#include "graphs/render/Scene.h"

class QPainter;

namespace norvane {

void DessinerGraphique2D(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                         const Mesures& mesures);
void DessinerGraphique3D(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                         const Mesures& mesures);
void DessinerSecteurs(QPainter& peintre, const Scene& scene, const QRectF& trace, const Mesures& mesures);
void DessinerNuageXY(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                     const Mesures& mesures);

}  // namespace norvane
