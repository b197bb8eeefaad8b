// The financing plan of the Cerfa page on dossiers built by the study-file
// builder: body, padding and summary.
#include <filesystem>

#include "cerfa/BancCerfa.h"
#include "cerfa/PlanCerfa.h"

namespace norvane::test {
namespace {

namespace c = construction;

// Heading rows, then the eight rows of the summary.
constexpr int kEntetes = 3;
constexpr int kResume = 8;

class Financement : public BancCerfa {};

TEST_F(Financement, WithoutAPlanTheTableHasItsHeadingsNineGroupsOfEmptyRowsAndTheSummary) {
  const std::string rtf = Tableau("finap");
  EXPECT_EQ(Occurrences(rtf, "\\row"), kEntetes + 27 + kResume);
  for (const char* titre : {"Investissements", "Type de financement", "Prêts bonifiés - MTS-JA",
                            "Montant autofinancement", "Total prêts MTS-JA", "Volume total des investissements",
                            "au-delà de l'exercice 5 (2)"}) {
    EXPECT_NE(rtf.find(Cp(titre)), std::string::npos) << titre;
  }
  EXPECT_NE(rtf.find("\\par\\plain \\par\\plain "), std::string::npos);
  // The missing plan is the one file the table writes.
  EXPECT_TRUE(std::filesystem::exists(Dossier() + "PlanF.fin"));
}

TEST_F(Financement, MoreThan27LinesGetNoPadding) {
  std::vector<c::LignePlanFinancement> plan;
  std::vector<c::Emprunt> emprunts;
  for (int i = 1; i <= 10; ++i) {
    plan.push_back({static_cast<float>(i), "Objet " + std::to_string(i), 100, 1000, ""});
    for (int k = 0; k < 2; ++k) {
      c::Emprunt e;
      e.Nouveau = 1;
      e.LibelleEmprunt = "Pret";
      e.MontantEmprunt = 400;
      e.NumEntreePlan = static_cast<int16_t>(i);
      emprunts.push_back(e);
    }
  }
  c::EcrirePlanFinancement(Dossier() + "PlanF.fin", plan);
  c::EcrireEmprunts(Dossier() + "Emprunt.emp", emprunts);
  const std::string rtf = Tableau("finap");
  // Each entry: its row, two loans and " totaux ".
  EXPECT_EQ(Occurrences(rtf, "\\row"), kEntetes + 40 + kResume);
  EXPECT_EQ(Occurrences(rtf, " totaux "), 10);
}

TEST_F(Financement, AnEntryWithItsLoansIsPaddedToTheGroupOfThreeBelow27) {
  c::EcrirePlanFinancement(Dossier() + "PlanF.fin", {{1, "Hangar [B123] neuf", 100, 50000, ""}});
  c::Emprunt ja;
  ja.Nouveau = 1;
  ja.PretMtsJa = -1;
  ja.LibelleEmprunt = "MTS-JA";
  ja.MontantEmprunt = 30000;
  ja.Taux1 = 2.5f;
  ja.Duree1 = 12;
  ja.NumEntreePlan = 1;
  c::Emprunt banque = ja;
  banque.PretMtsJa = 0;
  banque.LibelleEmprunt = "Banque";
  banque.MontantEmprunt = 15000;
  c::EcrireEmprunts(Dossier() + "Emprunt.emp", {ja, banque});
  const std::string rtf = Tableau("finap");
  // 4 lines printed: (27 - 4) / 3 = 7 groups.
  EXPECT_EQ(Occurrences(rtf, "\\row"), kEntetes + 4 + 21 + kResume);
  EXPECT_NE(rtf.find(" B123}\\cell"), std::string::npos);
  EXPECT_NE(rtf.find(" Hangar}\\cell"), std::string::npos);
  EXPECT_NE(rtf.find(" 2,5 %}\\cell"), std::string::npos);
  EXPECT_NE(rtf.find(" 12 ans}\\cell"), std::string::npos);
  // Self-financing of the entry: 50 000 - 30 000 - 15 000.
  EXPECT_NE(rtf.find(Cp(" 5\xC2\xA0" "000}\\cell")), std::string::npos) << rtf;
}

TEST(CodeBien, TheCodeIsTheFourCharactersBehindABracketThatCloses) {
  struct Cas {
    const char* objet;
    const char* libelle;
    const char* code;
  };
  for (const Cas& cas : {Cas{"Hangar [B123]", "Hangar ", "B123"}, Cas{"Tracteur", "Tracteur", ""},
                         Cas{"Cuve [C1] inox", "Cuve ", "C1] "}, Cas{"Silo [S12", "Silo [S12", ""}}) {
    const LibelleCode lu = SeparerCodeBien(cas.objet);
    EXPECT_EQ(lu.libelle, cas.libelle) << cas.objet;
    EXPECT_EQ(lu.code, cas.code) << cas.objet;
  }
}

TEST(Exercice, ADateFallsInTheExerciseOfTheStudyThatHoldsIt) {
  struct Cas {
    const char* date;
    int exercice;
  };
  for (const Cas& cas : {Cas{"01/05/2007", 1}, Cas{"30/04/2008", 1}, Cas{"01/05/2008", 2}, Cas{"15/03/2010", 3},
                         Cas{"30/04/2007", 0}, Cas{"JJ/MM/AAAA", 0}}) {
    EXPECT_EQ(ExerciceDeDate(cas.date, "01/05/2007"), cas.exercice) << cas.date;
  }
}

TEST_F(Financement, TheSummaryHasFiveExercisesWhateverTheStudysYears) {
  for (int16_t annees : {1, 3, 8}) {
    session.InfoDossier.NbAnEtude = annees;
    const std::string rtf = Tableau("finap");
    EXPECT_EQ(Occurrences(rtf, " exercice 5}"), 2) << annees;
    EXPECT_EQ(rtf.find("exercice 6"), std::string::npos) << annees;
  }
}

TEST_F(Financement, SummaryRowsReadImmoresAndPdeAndAZeroTotalIsNotRed) {
  // MTS-JA loans (122): 5 then -5, a total of exactly 0; beyond: PDE line 3.
  Series("IMMORES.DON", "IMMORES", {{122, {0, 5, -5, 0, 0, 0}}, {45, {0, 7, 0, 0, 0, 0}}});
  Series("PDE.DON", "PDE", {{3, {0, 900, 0, 0, 0, 0}}});
  const std::string rtf = Tableau("finap");
  const std::size_t ligne = rtf.find(Cp("Total prêts MTS-JA"));
  ASSERT_NE(ligne, std::string::npos);
  const std::string rangee = rtf.substr(ligne, rtf.find("\\row", ligne) - ligne);
  // Colour 1 of the program is 3 in the document, colour 6 is 8.
  EXPECT_NE(rangee.find("\\cf3  }\\cell"), std::string::npos) << rangee;
  EXPECT_NE(rangee.find("\\cf8 -5}\\cell"), std::string::npos);
  EXPECT_NE(rangee.find(" 900}\\cell"), std::string::npos);
  // Other loans: all loans less the MTS-JA ones.
  const std::size_t autres = rtf.find(Cp("Total autres prêts"));
  EXPECT_NE(rtf.substr(autres, rtf.find("\\row", autres) - autres).find(" 2}\\cell"), std::string::npos);
}

}  // namespace
}  // namespace norvane::test
