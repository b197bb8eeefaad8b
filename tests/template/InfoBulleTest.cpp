// Tool tips: the annotation written from the literal code.
#include "template/BancInterpreteur.h"
#include "template/InterpreteurInterne.h"

namespace norvane::test {
namespace {

class InfoBulle : public BancInterpreteur {};

TEST_F(InfoBulle, AnnotationAuBytePres) {
  EXPECT_EQ(Interpreter("Voir #tvl(INFO:CODE1:11:Le_titre:Texte_de_l'aide:le_rep\xE8re)# ici."),
            "Voir {\\fs22 {\\*\\atrfstart 47317183}le rep\xE8re}{\\cs15\\v\\fs22 {\\*\\atrfend 47317183}"
            "{\\*\\atnid CODE1}{\\*\\atnauthor Le titre }\\chatn {\\*\\annotation {\\*\\atnref 47317183}"
            "{Texte de l'aide}}} ici.");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(InfoBulle, LitteralGardeCasseEtBlancs) {
  // The cleaning would remove the blanks; the annotation keeps them.
  const std::string texte = Interpreter("#tvl(info: c :8:Mon Titre:Un texte:Mot)#");
  EXPECT_NE(texte.find("{\\*\\atnid c}"), std::string::npos);
  EXPECT_NE(texte.find("\\fs16 "), std::string::npos);
  EXPECT_NE(texte.find("{\\*\\atnauthor Mon Titre }"), std::string::npos);
  EXPECT_NE(texte.find("{Un texte}}}"), std::string::npos);
}

TEST_F(InfoBulle, RepereBlancDevientInsecable) {
  const std::string texte = Interpreter("#tvl(INFO:c:10:t:i:__)#");
  EXPECT_EQ(texte.rfind("{\\fs22 {\\*\\atrfstart 47317183}\\~}{\\cs15", 0), 0u);
}

TEST_F(InfoBulle, TroisChampsDonnentUnBlanc) {
  EXPECT_EQ(Interpreter("a#tvl(INFO:code:10:titre)#b"), "a b");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(InfoBulle, DeuxPointsEnTropRestentDansLeRepere) {
  const std::string texte = Interpreter("#tvl(INFO:c:10:t:i:a:b)#");
  EXPECT_EQ(texte.rfind("{\\fs22 {\\*\\atrfstart 47317183}a:b}", 0), 0u);
}

TEST(AnnotationInfo, SeulementPourUnLitteralInfo) {
  EXPECT_FALSE(AnnotationInfo("#tvl(nomExploit)#"));
  EXPECT_FALSE(AnnotationInfo("#tvl( INFO:a:1:b:c:d)#"));
  EXPECT_FALSE(AnnotationInfo(""));
  EXPECT_TRUE(AnnotationInfo("#TVL(info:a:1:b:c:d)#"));
}

TEST_F(InfoBulle, DansUneCellulePasDAnnotation) {
  generation.etat.CodeCourant = "#tvl(INFO:c:10:t:i:r)#";
  std::string texte = "ab)#x";
  EXPECT_EQ(InsererValeur(generation, texte, 0, 2, " ", true), 2u);
  EXPECT_EQ(texte, "\\~x");
}

}  // namespace
}  // namespace norvane::test
