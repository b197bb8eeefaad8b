#include "tables/StockTableaux.h"

#include <gtest/gtest.h>

#include "frame/ResolutionChemins.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"
#include "support/Resultats.h"
#include "tables/CodeTableau.h"

namespace norvane {
namespace {

constexpr char kCode[] =
    "#tvl(taba2p1cr0;larg2000;larg7200([280;120][Produit;5006;10;1;0;0;0;0;0;r;1;1;1;1;8]"
    "[entete:1;5006;10;1;0;0;0;0;0;r;1;1;1;1;8]))#";

TEST(LireStock, FoldersJunkLinesAndHeadersOnly) {
  const std::string texte = std::string("texte en trop\r\n\r\n[Marge brute][Divers][]\r\n") + kCode +
                            "\r\n\r\n[A][][]\r\n" + kCode + "\n\n[B][  ]\r\n" + kCode + "\r\n[C][Ventes][Bl\xE9]\r\n" +
                            kCode + "\r\n";
  StockTableaux stock;
  const Resultat<void> lecture = LireStockTableaux(texte, true, stock);
  EXPECT_TRUE(lecture) << test::Raison(lecture);
  ASSERT_EQ(stock.modeles.size(), 4u);
  const std::pair<const char*, const char*> dossiers[] = {
      {"Divers", ""}, {"Divers", ""}, {"Divers", ""}, {"Ventes", "Bl\xE9"}};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(stock.modeles[i].DossierTableau, dossiers[i].first) << i;
    EXPECT_EQ(stock.modeles[i].SousDossierTableau, dossiers[i].second) << i;
    EXPECT_EQ(stock.modeles[i].Lignes[0].Cellules[0].Texte, "Produit") << i;
  }
  StockTableaux entetes;
  EXPECT_TRUE(LireStockTableaux(texte, false, entetes));
  ASSERT_EQ(entetes.modeles.size(), 4u);
  EXPECT_EQ(entetes.modeles[3].Nom, "C");
  EXPECT_EQ(entetes.modeles[3].Centre, 1);
  EXPECT_TRUE(entetes.modeles[3].Lignes[0].Cellules[0].Texte.empty());
}

TEST(LireStock, AModelThatCannotBeReadEndsTheReading) {
  struct Cas {
    std::string texte;
    std::size_t modeles;
    int ligne;
  };
  const Cas cas[] = {
      {std::string("[A][D][]\r\n") + kCode + "\r\n\r\n[B][D][]\r\npas un code\r\n[C][D][]\r\n" + kCode, 2, 5},
      {std::string("[A][D][]\r\n#tvl(taba2p1;largQ;larg7200([1;1][a][b]))#\r\n[C][D][]\r\n") + kCode, 1, 2},
      {"[A][D][]", 1, 1},
  };
  for (const Cas& c : cas) {
    StockTableaux stock;
    const Resultat<void> lecture = LireStockTableaux(c.texte, true, stock);
    ASSERT_FALSE(lecture) << c.texte;
    EXPECT_EQ(stock.modeles.size(), c.modeles) << c.texte;
    EXPECT_EQ(lecture.Erreur().ligne, static_cast<uint64_t>(c.ligne)) << c.texte;
  }
}

TEST(ChargerStock, AStopNamesTheFileTheModelTheOffsetAndTheLine) {
  test::DossierTemporaire dossier;
  dossier.Ecrire("tableaux.txt", std::string("[A][D][]\r\n#tvl(taba2p1;largQ;larg7200([1;1][a][b]))#\r\n"));
  StockTableaux stock;
  const Resultat<void> lecture = ChargerTableaux(dossier / "tableaux.txt", true, stock);
  ASSERT_FALSE(lecture);
  EXPECT_EQ(lecture.Erreur().Position(),
            "fichier " + dossier.Chemin() + "tableaux.txt, enregistrement 1, octet 27, ligne 2");
  EXPECT_EQ(lecture.Erreur().texte, "une largeur de colonne n'est pas un nombre");
  EXPECT_EQ(stock.chemin, dossier / "tableaux.txt");
  EXPECT_EQ(stock.modeles.size(), 1u);
}

TEST(SauverStock, CrLfRepairsAndTheSilentAutomaticSave) {
  test::DossierTemporaire dossier;
  StockTableaux stock;
  stock.chemin = dossier / "tableaux.txt";
  stock.modeles.resize(2);
  stock.modeles[0].Nom = "Complet";
  stock.modeles[0].Lignes[0] = {280, 120, {}, {"espace", "", ""}, 0};
  stock.modeles[1].Nom = "Incomplet";
  MessagesScriptes messages;
  ASSERT_TRUE(SauverTableaux(stock, true, messages));
  EXPECT_TRUE(messages.messages.empty());
  EXPECT_EQ(stock.modeles[0].Lignes[0].Definition.Cadre, "0;0;0;0;8");  // repaired in the list
  const std::string texte = dossier.Lire("tableaux.txt");
  EXPECT_EQ(texte,
            "[Complet][Divers][]\r\n#tvl(taba2p1cr0;larg2000;larg7200([280;120][;5006;10;1;0;0;0;0;0;l;1;1;1;1;8]"
            "[espace;5006;10;1;0;0;0;0;0;l;0;0;0;0;8]))#\r\n\r\n"
            "[Incomplet][Divers][]\r\n#tvl()#\r\n\r\n");
  ASSERT_TRUE(SauverTableaux(stock, false, messages));
  EXPECT_EQ(messages.messages.size(), 1u);
  StockTableaux relu;
  ChargerTableaux(stock.chemin, true, relu);  // the incomplete model stops the reading
  ASSERT_EQ(relu.modeles.size(), 2u);
  EXPECT_EQ(relu.modeles[0], stock.modeles[0]);
}

TEST(AjouterSupprimer, AppendToAnotherStoreThenDeleteFromIt) {
  test::DossierTemporaire dossier;
  const std::string chemin = dossier / "autre/tableaux.txt";
  dossier.Ecrire("autre/tableaux.txt", std::string("[Premier][Ventes][]\r\n") + kCode + "\r\n");
  ModeleTableau modele;
  modele.Nom = "Copie";
  modele.DossierTableau = "Ventes";
  modele.SousDossierTableau = "Bl\xE9";
  modele.Lignes[0].Definition.Texte = "espace";
  MessagesScriptes messages;
  ASSERT_TRUE(AjouterTableauAuFichier(chemin, modele, 1, true, messages));
  StockTableaux stock;
  ASSERT_TRUE(ChargerTableaux(chemin, true, stock));
  ASSERT_EQ(stock.modeles.size(), 2u);
  EXPECT_EQ(stock.modeles[1].DossierTableau, "Copies - Ajouts");
  ASSERT_TRUE(SupprimerTableauDuFichier(2, chemin, messages));
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].texte,
            "Le modèle de tableau n°2 \"Copie\" a été définitivement supprimé du dossier \"Copies - Ajouts\". "
            "Sous dossier : \"Blé\".");
  ASSERT_TRUE(ChargerTableaux(chemin, true, stock));
  EXPECT_EQ(stock.modeles.size(), 1u);
  EXPECT_FALSE(SupprimerTableauDuFichier(5, chemin, messages));
}

