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
      {"pérenne", ArbreSeriesCulturePerenne()}};
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
