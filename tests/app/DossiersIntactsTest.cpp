// A study dossier is only ever read: every verb that reads one, run on every
// example template against copies of both example dossiers (each compared
// with the other), leaves every file of them with its bytes, its size and its
// modification time; the one file that may appear is a missing PlanF.fin.
// The same holds when the dossiers cannot be written at all.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <vector>

#include "app/Programme.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

namespace fs = std::filesystem;

struct EtatFichier {
  std::string octets;
  std::uintmax_t taille = 0;
  fs::file_time_type modification;
  bool operator==(const EtatFichier&) const = default;
};

using Empreinte = std::map<std::string, EtatFichier>;

const std::vector<std::string> kDossiers = {"MARTIN_PAUL.TVL", "GAEC_DES_TILLEULS.TVL"};

class DossiersIntactsTest : public ::testing::Test {
 protected:
  DossiersIntactsTest() {
    for (const std::string& nom : kDossiers) {
      fs::create_directories(d / "Dossier");
      fs::copy(fs::path(NORVANE_ARBRE) / "Dossier" / nom, d / ("Dossier/" + nom), fs::copy_options::recursive);
    }
    // Copies are dated now: an old date makes a rewrite show even when it
    // happens within the same clock tick as the copy.
    const auto autrefois = fs::file_time_type::clock::now() - std::chrono::hours(24 * 400);
    for (const auto& f : fs::recursive_directory_iterator(d / "Dossier")) fs::last_write_time(f.path(), autrefois);
  }

  Empreinte Relever() const {
    Empreinte e;
    for (const auto& f : fs::recursive_directory_iterator(d / "Dossier")) {
      if (!f.is_regular_file()) continue;
      const std::string relatif = fs::relative(f.path(), d.Chemin()).string();
      e[relatif] = {d.Lire(relatif), f.file_size(), f.last_write_time()};
    }
    return e;
  }

  std::vector<fs::path> Modeles() const {
    std::vector<fs::path> modeles;
    for (const char* dossier : {"Norvane/ModlDocs", "Norvane/PDE"}) {
      const fs::path racine = fs::path(NORVANE_ARBRE) / dossier;
      if (!fs::is_directory(racine)) continue;
      for (const auto& f : fs::directory_iterator(racine)) {
        if (f.path().extension() == ".tvm") modeles.push_back(f.path());
      }
    }
    return modeles;
  }

  // Every reading verb on every template with each dossier, the other one
  // compared with it.
  void LancerToutesLesLectures() {
    for (std::size_t n = 0; n < kDossiers.size(); ++n) {
      const std::string dossier = Guillemets(d / ("Dossier/" + kDossiers[n]));
      const std::string autre = " --comparer=" + Guillemets(d / ("Dossier/" + kDossiers[1 - n]));
      const std::string resultat = Guillemets(d / "sortie.rtf");
      EXPECT_EQ(Lancer("DOSSIER " + dossier).statut, 0) << dossier;
      EXPECT_EQ(Lancer("EXPLIQUER '#tvl(nomExplSoc)# #tvl(RES.DON+RES-1a17)#' " + dossier).statut, 0);
      for (const fs::path& modele : Modeles()) {
        const std::string m = Guillemets(modele.string());
        const Execution g = Lancer("GENERER " + m + " " + resultat + " " + dossier + autre + " --remplacer");
        EXPECT_EQ(g.statut, 0) << modele << " " << dossier << "\n" << g.sortie;
        EXPECT_EQ(Lancer("METTREAJOUR " + resultat + " " + dossier + autre).statut, 0) << modele;
        Lancer("VERIFIER " + m + " " + dossier);
      }
    }
  }

  void ComparerSaufPlanF(const Empreinte& avant, const Empreinte& apres) const {
    for (const auto& [chemin, etat] : avant) {
      const auto trouve = apres.find(chemin);
      ASSERT_NE(trouve, apres.end()) << chemin << " a disparu";
      EXPECT_TRUE(trouve->second == etat) << chemin << " a changé";
    }
    for (const auto& [chemin, etat] : apres) {
      if (avant.count(chemin) == 0) {
        EXPECT_EQ(fs::path(chemin).filename().string(), "PlanF.fin") << chemin;
      }
    }
  }

  DossierTemporaire d;
};

TEST_F(DossiersIntactsTest, EveryReadingVerbLeavesTheExampleDossiersAsTheyWere) {
  ASSERT_GE(Modeles().size(), 5u);
  const Empreinte avant = Relever();
  ASSERT_FALSE(avant.empty());
  LancerToutesLesLectures();
  ComparerSaufPlanF(avant, Relever());
}

TEST_F(DossiersIntactsTest, ReadOnlyDossiersGenerateAndStayAsTheyWere) {
  for (const auto& f : fs::recursive_directory_iterator(d / "Dossier")) {
    fs::permissions(f.path(), f.is_directory() ? fs::perms::owner_read | fs::perms::owner_exec : fs::perms::owner_read);
  }
  const Empreinte avant = Relever();
  LancerToutesLesLectures();
  ComparerSaufPlanF(avant, Relever());
  // Writable again, so that the temporary folder can be removed.
  for (const auto& f : fs::recursive_directory_iterator(d / "Dossier")) fs::permissions(f.path(), fs::perms::owner_all);
}

}  // namespace
}  // namespace norvane::test
