// The plot of a pie chart.
#pragma once

#include <QRectF>

#include "graphs/render/Scene.h"

class QPainter;

namespace norvane {

void DessinerSecteurs(QPainter& peintre, const Scene& scene, const QRectF& trace, const Mesures& mesures);

}  // namespace norvane
