// Tables in a document made from the command line, on the example dossiers
// of the installation tree: compared dossiers from --comparer, the zero-line
// question answered by --reponse, and a comparison whose dossiers are missing
// left out while the document is still written.
#include <gtest/gtest.h>

#include <string>

#include "app/Programme.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

const std::string kDossiers = std::string(NORVANE_ARBRE) + "/Dossier/";
const std::string kFormat = "5006;10;1;0;0;0;0;0;r;1;1;1;1;8";

// A template holding one table code.
std::string Modele(const std::string& code) {
  return "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green0\\blue0;}\r\n{\\pard #tvl(" +
         code + ")#\\par}\r\n}\r\n";
}

class TableauxEnLigne : public ::testing::Test {
 protected:
  // Generates `code` against `dossier` with the given options; the result's text.
  std::string Generer(const std::string& code, const std::string& dossier, const std::string& options) {
    temporaire.Ecrire("modele.tvm", Modele(code));
    execution = Lancer("GENERER " + Guillemets(temporaire / "modele.tvm") + " " + Guillemets(temporaire / "r.rtf") +
                       " " + Guillemets(kDossiers + dossier) + " --remplacer " + options);
    return temporaire.Lire("r.rtf");
  }
  DossierTemporaire temporaire;
  Execution execution;
};

TEST_F(TableauxEnLigne, ComparedDossiersAreTheComparerOptionsInTheirOrder) {
  const std::string comparaison = "tabd2p1c0;larg2000;larg7200([280;120][;" + kFormat + "][entete:1:;" + kFormat +
                                  "]#[280;120][Produit;" + kFormat + "][1@serie:RES.DON+RES-1:0:0;" + kFormat + "])";
  const std::string document =
      Generer(comparaison, "GAEC_DES_TILLEULS.TVL",
              "--comparer=" + Guillemets(kDossiers + "MARTIN_PAUL.TVL") + " --comparer=" +
                  Guillemets(kDossiers + "GAEC_DES_TILLEULS.TVL"));
  EXPECT_EQ(execution.statut, 0) << execution.sortie;
  EXPECT_NE(document.find(" MARTIN_PAUL}\\cell\\qr\\intbl\\clvertalb{\\fs20\\f5006\\cf2 GAEC_DES_TILLEULS}\\cell"),
            std::string::npos)
      << document;
  EXPECT_NE(document.find("244\xA0" "700}\\cell\\qr\\intbl\\clvertalb{\\fs20\\f5006\\cf2 524\xA0" "000}\\cell"),
            std::string::npos);
}

TEST_F(TableauxEnLigne, AComparisonWithoutItsDossiersIsLeftOutAndTheDocumentWritten) {
  const std::string document =
      Generer("tabd3p1c0;larg2000;larg7200([280;120][;" + kFormat + "][entete:1:;" + kFormat + "])",
              "GAEC_DES_TILLEULS.TVL", "--comparer=" + Guillemets(kDossiers + "MARTIN_PAUL.TVL"));
  EXPECT_EQ(execution.statut, 0);
  EXPECT_NE(execution.sortie.find("Le tableau compare 3 dossiers, mais tous ne sont pas disponibles"),
            std::string::npos)
      << execution.sortie;
  EXPECT_EQ(document.find("\\trowd"), std::string::npos);
  EXPECT_EQ(document.find("#tvl("), std::string::npos);
}

TEST_F(TableauxEnLigne, TheZeroLineQuestionTakesTheAnswerOfTheCommandLine) {
  // RES-4 of MARTIN_PAUL is zero in every year.
  const std::string code = "taba2p1c0;larg2000;larg7200([280;120][Nulle;" + kFormat + "][serie:RES.DON+RES-4:0:2;" +
                           kFormat + "])";
  EXPECT_NE(Generer(code, "MARTIN_PAUL.TVL", "--reponse=oui").find("Nulle"), std::string::npos);
  EXPECT_EQ(Generer(code, "MARTIN_PAUL.TVL", "--reponse=non").find("Nulle"), std::string::npos);
  EXPECT_EQ(execution.statut, 0);
}

}  // namespace
}  // namespace norvane::test
