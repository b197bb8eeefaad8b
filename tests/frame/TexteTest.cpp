#include "frame/Texte.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "frame/Encodage.h"

namespace norvane {
namespace {

TEST(Casse, FoldsAsciiAndTheLatinLettersOfWindows1252) {
  EXPECT_EQ(Minuscules("ABC \xC9\xC0\xDE \x8A\x8C\x8E\x9F \xD7\xDF"), "abc \xE9\xE0\xFE \x9A\x9C\x9E\xFF \xD7\xDF");
  EXPECT_EQ(Majuscules("abc \xE9\xE0\xFE \x9A\x9C\x9E\xFF \xF7"), "ABC \xC9\xC0\xDE \x8A\x8C\x8E\x9F \xF7");
}

TEST(Trim, OnlySpacesAreBlanks) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_TRUE(EstBlanc("") && EstBlanc("    ") && !EstBlanc(" \t "));
}

TEST(Chercher, PositionsFromZeroWithOrWithoutCase) {
  EXPECT_EQ(Chercher("#tvl(ab)#", ")#"), 7u);
  EXPECT_EQ(ChercherSansCasse("xx #TVL( #tvl(", "#tvl(", 4), 9u);
  EXPECT_EQ(ChercherSansCasse("\xC9T\xC9", "\xE9t\xE9"), 0u);
  EXPECT_EQ(ChercherSansCasse("abc", "abcd"), std::string::npos);
  EXPECT_EQ(ChercherSansCasse("abc", "b", 9), std::string::npos);
  EXPECT_EQ(ChercherSansCasse("abc", "", 3), 3u);
  EXPECT_TRUE(CommencePar("INI:Prix", "ini:", true) && !CommencePar("INI:Prix", "ini:"));
  EXPECT_TRUE(FinitPar("a.RTF", ".rtf", true) && !FinitPar("f", ".rtf", true));
  EXPECT_TRUE(EgalSansCasse("G\xE9n\xE9ral", "G\xC9N\xC9RAL") && !EgalSansCasse("ab", "abc"));
}

TEST(EntierDe, LeadingNumberAsTheOldRuntimeReadIt) {
  const std::pair<const char*, int32_t> entiers[] = {
      {"  -12abc", -12},          {"+7", 7}, {"abc", 0}, {"", 0}, {"99999999999999999999", INT32_MAX},
      {"-99999999999", INT32_MIN}};
  for (const auto& [texte, valeur] : entiers) EXPECT_EQ(EntierDe(texte), valeur) << texte;
  EXPECT_EQ(Entier16De("40000"), 32767);
  EXPECT_EQ(Entier16De("-40000"), -32768);
  const std::pair<const char*, double> nombres[] = {{" 12,5 ", 12.5}, {"-3.25x", -3.25}, {"+4", 4.0}, {"x", 0.0}};
  for (const auto& [texte, valeur] : nombres) EXPECT_DOUBLE_EQ(NombreDe(texte), valeur) << texte;
}

TEST(RemplacerTout, CaseSensitiveAndNeverRescans) {
  EXPECT_EQ(RemplacerTout("a-A-a", "a", "aa"), "aa-A-aa");
  EXPECT_EQ(RemplacerTout("abc", "", "x"), "abc");
}

TEST(Encodage, Windows1252AndUtf8BothWaysAndEveryByteSurvives) {
  const std::pair<const char*, const char*> cas[] = {
      {"\xE9t\xE9", "\xC3\xA9t\xC3\xA9"},
      {"\x80 \x9C \x8A \xA0", "\xE2\x82\xAC \xC5\x93 \xC5\xA0 \xC2\xA0"}};  // euro, oe, S caron, no-break space
  for (const auto& [cp1252, utf8] : cas) {
    EXPECT_EQ(Cp1252VersUtf8(cp1252), utf8);
    EXPECT_EQ(Utf8VersCp1252(utf8), cp1252);
  }
  for (int octet = 0; octet < 256; ++octet) {
    const std::string texte(1, static_cast<char>(octet));
    EXPECT_EQ(Utf8VersCp1252(Cp1252VersUtf8(texte)), texte) << octet;
  }
}

TEST(Encodage, OutsideTheCodePageIsAQuestionMarkAndInvalidUtf8PassesAsItIs) {
  EXPECT_EQ(Utf8VersCp1252("\xE6\xBC\xA2 \xF0\x9F\x98\x80"), "? ?");
  EXPECT_EQ(Utf8VersCp1252("\xE9t\xE9"), "\xE9t\xE9");  // already Windows-1252: converting twice is harmless
  EXPECT_EQ(Utf8VersCp1252("fin\xC3"), "fin\xC3");
}

}  // namespace
}  // namespace norvane
