// ORGA codes: field and index, the "1" that moves to the index, the logo.
#include "construction/ImagePng.h"
#include "frame/DossierTemporaire.h"
#include "template/BancInterpreteur.h"

namespace norvane::test {
namespace {

class Organisations : public BancInterpreteur {
 protected:
  void SetUp() override {
    for (int i = 0; i < 20; ++i) {
      auto& o = session.Organisations[i];
      o.Nom = "Nom" + std::to_string(i) + "   ";
      o.Ville = "Ville" + std::to_string(i);
      o.Sigle = "S" + std::to_string(i);
      o.Rue = "Rue" + std::to_string(i);
      o.Telephone = "Tel" + std::to_string(i);
      o.Fax = "Fax" + std::to_string(i);
    }
  }
  DossierTemporaire temporaire;
};

TEST_F(Organisations, IndexDeUnOuDeuxChiffres) {
  EXPECT_EQ(Valeur("ORGANOM12"), "Nom12");
  EXPECT_EQ(Valeur("ORGANOM1"), "Nom1");
  EXPECT_EQ(Valeur("ORGANOM0"), "Nom0");
  EXPECT_EQ(Valeur("ORGASIGLE19"), "S19");
  EXPECT_EQ(Valeur("ORGARUE5"), "Rue5");
  EXPECT_EQ(Valeur("ORGATEL3"), "Tel3");
  EXPECT_EQ(Valeur("ORGAFAX10"), "Fax10");
}

TEST_F(Organisations, SansEgardALaCasse) {
  EXPECT_EQ(Valeur("orgavillE1"), "Ville1");
  EXPECT_EQ(Valeur("OrgaNom7"), "Nom7");
}

TEST_F(Organisations, ChampInconnu) {
  EXPECT_EQ(Valeur("ORGAPAYS1"), "??");
  EXPECT_EQ(Valeur("ORGA"), "??");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Organisations, LogoVideOuAbsent) {
  EXPECT_EQ(Valeur("ORGALOGO2"), "\\~");
  session.Organisations[2].Logo = temporaire / "absent.png";
  EXPECT_EQ(Valeur("ORGALOGO2"), "\\~");
}

TEST_F(Organisations, LogoPngIncorpore) {
  construction::DessinPng dessin;
  dessin.largeur = 4;
  dessin.hauteur = 3;
  construction::EcrirePng(temporaire / "logo.png", dessin);
  session.Organisations[3].Logo = temporaire / "logo.png" + "      ";
  const std::string rtf = Valeur("ORGALOGO3");
  EXPECT_EQ(rtf.rfind("{\\pict\\pngblip\\picw4\\pich3\\picwgoal60\\pichgoal45 89504e47", 0), 0u);
  EXPECT_EQ(rtf.back(), '}');
}

class ImagesFixes : public PortImages {
 public:
  std::string recu;
  std::string ImageVersRtf(const std::string& chemin) override {
    recu = chemin;
    return "{\\pict PORT}";
  }
};

TEST_F(Organisations, LogoParLePortDImages) {
  ImagesFixes images;
  generation.images = &images;
  session.Organisations[4].Logo = "C:\\Logos\\cerfrance.bmp   ";
  EXPECT_EQ(Valeur("ORGALOGO4"), "{\\pict PORT}");
  EXPECT_EQ(images.recu, "C:\\Logos\\cerfrance.bmp");
}

}  // namespace
}  // namespace norvane::test
