// The Qt adapters as the rest of the program sees them: behind the ports that
// the core declares, with no Qt header in sight.
#pragma once

#include <memory>
#include <string>

#include "graphs/DessinGraphique.h"
#include "template/Generation.h"

namespace norvane {

// The chart drawer; `repModelGraph` is where graphSvg.bmp is left.
std::unique_ptr<PortDessinGraphique> CreerDessinGraphique(const std::string& repModelGraph);
// BMP, JPEG, PNG and GIF files as PNG picture groups at their true size.
std::unique_ptr<PortImages> CreerPortImages();
// Draws one chart into a PNG file at print resolution; false when the file
// cannot be written.
bool EcrireGraphiquePng(const ModeleGraphique& modele, const GrilleGraphique& grille, const std::string& chemin);

}  // namespace norvane
