// The series of a flat chart, one family a function: bars side by side or
// stacked, lines with their points, areas and steps filled down to their base.
#pragma once

#include <vector>

#include "graphs/render/Axes2D.h"
#include "graphs/render/Empilement.h"

namespace norvane {

struct Trace2D {
  QPainter& peintre;
  const Repere2D& repere;
  const Scene& scene;
  const Pile& pile;
  const Mesures& mesures;
};

// Each takes the indices of the series of its family.
void DessinerBarres2D(const Trace2D& trace, const std::vector<std::size_t>& series);
void DessinerCourbes2D(const Trace2D& trace, const std::vector<std::size_t>& series);
void DessinerAires2D(const Trace2D& trace, const std::vector<std::size_t>& series);
void DessinerEscaliers2D(const Trace2D& trace, const std::vector<std::size_t>& series);

// Round points of a line, in its colour with a white ring.
void DessinerPoints(QPainter& peintre, const std::vector<QPointF>& points, const SerieDessinee& serie);

}  // namespace norvane
