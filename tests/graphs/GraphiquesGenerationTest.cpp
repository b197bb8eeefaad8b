#include "graphs/GraphiquesGeneration.h"

#include <gtest/gtest.h>

#include "graphs/CodeGraphique.h"
#include "graphs/ModelesEssai.h"
#include "support/BancInterpreteur.h"
#include "support/DossierTemporaire.h"

namespace norvane {
namespace {

using construction::Serie;

// A drawer that keeps what it was given and answers a fixed picture.
class DessinEnregistre : public PortDessinGraphique {
 public:
  std::string ImageGraphique(const ModeleGraphique& modele, const GrilleGraphique& grille) override {
    modeles.push_back(modele);
    grilles.push_back(grille);
    return "{\\pict image}";
  }
  std::vector<ModeleGraphique> modeles;
  std::vector<GrilleGraphique> grilles;
};

class GraphiquesGenerationTest : public test::BancInterpreteur {
 protected:
  GraphiquesGenerationTest() {
    generation.graphiques = &port;
    DossierEssai(racine.Chemin(), {Serie("RES-1:0", "Produit|\x80", {0, 1, 2, 3}),
                                   Serie("RES-17:0", "EBE|\x80", {0, 10, 20, 30})});
    Info().NbAnEtude = 3;
    Info().AnneeDebut = 2025;
  }

  // The code of a model as a template holds it.
  static std::string CodeDe(const ModeleGraphique& m) { return CodeGraphiqueInsere(m); }

  test::DossierTemporaire racine;
  DessinEnregistre dessin;
  double prochainHasard = 0.5;
  GraphiquesGeneration port{&dessin, [this] { return prochainHasard; }};
};

TEST_F(GraphiquesGenerationTest, TheCodeBecomesTheGraphPictureWithTheDossierValues) {
  EXPECT_EQ(Interpreter("avant " + CodeDe(test::ModeleComplet()) + " apr\xE8s"), "avant {\\pict image} apr\xE8s");
  ASSERT_EQ(dessin.modeles.size(), 1u);
  const ModeleGraphique& m = dessin.modeles[0];
  EXPECT_EQ(m.Titre, "R\xE9sultats de l'exploitation");
  EXPECT_EQ(m.Commentaire, "Source : dossier d'\xE9tude");
  EXPECT_EQ(m.Series[1].NomSerie, "Annuit\xE9s");
  const GrilleGraphique& grille = dessin.grilles[0];
  EXPECT_EQ(grille.LibellesLignes, (std::vector<std::string>{"2025", "2026", "2027"}));
  EXPECT_EQ(grille.Valeur(2, 0), 30.0);  // RES-17:0, study year 3
  EXPECT_EQ(grille.Valeur(2, 1), 0.0);   // RES-18:0 is not in the file
  EXPECT_TRUE(messages.messages.empty()) << messages.Journal();
}

TEST_F(GraphiquesGenerationTest, ASeriesWithoutAColourGetsOneKeptInTheWorkingModel) {
  ModeleGraphique m = test::ModeleComplet();
  m.Series[0].Rouge = m.Series[0].Vert = m.Series[0].Bleu = 0;
  Interpreter(CodeDe(m));
  ASSERT_EQ(dessin.modeles.size(), 1u);
  const SerieGraphique& s = dessin.modeles[0].Series[0];
  EXPECT_EQ(s.Rouge, 227);  // 0.5 x 255 + 100
  EXPECT_EQ(s.Vert, 227);
  EXPECT_EQ(s.Bleu, 227);
  EXPECT_EQ(dessin.modeles[0].Series[1].Rouge, 11);
  EXPECT_EQ(port.ModeleCourant().Series[0].Rouge, 227);
}

TEST_F(GraphiquesGenerationTest, AShortCodeKeepsWhatThePreviousCodeLeft) {
  Interpreter(CodeDe(test::ModeleComplet()));
  Valeur("gph(Court;2;0;0;)");
  ASSERT_EQ(dessin.modeles.size(), 2u);
  EXPECT_EQ(dessin.modeles[1].Titre, "Court");
  EXPECT_EQ(dessin.modeles[1].NbSeries, 0);
  EXPECT_EQ(dessin.modeles[1].AxeY.Libelle, "Euros");
  EXPECT_EQ(dessin.grilles[1].NbColonnes(), 0);
}

TEST_F(GraphiquesGenerationTest, AnOldVersionCodeIsReportedWithoutAPicture) {
  EXPECT_EQ(Valeur("gph(Ancien)"), "\\~");
  EXPECT_TRUE(dessin.modeles.empty());
  const MessageEnregistre boite = Boite();
  EXPECT_EQ(boite.titre, "Code d'un graphique erroné dans le modèle TVM");
  EXPECT_EQ(boite.texte, "Le code balisé #tvl(gph(...))# est mal renseigné dans le modèle de document.");
}

TEST_F(GraphiquesGenerationTest, ANonNumericFieldGivesAnEmptyGraph) {
  Valeur("gph(Titre;barres;1;2;)");
  ASSERT_EQ(dessin.modeles.size(), 1u);
  EXPECT_EQ(dessin.modeles[0].NbSeries, 0);
  EXPECT_EQ(dessin.grilles[0].NbLignes(), 0);
  EXPECT_EQ(Boite().conseil,
            "Description technique de l'erreur : le champ n°2 du graphique (\"barres\") devrait être un nombre.\n"
            "Le graphique est laissé vide.");
}

TEST_F(GraphiquesGenerationTest, TooManyYearsGiveAnEmptyGraph) {
  Info().NbAnEtude = 20;
  Interpreter(CodeDe(test::ModeleComplet()));
  ASSERT_EQ(dessin.modeles.size(), 1u);
  EXPECT_EQ(dessin.modeles[0].NbSeries, 0);
  EXPECT_EQ(Boite().conseil, "Le graphique est laissé vide.");
}

TEST_F(GraphiquesGenerationTest, WithoutADrawerTheValueIsEmpty) {
  GraphiquesGeneration sansDessin(nullptr);
  generation.graphiques = &sansDessin;
  EXPECT_EQ(Valeur("gph(T;1;0;0;)"), "\\~");
  EXPECT_EQ(sansDessin.ModeleCourant().Titre, "T");
}

TEST_F(GraphiquesGenerationTest, ExplainModeGivesTheGraphTitle) {
  Interpreter("#tvl(gph(Mon_EBE;4;0;0;))#", true);
  EXPECT_TRUE(dessin.modeles.empty());
  EXPECT_EQ(Boite().texte, "#tvl(gph(Mon_EBE;4;0;0;))# est le code pour afficher le graphique \"Mon EBE\".");
}

}  // namespace
}  // namespace norvane
