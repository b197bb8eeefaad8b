// Catalogues: the 118-byte record, and the tree of series they give: head
// node, groups made once, unused entries skipped, RESSUP.CFG without a head.
#include <gtest/gtest.h>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "study/Catalogues.h"
#include "study/ChampsEssai.h"

namespace norvane {
namespace {

EntreeCatalogue Entree(const std::string& code, const std::string& intitule, const std::string& groupe1 = "",
                       const std::string& groupe2 = "", int16_t sorte = 1) {
  return {code, intitule, groupe1, groupe2, sorte, 0};
}

// The tree of a catalogue written in a fresh Datacfg folder, one line a node.
std::string Arbre(const std::string& fichier, const std::vector<EntreeCatalogue>& entrees) {
  test::DossierTemporaire datacfg;
  construction::EcrireCatalogue(datacfg / fichier, entrees);
  std::string texte;
  for (const NoeudArbre& n : RemplirArbreSeries(fichier, datacfg.Chemin())) {
    texte += n.cleParent + " > " + n.cle + " [" + n.texte + "] " + n.image + "\n";
  }
  return texte;
}

TEST(ArbreSeries, HeadGroupsOnceAndLeavesKeyedByTheDonFile) {
  EXPECT_EQ(Arbre("RES.CFG", {Entree("RES", "R\xE9sultats"), Entree("RES-1:0", "Produit brut", "Produits"),
                              Entree("RES-2:0", "Lait vendu", "Produits", "Lait"),
                              Entree("RES-3:0", "[ sans nom ]", "Produits"),
                              Entree("RES-4:2", "Prix du lait", "Produits", "Lait"),
                              Entree("RES-5:0", "Note", "", "", 0),  // not a series line
                              Entree("RES5", "Sans tiret"), Entree("RES-17", "EBE")}),
            " > RES [R\xE9sultats] rep\n"
            "RES > RES-Produits [Produits] rep\n"
            "RES-Produits > RES.DON+RES-1 [Produit brut] puce\n"
            "RES-Produits > RES-ProduitsLait [Lait] rep\n"
            "RES-ProduitsLait > RES.DON+RES-2 [Lait vendu] puce\n"
            "RES-ProduitsLait > RES.DON+RES-4 [Prix du lait] puce\n"
            "RES > RES.DON+RES-17 [EBE] puce\n");
}

TEST(ArbreSeries, RessupHasNoHeadNode) {
  EXPECT_EQ(Arbre("RESSUP.CFG", {Entree("RESSUP", "Compl\xE9ments"), Entree("RESSUP-1:0", "Marge", "Ateliers"),
                                 Entree("RESSUP-2:0", "Solde")}),
            " > RESSUP-Ateliers [Ateliers] rep\n"
            "RESSUP-Ateliers > RESSUP.DON+RESSUP-1 [Marge] puce\n"
            " > RESSUP.DON+RESSUP-2 [Solde] puce\n");
}

TEST(ArbreSeries, FoundByPathOrByNameInAnyCaseAndEmptyWhenThereIsNoHead) {
  test::DossierTemporaire datacfg;
  construction::EcrireCatalogue(datacfg / "LAIT.CFG", {Entree("LAIT", "Lait"), Entree("LAIT-1:0", "Vaches")});
  EXPECT_EQ(RemplirArbreSeries(datacfg / "LAIT.CFG", "/ailleurs/").size(), 2u);
  const auto noeuds = RemplirArbreSeries("lait.cfg", datacfg.Chemin());
  ASSERT_EQ(noeuds.size(), 2u);
  EXPECT_EQ(noeuds[1].cle, "lait.DON+LAIT-1");

  EXPECT_EQ(Arbre("VIDE.CFG", {Entree("VIDE", "Vide", "", "", 0), Entree("VIDE-1", "X")}), "");  // Sorte 0
  EXPECT_TRUE(RemplirArbreSeries("ABSENT.CFG", datacfg.Chemin()).empty());
  datacfg.Ecrire("COURT.CFG", std::string(117, ' '));
  EXPECT_TRUE(RemplirArbreSeries("COURT.CFG", datacfg.Chemin()).empty());
}

TEST(Catalogue, RecordLayoutAndTruncatedCount) {
  const std::string octets = construction::OctetsEntreeCatalogue(Entree("RES-4:2", "Prix", "G1", "G2", 1));
  ASSERT_EQ(octets.size(), kLongueurEntreeCatalogue);
  test::VerifierChamps(octets, {{0, "RES-4:2     Prix  "}, {34, "G1  "}, {74, "G2  "}, {114, test::I16(1)}});
  const auto entrees = LireCatalogue(octets + octets + std::string(117, 'x'));
  ASSERT_EQ(entrees.size(), 2u);
  EXPECT_EQ(construction::OctetsEntreeCatalogue(entrees[1]), octets);
}

}  // namespace
}  // namespace norvane
