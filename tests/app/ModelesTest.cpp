// MODELES on the example installation: the tree of the table store, and the
// code of each model as it goes into a template.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "app/Programme.h"
#include "frame/Encodage.h"

namespace norvane::test {
namespace {

// Name and code line of each model of the example store, in UTF-8.
std::vector<std::pair<std::string, std::string>> ModelesExemple() {
  std::ifstream flux(std::string(NORVANE_SOURCE_DIR) + "/exemple/modeles/tableaux.txt", std::ios::binary);
  std::vector<std::pair<std::string, std::string>> modeles;
  std::string ligne;
  while (std::getline(flux, ligne)) {
    if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
    if (ligne.starts_with("[")) {
      modeles.emplace_back(Cp1252VersUtf8(ligne.substr(1, ligne.find(']') - 1)), "");
    } else if (ligne.starts_with("#tvl(") && !modeles.empty()) {
      modeles.back().second = Cp1252VersUtf8(ligne);
    }
  }
  return modeles;
}

TEST(Modeles, ListsTheTreeOfTheTableStore) {
  const Execution e = Lancer("MODELES");
  EXPECT_EQ(e.statut, 0);
  EXPECT_TRUE(e.sortie.starts_with("Tableaux enregistrés\n"
                                   "  Résultats économiques\n"
                                   "    Pluriannuel\n"
                                   "      Compte de résultat\n"
                                   "      Trésorerie et endettement\n"
                                   "    Comparaisons\n"))
      << e.sortie;
  EXPECT_NE(e.sortie.find("\n  Comparaisons de dossiers\n    Comparaison de deux exploitations\n    Hypothèses\n"
                          "      Hypothèses comparées\n"),
            std::string::npos)
      << e.sortie;
}

TEST(Modeles, PrintsTheCodeOfEachExampleModel) {
  const auto modeles = ModelesExemple();
  ASSERT_GE(modeles.size(), 12u);
  for (const auto& [nom, code] : modeles) {
    const Execution e = Lancer("MODELES tableaux " + Guillemets(nom));
    EXPECT_EQ(e.statut, 0) << nom;
    EXPECT_EQ(e.sortie, code + "\n") << nom;
  }
}

TEST(Modeles, AMissingModelIsToldAndFails) {
  const Execution e = Lancer("MODELES TABLEAUX 'Pas de tel modèle'");
  EXPECT_EQ(e.statut, 1);
  EXPECT_EQ(e.sortie, "Aucun modèle de tableau nommé « Pas de tel modèle » dans le magasin TABLEAUX.\n");
  EXPECT_EQ(Lancer("MODELES TABLEAUX").statut, 2);
}

}  // namespace
}  // namespace norvane::test
