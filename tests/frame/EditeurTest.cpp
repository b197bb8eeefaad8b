#include "frame/Editeur.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/DossierTemporaire.h"
#include "frame/Parametres.h"
#include "support/PortsScriptes.h"

namespace norvane {
namespace {

TEST(NomEditeur, DispatchKeyAndShownNameOfABoundPath) {
  const std::tuple<const char*, const char*, const char*, bool> cas[] = {
      {"  ", "", "Aucun", false},
      {"C:\\Program Files\\Office\\WINWORD.EXE\\", "winword.exe", "Microsoft Word", false},
      {" C:\\Lotus\\WordPro.exe ", "wordpro.exe", "Lotus Word Pro", false},
      {"C:\\OpenOffice\\program\\soffice.exe", "soffice.exe", "Sun OpenOffice", true},
      {"/usr/bin/soffice", "soffice", "Sun OpenOffice", true},
      {"/usr/lib/libreoffice/program/soffice.bin", "soffice.bin", "Sun OpenOffice", true},
      {"/usr/bin/libreoffice", "libreoffice", "LibreOffice", true},
      {"C:\\Prog\\EDITEUR.exe", "editeur.exe", "Editeur", false},  // any other: its capitalised name
      {"/opt/\xC9TUDE", "\xE9tude", "\xC3\x89tude", false},        // Windows-1252 in, UTF-8 shown
  };
  for (const auto& [chemin, nom, affichage, openOffice] : cas) {
    EXPECT_EQ(NomEditeur(chemin), nom) << chemin;
    EXPECT_EQ(NomAffichageEditeur(chemin), affichage) << chemin;
    EXPECT_EQ(EstDriverOpenOffice(nom), openOffice) << chemin;
  }
}

TEST(CompleterExe, AFileChosenByHandBecomesAnExe) {
  EXPECT_EQ(CompleterExe("C:\\Prog\\editeur"), "C:\\Prog\\editeur.exe");
  EXPECT_EQ(CompleterExe("C:\\Prog\\editeur.bat"), "C:\\Prog\\editeur.exe");
  EXPECT_EQ(CompleterExe("a.b"), "a.b.exe");  // only a three-letter extension is replaced
  EXPECT_EQ(CompleterExe("   "), "   ");
}

TEST(VerifierEditeur, AsksForTheChoiceWindowOnlyWhenNothingIsBound) {
  Options o;
  o.CheminEditeur = "  ";
  EXPECT_TRUE(VerifierEditeur(o).choixNecessaire);
  o.CheminEditeur = " /usr/bin/soffice/ ";
  const VerificationEditeur v = VerifierEditeur(o);
  EXPECT_FALSE(v.choixNecessaire);
  EXPECT_EQ(v.affichage, "Sun OpenOffice");
  EXPECT_EQ(o.CheminEditeur, "/usr/bin/soffice");
}

class ValiderEditeurTest : public ::testing::Test {
 protected:
  void SetUp() override { session.RepNorvane = tmp / "Norvane/"; }
  std::string CheminEnregistre() const { return ChargerParametres(session.RepNorvane).options.CheminEditeur; }
  test::DossierTemporaire tmp;
  SessionCadre session;
  MessagesScriptes messages;
};

TEST_F(ValiderEditeurTest, StoresTheTrimmedPathAndABlankOneWarnsButUnbinds) {
  EXPECT_EQ(ValiderEditeur(session, "  /usr/bin/libreoffice  ", messages), "LibreOffice");
  EXPECT_EQ(CheminEnregistre(), "/usr/bin/libreoffice");
  EXPECT_EQ(ValiderEditeur(session, " ", messages), "Aucun");
  EXPECT_EQ(CheminEnregistre(), "");
  EXPECT_EQ(messages.Journal(), "Choix d'un éditeur de texte pour Norvane: Le chemin de l'éditeur choisi est vide !\n");
  EXPECT_EQ(messages.questions.at(0).icone, Icone::Exclamation);
}

TEST_F(ValiderEditeurTest, APathTheSettingsCannotHoldIsRefusedAndTheOldBindingStays) {
  ValiderEditeur(session, "/usr/bin/soffice", messages);
  EXPECT_EQ(ValiderEditeur(session, "/" + std::string(126, 'x'), messages), "Sun OpenOffice");
  EXPECT_EQ(session.options.CheminEditeur, "/usr/bin/soffice");
  EXPECT_EQ(CheminEnregistre(), "/usr/bin/soffice");
  EXPECT_EQ(messages.Journal(),
            "Choix d'un éditeur de texte pour Norvane: Impossible d'enregistrer les paramètres : le chemin de "
            "l'éditeur dépasse 126 caractères (record 1).\n");
}

}  // namespace
}  // namespace norvane
