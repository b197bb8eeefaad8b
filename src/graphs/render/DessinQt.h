// The drawing port of the graph engine with Qt: the chart drawn at print
// resolution, left as graphSvg.bmp in the installation's ModelGraph folder,
// and returned as a PNG picture group for the document.
#pragma once

#include <string>

#include "graphs/DessinGraphique.h"
#include "graphs/render/Dessin.h"

namespace norvane {

class DessinGraphiqueQt : public PortDessinGraphique {
 public:
  // `repModelGraph`: the ModelGraph folder (created when missing); empty: no
  // file is left.
  explicit DessinGraphiqueQt(std::string repModelGraph, double resolution = kResolutionGraphique);
  std::string ImageGraphique(const ModeleGraphique& modele, const GrilleGraphique& grille) override;

 private:
  std::string repModelGraph_;
  double resolution_;
  QImage toile_;  // reused from one chart to the next
};

}  // namespace norvane
