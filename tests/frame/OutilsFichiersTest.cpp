#include "frame/EcritureAtomique.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

#include "support/DossierTemporaire.h"

namespace norvane {
namespace {

using test::DossierTemporaire;

TEST(AjouterAntislash, TrimsAndEndsWithOneSeparator) {
  EXPECT_EQ(AjouterAntislash("  /home/a b  "), "/home/a b/");
  EXPECT_EQ(AjouterAntislash("C:\\Etudes\\"), "C:\\Etudes\\");
  EXPECT_EQ(AjouterAntislash("   "), "");
}

TEST(RemplaceTexte, IgnoresCaseAndNeverRescansAReplacement) {
  EXPECT_EQ(RemplaceTexte("Bonjour BONJOUR bOnJoUr", "bonjour", "x"), "x x x");
  EXPECT_EQ(RemplaceTexte("aXa", "a", "aa"), "aaXaa");  // the replacement holds the sought text: it still ends
  EXPECT_EQ(RemplaceTexte("abab", "ab", "b"), "bb");
  EXPECT_EQ(RemplaceTexte("", "a", "b"), "");
  EXPECT_EQ(RemplaceTexte("abc", "", "x"), "abc");
}

TEST(CheminVersUrl, DriveLetterPathsKeepTheirOldFormLinuxPathsArePercentEncoded) {
  EXPECT_EQ(CheminVersUrl("C:\\Mes Documents\\a.doc"), "file:///C|/Mes%20Documents/a.doc");
  EXPECT_EQ(CheminVersUrl("/tmp/\xC3\xA9t\xC3\xA9 #1%.rtf"), "file:///tmp/%C3%A9t%C3%A9%20%231%25.rtf");
  EXPECT_EQ(CheminVersUrl("/home\\dossier\\x.rtf"), "file:///home/dossier/x.rtf");
  const std::string relatif = CheminVersUrl("rel.rtf");
  EXPECT_TRUE(relatif.starts_with("file:///") && relatif.ends_with("/rel.rtf")) << relatif;
}

TEST(CreeArborescence, MakesEachPrefixUpToTheLastSeparatorReusingAFolderOfAnotherCase) {
  DossierTemporaire tmp;
  CreeDossier(tmp / "Modeles");
  CreeArborescence(tmp / "MODELES/b/c");
  EXPECT_TRUE(tmp.Existe("Modeles/b"));
  EXPECT_FALSE(tmp.Existe("Modeles/b/c"));
  EXPECT_FALSE(tmp.Existe("MODELES"));
  CreeArborescence(tmp / "Modeles\\b\\c\\d\\");
  EXPECT_TRUE(tmp.Existe("Modeles/b/c/d"));
}

TEST(ResoudreChemin, MatchesEachComponentWithoutRegardToCaseOrCodePage) {
  DossierTemporaire tmp;
  tmp.Ecrire("Etudes/DUPONT.TVL/res.don", "x");
  tmp.Ecrire("\xC3\xA9t\xC3\xA9.txt", "x");  // "été.txt" in UTF-8
  EXPECT_EQ(ResoudreChemin(tmp / "etudes\\dupont.tvl\\RES.DON"), tmp / "Etudes/DUPONT.TVL/res.don");
  EXPECT_EQ(ResoudreChemin(tmp / "Etudes/DUPONT.TVL/"), tmp / "Etudes/DUPONT.TVL/");
  EXPECT_EQ(ResoudreChemin(tmp / "\xC9T\xC9.TXT"), tmp / "\xC3\xA9t\xC3\xA9.txt");
  EXPECT_FALSE(ResoudreChemin(tmp / "Etudes/MARTIN.TVL/res.don"));
  EXPECT_FALSE(ResoudreChemin(""));
  EXPECT_EQ(CheminReel(tmp / "ETUDES/Nouveau\\x.svg"), tmp / "Etudes/Nouveau/x.svg");  // missing tail as given
}

TEST(FichierEntier, ReadThroughTheResolverAndReplacedWholeLeavingNoTemporaryFile) {
  DossierTemporaire tmp;
  tmp.Ecrire("Data/Store.bin", std::string("ancien\0\r\n", 9));
  EXPECT_EQ(LireFichier(tmp / "DATA/store.BIN"), std::string("ancien\0\r\n", 9));
  EXPECT_FALSE(LireFichier(tmp / "Data"));
  EXPECT_FALSE(LireFichier(tmp / "Data/absent"));
  ASSERT_TRUE(EcrireFichierAtomique(tmp / "data/STORE.BIN", "neuf"));
  EXPECT_EQ(tmp.Lire("Data/Store.bin"), "neuf");
  EXPECT_FALSE(EcrireFichierAtomique(tmp / "Data", "x"));  // a folder stands there
  EXPECT_FALSE(EcrireFichierAtomique(tmp / "absent/x.txt", "x"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(tmp / "Data"), {}), 1);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(tmp.Chemin()), {}), 1);  // nor "absent/"
}

TEST(FichiersEtDossiers, ExistenceSizeAndDeletionIgnoreCase) {
  DossierTemporaire tmp;
  tmp.Ecrire("Modeles/Lettre.TVM", "12345");
  EXPECT_EQ(TailleFichier(tmp / "modeles/lettre.tvm"), 5);
  EXPECT_EQ(TailleFichier(tmp / "absent"), 0);
  EXPECT_EQ(FichierExiste(tmp / "MODELES/LETTRE.tvm"), 1);
  EXPECT_EQ(FichierExiste(tmp / "Modeles"), 0);  // a folder only with the attribute 16
  EXPECT_EQ(FichierExiste(tmp / "Modeles", 16), 1);
  EXPECT_EQ(FichierExiste(tmp / "Modeles/*.tvm"), 1);
  EXPECT_EQ(FichierExiste(tmp / "Modeles/*.rtf"), 0);
  EXPECT_EQ(FichierExiste("  "), 0);
  EXPECT_TRUE(DossierExiste(tmp / "MODELES/"));
  EXPECT_FALSE(DossierExiste(tmp / "Modeles/Lettre.TVM"));
  SupprimeFichier(tmp / "modeles/LETTRE.TVM");
  EXPECT_FALSE(tmp.Existe("Modeles/Lettre.TVM"));
  SupprimeFichier(tmp / "Modeles/absent.tvm");  // no error
}

}  // namespace
}  // namespace norvane
