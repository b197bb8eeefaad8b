#include "frame/FormatNombre.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace norvane {
namespace {

constexpr char kEspaceInsecable = '\xA0';

// Shortest decimal text of the float, without exponent: sign, digits of the
// whole part, digits of the fraction.
struct Decimal {
  bool negatif = false;
  std::string entier;
  std::string fraction;
};

Decimal Decomposer(float valeur) {
  char tampon[64];
  auto res = std::to_chars(tampon, tampon + sizeof tampon, valeur, std::chars_format::fixed);
  std::string_view t(tampon, static_cast<std::size_t>(res.ptr - tampon));
  Decimal d;
  if (!t.empty() && t[0] == '-') {
    d.negatif = true;
    t.remove_prefix(1);
  }
  auto point = t.find('.');
  d.entier = std::string(t.substr(0, point));
  if (point != std::string_view::npos) d.fraction = std::string(t.substr(point + 1));
  return d;
}

// Rounds half away from zero to `places` decimals, on the decimal digits.
void Arrondir(Decimal& d, std::size_t places) {
  if (d.fraction.size() <= places) {
    d.fraction.resize(places, '0');
    return;
  }
  bool retenue = d.fraction[places] >= '5';
  d.fraction.resize(places);
  for (std::size_t i = d.fraction.size(); retenue && i-- > 0;) {
    retenue = d.fraction[i] == '9';
    d.fraction[i] = retenue ? '0' : static_cast<char>(d.fraction[i] + 1);
  }
  for (std::size_t i = d.entier.size(); retenue && i-- > 0;) {
    retenue = d.entier[i] == '9';
    d.entier[i] = retenue ? '0' : static_cast<char>(d.entier[i] + 1);
  }
  if (retenue) d.entier.insert(d.entier.begin(), '1');
}

int DecimalesAutomatiques(const Decimal& d) {
  if (d.fraction.empty()) return 0;
  if (d.fraction.size() == 1) return 1;
  if (d.fraction[0] == '0' && d.fraction[1] == '0') return 0;
  if (d.fraction[0] != '0' && d.fraction[1] == '0') return 1;
  return 2;
}

std::string Grouper(const std::string& entier) {
  std::string r;
  for (std::size_t i = 0; i < entier.size(); ++i) {
    if (i > 0 && (entier.size() - i) % 3 == 0) r += kEspaceInsecable;
    r += entier[i];
  }
  return r;
}

}  // namespace

std::string FormatNombre(float valeur, int16_t decimales, bool videSiZero) {
  if (videSiZero && valeur == 0.0f) return " ";
  if (!std::isfinite(valeur)) valeur = 0.0f;
  Decimal d = Decomposer(valeur);
  int places = decimales >= 0 && decimales <= 6 ? decimales : DecimalesAutomatiques(d);
  Arrondir(d, static_cast<std::size_t>(places));
  bool zero = d.entier.find_first_not_of('0') == std::string::npos &&
              d.fraction.find_first_not_of('0') == std::string::npos;
  std::string r = (d.negatif && !zero) ? "-" : "";
  r += Grouper(d.entier.empty() ? "0" : d.entier);
  if (places > 0) r += "," + d.fraction;
  return r;
}

}  // namespace norvane
