#include "frame/RechercheEditeur.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"

namespace norvane {
namespace {

class RechercheEditeurTest : public ::testing::Test {
 protected:
  std::string Chercher(const std::string& nom) { return ChercherEditeur(nom, progression, messages, {tmp.Chemin()}); }
  test::DossierTemporaire tmp;
  ProgressionScriptee progression;
  MessagesScriptes messages;
};

TEST_F(RechercheEditeurTest, FindsTheFileAndMovesTheGaugeOnceAFolder) {
  tmp.Ecrire("a/b/c/soffice", "");
  EXPECT_EQ(Chercher("soffice"), tmp / "a/b/c/soffice");
  EXPECT_EQ(progression.textes, (std::vector<std::string>{"Recherche de soffice sur votre PC", ""}));
  EXPECT_EQ(progression.pourcentages, (std::vector<int>{10, 15, 20, 25, 30, 100}));
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(RechercheEditeurTest, BreadthFirstWithoutRegardToCaseAndNoFolderAsHit) {
  tmp.Ecrire("x/y/z/soffice", "");
  tmp.Ecrire("q/SOFFICE", "");
  std::filesystem::create_directories(tmp / "soffice");
  EXPECT_EQ(Chercher("soffice"), tmp / "q/SOFFICE");
}

TEST_F(RechercheEditeurTest, AWalkWithoutHitEndsDespiteLinkLoopsWithTheGaugeAt90AtMost) {
  for (int i = 0; i < 30; ++i) std::filesystem::create_directories(tmp / ("d" + std::to_string(i)));
  std::filesystem::create_directory_symlink(tmp.Chemin(), tmp / "d0/boucle");
  EXPECT_EQ(ChercherEditeur("winword.exe", progression, messages, {tmp / "absent", tmp.Chemin()}), "");
  EXPECT_EQ(progression.pourcentages.back(), 100);
  EXPECT_EQ(*std::max_element(progression.pourcentages.begin(), progression.pourcentages.end() - 1), 90);
  EXPECT_EQ(progression.appelsArret, 33);  // one look at each folder queued: the loop is not followed
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(RechercheEditeurTest, AStopRequestCancelsWithAMessage) {
  tmp.Ecrire("a/b/soffice", "");
  progression.arretApres = 2;
  EXPECT_EQ(Chercher("soffice"), "");
  EXPECT_EQ(messages.Journal(), "Choix d'un éditeur de texte pour Norvane: Recherche de soffice annulée.\n");
  EXPECT_EQ(progression.pourcentages, (std::vector<int>{10, 15, 20, 100}));
}

TEST_F(RechercheEditeurTest, LibreOfficeFillsTheOpenOfficeSlotAndTheChoiceWindowFollows) {
  tmp.Ecrire("usr/bin/libreoffice", "");
  const EditeursTrouves trouves = DetecterEditeurs(progression, messages, {tmp.Chemin()});
  const std::string trouve = tmp / "usr/bin/libreoffice";
  EXPECT_EQ(trouves.CheminWinword + "|" + trouves.CheminWordpro + "|" + trouves.CheminSoffice, "||" + trouve);
  Options o;
  o.CheminEditeur = " " + trouve + " ";
  o.OptimisationOOo = 1;
  const EtatChoixEditeur etat = EtatFenetreChoix(trouves, o);
  const std::array<bool, 3> openOfficeSeul = {false, false, true};
  EXPECT_TRUE(etat.actif == openOfficeSeul && etat.coche == openOfficeSeul);
  EXPECT_TRUE(etat.optimisationActive && etat.optimisationCochee);
  EXPECT_EQ(etat.cheminAffiche, trouve);
  EXPECT_FALSE(EtatFenetreChoix(EditeursTrouves{}, o).optimisationCochee);  // no OpenOffice: the box is cleared
  EXPECT_EQ(OptionsPourChemin(trouves, trouve + "/"), openOfficeSeul);
  EXPECT_EQ(OptionsPourChemin(trouves, ""), (std::array<bool, 3>{}));
}

TEST(DossiersDepartRecherche, PathFoldersOnceThenTheUsualPlaces) {
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
