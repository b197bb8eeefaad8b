// Files far larger than their layout: a general record of 1 GB and a series
// file of 2 GB, made sparse so that the test costs no disk. Only what a
// layout can use is read, and the answers are those of the real data.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"
#include "study/ApercuDossier.h"
#include "study/DossierGeneral.h"
#include "study/Series.h"

namespace norvane {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr uintmax_t kUnGo = 1ull << 30;

class FichiersEnormes : public ::testing::Test {
 protected:
  void SetUp() override {
    DossierGeneral d;
    d.NomExploitation = "EARL DU PRE";
    d.AnneeDebut = 2026;
    d.NbAnEtude = 2;
    d.Fax = "02 43 00 00 00";
    construction::CreerDossierEtude(racine_.Chemin(), "PRE.TVL", d);
    construction::EcrireSeries(racine_ / "PRE.TVL/RES.DON", {construction::Serie("RES-1:0", "Produit|EUR", {1, 2, 3}),
                                                             {}, construction::Serie("RES-3:1", "Charges|EUR", {4, 5.5f})});
    session_.RepDossier[0] = racine_.Chemin();
    session_.NomDossier[0] = "PRE.TVL";
  }

  std::string Apercu() {
    std::ostringstream sortie;
    DecrireDossier(racine_ / "PRE.TVL", session_.Organisations, 0, sortie);
    return sortie.str();
  }

  test::DossierTemporaire racine_;
  Session session_;
};

TEST_F(FichiersEnormes, AGeneralRecordOfOneGigabyteIsReadForItsFirst2110Bytes) {
  std::filesystem::resize_file(racine_ / "PRE.TVL/PRE.TVL", kUnGo);
  ChargerInfoDossier(session_);
  EXPECT_EQ(session_.InfoDossier.NomExploitation.substr(0, 11), "EARL DU PRE");
  EXPECT_EQ(session_.InfoDossier.Fax.substr(0, 14), "02 43 00 00 00");
  EXPECT_FALSE(ExaminerDossier(racine_ / "PRE.TVL"));
  EXPECT_THAT(Apercu(), HasSubstr("! fichier PRE.TVL : 1073741824 octets au lieu de 2110 ; la suite est ignorée\n"));
}

TEST_F(FichiersEnormes, ASeriesFileOfTwoGigabytesIsListedUpToItsRealData) {
  std::filesystem::resize_file(racine_ / "PRE.TVL/RES.DON", 2 * kUnGo);
  const std::string r = Apercu();
  // 2 GiB / 90 = 23,860,929 records; the data stop in the first block of the file.
  EXPECT_THAT(r, HasSubstr("RES-3:1      Charges"));
  EXPECT_THAT(r, HasSubstr("les enregistrements 47 à 23860929 ne sont que des zéros et ne sont pas lus\n"));
  EXPECT_THAT(r, HasSubstr("  23860929 enregistrement(s), dont 23860927 vide(s) non affiché(s)\n"));
  // 2 GiB is no multiple of 90: the last 38 bytes are a record cut in its second value.
  EXPECT_THAT(r, HasSubstr("! lecture interrompue : fichier RES.DON, enregistrement 23860930, champ Valeur(1), "
                           "octet 2147483648\n"));

  MessagesScriptes messages;
  EntitesCourantes entites;
  CacheEtude cache;
  for (CacheEtude* c : {static_cast<CacheEtude*>(nullptr), &cache}) {
    const ContexteSeries contexte{session_, messages, entites, c};
    for (const auto& [code, attendu] : std::initializer_list<std::pair<std::string, std::string>>{
             {"RES.DON+RES-1a3", "5,5"}, {"RES.DON+RES-i3", "charges"}, {"RES.DON+RES-1a23860929", "0"},
             {"RES.DON+RES-1a23860930", "0"}}) {
      std::string copie = code;
      int16_t annee = -1;
      int16_t decimales = -1;
      EXPECT_EQ(LireSerie(contexte, copie, static_cast<int16_t>(code.find('-')), annee, decimales, 0), attendu) << code;
    }
  }
}

TEST_F(FichiersEnormes, ARecordWhoseCodeIsNulBytesIsEmpty) {
  std::string res = racine_.Lire("PRE.TVL/RES.DON");
  res.replace(90, 12, std::string(12, '\0'));  // record 2: a NUL code before a blank label
  res += std::string(90, '\0');                // record 4: never written
  racine_.Ecrire("PRE.TVL/RES.DON", res);
  EXPECT_THAT(Apercu(), HasSubstr("  4 enregistrement(s), dont 2 vide(s) non affiché(s)\n"));
}

}  // namespace
}  // namespace norvane
