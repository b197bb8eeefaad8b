// Pens and brushes of a series: its colour, its pen width, its brush (none,
// solid or hatched) and the thin dark edge around filled shapes.
#pragma once

#include <QBrush>
#include <QPen>

#include "graphs/render/Scene.h"

namespace norvane {

// Fill of bars, areas and steps. `teinte` darkens (below 1) or lightens
// (above 1) the colour, for the faces of a 3D shape.
QBrush BrosseSerie(const SerieDessinee& serie, double teinte = 1.0);
// Line of a curve, in the series' colour and width.
QPen TraitSerie(const SerieDessinee& serie);
// Edge of filled shapes: dark, fine.
QPen BordForme(const Mesures& mesures);
QColor Teinte(const QColor& couleur, double facteur);

}  // namespace norvane
