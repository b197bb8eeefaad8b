// Pictures of organisations and charts turned into RTF picture groups.
#pragma once

#include <string>

#include "template/Generation.h"

namespace norvane {

// The RTF picture group {\pict ...} of a picture file: through
// generation.images when it is set, otherwise a PNG or JPEG file is embedded
// as it is (\pngblip / \jpegblip). Empty when the file is missing or of
// another kind.
std::string ImageVersRtf(Generation& generation, const std::string& chemin);
// The embedding without the port: PNG or JPEG only.
std::string ImageVersRtfDirecte(const std::string& chemin);

}  // namespace norvane
