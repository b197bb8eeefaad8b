#include "tables/ReferencesCultures.h"

#include <array>
#include <cctype>
#include <cmath>
#include <string>
#include <vector>

namespace norvane {
namespace {

// Records of an annual crop that lie elsewhere by type (types 1 to 4);
// 0: the crop has no such record and the value is 0.
struct Remplacement {
  std::string_view reference;
  std::array<int32_t, 4> parType;
};
constexpr std::array<Remplacement, 7> kRemplacements = {{{"4cession", {0, 4, 0, 0}},
                                                         {"18", {17, 18, 18, 17}},
                                                         {"19", {18, 19, 19, 18}},
                                                         {"21", {20, 21, 21, 20}},
                                                         {"24", {0, 24, 0, 0}},
                                                         {"25", {24, 25, 26, 24}},
                                                         {"65", {71, 65, 66, 71}}}};

// References of annual crops only.
constexpr std::array<std::string_view, 5> kAnnuellesSeulement = {"13x1", "6-5", "65/1", "17x22/1", "18x19"};

class Evaluateur {
 public:
  Evaluateur(std::string_view texte, int annee, const LectureRecord& lire) : t_(texte), annee_(annee), lire_(lire) {}

  // sum ("/" sum)*: a quotient chain; a zero divisor gives 0.
  double Expression() {
    double valeur = Somme();
    while (Voir('/')) {
      ++p_;
      const double diviseur = Somme();
      if (diviseur == 0 || !std::isfinite(diviseur)) return 0;
      valeur /= diviseur;
    }
    return p_ == t_.size() ? valeur : 0;
  }

 private:
  bool Voir(char c) const { return p_ < t_.size() && t_[p_] == c; }

  double Somme() {
    double valeur = Produit();
    while (Voir('+') || Voir('-')) {
      const bool plus = t_[p_++] == '+';
      const double terme = Produit();
      valeur = plus ? valeur + terme : valeur - terme;
    }
    return valeur;
  }

  double Produit() {
    double valeur = Facteur();
    while (Voir('x')) {
      ++p_;
      valeur *= Facteur();
    }
    return valeur;
  }

  // n, nt or na-1.
  double Facteur() {
    int32_t numero = 0;
    bool chiffre = false;
    while (p_ < t_.size() && std::isdigit(static_cast<unsigned char>(t_[p_])) && numero < 100000) {
      numero = numero * 10 + (t_[p_++] - '0');
      chiffre = true;
    }
    if (!chiffre) {
      p_ = t_.size() + 1;  // makes the whole reference worth 0
      return 0;
    }
    int annee = annee_;
    bool transformation = false;
    if (t_.substr(p_, 3) == "a-1") {
      p_ += 3;
      annee -= 1;
    } else if (Voir('t')) {
      ++p_;
      transformation = true;
    }
    // A record number of 100 stands for itself in "axb/100/c".
    if (numero == 100 && p_ >= 4 && t_.substr(p_ - 4, 4) == "/100") return 100;
    return lire_(numero, annee, transformation);
  }

  std::string_view t_;
  std::size_t p_ = 0;
  int annee_;
  const LectureRecord& lire_;
};

}  // namespace

double EvaluerReferenceCulture(std::string_view reference, int annee, int16_t typeCulture, const LectureRecord& lire) {
  const bool annuelle = typeCulture >= 1 && typeCulture <= 4;
  if (!annuelle) {
    for (std::string_view r : kAnnuellesSeulement) {
      if (reference == r) return 0;
    }
  }
  if (annuelle) {
    const std::size_t type = static_cast<std::size_t>(typeCulture - 1);
    if (reference == "18x19") {
      return static_cast<double>(lire(18, annee, false)) * lire(type == 0 || type == 3 ? 17 : 19, annee, false);
    }
    for (const Remplacement& r : kRemplacements) {
      if (reference != r.reference) continue;
      return r.parType[type] == 0 ? 0 : lire(r.parType[type], annee, false);
    }
  }
  if (reference.empty()) return 0;
  Evaluateur e(reference, annee, lire);
  const double valeur = e.Expression();
  return std::isfinite(valeur) ? valeur : 0;
}

}  // namespace norvane
