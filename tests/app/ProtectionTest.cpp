// What the user gave us to read is never written: a result over its
// template, inside a study dossier or under a store's name is refused by
// every verb that writes, with a message, exit status 1 and nothing written;
// and a dossier that cannot be read is refused, not turned into a blank
// document.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/Programme.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

namespace fs = std::filesystem;

class ProtectionTest : public ::testing::Test {
 protected:
  ProtectionTest() {
    d.Ecrire("m.tvm", "{\\rtf1 #tvl(nomExploit)#}");
    d.Ecrire("Editeur.svg", "ancien magasin");
    d.Ecrire("doc.rtf", "{\\rtf1 document}");
    fs::create_directories(d / "Dossier");
    fs::copy(fs::path(NORVANE_ARBRE) / "Dossier" / "MARTIN_PAUL.TVL", d / "Dossier/MARTIN_PAUL.TVL",
             fs::copy_options::recursive);
    d.Ecrire("Dossier/MARTIN_PAUL.TVL/note.rtf", "{\\rtf1 note}");
  }
  std::string Chemin(const std::string& relatif) { return Guillemets(d / relatif); }
  DossierTemporaire d;
};

TEST_F(ProtectionTest, EveryWritingVerbRefusesWhatItWasGivenToRead) {
  const std::string dossier = Chemin("Dossier/MARTIN_PAUL.TVL");
  struct Cas {
    std::string arguments;
    const char* protege;  // the file that must keep its bytes
    const char* raison;
  };
  const Cas cas[] = {
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("Dossier/MARTIN_PAUL.TVL/MARTIN_PAUL.TVL") + " " + dossier +
           " --remplacer",
       "Dossier/MARTIN_PAUL.TVL/MARTIN_PAUL.TVL", "dans le dossier d'étude"},
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("dossier/martin_paul.tvl/../MARTIN_PAUL.TVL/res.don") +
           " --remplacer",
       "Dossier/MARTIN_PAUL.TVL/RES.DON", "dans le dossier d'étude"},
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("m.tvm") + " " + dossier + " --remplacer", "m.tvm",
       "est le modèle de document lui-même"},
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("M.TVM") + " --remplacer", "m.tvm",
       "est le modèle de document lui-même"},
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("Editeur.svg") + " --remplacer", "Editeur.svg",
       "fichier de paramètres de Norvane"},
      {"METTREAJOUR " + Chemin("Dossier/MARTIN_PAUL.TVL/note.rtf"), "Dossier/MARTIN_PAUL.TVL/note.rtf",
       "dans le dossier d'étude"},
      {"METTREAJOUR " + Chemin("Dossier/MARTIN_PAUL.TVL/MARTIN_PAUL.TVL") + " " + dossier,
       "Dossier/MARTIN_PAUL.TVL/MARTIN_PAUL.TVL", "dans le dossier d'étude"},
      {"INI " + Chemin("m.tvm") + " " + Chemin("m.tvm") + " non remplacer", "m.tvm",
       "est le modèle de document lui-même"},
      {"INI " + Chemin("m.tvm") + " " + Chemin("Dossier/MARTIN_PAUL.TVL/r.rtf") + " non remplacer",
       "Dossier/MARTIN_PAUL.TVL/r.rtf", "dans le dossier d'étude"},
  };
  for (const Cas& c : cas) {
    const bool existait = d.Existe(c.protege);
    const std::string avant = d.Lire(c.protege);
    const Execution e = Lancer(c.arguments);
    EXPECT_EQ(e.statut, 1) << c.arguments << "\n" << e.sortie;
    EXPECT_NE(e.sortie.find(c.raison), std::string::npos) << c.arguments << "\n" << e.sortie;
    EXPECT_EQ(d.Existe(c.protege), existait) << c.protege;
    EXPECT_EQ(d.Lire(c.protege), avant) << c.protege;
  }
}

TEST_F(ProtectionTest, AResultBesideTheDossierIsWritten) {
  const Execution e = Lancer("GENERER " + Chemin("m.tvm") + " " + Chemin("Dossier/r.rtf") + " " +
                             Chemin("Dossier/MARTIN_PAUL.TVL") + " --remplacer");
  EXPECT_EQ(e.statut, 0) << e.sortie;
  EXPECT_NE(d.Lire("Dossier/r.rtf").find("MARTIN"), std::string::npos);
}

// A dossier named on the command line that is missing, a file, or has no
// general record is refused with a message that names it, rather than giving
// a document whose every field is blank.
TEST_F(ProtectionTest, ADossierThatCannotBeReadIsRefused) {
  d.Ecrire("Fichier.TVL", "pas un dossier");
  d.Ecrire("Vide.TVL/RES.DON", "");
  const std::string absent = d / "Absent.TVL", fichier = d / "Fichier.TVL";
  struct Cas {
    std::string arguments;
    std::string nomme;
  };
  const Cas cas[] = {
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("r.rtf") + " " + Guillemets(absent), absent},
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("r.rtf") + " " + Guillemets(fichier), fichier},
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("r.rtf") + " " + Chemin("Vide.TVL"), "Vide.TVL"},
      {"GENERER " + Chemin("m.tvm") + " " + Chemin("r.rtf") + " " + Chemin("Dossier/MARTIN_PAUL.TVL") +
           " --comparer=" + Guillemets(absent),
       absent},
      {"METTREAJOUR " + Chemin("doc.rtf") + " " + Guillemets(absent), absent},
      {"EXPLIQUER '#tvl(nomExploit)#' " + Guillemets(fichier), fichier},
      {"DOSSIER " + Guillemets(absent), absent},
      {"DOSSIER " + Guillemets(fichier), fichier},
  };
  const std::string document = d.Lire("doc.rtf");
  for (const Cas& c : cas) {
    const Execution e = Lancer(c.arguments);
    EXPECT_EQ(e.statut, 1) << c.arguments << "\n" << e.sortie;
    EXPECT_NE(e.sortie.find(c.nomme), std::string::npos) << c.arguments << "\n" << e.sortie;
    EXPECT_FALSE(d.Existe("r.rtf")) << c.arguments;
    EXPECT_EQ(d.Lire("doc.rtf"), document) << c.arguments;
  }
}

}  // namespace
}  // namespace norvane::test
