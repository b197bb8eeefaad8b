// Cleaning of a code: word processors leave formatting, bookmarks and line
// breaks inside "#tvl(...)#"; all of it goes before the code is read.
#include <array>
#include <cctype>
#include <set>
#include <string_view>
#include <vector>

#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"
#include "template/Interpreteur.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

// Removed case-insensitively, in this order, each over the whole text. The
// order matters and some entries lack their backslash on purpose: "\b" takes
// the head of "\bkmkstart", "\c" that of "\cf1", so that remains such as
// "kmkstart" and "f1" are left for the steps below.
constexpr std::array<std::string_view, 33> kARetirer = {
    "\\sect", "\\page", "\\fs16", "fs20", "fs22", "\\fs24", "\\fs28", "\\fs32", "\\fs36",
    "\\fs40", "\\caps", "\\plain", "\\par", "\\cs", "\\c", "\\i", "\\~", "\\lang2057 ",
    "\x08", "\t", "\n", "\r", "\\lang", "\\fs", "\\b", "\\ul", "\\*\\", "\\*", "{", "}", " ",
    "d\\s5\\lotusoutlinelevel0", "\\lotusoutlinelevel0"};

// Bookmarks of Word ("{\*\bkmkstart DDE_LINK1}") once the list has run.
constexpr std::array<std::string_view, 3> kSignets = {"kmkstartDDE_LINK", "bkmkendDDE_LINK", "kmkendDDE_LINK"};

// Removes every occurrence of `marque` together with the digits behind it,
// as repeated EnleverMarque calls do, in one pass: an occurrence that a
// removal brings together across the seam is caught as it forms. Returns
// true when something went.
bool RetirerToutes(std::string& texte, std::string_view marque, bool avecChiffres) {
  std::string sortie;
  sortie.reserve(texte.size());
  bool retire = false;
  for (std::size_t i = 0; i < texte.size(); ++i) {
    sortie.push_back(texte[i]);
    if (!FinitPar(sortie, marque)) continue;
    sortie.resize(sortie.size() - marque.size());
    while (avecChiffres && i + 1 < texte.size() && std::isdigit(static_cast<unsigned char>(texte[i + 1]))) ++i;
    retire = true;
  }
  if (retire) texte.swap(sortie);
  return retire;
}

// The text as its bytes that are still there: removals only ever take bytes
// out, so each byte keeps its first index, and the order of the indexes is
// the order of the text. The occurrences of each mark are kept by the index
// of their first byte; a removal can only make new ones across its seam.
class TexteAmputable {
 public:
  TexteAmputable(const std::string& texte, const std::vector<std::string_view>& marques)
      : texte_(texte),
        suivant_(texte.size()),
        precedent_(texte.size()),
        present_(texte.size(), true),
        marques_(marques),
        places_(marques.size()) {
    for (std::size_t i = 0; i < texte.size(); ++i) {
      suivant_[i] = i + 1;
      precedent_[i] = i == 0 ? kAucun : i - 1;
    }
    for (std::size_t k = 0; k < marques_.size(); ++k) {
      for (std::size_t p = texte.find(marques_[k]); p != std::string::npos; p = texte.find(marques_[k], p + 1)) {
        places_[k].insert(p);
      }
    }
  }

  // The first occurrence of mark k still standing, or kAucun.
  std::size_t Premiere(std::size_t k) {
    while (!places_[k].empty()) {
      const std::size_t p = *places_[k].begin();
      if (Correspond(p, marques_[k])) return p;
      places_[k].erase(places_[k].begin());
    }
    return kAucun;
  }

  // Takes out the occurrence of mark k at p, and the digits behind it when
  // `avecChiffres`, then looks for the marks that the seam brings together.
  void Retirer(std::size_t k, std::size_t p, bool avecChiffres) {
    const std::size_t avant = precedent_[p];
    std::size_t apres = p;
    for (std::size_t n = 0; n < marques_[k].size(); ++n) {
      present_[apres] = false;
      apres = suivant_[apres];
    }
    while (avecChiffres && apres < texte_.size() && std::isdigit(static_cast<unsigned char>(texte_[apres]))) {
      present_[apres] = false;
      apres = suivant_[apres];
    }
    if (avant == kAucun) {
      debut_ = apres;
    } else {
      suivant_[avant] = apres;
    }
    if (apres < texte_.size()) precedent_[apres] = avant;
    Couture(avant);
  }

