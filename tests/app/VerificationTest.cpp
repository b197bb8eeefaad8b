// VERIFIER on the example installation: every example template checks clean,
// the broken example gives its kept report, an unreadable template exits 2.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <vector>

#include "app/Programme.h"
#include "frame/ResolutionChemins.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

const std::string kCasse = std::string(NORVANE_SOURCE_DIR) + "/exemple/modeles/Verification/Casse.tvm";

// The example templates and the stock templates of the Cerfa report.
std::vector<std::string> ModelesInstalles() {
  std::vector<std::string> modeles;
  for (const char* dossier : {"/Norvane/ModlDocs", "/Norvane/PDE"}) {
    for (const auto& entree : std::filesystem::directory_iterator(std::string(NORVANE_ARBRE) + dossier)) {
      if (entree.path().extension() == ".tvm") modeles.push_back(entree.path().string());
    }
  }
  return modeles;
}

TEST(Verification, EveryExampleAndStockTemplateChecksClean) {
  std::size_t modeles = 0;
  for (const std::string& chemin : ModelesInstalles()) {
    ++modeles;
    const std::string avecDossier = " " + Guillemets(std::string(NORVANE_ARBRE) + "/Dossier/MARTIN_PAUL.TVL");
    for (const std::string& dossier : {std::string(), avecDossier}) {
      const Execution e = Lancer("VERIFIER " + Guillemets(chemin) + dossier);
      EXPECT_EQ(e.statut, 0) << chemin << dossier << "\n" << e.sortie;
      EXPECT_NE(e.sortie.find(" 0 erreur(s).\n"), std::string::npos) << chemin;
    }
  }
  EXPECT_GE(modeles, 5u + 17u);
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

// The generator and the checker agree on the same dossiers: each fault the
// checker reports is a box at generation, and a template it finds clean
// generates without a word beyond "Document créé".
TEST(Verification, TheGeneratorSpeaksExactlyWhereTheCheckerFindsFaults) {
  // Multi-dossier tables compare the dossiers given after the first one, as
  // the example script gives them.
  const std::string gaec = Guillemets(std::string(NORVANE_ARBRE) + "/Dossier/GAEC_DES_TILLEULS.TVL");
  const std::string martin = Guillemets(std::string(NORVANE_ARBRE) + "/Dossier/MARTIN_PAUL.TVL");
  const std::string dossier = " " + gaec + " --comparer=" + gaec + " --comparer=" + martin;
  std::vector<std::string> modeles = ModelesInstalles();
  modeles.push_back(kCasse);
  DossierTemporaire d;
  for (const std::string& modele : modeles) {
    const Execution v = Lancer("VERIFIER " + Guillemets(modele) + dossier + " --format=json");
    const nlohmann::json codes = nlohmann::json::parse(v.sortie, nullptr, false);
    ASSERT_TRUE(codes.is_array()) << modele << "\n" << v.sortie;
    const Execution g = Lancer("GENERER " + Guillemets(modele) + " " + Guillemets(d / "r.rtf") + dossier + " --remplacer");
    std::size_t erreurs = 0;
    for (const nlohmann::json& code : codes) {
      if (code.value("statut", "") != "erreur") continue;
      ++erreurs;
      const std::string debut = code.value("message", "").substr(0, 40);
      EXPECT_NE(g.sortie.find(debut), std::string::npos) << modele << ": " << debut << "\n" << g.sortie;
    }
    if (erreurs == 0) {
      EXPECT_EQ(g.sortie.rfind("Document créé", 0), 0u) << modele << "\n" << g.sortie;
      EXPECT_EQ(std::count(g.sortie.begin(), g.sortie.end(), '\n'), 1) << modele << "\n" << g.sortie;
    }
  }
}

}  // namespace
}  // namespace norvane::test
