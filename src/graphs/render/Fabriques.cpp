#include "graphs/render/Fabriques.h"

#include "frame/EcritureAtomique.h"
#include "graphs/render/DessinQt.h"
#include "graphs/render/EncodageImage.h"
#include "graphs/render/ImagesQt.h"

namespace norvane {

std::unique_ptr<PortDessinGraphique> CreerDessinGraphique(const std::string& repModelGraph) {
  return std::make_unique<DessinGraphiqueQt>(repModelGraph);
}

std::unique_ptr<PortImages> CreerPortImages() { return std::make_unique<ImagesQt>(); }

bool EcrireGraphiquePng(const ModeleGraphique& modele, const GrilleGraphique& grille, const std::string& chemin) {
  const std::string png = EncoderPng(DessinerImage(modele, grille));
  return !png.empty() && EcrireFichierAtomique(chemin, png);
}

}  // namespace norvane
