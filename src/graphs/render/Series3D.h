// The plot of a 3D chart.
#pragma once

#include <QRectF>

#include "graphs/render/Scene.h"

class QPainter;

namespace norvane {

void DessinerGraphique3D(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, const QRectF& trace,
                         const Mesures& mesures);

}  // namespace norvane
