// The plot of an XY chart.
#pragma once

#include <QRectF>

#include "graphs/render/Scene.h"

class QPainter;

namespace norvane {

void DessinerNuageXY(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                     const Mesures& mesures);

}  // namespace norvane
