// Places of the title, the plot, the legend and the note on the chart: the
// rectangles the model stores (twips of the chart, y upwards) when it stores a
// plot rectangle, otherwise a layout of our own: title on top, legend and
// note below the plot.
#pragma once

#include <QRectF>

#include "graphs/render/Legende.h"
#include "graphs/render/Textes.h"

namespace norvane {

struct TextesGraphique {
  TexteOriente titre;
  TexteOriente note;
  StyleLegende legende;
  bool avecLegende = false;
};

struct Zones {
  QRectF titre;
  QRectF trace;  // the plot with its axes, labels and axis titles
  QRectF legende;
  QRectF note;
};

// `cadre`: the whole picture, in pixels.
Zones PlacerZones(QPainter& peintre, const ModeleGraphique& modele, const Scene& scene, TextesGraphique& textes,
                  const QRectF& cadre, const Mesures& mesures);

// A rectangle of the model in pixels of the picture.
QRectF RectangleEnPixels(const RectGraphique& rect, const QRectF& cadre, const Mesures& mesures);

}  // namespace norvane
