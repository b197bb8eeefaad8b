// Pictures embedded as they are when no picture port is plugged in.
#include <gtest/gtest.h>

#include "construction/ImagePng.h"
#include "frame/DossierTemporaire.h"
#include "template/Directives.h"

namespace norvane::test {
namespace {

// The head of a JPEG file: SOI, an APP0 segment, then a SOF0 of 640 x 480.
std::string TeteJpeg() {
  std::string octets = {'\xFF', '\xD8', '\xFF', '\xE0', '\x00', '\x04', 'J', 'F'};
  octets += {'\xFF', '\xC0', '\x00', '\x0B', '\x08', '\x01', '\xE0', '\x02', '\x80', '\x01', '\x01', '\x11', '\x00'};
  octets += {'\xFF', '\xD9'};
  return octets;
}

class Images : public ::testing::Test {
 protected:
  DossierTemporaire temporaire;
};

TEST_F(Images, PngAvecSaTailleEnPixelsEtEnTwips) {
  construction::DessinPng dessin;
  dessin.largeur = 20;
  dessin.hauteur = 10;
  const std::string octets = construction::OctetsPng(dessin);
  temporaire.Ecrire("Logo.PNG", octets);
  const std::string rtf = ImageVersRtfDirecte(temporaire / "logo.png");
  const std::string tete = "{\\pict\\pngblip\\picw20\\pich10\\picwgoal300\\pichgoal150 ";
  ASSERT_EQ(rtf.rfind(tete, 0), 0u);
  EXPECT_EQ(rtf.size(), tete.size() + 2 * octets.size() + 1);
  EXPECT_EQ(rtf.substr(tete.size(), 16), "89504e470d0a1a0a");
}

TEST_F(Images, JpegLuJusquAuDebutDeTrame) {
  temporaire.Ecrire("photo.jpg", TeteJpeg());
  EXPECT_EQ(ImageVersRtfDirecte("  " + (temporaire / "photo.jpg") + "  "),
            "{\\pict\\jpegblip\\picw640\\pich480\\picwgoal9600\\pichgoal7200 ffd8ffe000044a46ffc0000b0801e00280010111"
            "00ffd9}");
}

TEST_F(Images, AutresFichiersVides) {
  temporaire.Ecrire("image.gif", "GIF89a\x01\x00\x01\x00");
  temporaire.Ecrire("coupe.png", construction::OctetsPng({}).substr(0, 20));
  temporaire.Ecrire("coupe.jpg", TeteJpeg().substr(0, 12));
  EXPECT_EQ(ImageVersRtfDirecte(temporaire / "image.gif"), "");
  EXPECT_EQ(ImageVersRtfDirecte(temporaire / "coupe.png"), "");
  EXPECT_EQ(ImageVersRtfDirecte(temporaire / "coupe.jpg"), "");
  EXPECT_EQ(ImageVersRtfDirecte(temporaire / "absent.png"), "");
  EXPECT_EQ(ImageVersRtfDirecte("   "), "");
}

}  // namespace
}  // namespace norvane::test
