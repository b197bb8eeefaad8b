#include "graphs/render/Echelle.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"

namespace norvane {
namespace {

int DecimalesDuPas(double pas) {
  for (int d = 0; d < 6; ++d) {
    const double mis = pas * std::pow(10.0, d);
    if (std::abs(mis - std::round(mis)) < 1e-6 * std::max(1.0, mis)) return d;
  }
  return 6;
}

double PasRond(double brut) {
  const double puissance = std::pow(10.0, std::floor(std::log10(brut)));
  for (const double facteur : std::array{1.0, 2.0, 2.5, 5.0}) {
    if (facteur * puissance >= brut * (1 - 1e-9)) return facteur * puissance;
  }
  return 10 * puissance;
}

}  // namespace

std::vector<double> Echelle::Graduations() const {
  std::vector<double> graduations;
  const int nombre = static_cast<int>(std::lround((max - min) / pas));
  for (int i = 0; i <= nombre && i <= 100; ++i) graduations.push_back(min + i * pas);
  return graduations;
}

double Echelle::Fraction(double valeur) const { return max > min ? (valeur - min) / (max - min) : 0.0; }

Echelle EchelleRonde(double bas, double haut, int pasVises, bool avecZero) {
  if (avecZero) bas = std::min(bas, 0.0), haut = std::max(haut, 0.0);
  if (!std::isfinite(bas) || !std::isfinite(haut)) bas = 0, haut = 1;
  if (haut - bas < 1e-12) {
    if (avecZero) {
      haut = bas + 1;
    } else {
      bas -= 0.5;
      haut += 0.5;
    }
  }
  Echelle echelle;
  echelle.pas = PasRond((haut - bas) / std::max(1, pasVises));
  echelle.min = std::floor(bas / echelle.pas + 1e-9) * echelle.pas;
  echelle.max = std::ceil(haut / echelle.pas - 1e-9) * echelle.pas;
  if (echelle.max <= echelle.min) echelle.max = echelle.min + echelle.pas;
  echelle.decimales = DecimalesDuPas(echelle.pas);
  return echelle;
}

QString LibelleNombre(double valeur, int decimales) {
  if (std::abs(valeur) < 1e-9) valeur = 0;
  const auto texte = FormatNombre(static_cast<float>(valeur), static_cast<int16_t>(decimales), false);
  return QString::fromStdString(Cp1252VersUtf8(texte));
}

}  // namespace norvane
