// The arithmetic of formulas, once every LG reference has become a number.
//
// It reads what a spreadsheet cell would accept:
//   expression := terme { ("+" | "-") terme }
//   terme      := puissance { ("*" | "/") puissance }
//   puissance  := signe { "^" signe }          (left to right: 2^3^2 = 64)
//   signe      := { "+" | "-" } primaire       (binds tighter than "^": -2^2 = 4)
//   primaire   := nombre | "(" expression ")"
//   nombre     := digits [ "." digits ] [ ("e" | "E") [ "+" | "-" ] digits ], or "." digits
// Blanks may stand between tokens, not inside a number. One leading "=" is
// allowed, as a cell's formula may carry it. Everything is computed in double
// precision; a syntax error, a division by zero, 0^0, an overflow or a NaN
// anywhere makes the whole result 0, as a cell in error reads 0.
//
// The scan is one pass over the text, brackets nest at most kProfondeurMax
// deep, and signs are read in a loop, so no input recurses without bound.
#include "template/Evaluateur.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <system_error>

namespace norvane {
namespace {

constexpr int kProfondeurMax = 200;

class Evaluateur {
 public:
  explicit Evaluateur(std::string_view texte) : texte_(texte) {}

  std::optional<double> Evaluer() {
    SauterBlancs();
    if (position_ < texte_.size() && texte_[position_] == '=') ++position_;
    std::optional<double> valeur = Expression();
    SauterBlancs();
    if (!valeur || position_ != texte_.size() || !std::isfinite(*valeur)) return std::nullopt;
    return valeur;
  }

  // A division by zero, 0^0 or an overflow stopped the work: the value is
  // not had, though the text may be right.
  bool EchecArithmetique() const { return arithmetique_; }

 private:
  void SauterBlancs() {
    while (position_ < texte_.size() && (texte_[position_] == ' ' || texte_[position_] == '\t')) ++position_;
  }

  // Consumes `c` when it is the next character after blanks.
  bool Prendre(char c) {
    SauterBlancs();
    if (position_ < texte_.size() && texte_[position_] == c) {
      ++position_;
      return true;
    }
    return false;
  }

  std::optional<double> Expression() {
    std::optional<double> gauche = Terme();
    while (gauche) {
      if (Prendre('+')) {
        gauche = Combiner(gauche, Terme(), '+');
      } else if (Prendre('-')) {
        gauche = Combiner(gauche, Terme(), '-');
      } else {
        break;
      }
    }
    return gauche;
  }

  std::optional<double> Terme() {
    std::optional<double> gauche = Puissance();
    while (gauche) {
      if (Prendre('*')) {
        gauche = Combiner(gauche, Puissance(), '*');
      } else if (Prendre('/')) {
        gauche = Combiner(gauche, Puissance(), '/');
      } else {
        break;
      }
    }
    return gauche;
  }

  std::optional<double> Puissance() {
    std::optional<double> gauche = Signe();
    while (gauche && Prendre('^')) gauche = Combiner(gauche, Signe(), '^');
    return gauche;
  }

  std::optional<double> Signe() {
    bool negatif = false;
    for (;;) {
      if (Prendre('-')) {
        negatif = !negatif;
      } else if (!Prendre('+')) {
        break;
      }
    }
    std::optional<double> valeur = Primaire();
    if (valeur && negatif) *valeur = -*valeur;
    return valeur;
  }

  std::optional<double> Primaire() {
    if (Prendre('(')) {
      if (++profondeur_ > kProfondeurMax) return std::nullopt;
      std::optional<double> valeur = Expression();
      --profondeur_;
      if (!valeur || !Prendre(')')) return std::nullopt;
      return valeur;
    }
    return Nombre();
  }

  std::optional<double> Nombre() {
    SauterBlancs();
    std::size_t debut = position_;
    std::size_t chiffres = SauterChiffres();
    if (position_ < texte_.size() && texte_[position_] == '.') {
      ++position_;
      chiffres += SauterChiffres();
    }
    if (chiffres == 0) return std::nullopt;
    if (!SauterExposant()) return std::nullopt;
    double valeur = 0;
    auto res = std::from_chars(texte_.data() + debut, texte_.data() + position_, valeur);
    if (res.ec == std::errc::result_out_of_range) arithmetique_ = true;
    if (res.ec != std::errc() || res.ptr != texte_.data() + position_) return std::nullopt;
    return valeur;
  }

  std::size_t SauterChiffres() {
    std::size_t debut = position_;
    while (position_ < texte_.size() && texte_[position_] >= '0' && texte_[position_] <= '9') ++position_;
    return position_ - debut;
  }

  // An exponent part, when there is one, must carry digits.
  bool SauterExposant() {
    if (position_ >= texte_.size() || (texte_[position_] != 'e' && texte_[position_] != 'E')) return true;
    ++position_;
    if (position_ < texte_.size() && (texte_[position_] == '+' || texte_[position_] == '-')) ++position_;
    return SauterChiffres() > 0;
  }

  std::optional<double> Combiner(std::optional<double> a, std::optional<double> b, char operateur) {
    if (!a || !b) return std::nullopt;
    const std::optional<double> r = Operation(*a, *b, operateur);
    if (!r) arithmetique_ = true;
    return r;
  }

  static std::optional<double> Operation(double a, double b, char operateur) {
    double r = 0;
    switch (operateur) {
      case '+': r = a + b; break;
      case '-': r = a - b; break;
      case '*': r = a * b; break;
      case '/':
        if (b == 0) return std::nullopt;
        r = a / b;
        break;
      default:
        if (a == 0 && b <= 0) return std::nullopt;
        r = std::pow(a, b);
        break;
    }
    if (!std::isfinite(r)) return std::nullopt;
    return r;
  }

  std::string_view texte_;
  std::size_t position_ = 0;
  int profondeur_ = 0;
  bool arithmetique_ = false;
};

}  // namespace

CalculExpression CalculerExpression(const std::string& expression) {
  Evaluateur evaluateur(expression);
  const std::optional<double> valeur = evaluateur.Evaluer();
  if (valeur) return {*valeur, EchecCalcul::Aucun};
  return {0.0, evaluateur.EchecArithmetique() ? EchecCalcul::Arithmetique : EchecCalcul::Syntaxe};
}

double EvaluerExpression(const std::string& expression) { return CalculerExpression(expression).valeur; }

}  // namespace norvane
