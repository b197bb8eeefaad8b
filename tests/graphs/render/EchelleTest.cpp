#include "graphs/render/Echelle.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

struct CasEchelle {
  double bas, haut;
  double min, max, pas;
  int decimales;
};

TEST(Echelle, RoundStepsHoldTheValuesAndZero) {
  const CasEchelle cas[] = {
      {120000, 205000, 0, 250000, 50000, 0},
      {-35, 80, -50, 100, 25, 0},
      {0.1, 0.93, 0, 1, 0.2, 1},
      {0, 0, 0, 1, 0.2, 1},  // nothing to show: a unit range
      {3, 3, 0, 3, 1, 0},
      {-7200, -1500, -8000, 0, 2000, 0},
      {0, 12.5, 0, 12.5, 2.5, 1},
      {0, 0.0115, 0, 0.0125, 0.0025, 4},
  };
  for (const CasEchelle& c : cas) {
    const Echelle e = EchelleRonde(c.bas, c.haut);
    EXPECT_DOUBLE_EQ(e.min, c.min) << c.bas << " " << c.haut;
    EXPECT_DOUBLE_EQ(e.max, c.max) << c.bas << " " << c.haut;
    EXPECT_DOUBLE_EQ(e.pas, c.pas) << c.bas << " " << c.haut;
    EXPECT_EQ(e.decimales, c.decimales) << c.bas << " " << c.haut;
  }
}

TEST(Echelle, NoZeroForYears) {
  const Echelle e = EchelleRonde(2025, 2029, 5, false);
  EXPECT_DOUBLE_EQ(e.min, 2025);
  EXPECT_DOUBLE_EQ(e.max, 2029);
  EXPECT_EQ(e.Graduations().size(), 5u);
}

TEST(Echelle, LabelsUseFrenchMarks) {
  EXPECT_EQ(LibelleNombre(1234567, 0), QString::fromUtf8("1\u00a0234\u00a0567"));
  EXPECT_EQ(LibelleNombre(-2.5, 1), QStringLiteral("-2,5"));
  EXPECT_EQ(LibelleNombre(1e-12, 2), QStringLiteral("0,00"));
}

}  // namespace
}  // namespace norvane
