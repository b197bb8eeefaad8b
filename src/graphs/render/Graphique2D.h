// The plot of a flat chart over categories.
#pragma once

#include <QRectF>

#include "graphs/render/Scene.h"

class QPainter;

namespace norvane {

void DessinerGraphique2D(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                         const Mesures& mesures);

}  // namespace norvane
