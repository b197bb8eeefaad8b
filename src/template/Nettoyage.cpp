// Cleaning of a code: word processors leave formatting, bookmarks and line
// breaks inside "#tvl(...)#"; all of it goes before the code is read.
#include <array>
#include <cctype>
#include <string_view>

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

// Word's bookmarks, by priority, until none is left; then the bare "kmk"
// remains, which may in turn bring a bookmark together.
void RetirerSignets(std::string& texte) {
  while (texte.find("kmk") != std::string::npos) {
    bool retire = false;
    for (auto signet : kSignets) {
      if ((retire = RetirerToutes(texte, signet, true))) break;
    }
    if (!retire) RetirerToutes(texte, "kmk", false);
  }
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
