#include "frame/Encodage.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

TEST(Encodage, Windows1252ToUtf8) {
  EXPECT_EQ(Cp1252VersUtf8("\xE9t\xE9"), "\xC3\xA9t\xC3\xA9");                  // été
  EXPECT_EQ(Cp1252VersUtf8("\x80 \x9C \x8A \xA0"), "\xE2\x82\xAC \xC5\x93 \xC5\xA0 \xC2\xA0");  // € œ Š nbsp
  EXPECT_EQ(Cp1252VersUtf8("abc"), "abc");
}

TEST(Encodage, EveryByteSurvivesARoundTrip) {
  for (int octet = 0; octet < 256; ++octet) {
    const std::string texte(1, static_cast<char>(octet));
    EXPECT_EQ(Utf8VersCp1252(Cp1252VersUtf8(texte)), texte) << octet;
  }
}

TEST(Encodage, Utf8ToWindows1252) {
  EXPECT_EQ(Utf8VersCp1252("\xE2\x82\xAC\xC5\x93uvre"), "\x80\x9Cuvre");
  EXPECT_EQ(Utf8VersCp1252("\xE6\xBC\xA2 \xF0\x9F\x98\x80"), "? ?");  // outside the code page
}

TEST(Encodage, InvalidUtf8IsTakenAsWindows1252AlreadySoTwiceIsHarmless) {
  EXPECT_EQ(Utf8VersCp1252("\xE9t\xE9"), "\xE9t\xE9");
  EXPECT_EQ(Utf8VersCp1252("fin\xC3"), "fin\xC3");
  const std::string une = Utf8VersCp1252("\xC3\xA9t\xC3\xA9");
  EXPECT_EQ(Utf8VersCp1252(une), une);
}

}  // namespace
}  // namespace norvane
