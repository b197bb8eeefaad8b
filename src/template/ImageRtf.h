// The RTF picture group: one {\pict ...} holding a PNG or JPEG file as
// hexadecimal text, with its size in pixels and the size it is shown at.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace norvane {

inline constexpr int kTwipsParPouce = 1440;

struct TailleImageRtf {
  uint32_t largeurPixels = 0;
  uint32_t hauteurPixels = 0;
  uint32_t largeurTwips = 0;  // \picwgoal
  uint32_t hauteurTwips = 0;  // \pichgoal
};

// "{\pict\<sorte>\picwL\pichH\picwgoalLT\pichgoalHT <hex>}"; `sorte` is
// "pngblip" or "jpegblip", `donnees` the bytes of the file.
std::string GroupeImageRtf(std::string_view sorte, const TailleImageRtf& taille, std::string_view donnees);

}  // namespace norvane
