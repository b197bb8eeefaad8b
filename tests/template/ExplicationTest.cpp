// Explain mode: the help box of a selected code.
#include "template/BancInterpreteur.h"

namespace norvane::test {
namespace {

const std::string kExemple =
    "Par exemple, pour le dossier Tervol actuellement lié à Norvane, le résultat du code serait ";

class Explication : public BancInterpreteur {
 protected:
  void SetUp() override {
    Info().NomExploitation = "GAEC DU PR\xC9";
    Info().DateDebut = "01/01/2005";
  }
  const MessageEnregistre& Boite() {
    EXPECT_EQ(messages.messages.size(), 1u);
    return messages.messages.back();
  }
};

TEST_F(Explication, MotDuVocabulaire) {
  EXPECT_EQ(Interpreter("#tvl(nomExplSoc)#", true), "GAEC DU PR\xC9");
  const auto& b = Boite();
  EXPECT_EQ(b.titre, "Interprétation d'un code Norvane");
  EXPECT_EQ(b.style, "Aide");
  EXPECT_EQ(b.texte, "#tvl(nomExplSoc)# est le code pour afficher le nom de l'exploitant ou de la société.");
  EXPECT_EQ(b.conseil, kExemple + ": GAEC DU PRÉ");
}

TEST_F(Explication, FamilleAvecSonIndice) {
  Interpreter("#tvl(an4Fin3)#", true);
  EXPECT_EQ(Boite().texte, "#tvl(an4Fin3)# est le code pour afficher l'année de fin d'exercice 3 sur 4 chiffres.");
  EXPECT_EQ(Boite().conseil, kExemple + ": 2008");
}

TEST_F(Explication, CodeNettoyeDansLEntete) {
  Interpreter("#tvl({\\b date0})#", true);
  EXPECT_EQ(Boite().texte,
            "#tvl(date0)# est le code pour afficher la date d'exercice 0 au format suivant : <mois début/fin en "
            "clair> - <année début/fin sur 4 chiffres>.");
  EXPECT_EQ(Boite().conseil, kExemple + ": Jan. 2004 - Déc. 2004");
}

TEST_F(Explication, ParEnBlanc) {
  Societe();
  Info().NbAssocies = 1;
  Info().NomAssocie[1] = "Paul";
  Interpreter("#tvl(nomSocAss)#", true);
  EXPECT_EQ(Boite().texte,
            "#tvl(nomSocAss)# est le code pour afficher le nom de la société avec les différents partenaires "
            "( champ laissé vide si exploit. individuelle ).");
  EXPECT_EQ(Boite().conseil,
            kExemple + "( avec un saut de ligne après chaque nom ) : Nom société : GAEC DU PRÉ - Paul");
}

TEST_F(Explication, SautDePageSansExemple) {
  Interpreter("#tvl(saut2page)#", true);
  EXPECT_EQ(Boite().texte, "#tvl(saut2page)# est le code permettant un saut de page.");
  EXPECT_EQ(Boite().conseil, "");
}

TEST_F(Explication, OrgaAideDuMoisDeFin) {
  Interpreter("#tvl(ORGANOM12)#", true);
  EXPECT_EQ(Boite().texte,
            "#tvl(ORGANOM12)# est le code pour afficher le mois de fin d'exercice 2 écrit en clair ( abrégé si le "
            "mois fait plus de 4 lettres ).");
}

TEST_F(Explication, DateEtSerie) {
  Interpreter("#tvl(date(10))#", true);
  EXPECT_EQ(Boite().texte,
            "#tvl(date(10))# est le code pour afficher une date fixe ou mise à jour au moment de la création du "
            "document résultat.");
  EXPECT_EQ(Boite().conseil, kExemple + ": 22");
}

TEST_F(Explication, TableauxNonCalcules) {
  const std::vector<std::pair<std::string, std::string>> cas = {
      {"taba2p1", "pluri-annuel."},
      {"tabd1p1", "affichant une seule colonne de valeurs sur 1 dossier."},
      {"tabd3p1", "permettant de comparer les données de 3 dossiers."},
      {"culture1taba2", "des cultures ( pérennes ou non )."},
      {"cultper1taba2", "des cultures ( pérennes ou non )."},
      {"actlibr1taba2", "des activités libres animales."}};
  for (const auto& [code, sorte] : cas) {
    messages.messages.clear();
    EXPECT_EQ(Interpreter("#tvl(" + code + ")#", true), "#tvl(" + code + ")#");
    EXPECT_EQ(Boite().texte, "#tvl(" + code + ")# est le code d'un tableau " + sorte);
    EXPECT_EQ(Boite().conseil, "");
    EXPECT_EQ(Boite().style, "Aide");
  }
}

TEST_F(Explication, LongCodeDeTableauCoupe) {
  const std::string code = "taba2p1cr0;larg2000;larg7200([280;120][Produit;5006;10;1;0;0;0])";
  Interpreter("#tvl(" + code + ")#", true);
  EXPECT_EQ(Boite().texte, "#tvl(" + code.substr(0, 50) + "... )# est le code d'un tableau pluri-annuel.");
}

TEST_F(Explication, Graphique) {
  Interpreter("#tvl(gph(Marge_brute;1;0;2))#", true);
  EXPECT_EQ(Boite().texte, "#tvl(gph(Marge_brute;1;0;2))# est le code pour afficher le graphique \"Marge brute\".");
  messages.messages.clear();
  Interpreter("#tvl(gph(ancien))#", true);
  EXPECT_EQ(Boite().texte, "#tvl(gph(ancien))# est le code pour afficher le graphique \"Inconnu\".");
}

TEST_F(Explication, CodeInconnuSeulementLErreur) {
  Interpreter("#tvl(inconnu)#", true);
  EXPECT_EQ(Boite().titre, "Erreur détectée :  cliquez Fermer pour continuer");
}

}  // namespace
}  // namespace norvane::test
