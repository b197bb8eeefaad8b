// FormatNombre: the one way a number becomes text, in French marks (decimal
// comma, no-break space 0xA0 between groups of three digits).
#include "frame/FormatNombre.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace norvane {
namespace {

constexpr int16_t kAuto = 7;

TEST(FormatNombre, ZeroIsOneBlankOnlyWhenAskedFor) {
  EXPECT_EQ(FormatNombre(0.0f, 2, true), " ");
  EXPECT_EQ(FormatNombre(-0.0f, 2, true), " ");
  EXPECT_EQ(FormatNombre(0.0f, 2, false), "0,00");
  EXPECT_EQ(FormatNombre(0.0f, 0, false), "0");
  EXPECT_EQ(FormatNombre(0.0f, kAuto, false), "0");
  // A value that rounds to zero is not zero: it is printed.
  EXPECT_EQ(FormatNombre(0.001f, 2, true), "0,00");
}

TEST(FormatNombre, FixedDecimalsFromZeroToSix) {
  EXPECT_EQ(FormatNombre(12.5f, 0, false), "13");
  EXPECT_EQ(FormatNombre(12.5f, 1, false), "12,5");
  EXPECT_EQ(FormatNombre(12.5f, 2, false), "12,50");
  EXPECT_EQ(FormatNombre(12.5f, 3, false), "12,500");
  EXPECT_EQ(FormatNombre(1.25f, 4, false), "1,2500");
  EXPECT_EQ(FormatNombre(0.1f, 5, false), "0,10000");
  EXPECT_EQ(FormatNombre(3.141593f, 6, false), "3,141593");
}

TEST(FormatNombre, GroupsThousandsWithNoBreakSpace) {
  EXPECT_EQ(FormatNombre(1234.5f, 2, false), "1\xA0" "234,50");
  EXPECT_EQ(FormatNombre(999.0f, 0, false), "999");
  EXPECT_EQ(FormatNombre(1000.0f, 0, false), "1\xA0" "000");
  EXPECT_EQ(FormatNombre(123456.0f, 0, false), "123\xA0" "456");
  EXPECT_EQ(FormatNombre(1234567.0f, 0, false), "1\xA0" "234\xA0" "567");
}

TEST(FormatNombre, RoundsHalfAwayFromZeroOnTheShortestText) {
  EXPECT_EQ(FormatNombre(2.5f, 0, false), "3");
  EXPECT_EQ(FormatNombre(-2.5f, 0, false), "-3");
  EXPECT_EQ(FormatNombre(0.125f, 2, false), "0,13");
  // 1.005f is 1.00499999... in binary, but reads "1.005": the text decides.
  EXPECT_EQ(FormatNombre(1.005f, 2, false), "1,01");
  EXPECT_EQ(FormatNombre(1.004f, 2, false), "1,00");
}

TEST(FormatNombre, CarryRunsIntoTheWholePartAndItsGroups) {
  EXPECT_EQ(FormatNombre(999.999f, 2, false), "1\xA0" "000,00");
  EXPECT_EQ(FormatNombre(99999.5f, 0, false), "100\xA0" "000");
  EXPECT_EQ(FormatNombre(0.96f, 1, false), "1,0");
}

TEST(FormatNombre, NegativeNumbers) {
  EXPECT_EQ(FormatNombre(-1234.5f, 2, false), "-1\xA0" "234,50");
  EXPECT_EQ(FormatNombre(-0.5f, kAuto, false), "-0,5");
  EXPECT_EQ(FormatNombre(-12.05f, kAuto, false), "-12,05");
  // A negative value that rounds to zero loses its sign.
  EXPECT_EQ(FormatNombre(-0.001f, 2, false), "0,00");
  EXPECT_EQ(FormatNombre(-0.4f, 0, false), "0");
}

TEST(FormatNombre, AutomaticShowsAtMostTwoDecimals) {
  EXPECT_EQ(FormatNombre(12.5f, kAuto, false), "12,5");
  EXPECT_EQ(FormatNombre(12.05f, kAuto, false), "12,05");
  EXPECT_EQ(FormatNombre(12.004f, kAuto, false), "12");
  EXPECT_EQ(FormatNombre(12.0f, kAuto, false), "12");
  EXPECT_EQ(FormatNombre(12.1f, kAuto, false), "12,1");
  // First decimal not 0 and second 0: one decimal.
  EXPECT_EQ(FormatNombre(3.10001f, kAuto, false), "3,1");
  EXPECT_EQ(FormatNombre(3.14159f, kAuto, false), "3,14");
  EXPECT_EQ(FormatNombre(2.996f, kAuto, false), "3,00");
  EXPECT_EQ(FormatNombre(1234.56f, kAuto, false), "1\xA0" "234,56");
}

TEST(FormatNombre, AnyDecimalsOutsideZeroToSixAreAutomatic) {
  EXPECT_EQ(FormatNombre(12.05f, -1, false), "12,05");
  EXPECT_EQ(FormatNombre(12.05f, 8, false), "12,05");
  EXPECT_EQ(FormatNombre(12.004f, 32767, false), "12");
}

TEST(FormatNombre, LargeNumbersUseTheShortestDigits) {
  EXPECT_EQ(FormatNombre(16777216.0f, 0, false), "16\xA0" "777\xA0" "216");
  EXPECT_EQ(FormatNombre(1e20f, 0, false), "100\xA0" "000\xA0" "000\xA0" "000\xA0" "000\xA0" "000\xA0" "000");
  EXPECT_EQ(FormatNombre(std::numeric_limits<float>::max(), kAuto, false).substr(0, 9), "340\xA0" "282\xA0" "3");
  EXPECT_EQ(FormatNombre(-std::numeric_limits<float>::max(), 2, false).size(), 1 + 39 + 12 + 3u);
}

TEST(FormatNombre, TinyNumbers) {
  EXPECT_EQ(FormatNombre(0.00001f, kAuto, false), "0");
  EXPECT_EQ(FormatNombre(0.00001f, 5, false), "0,00001");
  EXPECT_EQ(FormatNombre(std::numeric_limits<float>::denorm_min(), 6, false), "0,000000");
  EXPECT_EQ(FormatNombre(0.000005f, 5, false), "0,00001");
}

TEST(FormatNombre, NotANumberAndInfinityPrintAsZero) {
  EXPECT_EQ(FormatNombre(std::nanf(""), 2, false), "0,00");
  EXPECT_EQ(FormatNombre(std::numeric_limits<float>::infinity(), 0, false), "0");
  EXPECT_EQ(FormatNombre(-std::numeric_limits<float>::infinity(), 2, true), " ");
}

}  // namespace
}  // namespace norvane
