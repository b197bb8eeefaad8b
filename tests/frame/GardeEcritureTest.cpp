// The write guard: a result is refused over its template, inside a study
// dossier and under a store's name, however the path reaches them.
#include "frame/GardeEcriture.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

class GardeEcritureTest : public ::testing::Test {
 protected:
  GardeEcritureTest() {
    d.Ecrire("m.tvm", "{\\rtf1 modele}");
    d.Ecrire("Dossier/DUPONT.TVL/DUPONT.TVL", "record");
    d.Ecrire("Etude/RES.DON", "serie");
    d.Ecrire("sous/x", "");
    std::filesystem::create_symlink(d / "m.tvm", d / "lien.rtf");
    std::filesystem::create_symlink(d / "Dossier/DUPONT.TVL", d / "raccourci");
    std::filesystem::create_hard_link(d / "m.tvm", d / "dur.rtf");
  }
  std::optional<std::string> Refus(const std::string& relatif) {
    return RefusEcriture({.cible = d / relatif, .lus = {d / "m.tvm"}, .dossiers = {d / "Etude"}});
  }
  DossierTemporaire d;
};

TEST_F(GardeEcritureTest, RefusedTargetsSayWhy) {
  const std::pair<const char*, const char*> cas[] = {
      {"m.tvm", "est le modèle de document lui-même"},
      {"M.TVM", "est le modèle de document lui-même"},
      {"sous/../m.tvm", "est le modèle de document lui-même"},
      {"lien.rtf", "est le modèle de document lui-même"},
      {"dur.rtf", "est le modèle de document lui-même"},
      {"Dossier/DUPONT.TVL/DUPONT.TVL", "dans le dossier d'étude \"DUPONT.TVL\""},
      {"dossier/dupont.tvl/neuf.rtf", "dans le dossier d'étude \"DUPONT.TVL\""},
      {"raccourci/DUPONT.TVL", "dans le dossier d'étude \"DUPONT.TVL\""},
      {"sous/../Dossier/./DUPONT.TVL/RES.DON", "dans le dossier d'étude \"DUPONT.TVL\""},
      {"Etude/RES.DON", "dans le dossier d'étude"},
      {"etude/resultat.rtf", "dans le dossier d'étude"},
      {"Editeur.svg", "fichier de paramètres de Norvane (\"Editeur.svg\")"},
      {"sous/TABLEAUX.TXT", "(\"tableaux.txt\")"},
      {"Graph.txt", "(\"graph.txt\")"},
      {"Dossier/DUPONT.TVL", "est un répertoire"},
      {"sous", "est un répertoire"},
  };
  for (const auto& [cible, raison] : cas) {
    const auto refus = Refus(cible);
    ASSERT_TRUE(refus) << cible;
    EXPECT_NE(refus->find("Le document résultat \"" + d / cible + "\""), std::string::npos) << *refus;
    EXPECT_NE(refus->find(raison), std::string::npos) << cible << ": " << *refus;
  }
}

TEST_F(GardeEcritureTest, OrdinaryResultsPass) {
  for (const char* cible : {"r.rtf", "sous/r.doc", "m.rtf", "Dossier/r.rtf", "EtudeBis/r.rtf", "neuf/r.rtf"}) {
    EXPECT_EQ(Refus(cible), std::nullopt) << cible;
  }
}

}  // namespace
}  // namespace norvane::test
