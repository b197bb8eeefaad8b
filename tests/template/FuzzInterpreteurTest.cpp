// Garbage through the interpreter: random bytes mixed with pieces of codes
// must neither crash nor hang, whatever boxes they raise.
#include <random>

#include "template/BancInterpreteur.h"
#include "template/Directives.h"

namespace norvane::test {
namespace {

const char* const kMorceaux[] = {"#tvl(", ")#", "#TVL(", "%tvl(", ")%", "si(", ")alors:", "<>0", "INFO:", ":",
                                 "INI:", "date(", "ORGA", "-", "+", "@c", "numPage2", "saut2page", "\\par ",
                                 "{\\*\\bkmkstart DDE_LINK1}", "kmk", "endOLE_LINK9", "\\'80", "formule:", "tab",
                                 "gph(", "nomAss", "date0", "_", "{", "}", " ", "\\"};

std::string Hasard(std::mt19937& aleas) {
  std::string texte;
  const int n = std::uniform_int_distribution<int>(0, 40)(aleas);
  for (int i = 0; i < n; ++i) {
    if (aleas() % 2) {
      texte += kMorceaux[aleas() % std::size(kMorceaux)];
    } else {
      texte += static_cast<char>(aleas() % 256);
    }
  }
  return texte;
}

class FuzzInterpreteur : public BancInterpreteur {};

TEST_F(FuzzInterpreteur, TextesAuHasardNiPlantageNiBoucle) {
  Info().DateDebut = "29/02/2008";
  Info().NbAssocies = 32000;
  Societe();
  std::mt19937 aleas(20261122);
  for (int essai = 0; essai < 3000; ++essai) {
    std::string texte = Hasard(aleas);
    std::string cellule = texte;
    InterpreterPortion(generation, texte, essai % 7 == 0);
    InterpreterCellule(generation, cellule);
  }
  SUCCEED();
}

TEST_F(FuzzInterpreteur, CodesTresLongs) {
  std::string texte = "#tvl(" + std::string(100000, '-') + ")#";
  InterpreterPortion(generation, texte, false);
  texte = "#tvl(si(" + std::string(50000, 'a') + "-b<>0)alors:" + std::string(50000, 'x') + ")#";
  InterpreterPortion(generation, texte, true);
  texte = std::string(20000, '#') + "tvl(";
  InterpreterPortion(generation, texte, false);
  SUCCEED();
}

}  // namespace
}  // namespace norvane::test
