// VERIFIER on the example installation: every example template checks clean,
// the broken example gives its kept report, an unreadable template exits 2.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <vector>

#include "app/Programme.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
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

// Broken templates of the faults that only a dossier shows, or that
// generation passes over in silence: a series file, a record and a graph
// series that the dossier lacks, formulas that cannot be computed, and, in
// the second, a year heading of an unknown kind.
std::vector<std::string> CorpusCasse(const DossierTemporaire& d) {
  const std::string tableau =
      "#tvl(taba2p1cr0;larg3400;larg6200([340;80][Exercice;5006;9;1;1;0;0;0;0;l;1;1;1;1;16][entete:HEADING:;5006;9;1;"
      "1;0;0;0;0;c;1;1;1;1;16]#[300;80][Lait;5006;9;1;0;0;0;0;0;l;0;0;1;1;8][serie:ABSENT.DON+ABS-1:0:0;5006;9;1;0;0;"
      "0;0;0;r;0;0;1;1;8]#[300;80][Total;5006;9;1;0;0;0;0;0;l;0;0;1;1;8][totalC:LG2*/3:0:0;5006;9;1;0;0;0;0;0;r;0;0;"
      "1;1;8]))#";
  const std::string avertissements =
      "{\\rtf1\\ansi\r\nA #tvl(ABSENT.DON+ABS-3a1)# B #tvl(RES.DON+RES-3a99)# C #tvl(formule:1a:LG(RES-17)+*2)# "
      "D #tvl(formule:1a:LG(RES-17)/0)#\\par\r\n#tvl(gph(G;9;1;1;0;;0;0;2;5;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;20;30;"
      "1;1;1;1;;10;30;;10;30;;12;30;;12;30;14;[RES-99:0;Serie;1;RES.DON;0;21;101;192;30;1]))#\\par\r\n";
  std::vector<std::string> modeles;
  for (const char* entete : {"1", "9"}) {
    const std::string chemin = d / (std::string("casse") + entete + ".tvm");
    std::ofstream(chemin, std::ios::binary) << avertissements << RemplacerTout(tableau, "HEADING", entete)
                                            << "\\par\r\n}\r\n";
    modeles.push_back(chemin);
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
      EXPECT_NE(e.sortie.find(" 0 erreur(s), "), std::string::npos) << chemin;
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
  EXPECT_NE(texte.sortie.find(
                "9 code(s) vérifié(s), 6 erreur(s), 0 avertissement(s).\nErreurs :\n  ligne 6, colonne 9 (page 1, "
                "paragraphe 3)"),
            std::string::npos)
      << texte.sortie;
}

// Warnings alone leave the exit status at 0; an error makes it 1.
TEST(Verification, WarningsAloneExitZeroAndAreCountedApart) {
  DossierTemporaire d;
  const std::vector<std::string> corpus = CorpusCasse(d);
  const std::string dossier = " " + Guillemets(std::string(NORVANE_ARBRE) + "/Dossier/MARTIN_PAUL.TVL");
  const Execution avertissements = Lancer("VERIFIER " + Guillemets(corpus[0]) + dossier);
  EXPECT_EQ(avertissements.statut, 0) << avertissements.sortie;
  EXPECT_NE(avertissements.sortie.find("6 code(s) vérifié(s), 0 erreur(s), 6 avertissement(s).\nAvertissements :\n"),
            std::string::npos)
      << avertissements.sortie;
  const Execution erreur = Lancer("VERIFIER " + Guillemets(corpus[1]) + dossier + " --format=json");
  EXPECT_EQ(erreur.statut, 1);
  const nlohmann::json codes = nlohmann::json::parse(erreur.sortie, nullptr, false);
  ASSERT_TRUE(codes.is_array() && codes.size() == 6u) << erreur.sortie;
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(codes[i].value("statut", ""), "avertissement") << i;
  EXPECT_EQ(codes[5].value("statut", ""), "erreur");
  EXPECT_EQ(codes[5].value("ligne", 0), 4);
  // Without a dossier only the formula whose text cannot be read is told.
  const Execution syntaxe = Lancer("VERIFIER " + Guillemets(corpus[0]));
  EXPECT_EQ(syntaxe.statut, 0);
  EXPECT_NE(syntaxe.sortie.find("0 erreur(s), 2 avertissement(s)."), std::string::npos) << syntaxe.sortie;
}

TEST(Verification, AnUnreadableTemplateOrABadFormatExitsTwo) {
  EXPECT_EQ(Lancer("VERIFIER /pas/de/modele.tvm").statut, 2);
  EXPECT_EQ(Lancer("VERIFIER").statut, 2);
  EXPECT_EQ(Lancer("VERIFIER " + Guillemets(kCasse) + " --format=pdf").statut, 2);
}

// The generator and the checker agree on the same dossiers: each fault the
// checker reports is a box at generation, and a template it finds clean, or
// with warnings alone, generates without a word beyond "Document créé".
TEST(Verification, TheGeneratorSpeaksExactlyWhereTheCheckerFindsFaults) {
  // Multi-dossier tables compare the dossiers given after the first one, as
  // the example script gives them.
  const std::string gaec = Guillemets(std::string(NORVANE_ARBRE) + "/Dossier/GAEC_DES_TILLEULS.TVL");
  const std::string martin = Guillemets(std::string(NORVANE_ARBRE) + "/Dossier/MARTIN_PAUL.TVL");
  const std::string dossier = " " + gaec + " --comparer=" + gaec + " --comparer=" + martin;
  std::vector<std::string> modeles = ModelesInstalles();
  modeles.push_back(kCasse);
  DossierTemporaire d;
  for (const std::string& casse : CorpusCasse(d)) modeles.push_back(casse);
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
