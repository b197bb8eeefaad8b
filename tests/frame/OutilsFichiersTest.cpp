#include "frame/OutilsFichiers.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "frame/DossierTemporaire.h"

namespace norvane {
namespace {

using test::DossierTemporaire;

TEST(AjouterAntislash, TrimsAndEndsWithOneSeparator) {
  EXPECT_EQ(AjouterAntislash("  /home/a b  "), "/home/a b/");
  EXPECT_EQ(AjouterAntislash("/home/a/"), "/home/a/");
  EXPECT_EQ(AjouterAntislash("C:\\Etudes\\"), "C:\\Etudes\\");
  EXPECT_EQ(AjouterAntislash("   "), "");
}

TEST(RemplaceTexte, IgnoresCaseAndNeverRescansAReplacement) {
  EXPECT_EQ(RemplaceTexte("Bonjour BONJOUR bOnJoUr", "bonjour", "x"), "x x x");
  EXPECT_EQ(RemplaceTexte("aXa", "a", "aa"), "aaXaa");
  EXPECT_EQ(RemplaceTexte("abab", "ab", "b"), "bb");
  EXPECT_EQ(RemplaceTexte("{\\b code}", "\\B ", ""), "{code}");
}

TEST(RemplaceTexte, EmptyTextOrEmptySoughtTextComesBackAsItIs) {
  EXPECT_EQ(RemplaceTexte("", "a", "b"), "");
  EXPECT_EQ(RemplaceTexte("abc", "", "x"), "abc");
}

TEST(CheminVersUrl, DriveLetterPathsKeepTheirOldForm) {
  EXPECT_EQ(CheminVersUrl("C:\\Mes Documents\\a.doc"), "file:///C|/Mes%20Documents/a.doc");
  EXPECT_EQ(CheminVersUrl("d:\\a b"), "file:///d|/a%20b");
}

TEST(CheminVersUrl, LinuxPathsArePercentEncoded) {
  EXPECT_EQ(CheminVersUrl("/home/a b/x.rtf"), "file:///home/a%20b/x.rtf");
  EXPECT_EQ(CheminVersUrl("/tmp/\xC3\xA9t\xC3\xA9#1%.rtf"), "file:///tmp/%C3%A9t%C3%A9%231%25.rtf");
  EXPECT_EQ(CheminVersUrl("/home\\dossier\\x.rtf"), "file:///home/dossier/x.rtf");
  const std::string relatif = CheminVersUrl("rel.rtf");
  EXPECT_EQ(relatif.rfind("file:///", 0), 0u);
  EXPECT_EQ(relatif.substr(relatif.size() - 8), "/rel.rtf");
}

TEST(CreeArborescence, MakesEachPrefixUpToTheLastSeparator) {
  DossierTemporaire tmp;
  CreeArborescence(tmp / "a/b/c");
  EXPECT_TRUE(DossierExiste(tmp / "a/b"));
  EXPECT_FALSE(tmp.Existe("a/b/c"));
  CreeArborescence(tmp / "a\\b\\c\\d\\");
  EXPECT_TRUE(DossierExiste(tmp / "a/b/c/d"));
}

TEST(CreeArborescence, ReusesAFolderThatExistsUnderAnotherCase) {
  DossierTemporaire tmp;
  CreeDossier(tmp / "Modeles");
  CreeArborescence(tmp / "MODELES/Perso/");
  EXPECT_TRUE(tmp.Existe("Modeles/Perso"));
  EXPECT_FALSE(tmp.Existe("MODELES"));
}

TEST(ResoudreChemin, MatchesEveryComponentWithoutRegardToCase) {
  DossierTemporaire tmp;
  tmp.Ecrire("Etudes/DUPONT.TVL/res.don", "x");
  EXPECT_EQ(ResoudreChemin(tmp / "etudes/dupont.tvl/RES.DON"), tmp / "Etudes/DUPONT.TVL/res.don");
  EXPECT_EQ(ResoudreChemin(tmp / "Etudes\\DUPONT.TVL\\RES.don"), tmp / "Etudes/DUPONT.TVL/res.don");
  EXPECT_EQ(ResoudreChemin(tmp / "Etudes/DUPONT.TVL/"), tmp / "Etudes/DUPONT.TVL/");
  EXPECT_FALSE(ResoudreChemin(tmp / "Etudes/MARTIN.TVL/res.don"));
  EXPECT_FALSE(ResoudreChemin(""));
}

TEST(ResoudreChemin, AWindows1252NameFindsItsUtf8Twin) {
  DossierTemporaire tmp;
  tmp.Ecrire("\xC3\xA9t\xC3\xA9.txt", "x");  // "été.txt" in UTF-8
  EXPECT_EQ(ResoudreChemin(tmp / "\xC9T\xC9.TXT"), tmp / "\xC3\xA9t\xC3\xA9.txt");
}

TEST(CheminReel, KeepsTheMissingTailAsGiven) {
  DossierTemporaire tmp;
  CreeDossier(tmp / "Norvane");
  EXPECT_EQ(CheminReel(tmp / "NORVANE/Nouveau.svg"), tmp / "Norvane/Nouveau.svg");
  EXPECT_EQ(CheminReel(tmp / "absent\\x.txt"), tmp / "absent/x.txt");
}

TEST(LireFichier, ReadsThroughTheResolverAndRefusesFolders) {
  DossierTemporaire tmp;
  tmp.Ecrire("Data/Fichier.bin", std::string("a\0b\r\n", 5));
  EXPECT_EQ(LireFichier(tmp / "DATA/fichier.BIN"), std::string("a\0b\r\n", 5));
  EXPECT_FALSE(LireFichier(tmp / "Data"));
  EXPECT_FALSE(LireFichier(tmp / "Data/absent"));
}

TEST(EcrireFichierAtomique, ReplacesTheFileWholeAndLeavesNoTemporaryFile) {
  DossierTemporaire tmp;
  tmp.Ecrire("Store.txt", "ancien contenu plus long");
  ASSERT_TRUE(EcrireFichierAtomique(tmp / "STORE.TXT", "neuf"));
  EXPECT_EQ(tmp.Lire("Store.txt"), "neuf");
  int fichiers = 0;
  for (const auto& e : std::filesystem::directory_iterator(tmp.Chemin())) fichiers += e.is_regular_file();
  EXPECT_EQ(fichiers, 1);
  EXPECT_FALSE(EcrireFichierAtomique(tmp / "absent/x.txt", "x"));
  EXPECT_FALSE(tmp.Existe("absent"));
}

TEST(FichiersEtDossiers, ExistenceSizeAndDeletion) {
  DossierTemporaire tmp;
  tmp.Ecrire("Modeles/Lettre.TVM", "12345");
  EXPECT_EQ(TailleFichier(tmp / "modeles/lettre.tvm"), 5);
  EXPECT_EQ(TailleFichier(tmp / "absent"), 0);
  EXPECT_EQ(FichierExiste(tmp / "MODELES/LETTRE.tvm"), 1);
  EXPECT_EQ(FichierExiste(tmp / "Modeles"), 0);
  EXPECT_EQ(FichierExiste(tmp / "Modeles", 16), 1);
  EXPECT_EQ(FichierExiste(tmp / "Modeles/*.tvm"), 1);
  EXPECT_EQ(FichierExiste(tmp / "Modeles/*.rtf"), 0);
  EXPECT_EQ(FichierExiste("  "), 0);
  EXPECT_TRUE(DossierExiste(tmp / "MODELES/"));
  EXPECT_FALSE(DossierExiste(tmp / "Modeles/Lettre.TVM"));

  ::chmod((tmp / "Modeles/Lettre.TVM").c_str(), 0444);
  SupprimeFichier(tmp / "modeles/LETTRE.TVM");
  EXPECT_FALSE(tmp.Existe("Modeles/Lettre.TVM"));
  SupprimeFichier(tmp / "Modeles/absent.tvm");  // no error
}

}  // namespace
}  // namespace norvane
