// Lines of a flat chart with their points, and steps.
#pragma once

#include <QPointF>
#include <vector>

#include "graphs/render/Trace2D.h"

namespace norvane {

// Each takes the indices of the series of its family.
void DessinerCourbes2D(const Trace2D& trace, const std::vector<std::size_t>& series);
void DessinerEscaliers2D(const Trace2D& trace, const std::vector<std::size_t>& series);

// Round points of a line, in its colour with a white ring.
void DessinerPoints(QPainter& peintre, const std::vector<QPointF>& points, const SerieDessinee& serie);

}  // namespace norvane
