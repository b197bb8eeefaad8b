// Asset, grant and loan blocks, and the investments and financing table, on
// dossiers built by the study-file builder.
#include <unistd.h>

#include <filesystem>

#include "construction/FichiersTableaux.h"
#include "tables/BancProducteurs.h"
#include "tables/BlocsImmoEmprunts.h"

namespace norvane::test {
namespace {

namespace c = construction;

c::Immobilisation Immo(float nouveau, const std::string& libelle, float montant) {
  c::Immobilisation i;
  i.Nouveau = nouveau;
  i.Libelle = libelle;
  i.Montant = montant;
  i.DateRealisation = "15/03/2008";
  return i;
}

class Blocs : public BancSpeciaux {};

TEST_F(Blocs, AssetsWithNoNewItemGiveTheHeadingTheColumnRowAndTheClosingRow) {
  c::EcrireImmobilisations(Dossier() + "Immo.imm", {Immo(0, "Hangar", 1000)});
  const std::string rtf = GenererSpecial(Code("x", "imemp:immo0:0"));
  EXPECT_EQ(rtf.find("\\ql\\fs20\\cf3\\b\\i\\ul Immobilisations nouvelles\\par \\plain \\par \\plain "), 0u);
  EXPECT_EQ(Compter(rtf, "\\row"), 2);
  EXPECT_NE(rtf.find(Cp("Date réalisat.")), std::string::npos);
  EXPECT_EQ(rtf.find("Hangar"), std::string::npos);
  EXPECT_NE(rtf.find(LigneSeparation(9500)), std::string::npos);
  EXPECT_EQ(rtf.find("\\trgaph120"), std::string::npos);
}

TEST_F(Blocs, GrantsOfBothKindsGiveTwoHeadingsAndTwoRows) {
  c::EcrireImmobilisations(Dossier() + "Sub.sub", {Immo(1, "Aide JA", 8000), Immo(0, "DJA", 5000)});
  const std::string rtf = GenererSpecial(Code("x", "imemp:subv2:0"));
  const std::size_t anciennes = rtf.find("Subventions anciennes");
  const std::size_t dja = rtf.find("DJA");
  const std::size_t nouvelles = rtf.find("Subventions nouvelles");
  const std::size_t aide = rtf.find("Aide JA");
  EXPECT_LT(anciennes, dja);
  EXPECT_LT(dja, nouvelles);
  EXPECT_LT(nouvelles, aide);
  EXPECT_NE(aide, std::string::npos);
  EXPECT_EQ(Compter(rtf, "\\row"), 4);  // column row, two grants, closing row
  EXPECT_NE(rtf.find("\\cellx6800"), std::string::npos);
}

TEST_F(Blocs, ANegativeAmountIsRedOnlyWhenTheModelAsksIt) {
  c::Immobilisation i = Immo(0, "Reprise", 10);
  i.LSM = -5;
  c::EcrireImmobilisations(Dossier() + "Immo.imm", {i});
  // Colour 6 of the program is 8 in the document, colour 1 is 3.
  const std::string rouge = GenererSpecial(Code("x", "imemp:immo1:0"));
  EXPECT_NE(rouge.find("\\cf8 -5}\\cell"), std::string::npos) << rouge;
  const std::string noir = GenererSpecial(Code("x", "imemp:immo1:0", false));
  EXPECT_NE(noir.find("\\cf3 -5}\\cell"), std::string::npos);
}

TEST_F(Blocs, ALoanRowPrintsItsFieldsInTheirForms) {
  c::Emprunt e;
  e.Nouveau = 1;
  e.LibelleEmprunt = "PRET BANCAIRE STABULATION NEUVE";
  e.DateRealisationEmprunt = "01/06/2008";
  e.DateFin = "01/06/2018";
  e.MontantEmprunt = 30000;
  e.TypeEmprunt = 2;
  e.Taux1 = 2.5f;
  e.Duree1 = 10;
  e.Echeance1 = 3400;
  c::Emprunt categorie = e;
  categorie.Nouveau = 2;
  categorie.LibelleEmprunt = "Autre";
  c::EcrireEmprunts(Dossier() + "Emprunt.emp", {e, categorie});
  const std::string rtf = GenererSpecial(Code("x", "imemp:empt0:0"));
  EXPECT_NE(rtf.find(" pret bancaire stabulat.}\\cell"), std::string::npos);
  EXPECT_NE(rtf.find(" 01/06/08}"), std::string::npos);
  EXPECT_NE(rtf.find(" 01/06/18}"), std::string::npos);
  EXPECT_NE(rtf.find(std::string(" 30\xA0" "000  }")), std::string::npos);
  EXPECT_NE(rtf.find(" CT}"), std::string::npos);
  EXPECT_NE(rtf.find(" 2,5 %}"), std::string::npos);
  EXPECT_NE(rtf.find(std::string("     3\xA0" "400}")), std::string::npos);
  EXPECT_EQ(rtf.find("autre"), std::string::npos);
  EXPECT_NE(rtf.find("\\cellx3250"), std::string::npos);
  EXPECT_NE(rtf.find(LigneSeparation(10400)), std::string::npos);
}

TEST(TexteDuree, YearsAndPeriods) {
  struct Cas {
    float valeur, periode;
    const char* attendu;
  };
  for (const Cas& cas : {Cas{1, 0, "1 an"}, Cas{2, 0, "2 ans"}, Cas{0, 0, ""}, Cas{1, 12, "1 an"},
                         Cas{8, 3, "8 trimestre"}, Cas{4, 6, "4 semestre"}, Cas{24, 1, "24 mois"}}) {
    EXPECT_EQ(TexteDuree(cas.valeur, true, cas.periode), cas.attendu) << cas.valeur << " " << cas.periode;
  }
  EXPECT_EQ(TexteDuree(3, false, 0), "");
}

TEST(DateCourte, OnlyWholeDatesAreShortened) {
  EXPECT_EQ(DateCourte("15/03/2008"), "15/03/08");
  EXPECT_EQ(DateCourte("          "), "");
  EXPECT_EQ(DateCourte("15-03-2008"), "");
  EXPECT_EQ(DebutLigneSerree("\\plain \\trowd\\trgaph120\\trrh280\\trqc"), "\\plain \\trowd\\trgaph5\\trrh280\\trqc");
  EXPECT_EQ(DebutLigneSerree("\\plain \\trowd\\trqc"), "\\plain \\trowd\\trgaph5\\trqc");
}

TEST_F(Blocs, AMissingPlanIsCreatedByTheInvestmentsTableWhichAsksAboutEmptyColumns) {
  c::EcrireImmobilisations(Dossier() + "Immo.imm", {Immo(1, "Tracteur", 40000)});
  messages.reponses = {Reponse::Non, Reponse::Oui};
  const std::string rtf = GenererSpecial(Code("x", "imemp:inves:0"));
  EXPECT_TRUE(temporaire.Existe("ESSAI.TVL/PlanF.fin"));
  ASSERT_EQ(messages.questions.size(), 2u);
  EXPECT_NE(rtf.find("TOTAL"), std::string::npos);
  EXPECT_EQ(rtf.find(Cp("Subvent°")), std::string::npos);
  EXPECT_NE(rtf.find(Cp("Différé")), std::string::npos);
  EXPECT_NE(rtf.find("\\cellx6600"), std::string::npos);  // self-financing without the grant column
}

TEST_F(Blocs, TheInvestmentsTablePairsEachEntryWithItsGrantsAndLoans) {
  c::EcrirePlanFinancement(Dossier() + "PlanF.fin", {{1, "Stabulation", 50, 0, ""}, {2, "Robot", 100, 9000, ""}});
  c::Immobilisation a = Immo(1, "Charpente", 30000);
  a.NumEntreePlan = 1;
  c::Immobilisation s = Immo(1, "Aide", 6000);
  s.NumEntreePlan = 1;
  c::Emprunt e;
  e.Nouveau = 1;
  e.MontantEmprunt = 20000;
  e.NumEntreePlan = 1;
  e.Duree1 = 1;
  e.DiffereEmprunt = 1;
  c::EcrireImmobilisations(Dossier() + "Immo.imm", {a});
  c::EcrireImmobilisations(Dossier() + "Sub.sub", {s});
  c::EcrireEmprunts(Dossier() + "Emprunt.emp", {e});
  const std::string rtf = GenererSpecial(Code("x", "imemp:inves:0"));
  EXPECT_TRUE(messages.questions.empty());
  EXPECT_NE(rtf.find(std::string(" 30\xA0" "000}")), std::string::npos);
  EXPECT_NE(rtf.find(std::string(" 9\xA0" "000}")), std::string::npos);
  EXPECT_NE(rtf.find(" 1 an}"), std::string::npos);
  // 39 000 invested, 6 000 granted, 20 000 lent.
  EXPECT_NE(rtf.find(std::string("Autofinancement : 13\xA0" "000")), std::string::npos);
}

TEST_F(Blocs, AReadOnlyDossierIsToldOnceAndTheTableStillComes) {
  namespace fs = std::filesystem;
  if (::geteuid() == 0) GTEST_SKIP() << "root writes into a read-only folder";
  c::EcrireImmobilisations(Dossier() + "Immo.imm", {});
  fs::permissions(Dossier(), fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                  fs::perm_options::remove);
  messages.reponses = {Reponse::Oui, Reponse::Oui};
  const std::string rtf = GenererSpecial(Code("x", "imemp:inves:0"));
  fs::permissions(Dossier(), fs::perms::owner_write, fs::perm_options::add);
  EXPECT_FALSE(temporaire.Existe("ESSAI.TVL/PlanF.fin"));
  EXPECT_EQ(messages.messages.size(), 1u);
  EXPECT_NE(rtf.find("TOTAL"), std::string::npos);
}

}  // namespace
}  // namespace norvane::test
