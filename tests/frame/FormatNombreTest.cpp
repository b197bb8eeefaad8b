// The one way a number becomes text: fixed and automatic decimals, French
// marks, rounding half away from zero, and the numbers that have no text.
#include "frame/FormatNombre.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <tuple>

namespace norvane::test {
namespace {

TEST(FormatNombre, Formes) {
  constexpr int16_t a = 7;  // automatic
  constexpr float max = std::numeric_limits<float>::max(), infini = std::numeric_limits<float>::infinity();
  // Zero is one blank only when asked for; what rounds to zero is printed.
  EXPECT_EQ(FormatNombre(0.0f, 2, true) + FormatNombre(-0.0f, 2, true) + FormatNombre(-infini, 2, true), "   ");
  EXPECT_EQ(FormatNombre(0.001f, 2, true), "0,00");
  const std::tuple<float, int16_t, std::string> cas[] = {  // {value, decimals, text}
      {0.0f, 2, "0,00"}, {0.0f, 0, "0"}, {0.0f, a, "0"},
      // Fixed decimals from 0 to 6, groups of thousands.
      {12.5f, 0, "13"}, {12.5f, 1, "12,5"}, {12.5f, 3, "12,500"}, {1.25f, 4, "1,2500"}, {0.1f, 5, "0,10000"},
      {3.141593f, 6, "3,141593"}, {1234.5f, 2, "1\xA0" "234,50"}, {999.0f, 0, "999"}, {1000.0f, 0, "1\xA0" "000"},
      {123456.0f, 0, "123\xA0" "456"}, {1234567.0f, 0, "1\xA0" "234\xA0" "567"},
      // Half away from zero, on the shortest text (1.005f reads "1.005"); the carry runs into the groups.
      {2.5f, 0, "3"}, {-2.5f, 0, "-3"}, {0.125f, 2, "0,13"}, {1.005f, 2, "1,01"}, {1.004f, 2, "1,00"},
      {999.999f, 2, "1\xA0" "000,00"}, {99999.5f, 0, "100\xA0" "000"}, {0.96f, 1, "1,0"},
      // Negative numbers; one that rounds to zero loses its sign.
      {-1234.5f, 2, "-1\xA0" "234,50"}, {-0.5f, a, "-0,5"}, {-0.001f, 2, "0,00"}, {-0.4f, 0, "0"},
      // Automatic (any decimals outside 0..6): at most two decimals.
      {12.5f, a, "12,5"}, {12.05f, a, "12,05"}, {12.004f, a, "12"}, {12.0f, a, "12"}, {3.10001f, a, "3,1"},
      {3.14159f, a, "3,14"}, {2.996f, a, "3,00"}, {1234.56f, a, "1\xA0" "234,56"}, {12.05f, -1, "12,05"},
      {12.05f, 8, "12,05"}, {12.004f, 32767, "12"},
      // Large and tiny numbers use the shortest digits; NaN and infinity print as zero.
      {16777216.0f, 0, "16\xA0" "777\xA0" "216"},
      {1e20f, 0, "100\xA0" "000\xA0" "000\xA0" "000\xA0" "000\xA0" "000\xA0" "000"}, {0.00001f, a, "0"},
      {0.00001f, 5, "0,00001"}, {0.000005f, 5, "0,00001"}, {std::numeric_limits<float>::denorm_min(), 6, "0,000000"},
      {std::nanf(""), 2, "0,00"}, {infini, 0, "0"}};
  for (const auto& [valeur, decimales, texte] : cas) EXPECT_EQ(FormatNombre(valeur, decimales, false), texte) << valeur;
  EXPECT_EQ(FormatNombre(max, a, false).substr(0, 9), "340\xA0" "282\xA0" "3");
  EXPECT_EQ(FormatNombre(-max, 2, false).size(), 1 + 39 + 12 + 3u);
}

}  // namespace
}  // namespace norvane::test
