// %tvl(...)% codes inside a table cell.
#include "template/BancInterpreteur.h"
#include "template/Directives.h"

namespace norvane::test {
namespace {

class Cellules : public BancInterpreteur {
 protected:
  void SetUp() override {
    Info().NomExploitation = "DUPONT";
    Info().Commune = "%tvl(nomExploit)%";
  }
  std::string Cellule(std::string texte) {
    InterpreterCellule(generation, texte);
    return texte;
  }
};

TEST_F(Cellules, CodesDeCelluleInterpretes) {
  EXPECT_EQ(Cellule("Total %tvl(nomExploit)% en %tvl(date(10))%"), "Total DUPONT en 22");
  EXPECT_EQ(Cellule("#tvl(nomExploit)#"), "#tvl(nomExploit)#");
}

TEST_F(Cellules, ValeurNonRelue) { EXPECT_EQ(Cellule("%tvl(commune)%!"), "%tvl(nomExploit)%!"); }

TEST_F(Cellules, SansFinRienNeChange) { EXPECT_EQ(Cellule("a %tvl(nomExploit"), "a %tvl(nomExploit"); }

TEST_F(Cellules, CodeInconnuPasse) {
  EXPECT_EQ(Cellule("%tvl(xyz)% %tvl(nomExploit)%"), "%tvl(xyz)% DUPONT");
  EXPECT_EQ(messages.messages.size(), 1u);
}

TEST_F(Cellules, SansAnnotationLeCodeCourantResteCeluiDuTableau) {
  generation.etat.CodeCourant = "#tvl(tabx)#";
  Cellule("%tvl(nomExploit)%");
  EXPECT_EQ(generation.etat.CodeCourant, "#tvl(tabx)#");
}

}  // namespace
}  // namespace norvane::test
