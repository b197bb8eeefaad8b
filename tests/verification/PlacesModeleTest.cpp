#include <gtest/gtest.h>

#include "verification/PlacesModele.h"

namespace norvane {
namespace {

std::string SansFinsDeLigne(const std::string& contenu) {
  std::string texte;
  for (char c : contenu) {
    if (c != '\r' && c != '\n') texte += c;
  }
  return texte;
}

TEST(PlacesModele, MapsAPositionBackToLineColumnPageAndParagraph) {
  const std::string contenu = "{\\rtf1 \\pard A\\par\r\nb\\par c\n\n\\page X\rY\\par Z";
  const std::string texte = SansFinsDeLigne(contenu);
  const PlacesModele places(contenu);
  struct Cas {
    char cible;
    int ligne, colonne, page, paragraphe;
  } cas[] = {{'A', 1, 14, 1, 1}, {'b', 2, 1, 1, 2}, {'c', 2, 7, 1, 3}, {'X', 4, 7, 2, 1}, {'Y', 5, 1, 2, 1},
             {'Z', 5, 7, 2, 2}};
  for (const Cas& c : cas) {
    const PlaceCode p = places.Situer(texte.find(c.cible));
    EXPECT_EQ(p.ligne, c.ligne) << c.cible;
    EXPECT_EQ(p.colonne, c.colonne) << c.cible;
    EXPECT_EQ(p.page, c.page) << c.cible;
    EXPECT_EQ(p.paragraphe, c.paragraphe) << c.cible;
  }
}

}  // namespace
}  // namespace norvane
