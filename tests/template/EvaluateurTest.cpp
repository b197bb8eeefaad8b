// EvaluerExpression: the arithmetic a spreadsheet cell would do, 0 for
// whatever it cannot compute.
#include <gtest/gtest.h>

#include <string>

#include "template/Formules.h"

namespace norvane {
namespace {

TEST(EvaluerExpression, NumbersWithPointAsDecimalMark) {
  EXPECT_DOUBLE_EQ(EvaluerExpression("42"), 42.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("12.75"), 12.75);
  EXPECT_DOUBLE_EQ(EvaluerExpression(".5"), 0.5);
  EXPECT_DOUBLE_EQ(EvaluerExpression("5."), 5.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("1e+20"), 1e20);
  EXPECT_DOUBLE_EQ(EvaluerExpression("2.5E-3"), 0.0025);
  // A comma is no decimal mark here: the caller has turned it into a point.
  EXPECT_DOUBLE_EQ(EvaluerExpression("12,5"), 0.0);
}

TEST(EvaluerExpression, UsualPrecedenceAndLeftAssociativity) {
  EXPECT_DOUBLE_EQ(EvaluerExpression("2+3*4"), 14.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("10-4-3"), 3.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("100/10/5"), 2.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("2*3^2"), 18.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("2^3^2"), 64.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("(2+3)*4"), 20.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("((1+2)*(3+4))/7"), 3.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("100/3"), 100.0 / 3.0);
}

TEST(EvaluerExpression, SignsBindTighterThanPowerAsInASpreadsheet) {
  EXPECT_DOUBLE_EQ(EvaluerExpression("-2^2"), 4.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("0-2^2"), -4.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("2^-1"), 0.5);
  EXPECT_DOUBLE_EQ(EvaluerExpression("-(3+4)"), -7.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("3--5"), 8.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("3*-5"), -15.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("+-+-4"), 4.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("---4"), -4.0);
}

TEST(EvaluerExpression, LeadingEqualsSignAndBlanks) {
  EXPECT_DOUBLE_EQ(EvaluerExpression("=1+2"), 3.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("+1+2"), 3.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("  ( 1 +\t2 ) * 3  "), 9.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("==1"), 0.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression("1 2"), 0.0);
}

TEST(EvaluerExpression, WhatCannotBeComputedIsZero) {
  for (const char* texte : {"", "   ", "1/0", "5/(2-2)", "0^0", "0^-1", "(-8)^(1/3)", "1e308*10", "1e999",
                            "(1+2", "1+2)", "()", "1+", "*2", "abc", "1+x", "2 ^", "1e", "1e+", "1..2",
                            "3\xB2", "1&2", "1|2", "nan", "inf"}) {
    EXPECT_DOUBLE_EQ(EvaluerExpression(texte), 0.0) << texte;
  }
}

TEST(EvaluerExpression, NestingIsBoundedWithoutCrash) {
  auto imbrique = [](int n) { return std::string(n, '(') + "7" + std::string(n, ')'); };
  EXPECT_DOUBLE_EQ(EvaluerExpression(imbrique(200)), 7.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(imbrique(201)), 0.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(imbrique(100000)), 0.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(std::string(100000, '(')), 0.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(std::string(100000, '-') + "1"), 1.0);
}

TEST(EvaluerExpression, LongInputs) {
  std::string somme = "0";
  for (int i = 0; i < 100000; ++i) somme += "+1";
  EXPECT_DOUBLE_EQ(EvaluerExpression(somme), 100000.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(std::string(200000, '9')), 0.0);  // beyond double range
  EXPECT_DOUBLE_EQ(EvaluerExpression(std::string(300, '9')), 1e300);
}

}  // namespace
}  // namespace norvane
