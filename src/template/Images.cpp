// Pictures as RTF: without a picture port, a PNG or a JPEG file goes into the
// document as it is, in a {\pict} group whose sizes come from the file's
// header: \picw / \pich in pixels, \picwgoal / \pichgoal in twips at 96 dpi.
#include <cstdint>
#include <string_view>

#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "template/Directives.h"
#include "template/ImageRtf.h"

namespace norvane {
namespace {

constexpr uint32_t kTwipsParPixel = 15;  // 1440 twips an inch, 96 pixels an inch

struct Image {
  std::string_view sorte;  // "pngblip" or "jpegblip"
  uint32_t largeur = 0;
  uint32_t hauteur = 0;
};

// Big-endian integer of `octets` bytes at `position`; std::nullopt past the end.
std::optional<uint32_t> GrosBout(std::string_view donnees, std::size_t position, std::size_t octets) {
  if (position > donnees.size() || donnees.size() - position < octets) return std::nullopt;
  uint32_t valeur = 0;
  for (std::size_t i = 0; i < octets; ++i) valeur = (valeur << 8) | static_cast<unsigned char>(donnees[position + i]);
  return valeur;
}

// PNG: the signature, then the IHDR chunk with width and height.
std::optional<Image> LirePng(std::string_view d) {
  if (d.size() < 24 || d.substr(0, 8) != std::string_view("\x89PNG\r\n\x1a\n", 8) || d.substr(12, 4) != "IHDR") {
    return std::nullopt;
  }
  const auto l = GrosBout(d, 16, 4);
  const auto h = GrosBout(d, 20, 4);
  if (!l || !h) return std::nullopt;
  return Image{"pngblip", *l, *h};
}

bool EstDebutDeTrame(unsigned char marqueur) {
  return marqueur >= 0xC0 && marqueur <= 0xCF && marqueur != 0xC4 && marqueur != 0xC8 && marqueur != 0xCC;
}

// JPEG: the segments are walked up to the first start of frame (SOFn), which
// holds the height and then the width.
std::optional<Image> LireJpeg(std::string_view d) {
  if (d.size() < 4 || static_cast<unsigned char>(d[0]) != 0xFF || static_cast<unsigned char>(d[1]) != 0xD8) {
    return std::nullopt;
  }
  std::size_t i = 2;
  while (i + 1 < d.size()) {
    if (static_cast<unsigned char>(d[i]) != 0xFF) return std::nullopt;
    const auto marqueur = static_cast<unsigned char>(d[i + 1]);
    if (marqueur == 0xFF) { ++i; continue; }  // fill byte
    if (marqueur == 0x01 || (marqueur >= 0xD0 && marqueur <= 0xD7)) { i += 2; continue; }
    if (marqueur == 0xD9 || marqueur == 0xDA) return std::nullopt;
    const auto longueur = GrosBout(d, i + 2, 2);
    if (!longueur || *longueur < 2) return std::nullopt;
    if (EstDebutDeTrame(marqueur)) {
      const auto h = GrosBout(d, i + 5, 2);
      const auto l = GrosBout(d, i + 7, 2);
      if (!l || !h) return std::nullopt;
      return Image{"jpegblip", *l, *h};
    }
    i += 2 + *longueur;
  }
  return std::nullopt;
}

}  // namespace

std::string ImageVersRtfDirecte(const std::string& chemin) {
  const std::string nom = Trim(chemin);
  if (nom.empty()) return {};
  const auto donnees = LireFichier(nom);
  if (!donnees) return {};
  auto image = LirePng(*donnees);
  if (!image) image = LireJpeg(*donnees);
  if (!image || image->largeur == 0 || image->hauteur == 0) return {};
  const TailleImageRtf taille{image->largeur, image->hauteur, image->largeur * kTwipsParPixel,
                              image->hauteur * kTwipsParPixel};
  return GroupeImageRtf(image->sorte, taille, *donnees);
}

std::string ImageVersRtf(Generation& generation, const std::string& chemin) {
  if (generation.images != nullptr) return generation.images->ImageVersRtf(chemin);
  return ImageVersRtfDirecte(chemin);
}

}  // namespace norvane
