// The checker on the broken example template and on the example templates:
// each fault at its place, and a code called valid generating silently.
#include <gtest/gtest.h>

#include <filesystem>

#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "study/DossierGeneral.h"
#include "support/PortsScriptes.h"
#include "template/Interpreteur.h"
#include "verification/Rapport.h"
#include "verification/VerificationModele.h"

namespace norvane {
namespace {

std::string Source(const std::string& chemin) {
  return LireFichier(std::string(NORVANE_SOURCE_DIR) + "/" + chemin).value_or(std::string());
}

// The example dossier of the installation tree in slot 0: formulas and
// series then have values to read.
void DossierExemple(Session& session) {
  session.RepDossier[0] = std::string(NORVANE_ARBRE) + "/Dossier/";
  session.NomDossier[0] = "MARTIN_PAUL.TVL";
}

std::vector<CodeVerifie> Verifier(const std::string& contenu) {
  Session session;
  DossierExemple(session);
  const EntitesCourantes entites;
  return VerifierModele(session, entites, contenu);
}

TEST(VerificationModele, EachFaultOfTheBrokenTemplateAtItsPlace) {
  const auto codes = Verifier(Source("exemple/modeles/Verification/Casse.tvm"));
  struct Attendu {
    int ligne, colonne, page;
    bool valide;
    std::string message;  // a part of it
  } attendus[] = {
      {3, 30, 1, true, ""},  // torn by formatting
      {4, 17, 1, true, ""},  // torn across two lines
      {6, 9, 1, false, "\"villeExploit\" dans le modèle est inconnue"},
      {8, 14, 2, false, "\"conseillerEtude\" dans le modèle est inconnue"},
      {9, 6, 2, false, "il manque la balise \")alors:\""},
      {10, 1, 2, false, "(ligne 2 du tableau) : hauteur ou marge de ligne non numérique"},
      {12, 1, 3, false, "Le crochet \"[\", annonçant une série"},
      {13, 8, 3, true, ""},
      {14, 7, 3, false, "ne trouve pas la balise de fin d'un code"},
  };
  ASSERT_EQ(codes.size(), std::size(attendus));
  for (std::size_t i = 0; i < codes.size(); ++i) {
    const CodeVerifie& c = codes[i];
    const Attendu& a = attendus[i];
    EXPECT_EQ(c.place.ligne, a.ligne) << i;
    EXPECT_EQ(c.place.colonne, a.colonne) << i;
    EXPECT_EQ(c.place.page, a.page) << i;
    EXPECT_EQ(c.statut == Statut::Valide, a.valide) << i << " " << c.message;
    EXPECT_NE(c.message.find(a.message), std::string::npos) << i << " " << c.message;
  }
  EXPECT_EQ(codes[0].code, "#tvl(nomExploit)#");
  EXPECT_EQ(codes[1].code, "#tvl(nomSociete)#");
  EXPECT_EQ(Nombre(codes, Statut::Erreur), 6u);
}

TEST(VerificationModele, JsonHoldsEveryCodeWithItsTextsEscaped) {
  const auto codes = Verifier(Source("exemple/modeles/Verification/Casse.tvm"));
  const std::string json = RapportJson(codes, false);
  std::size_t objets = 0;
  for (auto p = json.find("{\"ligne\": "); p != std::string::npos; p = json.find("{\"ligne\": ", p + 1)) ++objets;
  EXPECT_EQ(objets, codes.size());
  EXPECT_EQ(json.find("\"valeur\""), std::string::npos);
  EXPECT_NE(RapportJson(codes, true).find("\"valeur\": "), std::string::npos);
  const std::pair<std::string, std::string> cas[] = {
      {"a\"b", "\"a\\\"b\""}, {"a\\b", "\"a\\\\b\""}, {"a\nb\tc", "\"a\\nb\\tc\""}, {std::string("\x01", 1), "\"\\u0001\""},
      {"é", "\"é\""}};
  for (const auto& [texte, attendu] : cas) EXPECT_EQ(ChaineJson(texte), attendu) << texte;
  EXPECT_EQ(RapportJson({}, false), "[]\n");
}

// Every example template checks clean, and each of its codes, interpreted
// as the generator does, shows no box.
TEST(VerificationModele, ExampleTemplatesCheckCleanAndGenerateSilently) {
  if (!DossierExiste(std::string(NORVANE_ARBRE) + "/Dossier/MARTIN_PAUL.TVL")) GTEST_SKIP() << "example dossier not built";
  std::size_t modeles = 0;
  for (const auto& entree : std::filesystem::directory_iterator(std::string(NORVANE_SOURCE_DIR) + "/exemple/modeles")) {
    if (entree.path().extension() != ".tvm") continue;
    ++modeles;
    const auto codes = Verifier(LireFichier(entree.path().string()).value_or(std::string()));
    EXPECT_FALSE(codes.empty()) << entree.path();
    EXPECT_EQ(Nombre(codes, Statut::Erreur), 0u) << entree.path();
    Session session;
    DossierExemple(session);
    ChargerInfoDossier(session);
    MessagesScriptes messages;
    ProgressionMuette progression;
    const EntitesCourantes entites;
    Generation generation(session, messages, progression, entites);
    for (const CodeVerifie& c : codes) {
      std::string texte = c.code;
      InterpreterPortion(generation, texte, false);
      EXPECT_TRUE(messages.messages.empty()) << c.code << " " << (messages.messages.empty() ? "" : messages.messages[0].texte);
      messages.messages.clear();
    }
  }
  EXPECT_GE(modeles, 5u);
}

// The checker takes the walk of generation: a code in the property block is
// passed over, a bookmark inside a start mark moved out, a paragraph mark cut
// after a false condition with the character behind it; and every code is
// still placed where it stood in the file, whatever the font table, the cut
// or the gluing moved.
TEST(VerificationModele, TheCheckerMeetsTheCodesThatGenerationMeets) {
  Session session;
  const EntitesCourantes entites;
  const std::string contenu =
      "{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\info{\\title #tvl(motDuTitre)#}{\\author A}}\r\n"
      "X #tvl{\\*\\bkmkend DDE_LINK1}(nomExploit)# #tvl(si(0<>0)alors:nomExploit)# Y\\par#tvl(cache)# \\par\r\n"
      "Z #tvl(nom\r\nSociete)# #tvl(motInconnu)#\\par}";
  const auto codes = VerifierModele(session, entites, contenu);
  ASSERT_EQ(codes.size(), 4u);
  const std::pair<std::string, int> attendus[] = {
      {"#tvl(nomExploit)#", 3}, {"#tvl(si(0<>0)alors:nomExploit)#", 43}, {"#tvl(nomSociete)#", 3}, {"#tvl(motInconnu)#", 11}};
  const int lignes[] = {2, 2, 3, 4};
  for (std::size_t i = 0; i < codes.size(); ++i) {
    EXPECT_EQ(codes[i].code, attendus[i].first) << i;
    EXPECT_EQ(codes[i].place.ligne, lignes[i]) << i;
    EXPECT_EQ(codes[i].place.colonne, attendus[i].second) << i;
  }
  EXPECT_EQ(codes[3].statut, Statut::Erreur);
  EXPECT_EQ(Nombre(codes, Statut::Erreur), 1u);
}

// A start mark whose end mark lies beyond a long line is told as generation
// tells it, and the walk goes on, as generation does, to the codes behind.
TEST(VerificationModele, TheWalkGoesOnPastACodeWithoutItsEndMark) {
  Session session;
  const EntitesCourantes entites;
  const std::string longue(25000, 'x');
  const std::string contenu = "{\\rtf1\r\n" + std::string(1200, 'y') + "A #tvl(nomExploit\\par\r\n" + longue +
                              "\r\n" + longue + "\r\nB #tvl(motInconnu)# #tvl(nomSociete)#\\par\r\n}\r\n";
  const auto codes = VerifierModele(session, entites, contenu);
  ASSERT_EQ(codes.size(), 3u);
  EXPECT_EQ(codes[0].code, "#tvl(nomExploit\\par");
  EXPECT_NE(codes[0].message.find("ne trouve pas la balise de fin"), std::string::npos);
  EXPECT_EQ(codes[0].place.ligne, 2);
  EXPECT_EQ(codes[0].place.colonne, 1203);
  // The outer mark stays in the text, so the unknown word is met inside it.
  EXPECT_NE(codes[1].message.find("\"motInconnu\" dans le modèle est inconnue"), std::string::npos);
  EXPECT_EQ(codes[2].code, "#tvl(nomSociete)#");
  EXPECT_EQ(codes[2].place.ligne, 5);
  EXPECT_EQ(codes[2].place.colonne, 21);
}

// Without a dossier only the syntax counts: a formula over series is valid,
// an unknown word is still a fault.
TEST(VerificationModele, WithoutADossierOnlyTheSyntaxCounts) {
  Session session;
  const EntitesCourantes entites;
  const auto codes = VerifierModele(session, entites,
                                    "{\\rtf1 #tvl(formule:1a:LG(RES-17)/LG(RES-1)*100:1)# #tvl(motInconnu)#}");
  ASSERT_EQ(codes.size(), 2u);
  EXPECT_EQ(codes[0].statut, Statut::Valide) << codes[0].message;
  EXPECT_EQ(codes[1].statut, Statut::Erreur);
  EXPECT_EQ(Nombre(codes, Statut::Erreur), 1u);
}

}  // namespace
}  // namespace norvane
