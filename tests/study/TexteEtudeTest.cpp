// Study texts made safe for RTF: the three RTF specials escaped, stray
// control bytes dropped, line ends and Windows-1252 letters kept.
#include <gtest/gtest.h>

#include "study/TexteEtude.h"

namespace norvane {
namespace {

TEST(TexteEtudePourRtf, EscapesDropsAndKeeps) {
  const struct {
    std::string brut;
    std::string sur;
  } cas[] = {
      {"A}}}{\\rtf1 B", "A\\}\\}\\}\\{\\\\rtf1 B"},
      {"C:\\Etudes\\X.TVL", "C:\\\\Etudes\\\\X.TVL"},
      {std::string("nul\0tab\tbel\x07 del\x7F", 17), "nultabbel del"},
      {"ligne 1\r\nligne 2", "ligne 1\r\nligne 2"},
      {"Ch\xEAnes \x80 \xA0", "Ch\xEAnes \x80 \xA0"},
      {"", ""},
  };
  for (const auto& c : cas) EXPECT_EQ(TexteEtudePourRtf(c.brut), c.sur) << c.brut;
}

}  // namespace
}  // namespace norvane
