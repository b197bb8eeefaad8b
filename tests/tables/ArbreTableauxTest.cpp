#include "tables/ArbreTableaux.h"

#include <gtest/gtest.h>

#include "support/PortsScriptes.h"
#include "tables/GestionTableaux.h"
#include "tables/SauvegardeAuto.h"

namespace norvane {
namespace {

ModeleTableau Modele(std::string nom, std::string dossier, std::string sousDossier, int16_t multi = 0) {
  ModeleTableau modele;
  modele.Nom = std::move(nom);
  modele.DossierTableau = std::move(dossier);
  modele.SousDossierTableau = std::move(sousDossier);
  modele.MultiDossier = multi;
  return modele;
}

// Each node as "key|text|image|parent", in the tree's order.
std::vector<std::string> Lignes(const ArbreTableaux& arbre) {
  std::vector<std::string> lignes;
  for (const NoeudArbre& n : arbre.Noeuds()) lignes.push_back(n.cle + "|" + n.texte + "|" + n.image + "|" + n.cleParent);
  return lignes;
}

StockTableaux StockEssai() {
  StockTableaux stock;
  stock.modeles = {Modele("R\xE9sultats", "Ventes", "Annuel"), Modele("Comparaison", "Synth\xE8se", "Annuel", 1),
                   Modele("  Marge  ", " Ventes ", ""), Modele("", "", "Annuel"),
                   Modele("Bilan", "Ventes", "Annuel")};
  return stock;
}

TEST(ConstruireArbre, KeysImagesOrderAndSameNamedSubFolders) {
  StockTableaux stock = StockEssai();
  ArbreTableaux arbre;
  ConstruireArbre(arbre, stock.modeles);
  const std::vector<std::string> attendu = {
      "Racine|Tableaux enregistrés|RepWinTervol|",
      "Ventes#Doss|Ventes|Doss|Racine",
      "Annuel#ssDoss#Ventes#Doss|Annuel|ssDoss|Ventes#Doss",
      "tab1|Résultats|tab1|Annuel#ssDoss#Ventes#Doss",
      "Synthèse#Doss|Synthèse|Doss|Racine",
      "Annuel#ssDoss#Synthèse#Doss|Annuel|ssDoss|Synthèse#Doss",
      "tab2|Comparaison|tab2|Annuel#ssDoss#Synthèse#Doss",
      "tab3|Marge|tab1|Ventes#Doss",  // a folder with blanks around it is the same folder
      "Divers#Doss|Divers|Doss|Racine",
      "Annuel#ssDoss#Divers#Doss|Annuel|ssDoss|Divers#Doss",
      "tab4|Nouveau tableau|tab1|Annuel#ssDoss#Divers#Doss",
      "tab5|Bilan|tab1|Annuel#ssDoss#Ventes#Doss",
  };
  EXPECT_EQ(Lignes(arbre), attendu);
  EXPECT_TRUE(arbre.EstDeploye("Racine"));
  EXPECT_EQ(stock.modeles[3].Nom, "Nouveau tableau");
  EXPECT_EQ(stock.modeles[3].DossierTableau, "Divers");
  EXPECT_EQ(arbre.Profondeur(*arbre.Trouver("tab5")), 3);
}

TEST(ConstruireArbre, EmptyStoreAndWhatASelectionShows) {
  std::vector<ModeleTableau> aucun;
  ArbreTableaux arbre;
  ConstruireArbre(arbre, aucun);
  ASSERT_EQ(arbre.Nombre(), 2u);
  EXPECT_EQ(Lignes(arbre)[1], "tab0|Aucun enregistrement|Vide|Racine");
  EXPECT_EQ(IndicationSelection(arbre.Noeuds()[1]), "Cliquez le bouton ' Ajout ' pour créer un tableau");
  EXPECT_EQ(IndicationSelection(NoeudArbre{"x", "x", "SSDOSS", ""}), "Sélectionnez un tableau dans la liste de gauche");
  EXPECT_EQ(IndicationSelection(NoeudArbre{"tab3", "x", "tab1", ""}), "");
  EXPECT_EQ(IndiceDeCle("tab12"), 12);
  EXPECT_EQ(IndiceDeCle("tab0"), 0);
  EXPECT_EQ(IndiceDeCle("tabx"), 0);
  EXPECT_EQ(IndiceDeCle("Ventes#Doss"), 0);
}

TEST(GestionTableaux, CreateMoveRename) {
  StockTableaux stock = StockEssai();
  ArbreTableaux arbre;
  EXPECT_EQ(CreerModele(stock, arbre), 6);
  EXPECT_EQ(arbre.Selection()->cle, "tab6");
  EXPECT_EQ(arbre.Selection()->cleParent, "Divers#Doss");
  EXPECT_EQ(stock.modeles[5].Lignes[510], NouvelleLigne());
  ChangerDossier(stock, arbre, "  Céréales ");
  EXPECT_EQ(stock.modeles[5].DossierTableau, "C\xE9r\xE9" "ales");
  EXPECT_EQ(arbre.Selection()->cleParent, "Céréales#Doss");
  ChangerSousDossier(stock, arbre, "Blé");
  EXPECT_EQ(arbre.Selection()->cleParent, "Blé#ssDoss#Céréales#Doss");
  RenommerModele(stock, arbre, " Rendements ");
  EXPECT_EQ(stock.modeles[5].Nom, "Rendements");
  EXPECT_EQ(arbre.Selection()->texte, "Rendements");
}

TEST(GestionTableaux, DeletionRules) {
  struct Cas {
    const char* selection;
    std::vector<Reponse> reponses;
    bool change;
    const char* titre;  // of the question or message shown
    std::size_t modeles;
  };
  const Cas cas[] = {
      {"Divers#Doss", {}, false, "Suppression interdite", 5},
      {"Ventes#Doss", {Reponse::Non}, false, "Confirmation de suppression d'un dossier", 5},
      {"Ventes#Doss", {Reponse::Oui}, true, "Confirmation de suppression d'un dossier", 5},
      {"Annuel#ssDoss#Ventes#Doss", {Reponse::Oui}, true, "Confirmation de suppression d'un sous-dossier", 5},
      {"tab2", {Reponse::Oui}, true, "Confirmation de suppression", 4},
  };
  for (const Cas& c : cas) {
    StockTableaux stock = StockEssai();
    ArbreTableaux arbre;
    ConstruireArbre(arbre, stock.modeles);
    arbre.Selectionner(c.selection);
    MessagesScriptes messages;
    messages.reponses.assign(c.reponses.begin(), c.reponses.end());
    EXPECT_EQ(SupprimerSelection(stock, arbre, messages), c.change) << c.selection;
    const std::string titre = messages.questions.empty() ? messages.messages.at(0).titre : messages.questions[0].titre;
    EXPECT_EQ(titre, c.titre) << c.selection;
    EXPECT_EQ(stock.modeles.size(), c.modeles) << c.selection;
    if (c.change) {
      EXPECT_EQ(arbre.Selection()->cle, arbre.Noeuds()[1].cle) << c.selection;
    }
  }
}

TEST(GestionTableaux, WhereDeletedFoldersSendTheirModels) {
  StockTableaux stock = StockEssai();
  ArbreTableaux arbre;
  ConstruireArbre(arbre, stock.modeles);
  MessagesScriptes messages;
  messages.reponses = {Reponse::Oui, Reponse::Oui};
  arbre.Selectionner("Annuel#ssDoss#Ventes#Doss");
  SupprimerSelection(stock, arbre, messages);
  EXPECT_EQ(messages.questions[0].texte,
            "Les tableaux contenus dans le sous-dossier ' Annuel '\nseront placés directement dans le dossier : "
            "' Ventes '.\nSupprimer le sous-dossier ' Annuel ' ?");
  EXPECT_EQ(stock.modeles[0].SousDossierTableau, "");
  EXPECT_EQ(stock.modeles[1].SousDossierTableau, "Annuel");  // same name, other folder
  arbre.Selectionner("Ventes#Doss");
  SupprimerSelection(stock, arbre, messages);
  EXPECT_EQ(stock.modeles[0].DossierTableau, "Divers");
  EXPECT_EQ(stock.modeles[2].DossierTableau, "Divers");  // " Ventes " is the same folder
  EXPECT_EQ(arbre.Selection()->cle, "Divers#Doss");  // the first folder now
}

TEST(ConstruireArbre, ASelectionComesBackByIndexThenByFolder) {
  StockTableaux stock = StockEssai();
  ArbreTableaux arbre;
  ConstruireArbre(arbre, stock.modeles);
  const std::tuple<int, const char*, const char*> cas[] = {
      {4, "Ventes", "tab4"}, {9, " Synthèse ", "Synthèse#Doss"}, {0, "Absent", "Ventes#Doss"}};
  for (const auto& [indice, dossier, cle] : cas) {
    RestaurerSelection(arbre, indice, dossier);
    EXPECT_EQ(arbre.Selection()->cle, cle) << indice << dossier;
  }
}

TEST(SauvegardeAuto, CountsTicksUpToTheDelay) {
  CompteurSauvegardeAuto compteur(3);
  EXPECT_FALSE(compteur.Tic());
  EXPECT_FALSE(compteur.Tic());
  EXPECT_TRUE(compteur.Tic());
  EXPECT_EQ(compteur.Tics(), 0);
  compteur.Definir(0);
  for (int i = 0; i < 10; ++i) EXPECT_FALSE(compteur.Tic());
}

}  // namespace
}  // namespace norvane
