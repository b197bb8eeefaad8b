#include "graphs/render/DessinQt.h"

#include "frame/EcritureAtomique.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "graphs/render/EncodageImage.h"

namespace norvane {

DessinGraphiqueQt::DessinGraphiqueQt(std::string repModelGraph, double resolution)
    : repModelGraph_(std::move(repModelGraph)), resolution_(resolution) {}

std::string DessinGraphiqueQt::ImageGraphique(const ModeleGraphique& modele, const GrilleGraphique& grille) {
  DessinerSurImage(toile_, modele, grille, resolution_);
  const QImage& image = toile_;
  if (!repModelGraph_.empty()) {
    // One file serves every chart: each new one replaces the last.
    CreeArborescence(AjouterAntislash(repModelGraph_));
    EcrireFichierAtomique(JoindreChemin(repModelGraph_, "graphSvg.bmp"), EncoderBmp(image));
  }
  return GroupePngRtf(image, kLargeurGraphiqueTwips, kHauteurGraphiqueTwips);
}

}  // namespace norvane