  std::string Texte() const {
    std::string r;
    for (std::size_t i = debut_; i < texte_.size(); i = suivant_[i]) r += texte_[i];
    return r;
  }

  static constexpr std::size_t kAucun = std::string::npos;

 private:
  bool Correspond(std::size_t p, std::string_view marque) const {
    for (const char c : marque) {
      if (p >= texte_.size() || !present_[p] || texte_[p] != c) return false;
      p = suivant_[p];
    }
    return true;
  }

  // Records every occurrence that starts within a mark's length before the
  // seam behind `avant` (and so may run across it).
  void Couture(std::size_t avant) {
    std::size_t depart = avant == kAucun ? debut_ : avant;
    for (std::size_t n = 1; n < kPlusLongueMarque && depart != kAucun && depart != debut_; ++n) {
      depart = precedent_[depart];
    }
    for (std::size_t p = depart; p != kAucun && p < texte_.size(); p = suivant_[p]) {
      for (std::size_t k = 0; k < marques_.size(); ++k) {
        if (Correspond(p, marques_[k])) places_[k].insert(p);
      }
      if (avant == kAucun || p == avant) {
        // Starts from the seam on reach at most a mark's length behind it.
        std::size_t q = suivant_[p];
        for (std::size_t n = 1; n < kPlusLongueMarque && q < texte_.size(); ++n, q = suivant_[q]) {
          for (std::size_t k = 0; k < marques_.size(); ++k) {
            if (Correspond(q, marques_[k])) places_[k].insert(q);
          }
        }
        break;
      }
    }
  }

  static constexpr std::size_t kPlusLongueMarque = 16;
  const std::string& texte_;
  std::vector<std::size_t> suivant_, precedent_;
  std::vector<bool> present_;
  std::size_t debut_ = 0;
  std::vector<std::string_view> marques_;
  std::vector<std::set<std::size_t>> places_;
};

// Word's bookmarks, by priority, until none is left; then the bare "kmk"
// remains, which may in turn bring a bookmark together. Each round takes out
// every occurrence of the first kind present, from the left, an occurrence
// that a removal brings together being taken as it forms: the occurrences are
// followed through the removals, so that a deep nesting of bookmarks costs no
// more than a flat one.
void RetirerSignets(std::string& texte) {
  if (texte.find("kmk") == std::string::npos) return;
  const std::vector<std::string_view> marques = {kSignets[0], kSignets[1], kSignets[2], "kmk"};
  TexteAmputable t(texte, marques);
  while (t.Premiere(3) != TexteAmputable::kAucun) {
    std::size_t k = 0;
    while (k < kSignets.size() && t.Premiere(k) == TexteAmputable::kAucun) ++k;
    for (std::size_t p; (p = t.Premiere(k)) != TexteAmputable::kAucun;) t.Retirer(k, p, k < kSignets.size());
  }
  texte = t.Texte();
}

void RetirerLiensOle(std::string& texte) { RetirerToutes(texte, "endOLE_LINK", true); }

}  // namespace

int EnleverMarque(std::string& texte, std::string_view marque) {
  const auto p = texte.find(marque);
  if (p == std::string::npos) return -1;
  const auto derriere = p + marque.size();
  if (derriere < texte.size() && std::isdigit(static_cast<unsigned char>(texte[derriere]))) {
    texte.erase(derriere, 1);
  } else {
    texte.erase(p, marque.size());
  }
  return 1;
}

void NettoyerCode(std::string& texte) {
  for (auto motif : kARetirer) texte = RemplaceTexte(texte, motif, "");
  RetirerSignets(texte);
  RetirerLiensOle(texte);
  texte = RemplacerTout(texte, "\\lquote", "'");
  texte = RemplacerTout(texte, "\\rquote", "'");
  texte = RemplacerTout(texte, "\\'80", "\x80");  // the euro sign of Windows-1252
}

}  // namespace norvane
