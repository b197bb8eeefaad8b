// VERIFIER on the example installation: every example template checks clean,
// the broken example gives its kept report, an unreadable template exits 2.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/Programme.h"
#include "frame/OutilsFichiers.h"

namespace norvane::test {
namespace {

const std::string kCasse = std::string(NORVANE_SOURCE_DIR) + "/exemple/modeles/Verification/Casse.tvm";

TEST(Verification, EveryExampleTemplateChecksClean) {
  std::size_t modeles = 0;
  for (const auto& entree : std::filesystem::directory_iterator(std::string(NORVANE_ARBRE) + "/Norvane/ModlDocs")) {
    if (entree.path().extension() != ".tvm") continue;
    ++modeles;
    const std::string avecDossier = " " + Guillemets(std::string(NORVANE_ARBRE) + "/Dossier/MARTIN_PAUL.TVL");
    for (const std::string& dossier : {std::string(), avecDossier}) {
      const Execution e = Lancer("VERIFIER " + Guillemets(entree.path().string()) + dossier);
      EXPECT_EQ(e.statut, 0) << entree.path() << dossier << "\n" << e.sortie;
      EXPECT_NE(e.sortie.find(" 0 erreur(s).\n"), std::string::npos) << entree.path();
    }
  }
  EXPECT_GE(modeles, 5u);
}

TEST(Verification, TheBrokenExampleGivesItsKeptReport) {
  const Execution e = Lancer("VERIFIER " + Guillemets(kCasse) + " --format=json");
  EXPECT_EQ(e.statut, 1);
  const auto attendu = LireFichier(std::string(NORVANE_SOURCE_DIR) + "/exemple/modeles/Verification/Casse.attendu.json");
  ASSERT_TRUE(attendu);
  EXPECT_EQ(e.sortie, *attendu);
  const Execution texte = Lancer("VERIFIER " + Guillemets(kCasse));
  EXPECT_EQ(texte.statut, 1);
  EXPECT_NE(texte.sortie.find("9 code(s) vérifié(s), 6 erreur(s).\n  ligne 6, colonne 9 (page 1, paragraphe 3)"),
            std::string::npos)
      << texte.sortie;
}

TEST(Verification, AnUnreadableTemplateOrABadFormatExitsTwo) {
  EXPECT_EQ(Lancer("VERIFIER /pas/de/modele.tvm").statut, 2);
  EXPECT_EQ(Lancer("VERIFIER").statut, 2);
  EXPECT_EQ(Lancer("VERIFIER " + Guillemets(kCasse) + " --format=pdf").statut, 2);
}

}  // namespace
}  // namespace norvane::test
