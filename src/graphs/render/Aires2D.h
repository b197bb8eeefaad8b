// Areas of a flat chart, filled down to their base.
#pragma once

#include <vector>

#include "graphs/render/Trace2D.h"

namespace norvane {

// Takes the indices of the series of its family.
void DessinerAires2D(const Trace2D& trace, const std::vector<std::size_t>& series);

}  // namespace norvane
