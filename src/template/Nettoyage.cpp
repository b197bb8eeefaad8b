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
constexpr std::array<std::string_view, 34> kARetirer = {
    "\\sect", "\\page", "\\fs16", "fs20", "fs22", "\\fs24", "\\fs28", "\\fs32", "\\fs36",
    "\\fs40", "\\caps", "\\plain", "\\par", "\\cs", "\\c", "\\i", "\\~", "\\lang2057 ",
    "\x08", "\t", "\n", "\r", "\\lang", "\\fs", "\\b", "\\ul", "\\*\\", "\\*", "{", "}", " ",
    "d\\s5\\lotusoutlinelevel0", "\\lotusoutlinelevel0"};

// Bookmarks of Word ("{\*\bkmkstart DDE_LINK1}") once the list has run.
constexpr std::array<std::string_view, 3> kSignets = {"kmkstartDDE_LINK", "bkmkendDDE_LINK", "kmkendDDE_LINK"};

void RetirerSignets(std::string& texte) {
  while (texte.find("kmk") != std::string::npos) {
    bool retire = false;
    for (auto signet : kSignets) {
      if (EnleverMarque(texte, signet) == 1) {
        retire = true;
        break;
      }
    }
    if (!retire) texte.erase(texte.find("kmk"), 3);
  }
}

void RetirerLiensOle(std::string& texte) {
  // A bare "endOLE" with no "_LINK" behind it is left alone.
  while (texte.find("endOLE") != std::string::npos) {
    if (EnleverMarque(texte, "endOLE_LINK") != 1) break;
  }
}

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
