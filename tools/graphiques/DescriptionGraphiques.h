// Graph models from a readable description, for the example installation and
// the tests: the JSON below becomes the slots of a graph store (texts in UTF-8,
// written as Windows-1252; keys starting with "_" are comments).
//
//   {"modeles": [ {
//      "Titre", "TypeGraph" (1 to 12), "Legende", "Empile", "Commentaire",
//      "InversionDataSeries", "EspaceBarres", "EspaceAnnees", "EspaceSeries",
//      "Elevation", "Rotation", "TailleTitre",
//      "RectTitre", "RectPlot", "RectLegende", "RectNote": [min X, max X, min Y, max Y],
//      "TexteTitre", "TexteNote": {"RetourTexte", "Orientation"},
//      "AxeX", "AxeY", "AxeY2", "AxeZ": {"Libelle", "TailleAxe", "EpaisseurAxe"},
//      "Series": [ {"FichierSerie": "RES.DON", "CodeSerie": "RES-17:0", "NomSerie",
//                   "TypeSerie", "AxeYSerie", "Couleur": "#rrggbb",
//                   "EpaisseurSerie", "BrosseSerie"} ]   at most 10
//   } ]}
//
// A field that is not given keeps the value of a new model of the editor
// (series: type 1, solid brush, width 30, no colour).
#pragma once

#include "construction/LectureJson.h"
#include "graphs/StockGraphiques.h"

namespace norvane::construction {

// Fills `stock` with the models of the description, in order. Throws
// ErreurDescription on a value of the wrong type, more than 50 models or
// more than 10 series; notes in the journal a text cut to its field or one
// that a graph code cannot carry (";", "[", "]", "_").
void ConstruireGraphiques(const Json& description, StockGraphiques& stock, Journal& journal);

}  // namespace norvane::construction
