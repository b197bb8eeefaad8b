// date(n) codes: the 18 formats of the moment of generation, in French.
#include "template/BancInterpreteur.h"

namespace norvane::test {
namespace {

class Dates : public BancInterpreteur {};

TEST_F(Dates, DixHuitFormats) {
  // Sunday 22 November 2026, 14:05:09.
  const char* attendus[] = {"dimanche 22 novembre 2026", "22 novembre 2026", "22-nov.-26", "22/11/2026",
                            "22/11/2026", "22 - 11 - 2026", "22-11-26", "22/11/26", "22/11/2026", "22/11", "22",
                            "22/11/2026 14:05:09", "14:05:09", "14:05", "14:05", "14-05-09", "14.05.09", "14-05"};
  for (int n = 0; n < 18; ++n) {
    EXPECT_EQ(Valeur("date(" + std::to_string(n) + ")"), attendus[n]) << "date(" << n << ")";
  }
}

TEST_F(Dates, HorsDesFormatsInsecable) {
  EXPECT_EQ(Valeur("date(18)"), "\\~");
  EXPECT_EQ(Valeur("date(-1)"), "\\~");
  // A format that is no number reads as 0.
  EXPECT_EQ(Valeur("date(x)"), "dimanche 22 novembre 2026");
}

TEST_F(Dates, AccentsEnWindows1252) {
  maintenant = MomentLocal(2027, 2, 1, 8, 3, 0);
  EXPECT_EQ(Valeur("date(0)"), "lundi 1 f\xE9vrier 2027");
  EXPECT_EQ(Valeur("date(2)"), "01-f\xE9vr.-27");
  maintenant = MomentLocal(2026, 8, 15, 23, 59, 59);
  EXPECT_EQ(Valeur("date(1)"), "15 ao\xFBt 2026");
  maintenant = MomentLocal(2026, 12, 9, 0, 0, 0);
  EXPECT_EQ(Valeur("date(2)"), "09-d\xE9"
                               "c.-26");
  EXPECT_EQ(Valeur("date(11)"), "09/12/2026 00:00:00");
}

}  // namespace
}  // namespace norvane::test
