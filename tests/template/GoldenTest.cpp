// Whole documents compared byte for byte with their expected result: each
// golden/<name>.tvm is generated with a fixed dossier and clock, and must give
// golden/<name>.rtf. On a difference the result is left in the temporary
// folder for a look.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/DossierTemporaire.h"
#include "support/BancInterpreteur.h"
#include "template/Generateur.h"

namespace norvane::test {
namespace {

namespace fs = std::filesystem;

std::string Lire(const fs::path& chemin) {
  std::ifstream flux(chemin, std::ios::binary);
  std::ostringstream contenu;
  contenu << flux.rdbuf();
  return contenu.str();
}

class GoldenTest : public BancInterpreteur, public ::testing::WithParamInterface<std::string> {
 protected:
  GoldenTest() {
    Societe();
    Info().NomExploitation = "GAEC DES TILLEULS";
    Info().Adresse = Cp("Lieu-dit Kerléan");
    Info().Commune = "Pontivy";
    Info().Conseiller = "M. Le Goff";
    Info().DateDebut = "01/10/2025";
    Info().NumeroAdherent = "56-1234";
  }
};

TEST_P(GoldenTest, GivesItsExpectedDocument) {
  const fs::path dossierGolden = fs::path(NORVANE_SOURCE_DIR) / "tests/template/golden";
  const fs::path modele = dossierGolden / (GetParam() + ".tvm");
  const std::string attendu = Lire(dossierGolden / (GetParam() + ".rtf"));
  const fs::path resultat = fs::temp_directory_path() / ("nv-golden-" + GetParam() + ".rtf");
  CreerDocument(generation, modele.string(), resultat.string(),
                {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
  const std::string obtenu = Lire(resultat);
  EXPECT_TRUE(obtenu == attendu) << "result differs from " << GetParam() << ".rtf, see " << resultat;
  if (obtenu == attendu) fs::remove(resultat);
}

INSTANTIATE_TEST_SUITE_P(Modeles, GoldenTest, ::testing::Values("codes_dechires", "conditions", "infobulles"));

}  // namespace
}  // namespace norvane::test
