#include "tables/ArbresChoix.h"

#include <gtest/gtest.h>

#include <set>

namespace norvane {
namespace {

TEST(ArbresChoix, ParentsComeFirstAndKeysAreUnique) {
  const std::pair<const char*, std::vector<NoeudArbre>> arbres[] = {
      {"génériques", ArbreTablesGeneriques()},
      {"valeurs", ArbreValeursCultures()},
      {"culture", ArbreSeriesCulture()},
      {"pérenne", ArbreSeriesCulturePerenne()},
      {"activité", ArbreSeriesActivite()}};
  for (const auto& [nom, noeuds] : arbres) {
    std::set<std::string> vues;
    for (const NoeudArbre& noeud : noeuds) {
      EXPECT_TRUE(noeud.cleParent.empty() || vues.count(noeud.cleParent)) << nom << ": " << noeud.texte;
      if (!noeud.cle.empty()) {
        EXPECT_TRUE(vues.insert(noeud.cle).second) << nom << ": " << noeud.cle;
      }
    }
  }
  EXPECT_EQ(ArbreValeursCultures().size(), 28u);
  EXPECT_EQ(ArbreSeriesCulture().size(), 28u);
  const auto generiques = ArbreTablesGeneriques();
  EXPECT_EQ(generiques.size(), 4u + 28u + 1u + 8u + 3u);
}

const NoeudArbre* Noeud(const std::vector<NoeudArbre>& noeuds, const std::string& texte) {
  for (const NoeudArbre& n : noeuds) {
    if (n.texte == texte) return &n;
  }
  return nullptr;
}

TEST(ArbresChoix, TheFreeActivityTreeNestsItsGroupsAndKeysItsLeavesByRecord) {
  const std::vector<NoeudArbre> noeuds = ArbreSeriesActivite();
  std::string groupes;
  int feuilles = 0;
  int sansEnregistrement = 0;
  for (const NoeudArbre& n : noeuds) {
    if (n.image == "rep") {
      groupes += (n.cleParent.empty() ? "" : n.cleParent + "/") + n.cle + " ";
      continue;
    }
    ++feuilles;
    if (n.cle.empty()) {
      ++sansEnregistrement;
    } else {
      EXPECT_TRUE(n.cle.size() > 1 && n.cle[0] == '@' &&
                  n.cle.find_first_not_of("0123456789", 1) == std::string::npos)
          << n.cle;
    }
    EXPECT_FALSE(n.cleParent.empty()) << n.texte;
  }
  EXPECT_EQ(groupes,
            "inventaire effectif effectif/effrepro effectif/femelles effectif/effmales ugb criteres "
            "criteres/product criteres/consorepro criteres/consorenou criteres/consofemel criteres/consomales "
            "criteres/consototal marge marge/produit marge/charges prix prix/vente prix/achat prix/venteprod "
            "prix/ventefemel prix/achatfemel prix/ventemale prix/achatmale prix/divers ");
  EXPECT_EQ(feuilles, 118);
  EXPECT_EQ(sansEnregistrement, 12);
  // A record with its text, one without a text, a text without a record.
  const auto feuille = [&](const std::string& texte, const std::string& cle, const std::string& parent) {
    const NoeudArbre* n = Noeud(noeuds, texte);
    ASSERT_NE(n, nullptr) << texte;
    EXPECT_EQ(n->cle, cle) << texte;
    EXPECT_EQ(n->cleParent, parent) << texte;
  };
  feuille("Valeur d'inventaire femelle adulte", "@24", "inventaire");
  feuille("Achat repro mâle", "@322", "effrepro");
  feuille("Achat repro femelle", "", "effrepro");
  feuille("Femelle eff. moyen", "@16", "effrepro");
  feuille("@119", "@119", "effmales");
  feuille("Produit ", "", "product");
  feuille("Produits", "@212", "produit");
  feuille("Vente réformes (", "@247", "vente");
  feuille("Aliments autres", "@304", "divers");
  EXPECT_EQ(noeuds.front().texte, "Valeur d'inventaire");
  EXPECT_EQ(noeuds.back().cle, "@304");
}

TEST(ArbresChoix, VariantsOfItemsAndTheDefinitionOfAPredefinedLine) {
  const std::tuple<const char*, int, const char*> cas[] = {
      {"immo0", 1, "immo1"}, {"subv0", 2, "subv2"}, {"empt0", 0, "empt0"}, {"emprt", 2, "empt2"},
      {"immos", 0, "immo0"}, {"finan", 1, "finaa"}, {"finan", 2, "finap"}, {"inve1", 2, "inve1"},
      {"immo0", 3, "immo0"}};
  for (const auto& [article, indice, attendu] : cas) EXPECT_EQ(ArticleAvecVariante(article, indice), attendu);
  EXPECT_EQ(DefinitionPredefinie("imemp", "empt2", 0, 0), "imemp:empt2:0:0");
  EXPECT_EQ(LibellePredefini("imemp", "empt2"), "imemp : empt2");
}

}  // namespace
}  // namespace norvane
