#include "frame/RechercheEditeur.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "frame/DossierTemporaire.h"
#include "frame/PortsScriptes.h"

namespace norvane {
namespace {

class RechercheEditeurTest : public ::testing::Test {
 protected:
  std::string Chercher(const std::string& nom) { return ChercherEditeur(nom, progression, messages, {tmp.Chemin()}); }
  test::DossierTemporaire tmp;
  ProgressionScriptee progression;
  MessagesScriptes messages;
};

TEST_F(RechercheEditeurTest, FindsTheFileAndShowsTheGauge) {
  tmp.Ecrire("a/b/c/soffice", "");
  EXPECT_EQ(Chercher("soffice"), tmp / "a/b/c/soffice");
  ASSERT_FALSE(progression.textes.empty());
  EXPECT_EQ(progression.textes.front(), "Recherche de soffice sur votre PC");
  EXPECT_EQ(progression.textes.back(), "");
  EXPECT_EQ(progression.pourcentages, (std::vector<int>{10, 15, 20, 25, 30, 100}));
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(RechercheEditeurTest, BreadthFirstWithoutRegardToCaseAndNoFolderAsHit) {
  tmp.Ecrire("x/y/z/soffice", "");
  tmp.Ecrire("q/SOFFICE", "");
  std::filesystem::create_directories(tmp / "soffice");
  EXPECT_EQ(Chercher("soffice"), tmp / "q/SOFFICE");
}

TEST_F(RechercheEditeurTest, TheGaugeStaysAt90AtMostDuringTheWalk) {
  for (int i = 0; i < 30; ++i) std::filesystem::create_directories(tmp / ("d" + std::to_string(i)));
  EXPECT_EQ(Chercher("winword.exe"), "");
  EXPECT_EQ(progression.pourcentages.back(), 100);
  progression.pourcentages.pop_back();
  EXPECT_EQ(*std::max_element(progression.pourcentages.begin(), progression.pourcentages.end()), 90);
}

TEST_F(RechercheEditeurTest, AStopRequestCancelsWithAMessage) {
  tmp.Ecrire("a/b/soffice", "");
  progression.arretApres = 2;
  EXPECT_EQ(Chercher("soffice"), "");
  ASSERT_EQ(messages.questions.size(), 1u);
  EXPECT_EQ(messages.questions[0].titre, "Choix d'un éditeur de texte pour Norvane");
  EXPECT_EQ(messages.questions[0].texte, "Recherche de soffice annulée.");
  EXPECT_EQ(progression.pourcentages, (std::vector<int>{10, 15, 20, 100}));
}

TEST_F(RechercheEditeurTest, LinkLoopsAndMissingStartFoldersEndTheWalk) {
  std::filesystem::create_directories(tmp / "a");
  std::filesystem::create_directory_symlink(tmp.Chemin(), tmp / "a/boucle");
  EXPECT_EQ(ChercherEditeur("soffice", progression, messages, {tmp / "absent", tmp.Chemin()}), "");
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(RechercheEditeurTest, DetectionFillsTheOpenOfficeSlotWithLibreOffice) {
  tmp.Ecrire("usr/bin/libreoffice", "");
  const EditeursTrouves trouves = DetecterEditeurs(progression, messages, {tmp.Chemin()});
  EXPECT_EQ(trouves.CheminWinword, "");
  EXPECT_EQ(trouves.CheminWordpro, "");
  EXPECT_EQ(trouves.CheminSoffice, tmp / "usr/bin/libreoffice");

  Options o;
  o.CheminEditeur = " " + trouves.CheminSoffice + " ";
  o.OptimisationOOo = 1;
  const EtatChoixEditeur etat = EtatFenetreChoix(trouves, o);
  EXPECT_EQ(etat.actif, (std::array<bool, 3>{false, false, true}));
  EXPECT_EQ(etat.coche, (std::array<bool, 3>{false, false, true}));
  EXPECT_TRUE(etat.optimisationActive);
  EXPECT_TRUE(etat.optimisationCochee);
  EXPECT_EQ(etat.cheminAffiche, trouves.CheminSoffice);
  EXPECT_EQ(OptionsPourChemin(trouves, trouves.CheminSoffice + "/"), (std::array<bool, 3>{false, false, true}));
  EXPECT_EQ(OptionsPourChemin(trouves, ""), (std::array<bool, 3>{false, false, false}));
}

TEST(DossiersDepartRecherche, PathFoldersFirstThenTheUsualPlaces) {
  const char* ancien = std::getenv("PATH");
  const std::string garde = ancien ? ancien : "";
  ::setenv("PATH", "/bin:/usr/bin:/bin", 1);
  const std::vector<std::string> departs = DossiersDepartRecherche();
  ::setenv("PATH", garde.c_str(), 1);
  ASSERT_GE(departs.size(), 5u);
  EXPECT_EQ(std::vector<std::string>(departs.begin(), departs.begin() + 5),
            (std::vector<std::string>{"/bin/", "/usr/bin/", "/usr/lib/", "/opt/", "/usr/local/"}));
}

}  // namespace
}  // namespace norvane
