// The investments table of the Cerfa report: the line of the model repeated
// for the new assets, five with their own row and the others summed in one,
// the value cells showing the yearly amounts of each asset.
#include "cerfa/BancCerfa.h"
#include "cerfa/TableauInvestissements.h"

namespace norvane::test {
namespace {

namespace c = construction;

// A new asset (or another category) whose amount of exercise n is base + n.
c::Immobilisation Bien(const std::string& libelle, float base, float nouveau = 1) {
  c::Immobilisation i;
  i.Nouveau = nouveau;
  i.Libelle = libelle;
  for (std::size_t n = 0; n < i.MontantsAnnuels.size(); ++n) i.MontantsAnnuels[n] = base + static_cast<float>(n);
  return i;
}

// The text of the label cell and the value cells of the row that starts
// with `libelle`, up to its end.
std::string Rangee(const std::string& rtf, const std::string& libelle) {
  const std::size_t debut = rtf.find(" " + libelle + "}\\cell");
  if (debut == std::string::npos) return {};
  return rtf.substr(debut, rtf.find("\\row", debut) - debut);
}

class Investissements : public BancCerfa {
 protected:
  // A model of one inve1 line, its years mode `mode`, its decimals `decimales`.
  std::string Inve1(int mode = 0, const std::string& decimales = "0") {
    const std::string format = "5006;8;1;0;0;0;0;0;r;1;1;1;1;8";
    const std::string code = "taba2p1r" + std::to_string(mode) + ";larg2000;larg7200([280;120][Investissement;" +
                             format + "][imemp:inve1:" + decimales + ";" + format + "])";
    return GenererTableau(generation, cerfa, code);
  }
};

TEST_F(Investissements, FiveNewAssetsHaveTheirRowAndTheOthersShareOneWithTheirSums) {
  std::vector<c::Immobilisation> immos = {Bien("Ancien hangar", 9000, 0)};
  for (int k = 1; k <= 7; ++k) immos.push_back(Bien("Bien " + std::to_string(k), 100.0f * static_cast<float>(k)));
  immos.push_back(Bien("Hors plan", 9000, 2));
  c::EcrireImmobilisations(Dossier() + "Immo.imm", immos);
  const std::string rtf = Inve1();
  EXPECT_EQ(Occurrences(rtf, "\\row"), 1 + 5 + 1);
  EXPECT_LT(rtf.find("Parts sociales emprunts"), rtf.find("Bien 1}"));
  EXPECT_EQ(Occurrences(Rangee(rtf, "Parts sociales emprunts"), "  }\\cell"), 3) << "no asset in hand: blank values";
  EXPECT_NE(Rangee(rtf, "Bien 1").find(" 101}\\cell"), std::string::npos);
  EXPECT_NE(Rangee(rtf, "Bien 5").find(" 503}\\cell"), std::string::npos) << "exercise 3 of the fifth";
  EXPECT_EQ(rtf.find("Bien 6"), std::string::npos);
  const std::string autres = Rangee(rtf, "Autres immobilisations");
  EXPECT_NE(autres.find(" 1\xA0" "302}\\cell"), std::string::npos) << "601 + 701 in exercise 1";
  EXPECT_NE(autres.find(" 1\xA0" "306}\\cell"), std::string::npos) << "603 + 703 in exercise 3";
  EXPECT_EQ(rtf.find("Ancien"), std::string::npos);
  EXPECT_EQ(rtf.find("Hors plan"), std::string::npos);
  EXPECT_TRUE(producteurs.ImmoCourant.empty()) << "no asset left in hand after the table";
}

TEST_F(Investissements, ValuesFollowTheYearsModeAndTheDecimalsOfTheLine) {
  c::Immobilisation bien = Bien("Silo {mais}", 100);
  bien.MontantsAnnuels[2] = -5;
  c::EcrireImmobilisations(Dossier() + "Immo.imm", {bien});
  const std::string depuisZero = Rangee(Inve1(1), "Silo \\{mais\\}");
  EXPECT_NE(depuisZero.find(" 100}\\cell"), std::string::npos) << "exercise 0 with years mode 1";
  EXPECT_EQ(Occurrences(depuisZero, "}\\cell"), 1 + 4);
  EXPECT_NE(depuisZero.find("\\cf8 -5}\\cell"), std::string::npos) << "red negatives, colour 6 after two";
  const std::string deuxDecimales = Rangee(Inve1(0, "2"), "Silo \\{mais\\}");
  EXPECT_NE(deuxDecimales.find(" 101,00}\\cell"), std::string::npos);
  EXPECT_EQ(deuxDecimales.find(" 100"), std::string::npos) << "no exercise 0 with years mode 0";
}

TEST_F(Investissements, WithoutAnAssetFileOnlyTheFirstRowIsPrinted) {
  const std::string rtf = Inve1();
  EXPECT_EQ(Occurrences(rtf, "\\row"), 1);
  EXPECT_NE(rtf.find("Parts sociales emprunts"), std::string::npos);
}

TEST(ValeurCerfa, SumsTheAssetsInHandForExercisesZeroToTwentyFive) {
  FicheImmo a;
  FicheImmo b;
  a.MontantsAnnuels[0] = 1.5f;
  b.MontantsAnnuels[0] = 2;
  a.MontantsAnnuels[25] = 7;
  EXPECT_EQ(ValeurCerfa({a, b}, "inve1:1", 0), "3,5");
  EXPECT_EQ(ValeurCerfa({a, b}, "inve1", 25), "7");
  EXPECT_EQ(ValeurCerfa({a, b}, "inve1", 26), "");
  EXPECT_EQ(ValeurCerfa({a, b}, "inve1", -1), "");
  EXPECT_EQ(ValeurCerfa({}, "inve1", 0), "");
}

}  // namespace
}  // namespace norvane::test
