// The generator on whole templates: pieces, torn codes, the end-mark fault,
// the property block, false conditions, the replacement question, and the
// update of result documents.
#include <gtest/gtest.h>

#include <string>

#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"
#include "support/BancInterpreteur.h"
#include "template/Generateur.h"

namespace norvane::test {
namespace {

class GenerateurTest : public BancInterpreteur {
 protected:
  GenerateurTest() {
    Info().NomExploitation = "DUPONT Jean";
    Info().Commune = "Rennes";
  }

  // The result of a template given as its bytes.
  std::string Generer(const std::string& modele, bool demanderRemplacement = false) {
    dossier.Ecrire("modele.tvm", modele);
    dernier = CreerDocument(generation, dossier / "modele.tvm", dossier / "resultat.rtf",
                            {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = demanderRemplacement});
    return dossier.Lire("resultat.rtf");
  }

  std::string MettreAJour(const std::string& document) {
    dossier.Ecrire("document.rtf", document);
    dernier = CreerDocument(generation, dossier / "document.rtf", dossier / "document.rtf",
                            {.miseAJour = true, .sansOuvrir = true, .demanderRemplacement = true});
    return dossier.Lire("document.rtf");
  }

  DossierTemporaire dossier;
  ResultatDocument dernier;
};

std::string Repeter(char c, std::size_t n) { return std::string(n, c); }

// Templates and the exact bytes they give: pieces cut at line ends once past
// 1000 characters, a line end behind each code, torn marks glued, the tail of
// a last piece with "#" lost, the property block passed through, the
// paragraph mark cut after a false condition, a bookmark moved out of a mark.
TEST_F(GenerateurTest, TemplatesGiveTheirExactBytes) {
  const std::string a = Repeter('a', 600), b = Repeter('b', 600), x = Repeter('x', 1000);
  const std::pair<std::string, std::string> cas[] = {
      {"", "\r\n"},
      {a + "\r\n" + b + "\n" + "ccc\n", a + b + "\r\nccc\r\n"},
      {"x #tvl(nomExploit)# y #TVL(commune)#z", "x DUPONT Jean\r\n y Rennes\r\nz\r\n"},
      {Repeter('a', 998) + "#tv\r\nl(nomExploit)#z", Repeter('a', 998) + "DUPONT Jean\r\nz\r\n"},
      {Repeter('a', 997) + "#tvl(\r\n" + Repeter(' ', 1200) + "\r\nnomExploit)#.",
       Repeter('a', 997) + "DUPONT Jean\r\n.\r\n"},
      {Repeter('a', 996) + "1 # 2\r\nbcdefgh", Repeter('a', 996) + "1 # 2bcdefgh\r\n"},
      {"premier" + x + "\r\nfin #", "premier" + x + "\r\n"},
      {"{\\info{\\title #tvl(nomExploit)#}{\\author A}} #tvl(commune)#",
       "{\\info{\\title #tvl(nomExploit)#}{\\author A}} Rennes\r\n"},
      {"{\\title #tvl(nomExploit)#} #tvl(commune)#", "{\\title #tvl(nomExploit)#} #tvl(commune)#\r\n"},
      {"#tvl(si(0<>0)alors:commune)# cach\\'e9\\par suite\\par fin", "\\v\r\n cach\\'e9\\psuite\\par fin\r\n"},
      {"#tvl(si(1<>0)alors:commune)#\\par suite", "Rennes\r\n\\par suite\r\n"},
      {"#tvl{\\*\\bkmkend DDE_LINK1}(commune)#", "{\\*\\bkmkend DDE_LINK1}Rennes\r\n"},
  };
  for (const auto& [modele, attendu] : cas) {
    EXPECT_EQ(Generer(modele), attendu) << modele.substr(0, 80);
    EXPECT_TRUE(dernier.ecrit);
  }
  Generer("x #tvl(nomExploit)# y #TVL(commune)#z");
  EXPECT_EQ(dernier.nbCodes, 2);
  EXPECT_EQ(progression.pourcentages.back(), 100);
}

TEST_F(GenerateurTest, MissingEndMarkBeyondTheGluingLimitStandsInTheResult) {
  const std::string code = "#tvl(nomExploit" + Repeter('x', 1000);
  const std::string long_ = Repeter('y', 25000);
  const std::string r = Generer(code + "\r\n" + long_);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].titre, "Le modèle de document comporte une erreur !");
  EXPECT_EQ(messages.messages[0].conseil.find("Le code concerné est : " + code.substr(0, 62) + "...\n"), 0u);
  EXPECT_NE(r.find(Cp("Norvane n'a pas pû interpréter le code qui suit car il n'a pas trouvé la balise de fin "
                      "\")#\" : #tvl(nomExploit")),
            std::string::npos);
  EXPECT_NE(r.find(long_), std::string::npos);
}

TEST_F(GenerateurTest, MissingEndMarkInTheLastPieceKeepsItsText) {
  const std::string r = Generer("avant #tvl(nomExploit");
  EXPECT_EQ(r, "avant " + Cp("Norvane n'a pas pû interpréter le code qui suit car il n'a pas trouvé la balise de "
                             "fin \")#\" : #tvl(nomExploit\r\n"));
}

