#include "frame/Chemins.h"

#include <gtest/gtest.h>

#include "support/DossierTemporaire.h"
#include "frame/OutilsFichiers.h"

namespace norvane {
namespace {

TEST(InitChemins, TheRootIsWhatStandsBeforeTheFirstNorvaneInAnyCaseAndTheFoldersFollow) {
  const std::pair<const char*, std::string> cas[] = {
      {"/opt/Tervol/Norvane", "/opt/Tervol/"},
      {"/srv/WinTERVOL/NORVANE", "/srv/WinTERVOL/"},  // found in upper case, the root keeps its own case
      {"C:\\winTervol\\Norvane", "C:/winTervol/"},
      {"/home/norvane-dev/arbre/Norvane", "/home/"},  // the first occurrence counts
      {"/usr/local/bin", ""},                         // none: every folder is relative to the working one
  };
  for (const auto& [dossier, racine] : cas) {
    SessionCadre s;
    InitChemins(s, dossier);
    EXPECT_EQ(s.RepWinTervol, racine) << dossier;
    EXPECT_EQ(s.RepDatacfg, racine + "Datacfg/") << dossier;
    EXPECT_EQ(s.RepModelGraph, racine + "ModelGraph/") << dossier;
    EXPECT_EQ(s.RepModlDocs, racine + "Norvane/ModlDocs/") << dossier;
    EXPECT_EQ(s.RepSkin, racine + "Norvane/Skin/SkinNorvane") << dossier;
  }
}

TEST(InitChemins, TheGuideIsTheInstalledFolderOrElseTheOnlineAddress) {
  test::DossierTemporaire tmp;
  SessionCadre s;
  InitChemins(s, tmp / "Norvane");
  EXPECT_EQ(s.RepGuide, kAdresseGuideEnLigne);
  CreeArborescence(tmp / "Norvane/GuideNorvane/");
  InitChemins(s, tmp / "Norvane");
  EXPECT_EQ(s.RepGuide, tmp / "Norvane/GuideNorvane/");
}

}  // namespace
}  // namespace norvane
