// The picture port: a logo of any common format goes into a document as a
// PNG picture at its true size; a missing or damaged file gives nothing.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <regex>

#include "graphs/render/ApplicationQt.h"
#include "graphs/render/ImagesQt.h"
#include "support/DossierTemporaire.h"

namespace norvane {
namespace {

struct Dimensions {
  int picw = -1, pich = -1, picwgoal = -1, pichgoal = -1;
};

Dimensions LireDimensions(const std::string& groupe) {
  Dimensions d;
  std::smatch m;
  const std::regex entete(R"(^\{\\pict\\pngblip\\picw(\d+)\\pich(\d+)\\picwgoal(\d+)\\pichgoal(\d+) [0-9a-f]+\}$)");
  if (std::regex_match(groupe, m, entete)) {
    d = {std::stoi(m[1]), std::stoi(m[2]), std::stoi(m[3]), std::stoi(m[4])};
  }
  return d;
}

std::string Encoder(const QImage& image, const char* format) {
  QByteArray octets;
  QBuffer tampon(&octets);
  tampon.open(QIODevice::WriteOnly);
  image.save(&tampon, format);
  return std::string(octets.constData(), static_cast<std::size_t>(octets.size()));
}

// 300 x 150 pixels at 150 dots an inch: 2 inches by 1, 2880 x 1440 twips.
QImage Logo() {
  AssurerApplicationQt();
  QImage image(300, 150, QImage::Format_RGB32);
  image.fill(QColor(20, 90, 160));
  image.setDotsPerMeterX(5906);  // 150 dpi
  image.setDotsPerMeterY(5906);
  return image;
}

// A 1 x 1 GIF: GIF files carry no resolution, so 96 dots an inch serve.
const std::string kGif("GIF89a\x01\x00\x01\x00\x80\x00\x00\xff\xff\xff\x00\x00\x00"
                       "!\xf9\x04\x01\x00\x00\x00\x00,\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02\x44\x01\x00;",
                       43);

TEST(ImagesQt, EachFormatHasItsTrueSize) {
  test::DossierTemporaire dossier;
  dossier.Ecrire("logo.png", Encoder(Logo(), "PNG"));
  dossier.Ecrire("logo.bmp", Encoder(Logo(), "BMP"));
  dossier.Ecrire("logo.jpg", Encoder(Logo(), "JPEG"));
  dossier.Ecrire("logo.gif", kGif);
  struct Cas {
    const char* fichier;
    Dimensions attendues;
  } const cas[] = {
      {"logo.png", {300, 150, 2880, 1440}},
      {"logo.bmp", {300, 150, 2880, 1440}},
      {"logo.jpg", {300, 150, 2880, 1440}},
      {"LOGO.GIF", {1, 1, 15, 15}},  // names are matched without regard to case
  };
  ImagesQt port;
  for (const Cas& c : cas) {
    const Dimensions d = LireDimensions(port.ImageVersRtf(dossier / c.fichier));
    EXPECT_EQ(d.picw, c.attendues.picw) << c.fichier;
    EXPECT_EQ(d.pich, c.attendues.pich) << c.fichier;
    EXPECT_NEAR(d.picwgoal, c.attendues.picwgoal, 1) << c.fichier;
    EXPECT_NEAR(d.pichgoal, c.attendues.pichgoal, 1) << c.fichier;
  }
}

TEST(ImagesQt, TheGroupCarriesAReadablePng) {
  test::DossierTemporaire dossier;
  dossier.Ecrire("logo.bmp", Encoder(Logo(), "BMP"));
  const std::string groupe = ImagesQt().ImageVersRtf(dossier / "logo.bmp");
  const auto debut = groupe.find(' ') + 1;
  const QByteArray png = QByteArray::fromHex(QByteArray::fromStdString(groupe.substr(debut, groupe.size() - debut - 1)));
  QImage relue;
  ASSERT_TRUE(relue.loadFromData(png, "PNG"));
  EXPECT_EQ(relue.size(), QSize(300, 150));
  EXPECT_EQ(relue.pixelColor(10, 10), QColor(20, 90, 160));
}

TEST(ImagesQt, AMissingOrDamagedFileGivesNothing) {
  test::DossierTemporaire dossier;
  dossier.Ecrire("vide.png", "");
  dossier.Ecrire("texte.bmp", "ceci n'est pas une image");
  std::string tronque = Encoder(Logo(), "PNG");
  tronque.resize(40);
  dossier.Ecrire("tronque.png", tronque);
  dossier.Ecrire("entete.jpg", std::string("\xFF\xD8\xFF\xC0\x00\x11", 6));
  ImagesQt port;
  for (const char* nom : {"absent.png", "vide.png", "texte.bmp", "tronque.png", "entete.jpg", ""}) {
    EXPECT_EQ(port.ImageVersRtf(dossier / nom), "") << nom;
  }
  EXPECT_EQ(port.ImageVersRtf(""), "");
  EXPECT_EQ(port.ImageVersRtf(dossier.Chemin()), "");  // a folder
}

}  // namespace
}  // namespace norvane
