#include "graphs/render/EncodageImage.h"

#include <libdeflate.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "template/ImageRtf.h"

namespace norvane {
namespace {

constexpr double kPoucesParMetre = 0.0254;
constexpr double kResolutionParDefaut = 96.0;

void AjouterGrosBout(std::string& sortie, uint32_t valeur) {
  for (int decalage = 24; decalage >= 0; decalage -= 8) sortie += static_cast<char>((valeur >> decalage) & 0xFF);
}

void AjouterPetitBout(std::string& sortie, uint32_t valeur, int octets) {
  for (int i = 0; i < octets; ++i) sortie += static_cast<char>((valeur >> (8 * i)) & 0xFF);
}

// A PNG chunk: length, type, data, CRC of type and data.
void AjouterBloc(std::string& png, const char* type, const std::string& donnees) {
  AjouterGrosBout(png, static_cast<uint32_t>(donnees.size()));
  const std::size_t debut = png.size();
  png += type;
  png += donnees;
  AjouterGrosBout(png, libdeflate_crc32(0, png.data() + debut, png.size() - debut));
}

// The compressor and the buffers of filtered rows and of compressed bytes,
// kept from one chart to the next of a thread: a fresh buffer of a few
// megabytes costs more in page faults than its compression.
// Level 2: level 1 of libdeflate takes another match finder, slower on the
// long runs of a chart than level 2 for a bigger result.
struct Atelier {
  Atelier() : compresseur(libdeflate_alloc_compressor(2)) {}
  ~Atelier() { libdeflate_free_compressor(compresseur); }
  Atelier(const Atelier&) = delete;
  Atelier& operator=(const Atelier&) = delete;
  libdeflate_compressor* compresseur;
  std::vector<unsigned char> rangs;
  std::vector<unsigned char> sortie;
};

// The zlib stream of the picture's rows, each with the filter "Sub" (1):
// each byte less the one of the pixel to its left, which turns the flat
// colours of a chart into runs of zeros. Empty on failure.
std::string CompresserRangs(const QImage& rgb) {
  thread_local Atelier atelier;
  if (atelier.compresseur == nullptr) return {};
  const auto largeur = static_cast<std::size_t>(rgb.width());
  const auto hauteur = static_cast<std::size_t>(rgb.height());
  const std::size_t parRang = 1 + 3 * largeur;
  atelier.rangs.resize(parRang * hauteur);
  for (std::size_t y = 0; y < hauteur; ++y) {
    const auto* pixels = reinterpret_cast<const QRgb*>(rgb.constScanLine(static_cast<int>(y)));
    unsigned char* rang = atelier.rangs.data() + y * parRang;
    rang[0] = 1;
    QRgb avant = 0;
    for (std::size_t x = 0; x < largeur; ++x) {
      const QRgb p = pixels[x];
      rang[1 + 3 * x] = static_cast<unsigned char>(qRed(p) - qRed(avant));
      rang[2 + 3 * x] = static_cast<unsigned char>(qGreen(p) - qGreen(avant));
      rang[3 + 3 * x] = static_cast<unsigned char>(qBlue(p) - qBlue(avant));
      avant = p;
    }
  }
  atelier.sortie.resize(libdeflate_zlib_compress_bound(atelier.compresseur, atelier.rangs.size()));
  const std::size_t taille = libdeflate_zlib_compress(atelier.compresseur, atelier.rangs.data(), atelier.rangs.size(),
                                                      atelier.sortie.data(), atelier.sortie.size());
  return std::string(reinterpret_cast<const char*>(atelier.sortie.data()), taille);
}

// Dots an inch of one direction; the default when the picture gives none or
// an unlikely one.
double Resolution(int pointsParMetre) {
  const double dpi = pointsParMetre * kPoucesParMetre;
  return (dpi >= 10.0 && dpi <= 10000.0) ? dpi : kResolutionParDefaut;
}

uint32_t EnTwips(int pixels, int pointsParMetre) {
  return static_cast<uint32_t>(std::lround(pixels * kTwipsParPouce / Resolution(pointsParMetre)));
}

}  // namespace

std::string EncoderPng(const QImage& image) {
  if (image.isNull()) return {};
  const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
  const auto largeur = static_cast<std::size_t>(rgb.width());
  const auto hauteur = static_cast<std::size_t>(rgb.height());
  const std::string idat = CompresserRangs(rgb);
  if (idat.empty()) return {};
  std::string png("\x89PNG\r\n\x1a\n", 8);
  std::string entete;
  AjouterGrosBout(entete, static_cast<uint32_t>(largeur));
  AjouterGrosBout(entete, static_cast<uint32_t>(hauteur));
  entete += std::string("\x08\x02\x00\x00\x00", 5);  // 8 bits, RGB, deflate, no interlace
  AjouterBloc(png, "IHDR", entete);
  std::string phys;  // resolution, pixels a metre
  AjouterGrosBout(phys, static_cast<uint32_t>(std::max(0, rgb.dotsPerMeterX())));
  AjouterGrosBout(phys, static_cast<uint32_t>(std::max(0, rgb.dotsPerMeterY())));
  phys += '\x01';
  AjouterBloc(png, "pHYs", phys);
  AjouterBloc(png, "IDAT", idat);
  AjouterBloc(png, "IEND", "");
  return png;
}

std::string EncoderBmp(const QImage& image) {
  if (image.isNull()) return {};
  const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
  const auto largeur = static_cast<uint32_t>(rgb.width());
  const auto hauteur = static_cast<uint32_t>(rgb.height());
  const uint32_t rang = (3 * largeur + 3) / 4 * 4;  // rows padded to 4 bytes
  const uint32_t taille = 54 + rang * hauteur;
  std::string bmp;
  bmp.reserve(taille);
  bmp += "BM";
  AjouterPetitBout(bmp, taille, 4);
  AjouterPetitBout(bmp, 0, 4);   // reserved
  AjouterPetitBout(bmp, 54, 4);  // offset of the pixels
  AjouterPetitBout(bmp, 40, 4);  // BITMAPINFOHEADER
  AjouterPetitBout(bmp, largeur, 4);
  AjouterPetitBout(bmp, hauteur, 4);  // positive: rows bottom-up
  AjouterPetitBout(bmp, 1, 2);        // planes
  AjouterPetitBout(bmp, 24, 2);       // bits a pixel
  AjouterPetitBout(bmp, 0, 4);        // no compression
  AjouterPetitBout(bmp, rang * hauteur, 4);
  AjouterPetitBout(bmp, static_cast<uint32_t>(std::max(0, rgb.dotsPerMeterX())), 4);
  AjouterPetitBout(bmp, static_cast<uint32_t>(std::max(0, rgb.dotsPerMeterY())), 4);
  AjouterPetitBout(bmp, 0, 4);  // colours used
  AjouterPetitBout(bmp, 0, 4);  // important colours
  bmp.resize(taille, '\0');
  for (uint32_t y = 0; y < hauteur; ++y) {
    const auto* pixels = reinterpret_cast<const QRgb*>(rgb.constScanLine(static_cast<int>(hauteur - 1 - y)));
    auto* sortie = reinterpret_cast<unsigned char*>(bmp.data() + 54 + static_cast<std::size_t>(y) * rang);
    for (uint32_t x = 0; x < largeur; ++x) {
      sortie[3 * x] = static_cast<unsigned char>(qBlue(pixels[x]));
      sortie[3 * x + 1] = static_cast<unsigned char>(qGreen(pixels[x]));
      sortie[3 * x + 2] = static_cast<unsigned char>(qRed(pixels[x]));
    }
  }
  return bmp;
}

std::string GroupePngRtf(const QImage& image) {
  return GroupePngRtf(image, EnTwips(image.width(), image.dotsPerMeterX()),
                      EnTwips(image.height(), image.dotsPerMeterY()));
}

std::string GroupePngRtf(const QImage& image, uint32_t largeurTwips, uint32_t hauteurTwips) {
  if (image.isNull()) return {};
  const std::string png = EncoderPng(image);
  if (png.empty()) return {};
  const TailleImageRtf taille{static_cast<uint32_t>(image.width()), static_cast<uint32_t>(image.height()),
                              largeurTwips, hauteurTwips};
  return GroupeImageRtf("pngblip", taille, png);
}

}  // namespace norvane
