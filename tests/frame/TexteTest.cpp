#include "frame/Texte.h"

#include <gtest/gtest.h>

#include <limits>

namespace norvane {
namespace {

TEST(Casse, FoldsAsciiAndTheLatinLettersOfWindows1252) {
  EXPECT_EQ(Minuscules("ABC \xC9\xC0\xDE \x8A\x8C\x8E\x9F"), "abc \xE9\xE0\xFE \x9A\x9C\x9E\xFF");
  EXPECT_EQ(Majuscules("abc \xE9\xE0\xFE \x9A\x9C\x9E\xFF"), "ABC \xC9\xC0\xDE \x8A\x8C\x8E\x9F");
  EXPECT_EQ(Minuscules("\xD7\xDF"), "\xD7\xDF");  // × and ß have no other case
  EXPECT_EQ(Majuscules("\xF7"), "\xF7");
}

TEST(Trim, OnlySpacesAreBlanks) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(TrimDroite("  a  "), "  a");
  EXPECT_EQ(TrimGauche("  a  "), "a  ");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_TRUE(EstBlanc(""));
  EXPECT_TRUE(EstBlanc("    "));
  EXPECT_FALSE(EstBlanc(" \t "));
}

TEST(Chercher, PositionsFromZeroWithOrWithoutCase) {
  EXPECT_EQ(Chercher("#tvl(ab)#", ")#"), 7u);
  EXPECT_EQ(ChercherSansCasse("xx #TVL( #tvl(", "#tvl(", 4), 9u);
  EXPECT_EQ(ChercherSansCasse("\xC9T\xC9", "\xE9t\xE9"), 0u);
  EXPECT_EQ(ChercherSansCasse("abc", "abcd"), std::string::npos);
  EXPECT_EQ(ChercherSansCasse("abc", "b", 9), std::string::npos);
  EXPECT_EQ(ChercherSansCasse("abc", "", 3), 3u);
  EXPECT_TRUE(CommencePar("INI:Prix", "ini:", true));
  EXPECT_FALSE(CommencePar("INI:Prix", "ini:"));
  EXPECT_TRUE(FinitPar("a.RTF", ".rtf", true));
  EXPECT_FALSE(FinitPar("f", ".rtf", true));
  EXPECT_TRUE(EgalSansCasse("G\xE9n\xE9ral", "G\xC9N\xC9RAL"));
  EXPECT_FALSE(EgalSansCasse("ab", "abc"));
}

TEST(EntierDe, LeadingIntegerAsTheOldRuntimeReadIt) {
  EXPECT_EQ(EntierDe("  -12abc"), -12);
  EXPECT_EQ(EntierDe("+7"), 7);
  EXPECT_EQ(EntierDe("abc"), 0);
  EXPECT_EQ(EntierDe(""), 0);
  EXPECT_EQ(EntierDe("99999999999999999999"), std::numeric_limits<int32_t>::max());
  EXPECT_EQ(EntierDe("-99999999999"), std::numeric_limits<int32_t>::min());
  EXPECT_EQ(Entier16De("40000"), 32767);
  EXPECT_EQ(Entier16De("-40000"), -32768);
}

TEST(NombreDe, CommaOrPointAsDecimalMark) {
  EXPECT_DOUBLE_EQ(NombreDe(" 12,5 "), 12.5);
  EXPECT_DOUBLE_EQ(NombreDe("-3.25x"), -3.25);
  EXPECT_DOUBLE_EQ(NombreDe("+4"), 4.0);
  EXPECT_DOUBLE_EQ(NombreDe("x"), 0.0);
  EXPECT_DOUBLE_EQ(NombreDe(""), 0.0);
}

TEST(RemplacerTout, CaseSensitiveAndNeverRescans) {
  EXPECT_EQ(RemplacerTout("a-A-a", "a", "aa"), "aa-A-aa");
  EXPECT_EQ(RemplacerTout("abc", "", "x"), "abc");
}

}  // namespace
}  // namespace norvane
