#include "graphs/render/ImagesQt.h"

#include <QImage>

#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "graphs/render/ApplicationQt.h"
#include "graphs/render/EncodageImage.h"

namespace norvane {

std::string ImagesQt::ImageVersRtf(const std::string& chemin) {
  const std::string nom = Trim(chemin);
  if (nom.empty()) return {};
  const auto donnees = LireFichier(nom);
  if (!donnees || donnees->empty()) return {};
  AssurerApplicationQt();
  QImage image;
  if (!image.loadFromData(reinterpret_cast<const uchar*>(donnees->data()), static_cast<int>(donnees->size()))) {
    return {};
  }
  return GroupePngRtf(image);
}

}  // namespace norvane
