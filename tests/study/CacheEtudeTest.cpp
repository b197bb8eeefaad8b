// The files of one generation read once: opens are counted through the
// cache's seam, and the answers stay those of the reader without cache.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"
#include "study/CacheEtude.h"
#include "study/Series.h"

namespace norvane {
namespace {

using construction::Serie;

// A cache whose opens are counted by file name.
struct CacheCompte {
  std::map<std::string, int> ouvertures;
  CacheEtude cache{[this](const std::string& chemin) -> std::unique_ptr<std::istream> {
    ++ouvertures[std::filesystem::path(chemin).filename().string()];
    return std::make_unique<std::ifstream>(chemin, std::ios::binary);
  }};
};

class Cache : public ::testing::Test {
 protected:
  void SetUp() override {
    std::vector<SerieDonnees> series;
    for (int n = 1; n <= 500; ++n) {
      series.push_back(Serie("RES-" + std::to_string(n) + ":1", "Ligne " + std::to_string(n) + "|EUR",
                             {0, n * 1.0f, n * 2.0f, n * 3.0f, n * 4.0f, n * 5.0f, n * 6.0f, n * 7.0f, n * 8.0f,
                              n * 9.0f, n * 10.0f}));
    }
    construction::EcrireSeries(racine_ / "E.TVL/RES.DON", series);
    racine_.Ecrire("E.TVL/COURT.DON", std::string(100, ' '));
    racine_.Ecrire("E.TVL/VIDE.DON", "");
    session_.RepDossier[0] = racine_.Chemin();
    session_.NomDossier[0] = "E.TVL";
  }

  std::string Lire(CacheEtude* cache, std::string code) {
    const ContexteSeries contexte{session_, messages_, entites_, cache};
    int16_t annee = -1;
    int16_t decimales = -1;
    return LireSerie(contexte, code, static_cast<int16_t>(code.find('-')), annee, decimales, 0);
  }

  test::DossierTemporaire racine_;
  Session session_;
  MessagesScriptes messages_;
  EntitesCourantes entites_;
};

TEST_F(Cache, ATableOf500LinesOver10YearsOpensItsFileOnce) {
  CacheCompte compte;
  for (int ligne = 1; ligne <= 500; ++ligne) {
    for (int annee = 1; annee <= 10; ++annee) {
      const std::string code = "RES.DON+RES-" + std::string(annee < 10 ? "" : "") + std::to_string(annee) +
                               (annee < 10 ? "a" : "a") + std::to_string(ligne);
      ASSERT_EQ(Lire(&compte.cache, code), Lire(nullptr, code)) << code;
    }
  }
  EXPECT_EQ(compte.ouvertures["RES.DON"], 1);
}

TEST_F(Cache, MissingShortAndEmptyFilesAnswerAsWithoutCache) {
  CacheCompte compte;
  for (const char* code : {"RES.DON+RES-i7", "RES.DON+RES-u7", "RES.DON+RES-som7", "RES.DON+RES-maxa7",
                           "RES.DON+RES-3a9999", "res.don+RES-3a2", "COURT.DON+X-i2", "COURT.DON+X-1a1",
                           "VIDE.DON+X-1a1", "ABSENT.DON+X-1a1", "RES.DON+RES-3a0"}) {
    EXPECT_EQ(Lire(&compte.cache, code), Lire(nullptr, code)) << code;
    EXPECT_EQ(Lire(&compte.cache, code), Lire(nullptr, code)) << code << ", read again";
  }
  EXPECT_EQ(compte.ouvertures["RES.DON"], 1);
  EXPECT_EQ(compte.ouvertures["res.don"], 0);  // found under its real name, opened once for both spellings
  EXPECT_EQ(compte.ouvertures.count("VIDE.DON"), 0u);
  EXPECT_EQ(compte.ouvertures.count("ABSENT.DON"), 0u);
}

TEST_F(Cache, AFileChangedAfterTheCacheIsGoneIsReadAgain) {
  auto cache = std::make_unique<CacheEtude>();
  EXPECT_EQ(Lire(cache.get(), "RES.DON+RES-1a1"), "1,0");
  construction::EcrireSeries(racine_ / "E.TVL/RES.DON", {Serie("RES-1:1", "Autre|EUR", {0, 42})});
  EXPECT_EQ(Lire(cache.get(), "RES.DON+RES-1a1"), "1,0");  // the same generation: as first read
  cache = std::make_unique<CacheEtude>();
  EXPECT_EQ(Lire(cache.get(), "RES.DON+RES-1a1"), "42,0");
}

TEST_F(Cache, AProfileIsParsedOnce) {
  racine_.Ecrire("donnees.INI", "[G]\r\nPrix=12\r\n");
  CacheCompte compte;
  for (int i = 0; i < 3; ++i) {
    const ProfilIni* profil = compte.cache.Profil(racine_ / "DONNEES.ini");
    ASSERT_NE(profil, nullptr);
    EXPECT_EQ(profil->EntreesSection("g")->at(0), "Prix=12");
  }
  EXPECT_EQ(compte.ouvertures["donnees.INI"], 1);
  EXPECT_EQ(compte.cache.Profil(racine_ / "absent.INI"), nullptr);
}

}  // namespace
}  // namespace norvane
