// The loans of the Cerfa page and its young-farmer list, and the financing
// plan over the study's years.
#include "cerfa/BancCerfa.h"
#include "cerfa/TableauEmprunts.h"

namespace norvane::test {
namespace {

namespace c = construction;

c::Emprunt Pret(float nouveau, int16_t mtsJa, const std::string& libelle) {
  c::Emprunt e;
  e.Nouveau = nouveau;
  e.PretMtsJa = mtsJa;
  e.LibelleEmprunt = libelle;
  e.MontantEmprunt = 1000;
  e.DateRealisationEmprunt = "01/06/2008";
  e.CapitalRestant[0] = 1000;
  for (std::size_t n = 1; n < 27; ++n) {
    e.Annuite[n] = 110;
    e.Interets[n] = 10;
    e.CapitalRestant[n] = 1000 - 100 * static_cast<float>(n);
  }
  return e;
}

TEST(Selection, Empr2TakesAllButCategoryTwoAndEmpr3TheMtsJaLoansBeyondOldAndNew) {
  struct Cas {
    float nouveau;
    int16_t mtsJa;
    bool empr2, empr3;
  };
  for (const Cas& cas : {Cas{0, 0, true, false}, Cas{0, -1, true, false}, Cas{1, -1, true, false},
                         Cas{2, -1, false, true}, Cas{2, 0, false, false}, Cas{3, -1, true, true}}) {
    FicheEmprunt e;
    e.Nouveau = cas.nouveau;
    e.PretMtsJa = cas.mtsJa;
    EXPECT_EQ(EmpruntRetenu(e, false), cas.empr2) << cas.nouveau << " " << cas.mtsJa;
    EXPECT_EQ(EmpruntRetenu(e, true), cas.empr3) << cas.nouveau << " " << cas.mtsJa;
  }
}

class Emprunts : public BancCerfa {
 protected:
  Emprunts() {
    c::EcrireEmprunts(Dossier() + "Emprunt.emp", {Pret(0, 0, "Ancien pret banque"), Pret(1, -1, "Pret JA nouveau"),
                                                  Pret(2, -1, "MTS-JA installation longue"), Pret(2, 0, "Autre")});
  }
};

TEST_F(Emprunts, Empr3ListsOnlyTheYoungFarmerLoans) {
  const std::string rtf = Tableau("empr3");
  EXPECT_NE(rtf.find(" MTS-JA installat}\\cell"), std::string::npos) << "16 characters of the label";
  EXPECT_EQ(rtf.find("Ancien"), std::string::npos);
  EXPECT_EQ(rtf.find("Pret JA"), std::string::npos);
  EXPECT_EQ(rtf.find("Autre"), std::string::npos);
  EXPECT_EQ(Occurrences(rtf, "\\row"), 3 + 1 + 1);
}

TEST_F(Emprunts, Empr2FollowsTheStudysYearsAndSumsThemInTotalGeneral) {
  const std::string rtf = Tableau("empr2");
  EXPECT_EQ(Occurrences(rtf, "\\row"), 3 + 2 + 1);
  EXPECT_NE(rtf.find("exercice 3"), std::string::npos);
  EXPECT_EQ(rtf.find("exercice 4"), std::string::npos);
  const std::size_t total = rtf.find("TOTAL GENERAL");
  ASSERT_NE(total, std::string::npos);
  const std::string rangee = rtf.substr(total);
  EXPECT_NE(rangee.find(" 2\xA0" "000}\\cell"), std::string::npos) << "amounts and capital at the start";
  EXPECT_EQ(Occurrences(rangee, " 220}\\cell"), 3) << "annuities of three years";
  EXPECT_NE(rangee.find(" 1\xA0" "400}\\cell"), std::string::npos) << "capital at the end of year 3";
  EXPECT_NE(rtf.find(" 2008}\\cell"), std::string::npos);
  session.InfoDossier.NbAnEtude = 5;
  EXPECT_NE(Tableau("empr2").find("exercice 5"), std::string::npos);
}

class FinancementAnnuel : public BancCerfa {};

TEST_F(FinancementAnnuel, VariantNHasTheYearsAndSixTotalsVariantANeitherTheYearsOfThePlanNorTheEmptyTotals) {
  c::EcrirePlanFinancement(Dossier() + "PlanF.fin", {{1, "Hangar", 100, 50000, ""}});
  c::Emprunt e = Pret(1, -1, "Pret hangar");
  e.NumEntreePlan = 1;
  c::EcrireEmprunts(Dossier() + "Emprunt.emp", {e});
  const std::string n = Tableau("finan");
  EXPECT_NE(n.find("TOTAL PSM - PSE"), std::string::npos);
  EXPECT_NE(n.find("TOTAL PRETS MTS-JA"), std::string::npos);
  EXPECT_NE(n.find("\\cellx12250"), std::string::npos) << "FINANCEMENTS over three years";
  // Two lines printed: (27 - 2) / 3 = 8 groups; heading rows and six totals.
  EXPECT_EQ(Occurrences(n, "\\row"), 2 + 2 + 24 + 6);
  EXPECT_NE(n.find(" 50\xA0" "000}\\cell"), std::string::npos);
  const std::string a = Tableau("finaa");
  EXPECT_EQ(a.find("TOTAL PSM - PSE"), std::string::npos);
  EXPECT_EQ(a.find("TOTAL AUTRES PRETS"), std::string::npos);
  EXPECT_NE(a.find("TOTAL PRETS}"), std::string::npos);
  EXPECT_EQ(Occurrences(a, "\\row"), 2 + 2 + 4);
  EXPECT_EQ(a.find("exercice 1"), std::string::npos);
}

}  // namespace
}  // namespace norvane::test

namespace norvane::test {
namespace {

class AutresCles : public BancCerfa {};

TEST_F(AutresCles, KeysOutsideTheReportKeepTheirAssetAndLoanBlocks) {
  EXPECT_NE(Tableau("immo0").find("Immobilisations nouvelles"), std::string::npos);
  EXPECT_NE(Tableau("empt0").find("Emprunts nouveaux"), std::string::npos);
}

}  // namespace
}  // namespace norvane::test
