// A small picture drawn from plain shapes and written as a PNG file: the
// logos of the example's organisations are made this way at build time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::construction {

struct Couleur {
  uint8_t r = 255, g = 255, b = 255;
};
// "#rrggbb"; throws std::invalid_argument for any other text.
Couleur CouleurDe(std::string_view texte);

struct Forme {
  enum class Sorte { Rectangle, Ellipse };
  Sorte sorte = Sorte::Rectangle;
  // Rectangle: corner (x, y) and size (largeur, hauteur).
  // Ellipse: centre (x, y), half-axes (largeur, hauteur), turned by `angle` degrees.
  double x = 0, y = 0, largeur = 0, hauteur = 0, angle = 0;
  Couleur couleur;
};

// Shapes are painted in order on the background, edges smoothed.
struct DessinPng {
  int largeur = 1;
  int hauteur = 1;
  Couleur fond;
  std::vector<Forme> formes;
};

std::string OctetsPng(const DessinPng& dessin);
void EcrirePng(const std::string& chemin, const DessinPng& dessin);

}  // namespace norvane::construction
