// Each type of chart against a reference picture of golden/, so that a change
// in the look shows. To rewrite the references after a wanted change:
//   NORVANE_REGENERER_GOLDEN=1 build-dev/tests/graphs/render/test_rendu
// then look at the new pictures before committing them.
#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>
#include <functional>

#include "frame/Encodage.h"
#include "graphs/render/ModelesEssai.h"
#include "graphs/render/Dessin.h"

namespace norvane {
namespace {

using test::GrilleEssai;
using test::ModeleEssai;

// A resolution lower than print keeps the references small.
constexpr double kResolutionEssai = 100;

struct Ecart {
  double moyenParCanal = 0;  // mean absolute difference, 0 to 255
  double partPixelsEloignes = 0;  // pixels of which a channel differs by more than 64
};

Ecart Comparer(const QImage& a, const QImage& b) {
  const QImage x = a.convertToFormat(QImage::Format_RGB32);
  const QImage y = b.convertToFormat(QImage::Format_RGB32);
  double somme = 0;
  long eloignes = 0;
  for (int j = 0; j < x.height(); ++j) {
    for (int i = 0; i < x.width(); ++i) {
      const QRgb p = x.pixel(i, j), q = y.pixel(i, j);
      const int dr = std::abs(qRed(p) - qRed(q)), dv = std::abs(qGreen(p) - qGreen(q)), db = std::abs(qBlue(p) - qBlue(q));
      somme += dr + dv + db;
      if (std::max({dr, dv, db}) > 64) ++eloignes;
    }
  }
  const double pixels = static_cast<double>(x.width()) * x.height();
  return {somme / (3 * pixels), static_cast<double>(eloignes) / pixels};
}

struct Cas {
  const char* nom;
  int16_t type;
  std::function<void(ModeleGraphique&)> reglage;
};

const Cas kCas[] = {
    {"barres3D", kBarres3D, nullptr},
    {"barres2D", kBarres2D, [](ModeleGraphique& m) { m.EspaceBarres = 1; }},
    {"barres2D_empilees", kBarres2D, [](ModeleGraphique& m) { m.Empile = 1; }},
    {"courbes3D", kCourbes3D, nullptr},
    {"courbes2D_axe_secondaire", kCourbes2D,
     [](ModeleGraphique& m) {
       m.Series[2].AxeYSerie = 1;
       m.AxeY2.Libelle = "EBE";
     }},
    {"aires3D_empilees", kAires3D, [](ModeleGraphique& m) { m.Empile = 1; }},
    {"aires2D", kAires2D, [](ModeleGraphique& m) { m.Empile = 1; }},
    {"escaliers3D", kEscaliers3D, nullptr},
    {"escaliers2D", kEscaliers2D, [](ModeleGraphique& m) { m.Series[0].BrosseSerie = kBrosseVide; }},
    {"combinaison3D", kCombinaison3D, [](ModeleGraphique& m) { m.AxeZ.Libelle = Utf8VersCp1252("Séries"); }},
    {"combinaison2D", kCombinaison2D,
     [](ModeleGraphique& m) {
       m.Series[1].AxeYSerie = 1;
       m.AxeY2.Libelle = "Charges";
     }},
    {"secteurs2D", kSecteurs2D, nullptr},
    {"xy2D", kXY2D, nullptr},
    {"type_inconnu", 0, [](ModeleGraphique& m) { m.NbSeries = 1; }},
    {"sans_serie", kBarres2D, [](ModeleGraphique& m) { m.NbSeries = 0; }},
    {"annees_en_series", kBarres2D, [](ModeleGraphique& m) { m.InversionDataSeries = 1; }},
    {"disposition_placee", kBarres3D,
     [](ModeleGraphique& m) {
       m.RectTitre = {100, 1500, 3000, 5700};
       m.RectPlot = {1700, 7800, 100, 5700};
       m.RectLegende = {100, 1500, 1200, 2800};
       m.RectNote = {100, 1500, 100, 600};
       m.Elevation = 35;
       m.Rotation = 40;
       m.TexteTitre.Orientation = kVerticalEmpile;
       m.TexteNote.RetourTexte = 0;
       m.Titre = "Bilan";
     }},
    {"titre_pivote_hachures", kBarres2D,
     [](ModeleGraphique& m) {
       m.TexteTitre.Orientation = kVerticalPivote1;
       m.Series[0].BrosseSerie = kBrosseHachuree;
       m.TailleTitre = 20;
     }},
};

class DessinParType : public testing::TestWithParam<Cas> {};

TEST_P(DessinParType, StaysCloseToItsReference) {
  const Cas& cas = GetParam();
  ModeleGraphique modele = ModeleEssai(cas.type);
  if (cas.reglage) cas.reglage(modele);
  const QImage image = DessinerImage(modele, GrilleEssai(modele), kResolutionEssai);
  ASSERT_EQ(image.width(), 549);
  ASSERT_EQ(image.height(), 407);
  const QString chemin = QStringLiteral(NORVANE_GOLDEN "/%1.png").arg(QLatin1String(cas.nom));
  if (std::getenv("NORVANE_REGENERER_GOLDEN") != nullptr) {
    ASSERT_TRUE(image.save(chemin, "PNG"));
    GTEST_SKIP() << "reference rewritten: " << chemin.toStdString();
  }
  const QImage reference(chemin);
  ASSERT_FALSE(reference.isNull()) << "no reference " << chemin.toStdString();
  ASSERT_EQ(reference.size(), image.size());
  const Ecart ecart = Comparer(image, reference);
  EXPECT_LT(ecart.moyenParCanal, 1.5) << cas.nom;
  EXPECT_LT(ecart.partPixelsEloignes, 0.01) << cas.nom;
}

INSTANTIATE_TEST_SUITE_P(Types, DessinParType, testing::ValuesIn(kCas),
                         [](const testing::TestParamInfo<Cas>& p) { return std::string(p.param.nom); });

}  // namespace
}  // namespace norvane
