#include "graphs/SeriesGraphique.h"

#include <gtest/gtest.h>

#include <cmath>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"

namespace norvane {
namespace {

using construction::Serie;

class SeriesGraphiqueTest : public ::testing::Test {
 protected:
  SeriesGraphiqueTest() {
    construction::EcrireSeries(Dossier() + "RES.DON", {Serie("RES-1:0", "Produit brut|\x80", {100, 1, 2, 3, 4, 5}),
                                                       Serie("RES-17:0", "EBE|\x80", {50, 11, 12, 13, 14, 15, 16, 17,
                                                                                     18, 19, 20, 21, 22, 23})});
    source.dossier = Dossier();
    source.NbAnEtude = 3;
    source.PremiereAnnee = 2025;
  }
  std::string Dossier() const { return racine_ / "ESSAI.TVL/"; }

  static ModeleGraphique Modele(std::initializer_list<std::pair<const char*, const char*>> series) {
    ModeleGraphique m;
    for (const auto& [fichier, code] : series) {
      SerieGraphique& s = m.Series[static_cast<std::size_t>(m.NbSeries++)];
      s.FichierSerie = fichier;
      s.CodeSerie = code;
      s.NomSerie = std::string("Serie ") + code;
    }
    return m;
  }

  test::DossierTemporaire racine_;
  SourceValeursGraphique source;
  MessagesScriptes messages;
  GrilleGraphique grille;
};

TEST_F(SeriesGraphiqueTest, ASeriesValuesAreThoseOfItsCode) {
  const ValeursSerie ebe = LireValeursSerie(Dossier(), " res.don ", "RES-17:0  ");
  EXPECT_EQ(ebe[0], 50.0f);
  EXPECT_EQ(ebe[13], 23.0f);
  for (const auto& [fichier, code] : std::vector<std::pair<std::string, std::string>>{
           {"RES.DON", "RES-99:0"}, {"ABSENT.DON", "RES-1:0"}, {"RES.DON", ""}}) {
    const ValeursSerie zero = LireValeursSerie(Dossier(), fichier, code);
    EXPECT_EQ(zero, ValeursSerie{}) << fichier << " " << code;
  }
}

TEST_F(SeriesGraphiqueTest, TheGridTakesTheStudyYearsAndTheDossierSeries) {
  ASSERT_TRUE(RemplirGrille(Modele({{"RES.DON", "RES-1:0"}, {"RES.DON", "RES-17:0"}}), source, grille, messages));
  ASSERT_EQ(grille.NbLignes(), 3);
  ASSERT_EQ(grille.NbColonnes(), 2);
  EXPECT_EQ(grille.LibellesLignes, (std::vector<std::string>{"2025", "2026", "2027"}));
  EXPECT_EQ(grille.LibellesColonnes[1], "Serie RES-17:0");
  EXPECT_EQ(grille.Valeur(0, 0), 1.0);
  EXPECT_EQ(grille.Valeur(2, 1), 13.0);
  EXPECT_EQ(grille.Valeur(3, 1), 0.0);
}

TEST_F(SeriesGraphiqueTest, ASeriesMissingFromItsFileIsDrawnAtZero) {
  // The series read before it must not leak into it.
  ASSERT_TRUE(RemplirGrille(Modele({{"RES.DON", "RES-17:0"}, {"RES.DON", "RES-5:0"}, {"AUTRE.DON", "RES-17:0"}}),
                            source, grille, messages));
  for (int r = 0; r < 3; ++r) {
    EXPECT_EQ(grille.Valeur(r, 1), 0.0);
    EXPECT_EQ(grille.Valeur(r, 2), 0.0);
  }
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(SeriesGraphiqueTest, WithoutYearsOneRowPerSeries) {
  source.NbAnEtude = 0;
  ASSERT_TRUE(RemplirGrille(Modele({{"RES.DON", "RES-1:0"}, {"RES.DON", "RES-17:0"}}), source, grille, messages));
  EXPECT_EQ(grille.NbLignes(), 2);
  ASSERT_TRUE(RemplirGrille(ModeleGraphique{}, source, grille, messages));
  EXPECT_EQ(grille.NbLignes(), 0);
  EXPECT_EQ(grille.NbColonnes(), 0);
}

TEST_F(SeriesGraphiqueTest, ExampleValuesWithoutADossier) {
  source.valeursExemple = true;
  source.dossier.clear();
  ASSERT_TRUE(RemplirGrille(Modele({{"RES.DON", "RES-1:0"}}), source, grille, messages));
  ASSERT_EQ(grille.NbLignes(), 3);
  for (int r = 1; r <= 3; ++r) EXPECT_DOUBLE_EQ(grille.Valeur(r - 1, 0), (std::sin(r) + 6.28) * 1000.0);
  EXPECT_EQ(grille.LibellesLignes[0], "2025");
}

TEST_F(SeriesGraphiqueTest, MoreYearsThanTheSeriesHoldGiveAnEmptyGraph) {
  source.NbAnEtude = 13;
  ASSERT_TRUE(RemplirGrille(Modele({{"RES.DON", "RES-17:0"}}), source, grille, messages));
  EXPECT_EQ(grille.Valeur(12, 0), 23.0);
  source.NbAnEtude = 14;
  ModeleGraphique m = Modele({{"RES.DON", "RES-17:0"}});
  m.Titre = "EBE";
  EXPECT_FALSE(RemplirGrille(m, source, grille, messages));
  EXPECT_EQ(grille.NbLignes(), 0);
  EXPECT_EQ(grille.NbColonnes(), 0);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].texte,
            "Le graphique \"EBE\" demande 14 années d'étude ; les séries de données n'en portent que 13.");
}

TEST_F(SeriesGraphiqueTest, ASessionsSourceIsItsCurrentDossier) {
  Session session;
  session.RepDossier[0] = "/x/";
  session.NomDossier[0] = "ESSAI.TVL";
  session.InfoDossier.NbAnEtude = 6;
  session.InfoDossier.AnneeDebut = 2030;
  const SourceValeursGraphique s = SourceDeSession(session, false);
  EXPECT_EQ(s.dossier, "/x/ESSAI.TVL/");
  EXPECT_EQ(s.NbAnEtude, 6);
  EXPECT_EQ(s.PremiereAnnee, 2030);
  EXPECT_FALSE(s.valeursExemple);
}

}  // namespace
}  // namespace norvane
