// The cleaning of a code: the fixed list of removals, its order, and the
// bookmark remains taken off after it.
#include <gtest/gtest.h>

#include "template/Interpreteur.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

std::string Nettoye(std::string code) {
  NettoyerCode(code);
  return code;
}

TEST(NettoyerCode, RetireMiseEnFormeSautsEtBlancs) {
  EXPECT_EQ(Nettoye("{\\plain\\fs24\\b nom}{\\i Exploit}"), "nomExploit");
  EXPECT_EQ(Nettoye("nom\r\n\tExploit\x08"), "nomExploit");
  EXPECT_EQ(Nettoye("\\lang2057 nom\\par Exploit"), "nomExploit");
}

TEST(NettoyerCode, SansEgardALaCasse) { EXPECT_EQ(Nettoye("{\\B\\I\\PLAIN nomExploit}"), "nomExploit"); }

TEST(NettoyerCode, EntreesSansAntislashMangentLeTexte) {
  // "fs20" and "fs22" go even without their backslash.
  EXPECT_EQ(Nettoye("offs20set"), "ofset");
  // "fs22" leaves its backslash, which "\b" then takes with the next letter.
  EXPECT_EQ(Nettoye("a\\fs22b"), "a");
}

TEST(NettoyerCode, OrdreDeLaListeLaisseDesRestes) {
  // "\c" takes the head of "\cf1" and "\b" that of "\bkmkstart"; a bookmark
  // that is not Word's DDE_LINK then loses only "kmk".
  EXPECT_EQ(Nettoye("\\cf1 nomExploit"), "f1nomExploit");
  EXPECT_EQ(Nettoye("{\\*\\bkmkstart x}"), "startx");
  EXPECT_EQ(Nettoye("\\fs20 x"), "\\x");  // "fs20" leaves its backslash
  EXPECT_EQ(Nettoye("\\page saut2page"), "saut2page");
}

TEST(NettoyerCode, SignetsDDEAvecTousLeursChiffres) {
  EXPECT_EQ(Nettoye("{\\*\\bkmkstart DDE_LINK12}nomExploit{\\*\\bkmkend DDE_LINK12}"), "nomExploit");
  EXPECT_EQ(Nettoye("nom{\\*\\bkmkend DDE_LINK}Exploit"), "nomExploit");
}

TEST(NettoyerCode, SignetOleDebutLaisseUnReste) {
  // The start of an OLE bookmark loses only "kmk"; its end goes whole, digits and all.
  EXPECT_EQ(Nettoye("{\\*\\bkmkstart OLE_LINK1}nomExploit"), "startOLE_LINK1nomExploit");
  EXPECT_EQ(Nettoye("nomExploit{\\*\\bkmkend OLE_LINK27}"), "nomExploit");
}

TEST(NettoyerCode, EndOleSansLinkNeBouclePas) { EXPECT_EQ(Nettoye("endOLEx"), "endOLEx"); }

TEST(NettoyerCode, GuillemetsEtEuro) {
  EXPECT_EQ(Nettoye("l\\rquote a\\lquote b"), "l'a'b");
  EXPECT_EQ(Nettoye("INI:prix\\'80"), "INI:prix\x80");
}

TEST(EnleverMarque, UnChiffreParAppel) {
  std::string texte = "xMARQ12y";
  EXPECT_EQ(EnleverMarque(texte, "MARQ"), 1);
  EXPECT_EQ(texte, "xMARQ2y");
  EXPECT_EQ(EnleverMarque(texte, "MARQ"), 1);
  EXPECT_EQ(EnleverMarque(texte, "MARQ"), 1);
  EXPECT_EQ(texte, "xy");
  EXPECT_EQ(EnleverMarque(texte, "MARQ"), -1);
}

}  // namespace
}  // namespace norvane

namespace norvane::test {
namespace {

// Thousands of marks are cleaned in one sweep each, not one search a mark.
TEST(NettoyageMasse, ManyBookmarkRemainsAreCleaned) {
  std::string code;
  for (int i = 0; i < 100000; ++i) code += "kmk{\\*\\bkmkstart DDE_LINK12}endOLE_LINK3";
  code += "nomExploit";
  NettoyerCode(code);
  EXPECT_EQ(code, "nomExploit");
}

}  // namespace
}  // namespace norvane::test