TEST(ChoixFichier, TotalAccessAsksForTheCerfaStore) {
  MessagesScriptes messages;
  EXPECT_EQ(ChoisirFichierTableaux("/n/Norvane/", 0, messages), "/n/Norvane/tableaux.txt");
  EXPECT_TRUE(messages.questions.empty());
  messages.reponses = {Reponse::Oui, Reponse::Non};
  EXPECT_EQ(ChoisirFichierTableaux("/n/Norvane", -1, messages), "/n/Norvane/PDE/tableaux.txt");
  EXPECT_EQ(ChoisirFichierTableaux("/n/Norvane", -1, messages), "/n/Norvane/tableaux.txt");
  ASSERT_EQ(messages.questions.size(), 2u);
  EXPECT_EQ(messages.questions[0].titre, "Mode accès total");
  EXPECT_EQ(messages.questions[0].texte, "Gérer les tableaux du PDE Cerfa ?");
}

TEST(StockExemple, EveryModelWritesBackAsStoredAndReadsBackEqual) {
  const std::string chemin = std::string(NORVANE_SOURCE_DIR) + "/exemple/modeles/tableaux.txt";
  StockTableaux stock;
  const Resultat<void> lecture = ChargerTableaux(chemin, true, stock);
  ASSERT_TRUE(lecture) << test::Raison(lecture);
  ASSERT_EQ(stock.modeles.size(), 26u);
  std::string texte;
  for (std::size_t i = 0; i < stock.modeles.size(); ++i) {
    const ModeleTableau& modele = stock.modeles[i];
    ModeleTableau relu = modele;
    relu.Nom.clear();
    ASSERT_TRUE(LireCodeTableau(EcrireCodeTableau(modele), relu)) << modele.Nom;
    relu.Nom = modele.Nom;
    EXPECT_EQ(relu, modele) << modele.Nom;
    texte += TexteModeleStock(modele, static_cast<int>(i + 1), nullptr);
  }
  EXPECT_EQ(texte, *LireFichier(chemin));
}

TEST(ChargerStock, MissingOrEmptyFileGivesNoModelAndNoMessage) {
  test::DossierTemporaire dossier;
  dossier.Ecrire("vide.txt", "");
  for (const char* nom : {"absent.txt", "vide.txt"}) {
    StockTableaux stock;
    const Resultat<void> lecture = ChargerTableaux(dossier / nom, true, stock);
    EXPECT_TRUE(stock.modeles.empty());
    EXPECT_TRUE(lecture) << test::Raison(lecture);
  }
}

}  // namespace
}  // namespace norvane
