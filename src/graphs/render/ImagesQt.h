// The picture port with Qt: BMP, JPEG, PNG and GIF files (an organisation's
// logo) become a PNG picture group at their true size.
#pragma once

#include "template/Generation.h"

namespace norvane {

class ImagesQt : public PortImages {
 public:
  // Empty when the file is missing or is no picture that Qt reads.
  std::string ImageVersRtf(const std::string& chemin) override;
};

}  // namespace norvane
