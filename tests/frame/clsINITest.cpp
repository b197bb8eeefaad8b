#include "frame/clsINI.h"

#include <gtest/gtest.h>

#include "support/DossierTemporaire.h"

namespace norvane {
namespace {

using Paires = std::vector<clsINI::Paire>;
using Noms = std::vector<std::string>;

constexpr char kDonnees[] =
    "; tarifs\r\n"
    "[G\xE9n\xE9ral]\r\n"
    "Prix = 12\r\n"
    "prix=13\r\n"
    "Cle=a=b\r\n"
    "  ;commentaire=1\r\n"
    "Seul\r\n"
    "\r\n"
    "  [ Prix ]  \n"
    "Ble=150\n";

class clsINITest : public ::testing::Test {
 protected:
  void SetUp() override {
    tmp.Ecrire("donnees.INI", kDonnees);
    ini.Filename(tmp / "donnees.INI");
  }
  test::DossierTemporaire tmp;
  clsINI ini;
};

TEST_F(clsINITest, NamesIgnoreCaseTheFirstLikeKeyWinsAndAValueIsCutAtAnEqualSign) {
  EXPECT_EQ(ini.GetKeyFromSection("PRIX", "g\xC9N\xC9RAL"), "12");
  EXPECT_EQ(ini.GetKeyFromSection("ble", " prix "), "150");
  EXPECT_EQ(ini.GetKeyFromSection("Cle", "G\xE9n\xE9ral"), "a");
  EXPECT_TRUE(ini.CheckKey("seul", "G\xE9n\xE9ral"));
  EXPECT_FALSE(ini.CheckKey("seul", "Prix"));
  EXPECT_EQ(ini.GetKeyFromSection("absente", "Prix"), "");
  EXPECT_EQ(ini.GetKeyFromSection("Ble", "absente"), "");
}

TEST_F(clsINITest, CommentsAndBlankLinesAreDroppedUnlessAsked) {
  EXPECT_EQ(ini.GetAllKeysFromSection("G\xE9n\xE9ral"),
            (Paires{{"Prix", "12"}, {"prix", "13"}, {"Cle", "a"}, {"Seul", ""}}));
  EXPECT_EQ(ini.GetAllKeysFromSection("G\xE9n\xE9ral", {}, true),
            (Paires{{"Prix", "12"}, {"prix", "13"}, {"Cle", "a"}, {";commentaire", "1"}, {"Seul", ""}}));
  EXPECT_FALSE(ini.GetAllKeysFromSection("absente"));
}

TEST_F(clsINITest, SortingIsAscendingWithoutRegardToCase) {
  tmp.Ecrire("tri.ini", "[b]\r\n[A]\r\n[c]\r\nz=1\r\nY=2\r\nx=3\r\n");
  const std::string f = tmp / "tri.ini";
  EXPECT_EQ(ini.GetAllSectionsFromInifile(f), (Noms{"b", "A", "c"}));
  EXPECT_EQ(ini.GetAllSectionsFromInifile(f, true), (Noms{"A", "b", "c"}));
  EXPECT_EQ(ini.GetAllKeysFromSection("c", f, false, true), (Paires{{"x", "3"}, {"Y", "2"}, {"z", "1"}}));
}

TEST_F(clsINITest, BlankArgumentsFallBackOnTheProperties) {
  ini.Filename("   " + (tmp / "donnees.INI") + "  ");
  ini.Section = "Prix";
  ini.Key = "Ble";
  EXPECT_TRUE(ini.CheckIniFile());
  EXPECT_EQ(ini.GetKeyFromSection("  ", " "), "150");
}

TEST_F(clsINITest, AMissingFileReadsAsNothingUntilSaveKeyCreatesIt) {
  const std::string f = tmp / "ModAniLib.ini";
  EXPECT_FALSE(ini.CheckIniFile(f));
  EXPECT_FALSE(ini.GetAllSectionsFromInifile(f));
  EXPECT_EQ(ini.GetKeyFromSection("NumLastMod", "GLOBAL", f), "");
  EXPECT_FALSE(ini.SaveKey("4", "NumLastMod", "GLOBAL", f));
  EXPECT_EQ(tmp.Lire("ModAniLib.ini"), "[GLOBAL]\r\nNumLastMod=4\r\n");
}

TEST_F(clsINITest, SaveKeyAnswersFalseButWritesInCrLfAndDeleteAllSectionDeletesNothing) {
  ini.DeleteAllSectionFromInifile();
  EXPECT_EQ(tmp.Lire("donnees.INI"), kDonnees);
  EXPECT_FALSE(ini.SaveKey("160", "BLE", "prix"));
  EXPECT_FALSE(ini.SaveKey("7", "Orge", "Prix"));
  EXPECT_FALSE(ini.SaveKey("1", "Nouvelle", "G\xE9n\xE9ral"));
  EXPECT_FALSE(ini.SaveKey("oui", "ACTIF", "MOD3"));
  EXPECT_EQ(tmp.Lire("donnees.INI"),
            "; tarifs\r\n[G\xE9n\xE9ral]\r\nPrix = 12\r\nprix=13\r\nCle=a=b\r\n  ;commentaire=1\r\nSeul\r\n"
            "Nouvelle=1\r\n\r\n  [ Prix ]  \r\nBle=160\r\nOrge=7\r\n[MOD3]\r\nACTIF=oui\r\n");
}

TEST_F(clsINITest, CreateDeleteAndEmptySectionsKeysAndFiles) {
  ini.DeleteKeyFromSection("PRIX", "G\xE9n\xE9ral");
  EXPECT_EQ(ini.GetKeyFromSection("Prix", "G\xE9n\xE9ral"), "13");
  ini.DeleteSectionFromInifile("g\xE9n\xE9ral");
  EXPECT_EQ(ini.GetAllSectionsFromInifile(), (Noms{"Prix"}));
  ini.CreateIniFile();
  ini.CreateSection("Prix");
  ini.CreateSection("PRIX");
  EXPECT_EQ(tmp.Lire("donnees.INI"), "[Prix]\r\n");
  ini.DeleteIniFile();
  EXPECT_FALSE(tmp.Existe("donnees.INI"));
}

}  // namespace
}  // namespace norvane
