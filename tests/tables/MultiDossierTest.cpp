// Tables that compare dossiers: one value column per dossier, the dossiers
// taken from the session's slots (the command line's --comparer), asked once
// for as long as the count stays the same, and a table left out with a word
// when one of its dossiers cannot be had.
#include <string>
#include <vector>

#include "tables/BancTableaux.h"

namespace norvane::test {
namespace {

const std::string kFormat = "5006;10;1;0;0;0;0;0;r;1;1;1;1;8";

// "tabd<n>": headings of kind `sorte`, then the series of record 1 in year 2
// of each dossier.
std::string CodeComparaison(int nombre, const std::string& sorte = "1") {
  return "tabd" + std::to_string(nombre) + "p1cr0;larg2000;larg7200([280;120][;" + kFormat + "][entete:" + sorte +
         ":;" + kFormat + "]#[280;120][Produit;" + kFormat + "][2@serie:RES.DON+RES-1:0:0;" + kFormat + "])";
}

std::string Contenu(const std::string& texte, int couleur = 3) {
  return R"(\qr\intbl\clvertalb{\fs20\f5006\cf)" + std::to_string(couleur) + " " + texte + R"(}\cell)";
}

class Comparaison : public BancTableaux {
 protected:
  Comparaison() {
    construction::EcrireSeries(temporaire / "AUTRE.TVL/RES.DON",
                               {construction::Serie("RES-1:0", "Produit|EUR", {0, 1, -2500, 3})});
    session.RepDossier[1] = temporaire.Chemin();
    session.NomDossier[1] = "ESSAI.TVL";
    session.RepDossier[2] = temporaire.Chemin();
    session.NomDossier[2] = "AUTRE.TVL";
  }
};

TEST_F(Comparaison, OneColumnPerDossierHeadedByItsName) {
  const std::string tableau = Generer(CodeComparaison(2));
  EXPECT_NE(tableau.find(R"(\clcbpat10\cellx5600)"), std::string::npos);
  EXPECT_NE(tableau.find(R"(\clcbpat10\cellx9200)"), std::string::npos);
  EXPECT_NE(tableau.find(Contenu("ESSAI") + Contenu("AUTRE")), std::string::npos) << tableau;
  EXPECT_NE(tableau.find(Contenu("-3", 8) + Contenu("-2\xA0" "500", 8)), std::string::npos)
      << tableau;
  EXPECT_EQ(choix.titres, std::vector<std::string>{
                               std::string(kTitreChoixDossiers) + " / " + kEnteteChoixDossiers});
}

TEST_F(Comparaison, DossierHeadingKinds) {
  struct Cas {
    std::string sorte;
    std::string premier, second;
  };
  const std::vector<Cas> cas = {{"1", "ESSAI", "AUTRE"},       {"2", Cp("Hypothèse 1"), Cp("Hypothèse 2")},
                                {"3", "H1", "H2"},              {"4", Cp("Dossier Tervol n°1"), Cp("Dossier Tervol n°2")},
                                {"5", Cp("Dossier n°1"), Cp("Dossier n°2")}, {"6", "Dossier 1", "Dossier 2"},
                                {"8", "", ""}};
  for (const Cas& c : cas) {
    EXPECT_NE(Generer(CodeComparaison(2, c.sorte)).find(Contenu(c.premier) + Contenu(c.second)), std::string::npos)
        << c.sorte;
  }
}

TEST_F(Comparaison, TheSameCountIsNotAskedTwiceAnotherCountIs) {
  Generer(CodeComparaison(2));
  Generer(CodeComparaison(2));
  EXPECT_EQ(choix.demandes, std::vector<int>{2});
  Generer(CodeComparaison(1));
  Generer(CodeComparaison(2));
  EXPECT_EQ(choix.demandes, (std::vector<int>{2, 1, 2}));
}

TEST_F(Comparaison, ATableWhoseDossiersCannotBeHadIsLeftOutWithAWord) {
  session.NomDossier[3] = "ABSENT.TVL";
  session.RepDossier[3] = temporaire.Chemin();
  EXPECT_EQ(Generer(CodeComparaison(4)), "");
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].titre, kTitreChoixDossiers);
  EXPECT_NE(messages.messages[0].texte.find("- dossier n°3 : " + temporaire.Chemin() + "ABSENT.TVL/ est introuvable"),
            std::string::npos)
      << messages.messages[0].texte;
  EXPECT_NE(messages.messages[0].texte.find("- dossier n°4 : aucun dossier choisi"), std::string::npos);
  // The next table of the same count asks again.
  EXPECT_EQ(Generer(CodeComparaison(4)), "");
  EXPECT_EQ(choix.demandes.size(), 2u);
  // A one-dossier table is not concerned.
  EXPECT_NE(Generer("taba2p1c0;larg2000;larg7200([280;120][A;" + kFormat + "][serie:RES.DON+RES-1:0:0;" + kFormat + "])"),
            "");
}

}  // namespace
}  // namespace norvane::test
