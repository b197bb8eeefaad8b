// MODELES on the example installation: the tree of the table store, and the
// code of each model as it goes into a template.
#include <gtest/gtest.h>

#include <filesystem>
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

TEST(Modeles, TheSpecialTablesHaveTheirFolders) {
  const Execution e = Lancer("MODELES");
  EXPECT_NE(e.sortie.find("\n  Cultures\n    Assolement par type de culture\n    Une fiche par culture\n"
                          "      Fiche de culture\n      Fiche de culture pérenne\n"
                          "  Activités libres\n    Fiche d'activité animale\n"
                          "  PDE Cerfa\n    Plan de financement sur cinq exercices\n"),
            std::string::npos)
      << e.sortie;
  EXPECT_NE(e.sortie.find("\n    Immobilisations, subventions, emprunts\n      Immobilisations anciennes et nouvelles\n"),
            std::string::npos)
      << e.sortie;
}

// The text of a template with its escaped bytes (\'e9) put back.
std::string TexteModele(const std::filesystem::path& chemin) {
  std::ifstream flux(chemin, std::ios::binary);
  std::stringstream contenu;
  contenu << flux.rdbuf();
  const std::string rtf = contenu.str();
  std::string texte;
  for (std::size_t i = 0; i < rtf.size(); ++i) {
    if (rtf.compare(i, 2, "\\'") == 0 && i + 3 < rtf.size()) {
      texte += static_cast<char>(std::stoi(rtf.substr(i + 2, 2), nullptr, 16));
      i += 3;
    } else {
      texte += rtf[i];
    }
  }
  return Cp1252VersUtf8(texte);
}

TEST(Modeles, EachExampleModelIsTheCodeOfAnExampleTemplate) {
  std::string modeles;
  for (const auto& entree : std::filesystem::directory_iterator(std::string(NORVANE_SOURCE_DIR) + "/exemple/modeles")) {
    if (entree.path().extension() == ".tvm") modeles += TexteModele(entree.path());
  }
  for (const auto& [nom, code] : ModelesExemple()) EXPECT_NE(modeles.find(code), std::string::npos) << nom;
}

TEST(Modeles, PrintsTheCodeOfEachExampleModel) {
  const auto modeles = ModelesExemple();
  ASSERT_EQ(modeles.size(), 26u);
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
