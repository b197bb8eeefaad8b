// The program's command line, run as a user runs it.
#include <gtest/gtest.h>

#include "app/OptionsLigne.h"
#include "app/Programme.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

TEST(OptionsLigne, AreTakenOutOfTheArguments) {
  std::vector<std::string> a = {"GENERER", "--remplacer", "m.tvm", "--reponse=NON", "--comparer=/d/A.TVL",
                                "r.rtf", "--comparer=/d/B.TVL", "--annees=7", "--ouvrir"};
  const OptionsLigne o = ExtraireOptions(a);
  EXPECT_EQ(a, (std::vector<std::string>{"GENERER", "m.tvm", "r.rtf"}));
  EXPECT_TRUE(o.remplacer && o.ouvrir);
  EXPECT_EQ(o.reponse, Reponse::Non);
  EXPECT_EQ(o.comparer, (std::vector<std::string>{"/d/A.TVL", "/d/B.TVL"}));
  EXPECT_EQ(o.annees, "7");
  EXPECT_TRUE(o.inconnues.empty());
}

TEST(OptionsLigne, BadOnesAreReported) {
  std::vector<std::string> a = {"--reponse=peut-etre", "--page=16", "--page=", "--page=-1", "--vite"};
  EXPECT_EQ(ExtraireOptions(a).inconnues.size(), 5u);
}

TEST(Programme, HelpListsTheVerbsAndVersionAnswers) {
  const Execution aide = Lancer("--help");
  EXPECT_EQ(aide.statut, 0);
  for (const char* verbe : {"INI", "OUVRIR", "CREER", "CERFA", "GRAPH", "GENERER", "METTREAJOUR", "EXPLIQUER",
                            "DOSSIER"}) {
    EXPECT_NE(aide.sortie.find(std::string("  ") + verbe), std::string::npos) << verbe;
  }
  EXPECT_EQ(Lancer("--version").statut, 0);
  EXPECT_EQ(Lancer("--inconnue").statut, 2);
}

TEST(Programme, UnknownVerbDoesNothing) {
  const Execution e = Lancer("RIEN du tout");
  EXPECT_EQ(e.statut, 0);
  EXPECT_EQ(e.sortie, "");
}

TEST(Programme, WindowVerbsSayTheyAreMissing) {
  const Execution e = Lancer("creer /tmp/DUPONT.TVL");
  EXPECT_NE(e.statut, 0);
  EXPECT_NE(e.sortie.find("n'est pas disponible"), std::string::npos);
}

TEST(Programme, IniWithAMissingTemplateEndsQuietly) {
  DossierTemporaire d;
  EXPECT_EQ(Lancer("INI").statut, 0);
  const Execution e = Lancer("INI " + Guillemets(d / "absent#esp#modele.tvm") + " " + Guillemets(d / "r.rtf"));
  EXPECT_EQ(e.statut, 0);
  EXPECT_EQ(e.sortie, "");
  EXPECT_FALSE(d.Existe("r.rtf"));
}

TEST(Programme, IniTakesBlanksFromTheirPlaceholder) {
  DossierTemporaire d;
  d.Ecrire("mon modele.tvm", "{\\rtf1 Bonjour #tvl(date(18))#}");
  const Execution e = Lancer("ini " + Guillemets(d / "mon#esp#modele.tvm") + " " + Guillemets(d / "mon#esp#doc.rtf"));
  EXPECT_EQ(e.statut, 0) << e.sortie;
  EXPECT_EQ(d.Lire("mon doc.rtf"), "{\\rtf1 Bonjour \\~\r\n}\r\n");
}

TEST(Programme, GenererReportsWhatItCouldNotDo) {
  DossierTemporaire d;
  EXPECT_EQ(Lancer("GENERER").statut, 2);
  Execution e = Lancer("GENERER " + Guillemets(d / "absent.tvm") + " " + Guillemets(d / "r.rtf"));
  EXPECT_EQ(e.statut, 1);
  EXPECT_NE(e.sortie.find("introuvable ou illisible"), std::string::npos);
  d.Ecrire("m.tvm", "#tvl(inconnu)#");
  e = Lancer("GENERER " + Guillemets(d / "m.tvm") + " " + Guillemets(d / "pas/de/dossier/r.rtf"));
  EXPECT_EQ(e.statut, 1);
  // A template fault is a message, and the document is still written.
  e = Lancer("GENERER " + Guillemets(d / "m.tvm") + " " + Guillemets(d / "r.rtf"));
  EXPECT_EQ(e.statut, 0);
  EXPECT_NE(e.sortie.find("inconnue de l'interpréteur Norvane"), std::string::npos);
  EXPECT_EQ(d.Lire("r.rtf"), "#tvl(inconnu)#\r\n");
}

TEST(Programme, ReplacementFollowsTheCommandLineAnswer) {
  DossierTemporaire d;
  d.Ecrire("m.tvm", "nouveau");
  d.Ecrire("r.rtf", "ancien");
  EXPECT_EQ(Lancer("GENERER " + Guillemets(d / "m.tvm") + " " + Guillemets(d / "r.rtf") + " --reponse=non").statut, 1);
  EXPECT_EQ(d.Lire("r.rtf"), "ancien");
  EXPECT_EQ(Lancer("GENERER " + Guillemets(d / "m.tvm") + " " + Guillemets(d / "r.rtf") + " --reponse=oui").statut, 0);
  EXPECT_EQ(d.Lire("r.rtf"), "nouveau\r\n");
}

}  // namespace
}  // namespace norvane::test
