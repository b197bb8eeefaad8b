#include "frame/Editeur.h"

#include <gtest/gtest.h>

#include "frame/DossierTemporaire.h"
#include "frame/Parametres.h"
#include "frame/PortsScriptes.h"

namespace norvane {
namespace {

TEST(NomEditeur, LastComponentInLowerCaseIgnoringATrailingSeparator) {
  EXPECT_EQ(NomEditeur("/usr/bin/soffice"), "soffice");
  EXPECT_EQ(NomEditeur("C:\\Program Files\\Office\\WINWORD.EXE\\"), "winword.exe");
  EXPECT_EQ(NomEditeur(" /opt/lotus/WordPro.exe "), "wordpro.exe");
  EXPECT_EQ(NomEditeur(""), "");
  Options o;
  o.CheminEditeur = "/usr/lib/libreoffice/program/soffice.bin";
  EXPECT_EQ(NomEditeur(o), "soffice.bin");
}

TEST(EstDriverOpenOffice, KnowsTheOpenOfficeExecutables) {
  for (const char* nom : {"soffice", "soffice.bin", "libreoffice", "soffice.exe"}) EXPECT_TRUE(EstDriverOpenOffice(nom));
  for (const char* nom : {"winword.exe", "abiword", ""}) EXPECT_FALSE(EstDriverOpenOffice(nom));
}

TEST(NomAffichageEditeur, ProductNamesOrTheCapitalisedFileName) {
  EXPECT_EQ(NomAffichageEditeur("  "), "Aucun");
  EXPECT_EQ(NomAffichageEditeur("C:\\Office\\WINWORD.EXE\\"), "Microsoft Word");
  EXPECT_EQ(NomAffichageEditeur("C:\\Lotus\\wordpro.exe"), "Lotus Word Pro");
  EXPECT_EQ(NomAffichageEditeur("C:\\OpenOffice\\program\\soffice.exe"), "Sun OpenOffice");
  EXPECT_EQ(NomAffichageEditeur("/usr/bin/soffice"), "Sun OpenOffice");
  EXPECT_EQ(NomAffichageEditeur("/usr/bin/libreoffice"), "LibreOffice");
  EXPECT_EQ(NomAffichageEditeur("C:\\Prog\\EDITEUR.exe"), "Editeur");
  EXPECT_EQ(NomAffichageEditeur("/usr/bin/abiword"), "Abiword");
  EXPECT_EQ(NomAffichageEditeur("/opt/\xC9""CRIRE"), "\xC3\x89""crire");  // Windows-1252 in, UTF-8 out
}

TEST(CompleterExe, MakesAnExeOfAFileChosenByHand) {
  EXPECT_EQ(CompleterExe("C:\\Prog\\editeur"), "C:\\Prog\\editeur.exe");
  EXPECT_EQ(CompleterExe("C:\\Prog\\editeur.bat"), "C:\\Prog\\editeur.exe");
  EXPECT_EQ(CompleterExe("a.b"), "a.b.exe");
  EXPECT_EQ(CompleterExe("   "), "   ");
}

TEST(VerifierEditeur, AskForTheChoiceWindowOnlyWhenNothingIsBound) {
  Options o;
  o.CheminEditeur = "  ";
  EXPECT_TRUE(VerifierEditeur(o).choixNecessaire);
  o.CheminEditeur = " /usr/bin/soffice/ ";
  const VerificationEditeur v = VerifierEditeur(o);
  EXPECT_FALSE(v.choixNecessaire);
  EXPECT_EQ(v.affichage, "Sun OpenOffice");
  EXPECT_EQ(o.CheminEditeur, "/usr/bin/soffice");
}

TEST(ChoisirPopup, TickedBoxShowsTheStartUpWindow) {
  Options o;
  ChoisirPopup(o, 0);
  EXPECT_EQ(o.MasquerPopup, 1);
  ChoisirPopup(o, 1);
  EXPECT_EQ(o.MasquerPopup, 0);
}

class ValiderEditeurTest : public ::testing::Test {
 protected:
  void SetUp() override { session.RepNorvane = tmp / "Norvane/"; }
  test::DossierTemporaire tmp;
  Session session;
  MessagesScriptes messages;
};

TEST_F(ValiderEditeurTest, StoresTheTrimmedPathAndSaves) {
  EXPECT_EQ(ValiderEditeur(session, "  /usr/bin/libreoffice  ", messages), "LibreOffice");
  EXPECT_EQ(session.options.CheminEditeur, "/usr/bin/libreoffice");
  EXPECT_EQ(ChargerParametres(session.RepNorvane).options.CheminEditeur, "/usr/bin/libreoffice");
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(ValiderEditeurTest, ABlankPathWarnsButUnbindsTheEditor) {
  session.options.CheminEditeur = "/usr/bin/soffice";
  EXPECT_EQ(ValiderEditeur(session, " ", messages), "Aucun");
  ASSERT_EQ(messages.questions.size(), 1u);
  EXPECT_EQ(messages.questions[0].titre, "Choix d'un éditeur de texte pour Norvane");
  EXPECT_EQ(messages.questions[0].texte, "Le chemin de l'éditeur choisi est vide !");
  EXPECT_EQ(messages.questions[0].icone, Icone::Exclamation);
  EXPECT_EQ(ChargerParametres(session.RepNorvane).options.CheminEditeur, "");
}

TEST_F(ValiderEditeurTest, APathTooLongForTheSettingsIsRefused) {
  ValiderEditeur(session, "/usr/bin/soffice", messages);
  const std::string avant = tmp.Lire("Norvane/Editeur.svg");
  EXPECT_EQ(ValiderEditeur(session, "/" + std::string(126, 'x'), messages), "Sun OpenOffice");
  EXPECT_EQ(session.options.CheminEditeur, "/usr/bin/soffice");
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_NE(messages.messages[0].texte.find("126"), std::string::npos);
  EXPECT_EQ(tmp.Lire("Norvane/Editeur.svg"), avant);
}

}  // namespace
}  // namespace norvane
