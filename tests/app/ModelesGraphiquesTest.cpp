// MODELES on the example installation's graph store: its tree after the
// table store's, and the code of a graph model as it goes into a template.
#include <gtest/gtest.h>

#include "app/Programme.h"

namespace norvane::test {
namespace {

TEST(ModelesGraphiques, TheGraphTreeFollowsTheTableTree) {
  const Execution e = Lancer("MODELES");
  EXPECT_EQ(e.statut, 0);
  const auto graphiques = e.sortie.find("\nGraphiques\n");
  ASSERT_NE(graphiques, std::string::npos) << e.sortie;
  EXPECT_LT(e.sortie.find("Tableaux enregistrés\n"), graphiques);
  EXPECT_TRUE(e.sortie.substr(graphiques).starts_with("\nGraphiques\n  Produits de l'exploitation\n"
                                                       "  Excédent brut et annuités\n"))
      << e.sortie;
  EXPECT_TRUE(e.sortie.ends_with("  EBE et poids des annuités\n  Composition du produit brut\n")) << e.sortie;
}

TEST(ModelesGraphiques, PrintsTheCodeOfAModel) {
  const Execution e = Lancer("MODELES graphiques " + Guillemets("EBE et poids des annuités"));
  EXPECT_EQ(e.statut, 0);
  EXPECT_TRUE(e.sortie.starts_with("#tvl(gph(EBE_et_poids_des_annuités;10;1;2;0;Source_:_dossier_d'étude_Tervol;"))
      << e.sortie;
  EXPECT_TRUE(e.sortie.ends_with("[RES-27:1;Annuités_/_EBE;2;RES.DON;1;198;40;40;40;1]))#\n")) << e.sortie;
}

TEST(ModelesGraphiques, AMissingModelIsToldAndFails) {
  const Execution e = Lancer("MODELES GRAPHIQUES 'Pas de tel graphique'");
  EXPECT_EQ(e.statut, 1);
  EXPECT_EQ(e.sortie, "Aucun modèle de graphique nommé « Pas de tel graphique » dans le magasin GRAPHIQUES.\n");
}

}  // namespace
}  // namespace norvane::test
