// The example installation's graph models and the template that embeds them.
#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "graphiques/DescriptionGraphiques.h"
#include "graphs/CodeGraphique.h"
#include "graphs/GraphiquesGeneration.h"

namespace norvane {
namespace {

class ExempleGraphiquesTest : public ::testing::Test {
 protected:
  ExempleGraphiquesTest() {
    std::ifstream flux(std::string(NORVANE_SOURCE_DIR) + "/exemple/graphiques/graphiques.json");
    construction::ConstruireGraphiques(construction::Json::parse(flux), *stock, journal);
  }

  const ModeleGraphique* ModeleNomme(const std::string& titre) const {
    for (int i = 1; i <= stock->NbGraphiques; ++i) {
      if (Trim(stock->Slot(i).Titre) == titre) return &stock->Slot(i);
    }
    return nullptr;
  }

  std::unique_ptr<StockGraphiques> stock = std::make_unique<StockGraphiques>();
  construction::Journal journal;
};

TEST_F(ExempleGraphiquesTest, OneModelOfEachTypeATwoAxisCombinationAndStackedBars) {
  EXPECT_TRUE(journal.avertissements.empty());
  std::set<int> types;
  bool deuxAxes = false;
  bool empile = false;
  for (int i = 1; i <= stock->NbGraphiques; ++i) {
    const ModeleGraphique& m = stock->Slot(i);
    types.insert(m.TypeGraph);
    empile = empile || m.Empile != 0;
    for (int k = 0; k < m.NbSeries; ++k) {
      const SerieGraphique& s = m.Series[static_cast<std::size_t>(k)];
      deuxAxes = deuxAxes || (s.AxeYSerie == 1 && m.TypeGraph >= kCombinaison3D && m.TypeGraph <= kCombinaison2D);
      EXPECT_FALSE(s.SansCouleur()) << Trim(m.Titre);
    }
  }
  EXPECT_EQ(types.size(), 12u);
  EXPECT_TRUE(deuxAxes);
  EXPECT_TRUE(empile);
}

// Each chart of the example template is one of the example models, as the
// editor would have inserted it.
TEST_F(ExempleGraphiquesTest, TheDocumentTemplateCodesAreThoseOfTheModels) {
  const std::string tvm =
      LireFichier(std::string(NORVANE_SOURCE_DIR) + "/exemple/modeles/Graphiques.tvm").value_or(std::string());
  int codes = 0;
  for (std::size_t debut = tvm.find("#tvl(gph("); debut != std::string::npos; debut = tvm.find("#tvl(gph(", debut + 1)) {
    const std::size_t fin = tvm.find(")#", debut);
    ASSERT_NE(fin, std::string::npos);
    ModeleGraphique lu;
    const std::string code = tvm.substr(debut + 5, fin - debut - 5);
    ASSERT_EQ(LireCodeGraphique(lu, PreparerCodeGraphique(CorpsCodeGraphique(code))).etat, LectureCode::Complete);
    const ModeleGraphique* modele = ModeleNomme(Trim(lu.Titre));
    ASSERT_NE(modele, nullptr) << lu.Titre;
    EXPECT_EQ(ConstruireCodeGraphique(lu), ConstruireCodeGraphique(*modele));
    ++codes;
  }
  EXPECT_GE(codes, 5);
}

}  // namespace
}  // namespace norvane