TEST_F(GenerateurTest, ExistingResultIsKeptWhenTheUserSaysNo) {
  dossier.Ecrire("resultat.rtf", "ancien");
  messages.reponses = {Reponse::Non};
  EXPECT_EQ(Generer("#tvl(commune)#", true), "ancien");
  EXPECT_TRUE(dernier.abandonne);
  ASSERT_EQ(messages.questions.size(), 1u);
  EXPECT_EQ(messages.questions[0].texte, "Le document demandé existe déjà !\nVoulez-vous le remplacer ?");
  EXPECT_EQ(messages.questions[0].boutonParDefaut, 1);
  messages.reponses = {Reponse::Oui};
  EXPECT_EQ(Generer("#tvl(commune)#", true), "Rennes\r\n");
}

TEST_F(GenerateurTest, UnreadableTemplateOrResultIsReported) {
  dernier = CreerDocument(generation, dossier / "absent.tvm", dossier / "r.rtf",
                          {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
  EXPECT_FALSE(dernier.ecrit);
  dossier.Ecrire("m.tvm", "x");
  dernier = CreerDocument(generation, dossier / "m.tvm", dossier / "sans/dossier/r.rtf",
                          {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
  EXPECT_FALSE(dernier.ecrit);
  EXPECT_EQ(messages.messages.size(), 2u);
}

TEST_F(GenerateurTest, DocResultLosesItsRtfTwin) {
  dossier.Ecrire("m.tvm", "texte");
  dossier.Ecrire("r.rtf", "jumeau");
  CreerDocument(generation, dossier / "m.tvm", dossier / "r.doc",
                {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
  EXPECT_EQ(dossier.Lire("r.doc"), "texte\r\n");
  EXPECT_FALSE(dossier.Existe("r.rtf"));
  // No word processor is bound: the conversion to .doc says so.
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].texte, "Aucun traitement de texte n'est actuellement lié à Norvane !");
}

TEST_F(GenerateurTest, UpdateRecomputesOneFieldAPiece) {
  const std::string champ = "{\\v #debdata#}ancien{\\v #findata=#tvl(commune)#}";
  const std::string r = MettreAJour("debut " + champ + " reste\r\nautre ligne");
  EXPECT_EQ(r, "debut {\\v #findata=Rennes}\r\n");
  EXPECT_EQ(dernier.nbChampsMisAJour, 1);
  // The marks are gone: a second update finds no field.
  EXPECT_EQ(MettreAJour(r), r);
  EXPECT_EQ(dernier.nbChampsMisAJour, 0);
}

// Without fields a document is rewritten unchanged but for its line breaks;
// a field spread over pieces is glued.
TEST_F(GenerateurTest, UpdateKeepsTextAndGluesFields) {
  EXPECT_EQ(MettreAJour("{\\rtf1 texte\r\nsuite}"), "{\\rtf1 textesuite}\r\n");
  EXPECT_EQ(dernier.nbChampsMisAJour, 0);
  EXPECT_EQ(MettreAJour("{\\v #debdata#}" + Repeter('v', 1000) + "\r\n{\\v #findata=#tvl(commune)#}"),
            "{\\v #findata=Rennes}\r\n");
  EXPECT_EQ(dernier.nbChampsMisAJour, 1);
}

// Broken templates of every kind end with a result, never a crash or a hang.
TEST_F(GenerateurTest, AnyTemplateEndsWithAResult) {
  uint32_t graine = 12345;
  auto hasard = [&graine] { return graine = graine * 1103515245u + 12345u, (graine >> 16) & 0x7FFF; };
  const std::string morceaux[] = {
      "#tvl(",          ")#",   "#TVL(", "\\par", "{\\title", "\\author",    "{\\fonttbl",      "{\\colortbl;",
      "si(0<>0)alors:", "\r\n", "#",     ")",     "INFO:",    "formule:1a:", "{\\v #debdata#}", "{\\v #findata=#tvl(",
      "nomExploit",     "a-b"};
  for (int essai = 0; essai < 300; ++essai) {
    std::string modele;
    const int longueur = static_cast<int>(hasard() % 400);
    for (int k = 0; k < longueur; ++k) {
      if (hasard() % 3 == 0) {
        modele += morceaux[hasard() % std::size(morceaux)];
      } else {
        modele += static_cast<char>(hasard() % 256);
      }
    }
    Generer(modele);
    EXPECT_TRUE(dernier.ecrit);
    MettreAJour(modele);
  }
}

// A piece glued again and again keeps its font table, which is extended at
// each round; a code far behind it is still read whole.
TEST_F(GenerateurTest, CodeBehindALongGluedHeadIsRead) {
  std::string modele = "{\\fonttbl;}";
  for (int k = 0; k < 30; ++k) modele += Repeter('a', 1000) + "#\r\n";
  const std::string r = Generer(modele + Repeter('b', 70000) + " #tvl(commune)# fin");
  EXPECT_NE(r.find(Repeter('b', 70000) + " Rennes\r\n fin\r\n"), std::string::npos);
}

TEST_F(GenerateurTest, HugeUnendedCodeIsReportedOnce) {
  const std::string r = Generer("debut #tvl(" + Repeter('x', 5 << 20) + "\r\nfin");
  EXPECT_EQ(messages.messages.size(), 1u);
  EXPECT_GT(r.size(), std::size_t{5} << 20);
}

}  // namespace
}  // namespace norvane::test
