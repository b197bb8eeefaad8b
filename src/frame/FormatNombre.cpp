#include "frame/FormatNombre.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace norvane {
namespace {

constexpr char kEspaceInsecable = '\xA0';

// Shortest decimal text of the float, without exponent: sign, digits of the
// whole part, digits of the fraction. The digits are those of the shortest
// text that reads back as the same float, placed by its exponent, so 1e20f
// gives "100000000000000000000" and not the float's exact binary expansion.
struct Decimal {
  bool negatif = false;
  std::string entier;
  std::string fraction;
};

Decimal Decomposer(float valeur) {
  char tampon[64];
  auto res = std::to_chars(tampon, tampon + sizeof tampon, valeur, std::chars_format::scientific);
  std::string_view t(tampon, static_cast<std::size_t>(res.ptr - tampon));
  Decimal d;
  if (!t.empty() && t[0] == '-') {
    d.negatif = true;
    t.remove_prefix(1);
  }
  std::size_t e = t.find('e');
  int exposant = 0;
  std::from_chars(t.data() + e + 1 + (t[e + 1] == '+' ? 1 : 0), t.data() + t.size(), exposant);
  std::string chiffres;
  for (char c : t.substr(0, e)) {
    if (c != '.') chiffres += c;
  }
  // The first digit stands for 10^exposant: the whole part holds exposant + 1 digits.
  long entiers = static_cast<long>(exposant) + 1;
  if (entiers <= 0) {
    d.entier = "0";
    d.fraction = std::string(static_cast<std::size_t>(-entiers), '0') + chiffres;
  } else if (static_cast<std::size_t>(entiers) >= chiffres.size()) {
    d.entier = chiffres + std::string(static_cast<std::size_t>(entiers) - chiffres.size(), '0');
  } else {
    d.entier = chiffres.substr(0, static_cast<std::size_t>(entiers));
    d.fraction = chiffres.substr(static_cast<std::size_t>(entiers));
  }
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
  if (!std::isfinite(valeur)) valeur = 0.0f;
  if (videSiZero && valeur == 0.0f) return " ";
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
