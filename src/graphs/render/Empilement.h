// Where each series stands at each category: from its base to its top.
// Stacked, the positive values of one axis pile upwards and the negative ones
// downwards; otherwise every series stands on zero.
#pragma once

#include <vector>

#include "graphs/render/Echelle.h"
#include "graphs/render/Scene.h"

namespace norvane {

struct Pile {
  std::vector<std::vector<double>> bas;   // [series][category]
  std::vector<std::vector<double>> haut;  // [series][category]
};

Pile Empiler(const Scene& scene);

// Round scale of the first (or second) Y axis over the series drawn on it.
Echelle EchelleAxe(const Scene& scene, const Pile& pile, bool secondaire);

}  // namespace norvane
