// Conditions si(...)alors: and the page numbers of a report.
#include <vector>

#include "frame/DossierTemporaire.h"
#include "construction/FichiersEtude.h"
#include "template/BancInterpreteur.h"

namespace norvane::test {
namespace {

class Conditions : public BancInterpreteur {
 protected:
  void SetUp() override { Info().Adresse = "1 rue du Bourg"; }

  // RES.DON of the current dossier: record 12 holds `colonne7` in column 7,
  // with `decimales` in its code; the other columns hold 9.
  void DossierAvecSerie(float colonne7, const std::string& decimales) {
    std::vector<SerieDonnees> series(12);
    series[11] = construction::Serie("RES-12:" + decimales, "Produit|EUR",
                                     {9, 9, 9, 9, 9, 9, 9, colonne7, 9, 9, 9, 9, 9, 9});
    const std::string dossier = construction::CreerDossierEtude(temporaire.Chemin(), "ESSAI.TVL", Info());
    construction::EcrireSeries(dossier + "/RES.DON", series);
    session.RepDossier[0] = temporaire.Chemin();
    session.NomDossier[0] = "ESSAI.TVL";
  }

  DossierTemporaire temporaire;
};

TEST_F(Conditions, TestNonNulSurLeTexteDeLaCondition) {
  EXPECT_EQ(Valeur("si(1<>0)alors:adresse"), "1 rue du Bourg");
  EXPECT_EQ(resultat, -1);
  EXPECT_EQ(Interpreter("a #tvl(si(0<>0)alors:adresse)# cache"), "a \\v cache");
  EXPECT_EQ(resultat, 0);
  EXPECT_EQ(Valeur("si(<>0)alors:adresse"), "\\v");
}

TEST_F(Conditions, FormeNonComprisePasseVraie) {
  EXPECT_EQ(Valeur("si(vrai)alors:adresse"), "1 rue du Bourg");
  EXPECT_EQ(Valeur("SI(0)ALORS:adresse"), "1 rue du Bourg");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Conditions, SerieLueEnColonneSept) {
  DossierAvecSerie(5, "0");
  EXPECT_EQ(Valeur("si(RES.DON+RES-12<>0)alors:adresse"), "1 rue du Bourg");
  DossierAvecSerie(0, "0");
  EXPECT_EQ(Valeur("si(RES.DON+RES-12<>0)alors:adresse"), "\\v");
  EXPECT_EQ(resultat, 0);
}

TEST_F(Conditions, ZeroFormateEstVrai) {
  DossierAvecSerie(0, "2");
  EXPECT_EQ(Valeur("si(RES.DON+RES-12<>0)alors:adresse"), "1 rue du Bourg");
}

TEST_F(Conditions, SerieDUnFichierAbsentEstFausse) {
  EXPECT_EQ(Valeur("si(ABSENT.DON+AB-3<>0)alors:adresse"), "\\v");
}

TEST_F(Conditions, AlorsManquant) {
  EXPECT_EQ(Valeur("si(1<>0)adresse"), Cp("< Portion de code erronée dans le modèle de document >"));
  EXPECT_EQ(resultat, -1);
  ASSERT_EQ(messages.messages.size(), 1u);
  const auto& m = messages.messages[0];
  EXPECT_EQ(m.titre, "Erreur détectée :  cliquez Fermer pour continuer");
  EXPECT_EQ(m.texte,
            "La portion de code \"si(1<>0)adresse\" dans le modèle est mal renseignée : il manque la balise "
            "\")alors:\" de fin d'une condition Si... Alors...");
  EXPECT_EQ(m.conseil, "Modifier le modèle de document pour que l'erreur n'apparaisse plus.");
}

TEST_F(Conditions, AlorsManquantCodeLongCoupe) {
  const std::string code = "si(" + std::string(60, 'x') + ")";
  Valeur(code);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_NE(messages.messages[0].texte.find("\"si(" + std::string(47, 'x') + "...\""), std::string::npos);
}

TEST_F(Conditions, TransfoPerenne) {
  Valeur("si(TransfoPerenne=Vrai)alors:adresse");
  EXPECT_TRUE(generation.etat.TransfoPerenne);
  Valeur("si(transfoperenne=faux)alors:adresse");
  EXPECT_FALSE(generation.etat.TransfoPerenne);
}

TEST_F(Conditions, NumerosDePagePartagentUnCompteur) {
  EXPECT_EQ(Interpreter("#tvl(numPage2)#|#tvl(numPage2)#|#tvl(numPage2bis)#"), "\\v0 2-1|\\v0 2-2|\\v0 2bis-3");
  EXPECT_EQ(generation.etat.NumPageCompteur, 3);
}

TEST_F(Conditions, ConditionFausseNeCompteNiNeCalcule) {
  Valeur("si(0<>0)alors:numPage2");
  EXPECT_EQ(generation.etat.NumPageCompteur, 0);
  EXPECT_EQ(Valeur("si(1<>0)alors:numPage2"), "\\v0 2-1");
}

}  // namespace
}  // namespace norvane::test
