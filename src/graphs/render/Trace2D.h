// What the series drawers of a flat chart draw with: the painter, the frame
// of axes, the scene, the stacking and the sizes.
#pragma once

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

}  // namespace norvane
