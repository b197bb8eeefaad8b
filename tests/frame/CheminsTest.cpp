#include "frame/Chemins.h"

#include <gtest/gtest.h>

#include "frame/DossierTemporaire.h"
#include "frame/OutilsFichiers.h"

namespace norvane {
namespace {

TEST(InitChemins, DerivesEveryFolderFromTheRoot) {
  Session s;
  InitChemins(s, "/opt/Tervol/Norvane");
  EXPECT_EQ(s.RepWinTervol, "/opt/Tervol/");
  EXPECT_EQ(s.RepDatacfg, "/opt/Tervol/Datacfg/");
  EXPECT_EQ(s.RepModelGraph, "/opt/Tervol/ModelGraph/");
  EXPECT_EQ(s.RepNorvane, "/opt/Tervol/Norvane/");
  EXPECT_EQ(s.RepModlDocs, "/opt/Tervol/Norvane/ModlDocs/");
  EXPECT_EQ(s.RepImages, "/opt/Tervol/Norvane/Images/");
  EXPECT_EQ(s.RepSkin, "/opt/Tervol/Norvane/Skin/SkinNorvane");
  EXPECT_EQ(s.RepGuide, kAdresseGuideEnLigne);
}

TEST(InitChemins, WithoutNorvaneInThePathTheRootIsEmpty) {
  Session s;
  InitChemins(s, "/usr/local/bin");
  EXPECT_EQ(s.RepWinTervol, "");
  EXPECT_EQ(s.RepDatacfg, "Datacfg/");
  EXPECT_EQ(s.RepNorvane, "Norvane/");
}

TEST(InitChemins, UpperCaseNorvaneIsFoundAndTheRootKeepsItsCase) {
  Session s;
  InitChemins(s, "/srv/WinTERVOL/NORVANE");
  EXPECT_EQ(s.RepWinTervol, "/srv/WinTERVOL/");
  InitChemins(s, "C:\\winTervol\\Norvane");
  EXPECT_EQ(s.RepWinTervol, "C:/winTervol/");
  InitChemins(s, "/home/norvane-dev/arbre/Norvane");  // the first occurrence counts
  EXPECT_EQ(s.RepWinTervol, "/home/");
}

TEST(InitChemins, AnInstalledGuideFolderIsPreferredToTheOnlineGuide) {
  test::DossierTemporaire tmp;
  CreeArborescence(tmp / "Norvane/GuideNorvane/");
  Session s;
  InitChemins(s, tmp / "Norvane");
  EXPECT_EQ(s.RepGuide, tmp / "Norvane/GuideNorvane/");
}

TEST(DossierExecutable, IsTheFolderOfTheRunningProgram) {
  const std::string dossier = DossierExecutable();
  ASSERT_FALSE(dossier.empty());
  EXPECT_TRUE(DossierExiste(dossier));
  EXPECT_NE(dossier.back(), '/');
}

}  // namespace
}  // namespace norvane
