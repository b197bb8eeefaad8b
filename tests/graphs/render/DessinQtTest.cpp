// The drawing port: the chart as a PNG picture group of the chart's size, and
// graphSvg.bmp left in ModelGraph as a BMP that other programs open.
#include <gtest/gtest.h>

#include <QImage>
#include <cstring>

#include "graphs/render/DessinQt.h"
#include "graphs/render/ModelesEssai.h"
#include "support/DossierTemporaire.h"

namespace norvane {
namespace {

uint32_t PetitBout(const std::string& d, std::size_t position, std::size_t octets) {
  uint32_t valeur = 0;
  for (std::size_t i = octets; i-- > 0;) valeur = (valeur << 8) | static_cast<unsigned char>(d[position + i]);
  return valeur;
}

TEST(DessinGraphiqueQt, ThePngGroupHasTheGraphSize) {
  test::DossierTemporaire dossier;
  DessinGraphiqueQt dessin(dossier / "ModelGraph");
  const ModeleGraphique modele = test::ModeleEssai(kBarres2D);
  const std::string groupe = dessin.ImageGraphique(modele, test::GrilleEssai(modele));
  EXPECT_EQ(groupe.rfind("{\\pict\\pngblip\\picw1098\\pich815\\picwgoal7905\\pichgoal5865 89504e47", 0), 0u)
      << groupe.substr(0, 80);
  EXPECT_EQ(groupe.back(), '}');
}

TEST(DessinGraphiqueQt, LeavesAReadableBmp) {
  test::DossierTemporaire dossier;
  DessinGraphiqueQt dessin(dossier / "ModelGraph", 100);
  ModeleGraphique modele = test::ModeleEssai(kCourbes2D);
  dessin.ImageGraphique(modele, test::GrilleEssai(modele));
  const std::string bmp = dossier.Lire("ModelGraph/graphSvg.bmp");
  ASSERT_GT(bmp.size(), 54u);
  EXPECT_EQ(bmp.substr(0, 2), "BM");
  EXPECT_EQ(PetitBout(bmp, 2, 4), bmp.size());   // file size
  EXPECT_EQ(PetitBout(bmp, 14, 4), 40u);         // BITMAPINFOHEADER
  EXPECT_EQ(PetitBout(bmp, 18, 4), 549u);        // width
  EXPECT_EQ(PetitBout(bmp, 22, 4), 407u);        // height, bottom-up
  EXPECT_EQ(PetitBout(bmp, 28, 2), 24u);         // bits a pixel
  EXPECT_NEAR(PetitBout(bmp, 38, 4), 3937, 1);   // 100 dpi in pixels a metre
  const QImage relue = QImage::fromData(QByteArray::fromStdString(bmp), "BMP");
  EXPECT_EQ(relue.size(), QSize(549, 407));
  // Each new chart replaces the last.
  modele.TypeGraph = kSecteurs2D;
  dessin.ImageGraphique(modele, test::GrilleEssai(modele));
  EXPECT_NE(dossier.Lire("ModelGraph/graphSvg.bmp"), bmp);
}

}  // namespace
}  // namespace norvane
