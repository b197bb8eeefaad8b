// The fonts 5000..5156 and the 16 program colours added to a template's RTF.
#include "template/TablePolices.h"

#include <gtest/gtest.h>

#include <string>

namespace norvane {
namespace {

const std::string kCouleurs =
    "\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red0\\green255\\blue255;\\red0\\green255\\blue0;"
    "\\red255\\green0\\blue255;\\red255\\green0\\blue0;\\red255\\green255\\blue0;\\red255\\green255\\blue255;"
    "\\red0\\green0\\blue128;\\red0\\green128\\blue128;\\red0\\green128\\blue0;\\red128\\green0\\blue128;"
    "\\red128\\green0\\blue0;\\red128\\green128\\blue0;\\red128\\green128\\blue128;\\red192\\green192\\blue192";

TEST(NomPolice, NumbersOfTheListAndTheFallBack) {
  EXPECT_EQ(NomPolice(5000), "Abadi MT Condensed Light");
  EXPECT_EQ(NomPolice(5006), "Arial");
  EXPECT_EQ(NomPolice(5050), "fixed");
  EXPECT_EQ(NomPolice(5054), "Franklin Gothic No.2");
  EXPECT_EQ(NomPolice(5138), "Times New Roman");
  EXPECT_EQ(NomPolice(5156), "Wonton ICG");
  EXPECT_EQ(NomPolice(4999), "Arial");
  EXPECT_EQ(NomPolice(5157), "Arial");
  EXPECT_EQ(NomPolice(0), "Arial");
  EXPECT_EQ(NomPolice(-5006), "Arial");
}

TEST(NumeroPolice, FindsTheNumberByExactName) {
  EXPECT_EQ(NumeroPolice("Abadi MT Condensed Light"), "5000");
  EXPECT_EQ(NumeroPolice("Times New Roman"), "5138");
  EXPECT_EQ(NumeroPolice("Wonton ICG"), "5156");
  EXPECT_EQ(NumeroPolice("Fixedsys"), "5052");
  EXPECT_EQ(NumeroPolice("Unknown Sans"), "5006");
  EXPECT_EQ(NumeroPolice(""), "5006");
  EXPECT_EQ(NumeroPolice("times new roman"), "5006");
}

TEST(NumeroPolice, EveryNameGoesBackToItsNumber) {
  for (int numero = kPremierePolice; numero <= kDernierePolice; ++numero) {
    EXPECT_EQ(NumeroPolice(NomPolice(numero)), std::to_string(numero));
  }
}

TEST(EtendrePolices, EntriesGoRightBehindTheWordBeforeTheTemplatesOwn) {
  std::string texte = "{\\rtf1\\ansi{\\fonttbl{\\f0\\froman Times;}}\\f0 Texte}";
  EtendrePolices(texte);
  const std::string debut = "{\\rtf1\\ansi{\\fonttbl{\\f5000\\fnil Abadi MT Condensed Light;}{\\f5001\\fnil AGaramond;}";
  EXPECT_EQ(texte.substr(0, debut.size()), debut);
  const std::string fin = "{\\f5155\\fnil Wingdings 3;}{\\f5156\\fnil Wonton ICG;}{\\f0\\froman Times;}}\\f0 Texte}";
  ASSERT_GE(texte.size(), fin.size());
  EXPECT_EQ(texte.substr(texte.size() - fin.size()), fin);
  EXPECT_NE(texte.find("{\\f5006\\fnil Arial;}{\\f5007\\fnil Arial Black;}"), std::string::npos);
}

TEST(EtendrePolices, WordIsFoundWithoutRegardToCase) {
  std::string texte = "{\\FontTbl}";
  EtendrePolices(texte);
  EXPECT_EQ(texte.substr(0, 20), "{\\FontTbl{\\f5000\\fni");
  EXPECT_EQ(texte.back(), '}');
}

TEST(EtendrePolices, NoFontTableGetsNone) {
  std::string texte = "{\\rtf1\\ansi Bonjour #tvl(nomExploit)#}";
  EtendrePolices(texte);
  EXPECT_EQ(texte, "{\\rtf1\\ansi Bonjour #tvl(nomExploit)#}");
}

TEST(EtendrePolices, APieceProcessedTwiceGetsTheEntriesTwice) {
  std::string texte = "{\\fonttbl}";
  EtendrePolices(texte);
  std::size_t une = texte.size();
  EtendrePolices(texte);
  EXPECT_EQ(texte.size() - 10, 2 * (une - 10));
}

TEST(EtendreCouleurs, EmptyTableGetsTheSixteenColoursAndCountsNone) {
  std::string texte = "{\\colortbl;}";
  int16_t prochaine = 0;
  EtendreCouleurs(texte, prochaine);
  EXPECT_EQ(texte, "{\\colortbl;" + kCouleurs + ";}");
  EXPECT_EQ(prochaine, 0);
}

TEST(EtendreCouleurs, TemplateColoursAreCountedAndKeptFirst) {
  std::string texte = "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\\cf1 Texte}";
  int16_t prochaine = 0;
  EtendreCouleurs(texte, prochaine);
  EXPECT_EQ(texte, "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;" + kCouleurs +
                       ";}\\cf1 Texte}");
  EXPECT_EQ(prochaine, 2);
}

TEST(EtendreCouleurs, CountRunsToTheEndOfThePieceAndAddsToTheFormerCount) {
  std::string texte = "{\\colortbl;\\red1\\green2\\blue3;}{\\stylesheet{\\s0 Normal;\\b}}";
  int16_t prochaine = 3;
  EtendreCouleurs(texte, prochaine);
  EXPECT_EQ(prochaine, 5);
}

TEST(EtendreCouleurs, NothingHappensWithoutTableOrEnd) {
  for (std::string texte : {"{\\rtf1 rien}", "{\\colortbl;\\red1\\green2\\blue3", "{\\colortbl\\red1;}"}) {
    std::string avant = texte;
    int16_t prochaine = 0;
    EtendreCouleurs(texte, prochaine);
    EXPECT_EQ(texte, avant);
    EXPECT_EQ(prochaine, 0);
  }
}

}  // namespace
}  // namespace norvane
