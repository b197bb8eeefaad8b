// The fonts 5000..5156 and the 16 program colours added to a template's RTF.
#include "template/TablePolices.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace norvane {
namespace {

TEST(TablePolices, NamesAndNumbersMatchWithArialAsTheFallback) {
  EXPECT_EQ(NomPolice(5000), "Abadi MT Condensed Light");
  EXPECT_EQ(NomPolice(5156), "Wonton ICG");
  for (int hors : {4999, 5157, 0, -5006}) EXPECT_EQ(NomPolice(hors), "Arial") << hors;
  for (int numero = kPremierePolice; numero <= kDernierePolice; ++numero) {
    EXPECT_EQ(NumeroPolice(NomPolice(numero)), std::to_string(numero));
  }
  // The name is compared exactly; any other gives Arial's number.
  for (const char* nom : {"Unknown Sans", "", "times new roman"}) EXPECT_EQ(NumeroPolice(nom), "5006") << nom;
}

TEST(EtendrePolices, EntriesGoBehindTheWordBeforeThoseOfTheTemplate) {
  std::string texte = "{\\rtf1\\ansi{\\fonttbl{\\f0\\froman Times;}}\\f0 Texte}";
  EtendrePolices(texte);
  EXPECT_EQ(texte.find("{\\f5000\\fnil Abadi MT Condensed Light;}{\\f5001\\fnil AGaramond;}"), 20u);
  EXPECT_NE(texte.find("{\\f5006\\fnil Arial;}{\\f5007\\fnil Arial Black;}"), std::string::npos);
  const std::string fin = "{\\f5155\\fnil Wingdings 3;}{\\f5156\\fnil Wonton ICG;}{\\f0\\froman Times;}}\\f0 Texte}";
  EXPECT_EQ(texte.substr(texte.size() - std::min(texte.size(), fin.size())), fin);
  // The word is found whatever its case, and stays: a second pass adds the entries again.
  texte = "{\\FontTbl}";
  EtendrePolices(texte);
  EXPECT_EQ(texte.substr(0, 20), "{\\FontTbl{\\f5000\\fni");
  const std::size_t une = texte.size();
  EtendrePolices(texte);
  EXPECT_EQ(texte.size() - 10, 2 * (une - 10));
  texte = "{\\rtf1\\ansi Bonjour #tvl(nomExploit)#}";  // no font table: none added
  EtendrePolices(texte);
  EXPECT_EQ(texte, "{\\rtf1\\ansi Bonjour #tvl(nomExploit)#}");
}

TEST(EtendreCouleurs, SixteenColoursGoBehindTheTemplatesOwnWhichAreCounted) {
  const std::string couleurs =
      "\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red0\\green255\\blue255;\\red0\\green255\\blue0;"
      "\\red255\\green0\\blue255;\\red255\\green0\\blue0;\\red255\\green255\\blue0;\\red255\\green255\\blue255;"
      "\\red0\\green0\\blue128;\\red0\\green128\\blue128;\\red0\\green128\\blue0;\\red128\\green0\\blue128;"
      "\\red128\\green0\\blue0;\\red128\\green128\\blue0;\\red128\\green128\\blue128;\\red192\\green192\\blue192;";
  const std::string modele = "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;";
  // {piece, count before, piece after, count after}: the count runs to the
  // end of the piece; without the table or its end nothing happens.
  const std::tuple<std::string, int16_t, std::string, int16_t> cas[] = {
      {"{\\colortbl;}", 0, "{\\colortbl;" + couleurs + "}", 0},
      {modele + "}\\cf1 Texte}", 0, modele + couleurs + "}\\cf1 Texte}", 2},
      {modele + "}{\\s0 N;\\b}", 3, modele + couleurs + "}{\\s0 N;\\b}", 6},
      {"{\\rtf1 rien}", 0, "{\\rtf1 rien}", 0},
      {"{\\colortbl;\\red1\\green2\\blue3", 0, "{\\colortbl;\\red1\\green2\\blue3", 0},
      {"{\\colortbl\\red1;}", 0, "{\\colortbl\\red1;}", 0}};
  for (auto [texte, prochaine, apres, compte] : cas) {
    EtendreCouleurs(texte, prochaine);
    EXPECT_EQ(texte, apres);
    EXPECT_EQ(prochaine, compte) << apres;
  }
}

}  // namespace
}  // namespace norvane
