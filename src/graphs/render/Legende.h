// The legend: one entry a series, a swatch in its look and its name. Entries
// run down a column, or along rows when the place is wider than tall.
#pragma once

#include <QFont>
#include <QRectF>

#include "graphs/render/Scene.h"

class QPainter;

namespace norvane {

struct StyleLegende {
  QFont police;
  bool retour = false;     // names wrap (the note's wrap flag, as the model keeps it)
  bool enLignes = false;   // entries along rows rather than down a column
};

// Size of the legend framed, entries laid out within `largeurMax`.
QSizeF MesurerLegende(QPainter& peintre, const Scene& scene, const StyleLegende& style, double largeurMax,
                      const Mesures& mesures);
void DessinerLegende(QPainter& peintre, const QRectF& zone, const Scene& scene, const StyleLegende& style,
                     const Mesures& mesures);

}  // namespace norvane
