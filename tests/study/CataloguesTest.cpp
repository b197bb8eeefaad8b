// Catalogues: the 118-byte record, and the tree of series they give: head
// node, groups made once, unused entries skipped, RESSUP.CFG without a head.
#include <gtest/gtest.h>

#include "construction/FichiersEtude.h"
#include "frame/DossierTemporaire.h"
#include "frame/Texte.h"
#include "study/Catalogues.h"

namespace norvane {
namespace {

EntreeCatalogue Entree(const std::string& code, const std::string& intitule, const std::string& groupe1 = "",
                       const std::string& groupe2 = "", int16_t sorte = 1) {
  return {code, intitule, groupe1, groupe2, sorte, 0};
}

std::vector<EntreeCatalogue> Resultats() {
  return {Entree("RES", "R\xE9sultats"),
          Entree("RES-1:0", "Produit brut", "Produits"),
          Entree("RES-2:0", "Lait vendu", "Produits", "Lait"),
          Entree("RES-3:0", "[ sans nom ]", "Produits"),
          Entree("RES-4:2", "Prix du lait", "Produits", "Lait"),
          Entree("RES-5:0", "Note", "", "", 0),  // not a series line
          Entree("RES5", "Sans tiret"),          // no "-"
          Entree("RES-17", "EBE")};
}

std::string Decrire(const std::vector<NoeudArbre>& noeuds) {
  std::string texte;
  for (const NoeudArbre& n : noeuds) texte += n.cleParent + " > " + n.cle + " [" + n.texte + "] " + n.image + "\n";
  return texte;
}

class ArbreSeries : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_FALSE(datacfg_.Chemin().empty()); }
  test::DossierTemporaire datacfg_;
};

TEST_F(ArbreSeries, HeadGroupsOnceAndLeavesKeyedByTheDonFile) {
  construction::EcrireCatalogue(datacfg_ / "RES.CFG", Resultats());
  EXPECT_EQ(Decrire(RemplirArbreSeries("RES.CFG", datacfg_.Chemin())),
            " > RES [R\xE9sultats] rep\n"
            "RES > RES-Produits [Produits] rep\n"
            "RES-Produits > RES.DON+RES-1 [Produit brut] puce\n"
            "RES-Produits > RES-ProduitsLait [Lait] rep\n"
            "RES-ProduitsLait > RES.DON+RES-2 [Lait vendu] puce\n"
            "RES-ProduitsLait > RES.DON+RES-4 [Prix du lait] puce\n"
            "RES > RES.DON+RES-17 [EBE] puce\n");
}

TEST_F(ArbreSeries, RessupHasNoHeadNode) {
  construction::EcrireCatalogue(
      datacfg_ / "RESSUP.CFG",
      {Entree("RESSUP", "Compl\xE9ments"), Entree("RESSUP-1:0", "Marge", "Ateliers"), Entree("RESSUP-2:0", "Solde")});
  EXPECT_EQ(Decrire(RemplirArbreSeries("RESSUP.CFG", datacfg_.Chemin())),
            " > RESSUP-Ateliers [Ateliers] rep\n"
            "RESSUP-Ateliers > RESSUP.DON+RESSUP-1 [Marge] puce\n"
            " > RESSUP.DON+RESSUP-2 [Solde] puce\n");
}

TEST_F(ArbreSeries, AnEmptyMissingOrHeadlessCatalogueGivesNoNode) {
  construction::EcrireCatalogue(datacfg_ / "VIDE.CFG", {Entree("VIDE", "Vide", "", "", 0), Entree("VIDE-1", "X")});
  EXPECT_TRUE(RemplirArbreSeries("VIDE.CFG", datacfg_.Chemin()).empty());
  EXPECT_TRUE(RemplirArbreSeries("ABSENT.CFG", datacfg_.Chemin()).empty());
  datacfg_.Ecrire("COURT.CFG", std::string(117, ' '));
  EXPECT_TRUE(RemplirArbreSeries("COURT.CFG", datacfg_.Chemin()).empty());
}

TEST_F(ArbreSeries, ACatalogueByPathAndByNameInAnyCase) {
  construction::EcrireCatalogue(datacfg_ / "LAIT.CFG", {Entree("LAIT", "Lait"), Entree("LAIT-1:0", "Vaches")});
  EXPECT_EQ(RemplirArbreSeries(datacfg_ / "LAIT.CFG", "/ailleurs/").size(), 2u);
  const auto noeuds = RemplirArbreSeries("lait.cfg", datacfg_.Chemin());
  ASSERT_EQ(noeuds.size(), 2u);
  EXPECT_EQ(noeuds[1].cle, "lait.DON+LAIT-1");
}

TEST(Catalogue, RecordLayoutAndTruncatedCount) {
  const std::string octets = construction::OctetsEntreeCatalogue(Entree("RES-4:2", "Prix", "G1", "G2", 1));
  ASSERT_EQ(octets.size(), kLongueurEntreeCatalogue);
  EXPECT_EQ(octets.substr(0, 12), "RES-4:2     ");
  EXPECT_EQ(octets.substr(12, 4), "Prix");
  EXPECT_EQ(octets.substr(34, 2), "G1");
  EXPECT_EQ(octets.substr(74, 2), "G2");
  EXPECT_EQ(octets.substr(114, 4), std::string("\x01\x00\x00\x00", 4));

  const std::string deux = octets + octets + std::string(50, 'x');
  const auto entrees = LireCatalogue(deux);
  ASSERT_EQ(entrees.size(), 2u);
  EXPECT_EQ(Trim(entrees[1].Groupe2), "G2");
  EXPECT_EQ(entrees[1].Sorte, 1);
  EXPECT_TRUE(LireCatalogue(std::string(117, 'x')).empty());
}

}  // namespace
}  // namespace norvane
