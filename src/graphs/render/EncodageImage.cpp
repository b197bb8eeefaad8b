#include "graphs/render/EncodageImage.h"

#include <zlib.h>

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
  const auto* octets = reinterpret_cast<const Bytef*>(png.data() + debut);
  AjouterGrosBout(png, static_cast<uint32_t>(crc32(0, octets, static_cast<uInt>(png.size() - debut))));
}

// Compresses the rows of a picture one by one into a zlib stream, so that
// no buffer of the whole picture is ever made: big fresh buffers cost more
// in page faults than the compression itself.
class Compresseur {
 public:
  Compresseur() { pret_ = deflateInit2(&flux_, 1, Z_DEFLATED, 15, 9, Z_DEFAULT_STRATEGY) == Z_OK; }
  ~Compresseur() {
    if (pret_) deflateEnd(&flux_);
  }
  Compresseur(const Compresseur&) = delete;
  Compresseur& operator=(const Compresseur&) = delete;

  bool Ajouter(const unsigned char* octets, std::size_t taille, bool dernier) {
    if (!pret_) return false;
    flux_.next_in = const_cast<Bytef*>(octets);
    flux_.avail_in = static_cast<uInt>(taille);
    unsigned char tampon[1 << 15];
    int etat = Z_OK;
    do {
      flux_.next_out = tampon;
      flux_.avail_out = sizeof tampon;
      etat = deflate(&flux_, dernier ? Z_FINISH : Z_NO_FLUSH);
      if (etat == Z_STREAM_ERROR) return pret_ = false;
      sortie_.append(reinterpret_cast<const char*>(tampon), sizeof tampon - flux_.avail_out);
    } while (flux_.avail_out == 0 || (dernier && etat != Z_STREAM_END));
    return true;
  }
  const std::string& Sortie() const { return sortie_; }

 private:
  z_stream flux_{};
  bool pret_ = false;
  std::string sortie_;
};

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
  // Each row: the filter "Sub" (1), then each byte less the one of the pixel
  // to its left, which turns the flat colours of a chart into runs of zeros.
  std::vector<unsigned char> rang(1 + 3 * largeur);
  Compresseur compresseur;
  for (std::size_t y = 0; y < hauteur; ++y) {
    const auto* pixels = reinterpret_cast<const QRgb*>(rgb.constScanLine(static_cast<int>(y)));
    rang[0] = 1;
    QRgb avant = 0;
    for (std::size_t x = 0; x < largeur; ++x) {
      const QRgb p = pixels[x];
      rang[1 + 3 * x] = static_cast<unsigned char>(qRed(p) - qRed(avant));
      rang[2 + 3 * x] = static_cast<unsigned char>(qGreen(p) - qGreen(avant));
      rang[3 + 3 * x] = static_cast<unsigned char>(qBlue(p) - qBlue(avant));
      avant = p;
    }
    if (!compresseur.Ajouter(rang.data(), rang.size(), y + 1 == hauteur)) return {};
  }
  const std::string& idat = compresseur.Sortie();
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
