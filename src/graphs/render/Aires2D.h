// Areas of a flat chart, filled down to their base.
#pragma once

#include <QPolygonF>
#include <vector>

#include "graphs/render/Trace2D.h"

namespace norvane {

// Takes the indices of the series of its family.
void DessinerAires2D(const Trace2D& trace, const std::vector<std::size_t>& series);

// How a band between two lines is drawn: the opacity of its fill, the shade
// of its upper edge, and whether that edge keeps square ends and corners.
struct StyleBande {
  double opacite;
  double teinteBord;
  bool anglesVifs;
};

// The band between `haut` and `bas` (left to right both) filled with the
// series' brush, then its upper edge in a darker shade of its colour.
void DessinerBande(const Trace2D& trace, const SerieDessinee& serie, const QPolygonF& haut, const QPolygonF& bas,
                   const StyleBande& style);

}  // namespace norvane
