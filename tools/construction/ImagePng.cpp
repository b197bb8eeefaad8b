// PNG writing without a library: RGB pixels, filter 0 on every row, and a zlib
// stream of stored (uncompressed) blocks; small pictures only.
#include "construction/ImagePng.h"

#include <array>
#include <cmath>
#include <numbers>
#include <stdexcept>

#include "construction/EnregistrementFixe.h"

namespace norvane::construction {
namespace {

constexpr int kSousPoints = 4;  // per side, for smooth edges

uint32_t Crc32(std::string_view octets) {
  static const std::array<uint32_t, 256> table = [] {
    std::array<uint32_t, 256> t{};
    for (uint32_t n = 0; n < 256; ++n) {
      uint32_t c = n;
      for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
      t[n] = c;
    }
    return t;
  }();
  uint32_t crc = 0xFFFFFFFFu;
  for (unsigned char o : octets) crc = table[(crc ^ o) & 0xFF] ^ (crc >> 8);
  return crc ^ 0xFFFFFFFFu;
}

uint32_t Adler32(std::string_view octets) {
  uint32_t a = 1, b = 0;
  for (unsigned char o : octets) {
    a = (a + o) % 65521;
    b = (b + a) % 65521;
  }
  return (b << 16) | a;
}

void GrandBoutiste(std::string& sortie, uint32_t valeur) {
  for (int decalage = 24; decalage >= 0; decalage -= 8) sortie += static_cast<char>((valeur >> decalage) & 0xFF);
}

std::string Bloc(std::string_view type, std::string_view donnees) {
  std::string bloc;
  GrandBoutiste(bloc, static_cast<uint32_t>(donnees.size()));
  std::string corps = std::string(type) + std::string(donnees);
  bloc += corps;
  GrandBoutiste(bloc, Crc32(corps));
  return bloc;
}

std::string ZlibStocke(std::string_view donnees) {
  std::string flux = "\x78\x01";
  std::size_t position = 0;
  do {
    const std::size_t longueur = std::min<std::size_t>(65535, donnees.size() - position);
    const bool dernier = position + longueur == donnees.size();
    flux += static_cast<char>(dernier ? 1 : 0);
    flux += static_cast<char>(longueur & 0xFF);
    flux += static_cast<char>(longueur >> 8);
    flux += static_cast<char>(~longueur & 0xFF);
    flux += static_cast<char>((~longueur >> 8) & 0xFF);
    flux.append(donnees.substr(position, longueur));
    position += longueur;
  } while (position < donnees.size());
  GrandBoutiste(flux, Adler32(donnees));
  return flux;
}

bool Contient(const Forme& forme, double px, double py) {
  if (forme.sorte == Forme::Sorte::Rectangle) {
    return px >= forme.x && px < forme.x + forme.largeur && py >= forme.y && py < forme.y + forme.hauteur;
  }
  if (forme.largeur <= 0 || forme.hauteur <= 0) return false;
  const double a = forme.angle * std::numbers::pi / 180.0;
  const double dx = px - forme.x, dy = py - forme.y;
  const double u = (dx * std::cos(a) + dy * std::sin(a)) / forme.largeur;
  const double v = (-dx * std::sin(a) + dy * std::cos(a)) / forme.hauteur;
  return u * u + v * v <= 1.0;
}

Couleur CouleurAu(const DessinPng& dessin, double px, double py) {
  Couleur couleur = dessin.fond;
  for (const Forme& forme : dessin.formes) {
    if (Contient(forme, px, py)) couleur = forme.couleur;
  }
  return couleur;
}

// One pixel: the mean of its sub-points.
void Pixel(const DessinPng& dessin, int x, int y, std::string& lignes) {
  std::array<int, 3> somme{};
  for (int i = 0; i < kSousPoints; ++i) {
    for (int j = 0; j < kSousPoints; ++j) {
      const Couleur c = CouleurAu(dessin, x + (i + 0.5) / kSousPoints, y + (j + 0.5) / kSousPoints);
      somme[0] += c.r;
      somme[1] += c.g;
      somme[2] += c.b;
    }
  }
  for (int canal : somme) lignes += static_cast<char>(canal / (kSousPoints * kSousPoints));
}

int Chiffre(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

Couleur CouleurDe(std::string_view texte) {
  std::array<int, 6> chiffres{};
  bool valide = texte.size() == 7 && texte[0] == '#';
  for (std::size_t i = 0; valide && i < 6; ++i) valide = (chiffres[i] = Chiffre(texte[i + 1])) >= 0;
  if (!valide) throw std::invalid_argument("couleur attendue sous la forme #rrggbb : " + std::string(texte));
  auto composante = [&](int k) { return static_cast<uint8_t>(chiffres[2 * k] * 16 + chiffres[2 * k + 1]); };
  return {composante(0), composante(1), composante(2)};
}

std::string OctetsPng(const DessinPng& dessin) {
  if (dessin.largeur < 1 || dessin.hauteur < 1 || dessin.largeur > 2000 || dessin.hauteur > 2000) {
    throw std::invalid_argument("taille d'image hors des limites (1 à 2000 points)");
  }
  std::string lignes;
  for (int y = 0; y < dessin.hauteur; ++y) {
    lignes += '\0';  // filter: none
    for (int x = 0; x < dessin.largeur; ++x) Pixel(dessin, x, y, lignes);
  }
  std::string entete;
  GrandBoutiste(entete, static_cast<uint32_t>(dessin.largeur));
  GrandBoutiste(entete, static_cast<uint32_t>(dessin.hauteur));
  entete += std::string("\x08\x02\x00\x00\x00", 5);  // 8 bits, RGB, deflate, filter 0, no interlace
  return std::string("\x89PNG\r\n\x1a\n", 8) + Bloc("IHDR", entete) + Bloc("IDAT", ZlibStocke(lignes)) +
         Bloc("IEND", "");
}

void EcrirePng(const std::string& chemin, const DessinPng& dessin) { EcrireOctets(chemin, OctetsPng(dessin)); }

}  // namespace norvane::construction
