// The report of the DOSSIER verb: every field of the general record, the
// organisations, each series file with its years; damaged files are named
// with the record where they go wrong and the report goes on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "construction/FichiersEtude.h"
#include "frame/DossierTemporaire.h"
#include "study/ApercuDossier.h"

namespace norvane {
namespace {

using construction::Serie;
using ::testing::HasSubstr;
using ::testing::Not;

class Inspection : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_FALSE(racine_.Chemin().empty());
    DossierGeneral d;
    d.NomExploitation =
        "GAEC DES CH\xCA"
        "NES";
    d.AnneeDebut = 2025;
    d.NbAnEtude = 3;
    d.TypeExploitation = 1;
    d.DescriptionProjet = "Reprise\rInstallation JA";
    d.NbAssocies = 2;
    d.NomAssocie = {"", "Paul", "Marie"};
    d.AssocieJA[2] = 1;
    d.ModeCom[1] = {"Lait", "Laiterie"};
    construction::CreerDossierEtude(racine_.Chemin(), "CHENES.TVL", d);
    std::vector<SerieDonnees> res(3);
    res[0] = Serie("RES-1:0", "Produit brut|\x80", {100, 1000, 2000.5f, 3000});
    res[2] = Serie("RES-3:2", "Prix|\x80/l", {0, 0.35f});
    construction::EcrireSeries(racine_ / "CHENES.TVL/RES.DON", res);
    organisations_[2] = {"Chambre d'agriculture", "1 rue", "Laval", "CA53", "02", "03", "/logo.png"};
  }

  std::string Rapport(const std::string& chemin, bool attendu = true) {
    std::ostringstream sortie;
    EXPECT_EQ(DecrireDossier(chemin, organisations_, 7, sortie), attendu);
    return sortie.str();
  }

  test::DossierTemporaire racine_;
  std::array<Organisation, 20> organisations_;
};

TEST_F(Inspection, GeneralRecordOrganisationsAndSeriesInUtf8) {
  const std::string r = Rapport(racine_ / "chenes.tvl/");
  EXPECT_THAT(r, HasSubstr("Nom de l'exploitation : GAEC DES CHÊNES\n"));
  EXPECT_THAT(r, HasSubstr("Type d'exploitation : 1 (société)\n"));
  EXPECT_THAT(r, HasSubstr("      Reprise\n      Installation JA\n"));
  EXPECT_THAT(r, HasSubstr("Associé 2 : Marie ; JA : oui"));
  EXPECT_THAT(r, HasSubstr("Produit 1 : Lait ; commercialisation : Laiterie\n"));
  EXPECT_THAT(r, HasSubstr("Organisation 2 : Chambre d'agriculture ; sigle : CA53"));
  EXPECT_THAT(r, HasSubstr("ParamFinal : 7\n"));
  EXPECT_THAT(r, HasSubstr("-- RES.DON --\n"));
  // Headings: the year before the study, then the three study years.
  EXPECT_THAT(r, HasSubstr("         2024         2025         2026         2027\n"));
  // Columns: label 22, unit 10, then 13 for each year.
  EXPECT_THAT(r, HasSubstr("RES-1:0      Produit brut           €         "
                           "          100"
                           "        1\u00A0000"
                           "        2\u00A0001"
                           "        3\u00A0000\n"));
  EXPECT_THAT(r, HasSubstr("Prix                   €/l       "
                           "         0,00"
                           "         0,35"));
  EXPECT_THAT(r, HasSubstr("3 enregistrement(s), dont 1 vide(s) non affiché(s)"));
}

TEST_F(Inspection, AMissingFolderCannotBeReadAtAll) {
  EXPECT_THAT(Rapport(racine_ / "ABSENT.TVL", false), HasSubstr("Dossier introuvable"));
  EXPECT_THAT(Rapport("", false), HasSubstr("Dossier introuvable"));
}

TEST_F(Inspection, WithoutItsGeneralRecordTheSeriesAreStillShown) {
  std::filesystem::remove(racine_ / "CHENES.TVL/CHENES.TVL");
  const std::string r = Rapport(racine_ / "CHENES.TVL", false);
  EXPECT_THAT(r, HasSubstr("! fichier CHENES.TVL introuvable ou illisible"));
  EXPECT_THAT(r, HasSubstr("Produit brut"));
}

TEST_F(Inspection, DamagedFilesAreNamedWithTheRecordWhereTheyGoWrong) {
  racine_.Ecrire("CHENES.TVL/CHENES.TVL", racine_.Lire("CHENES.TVL/CHENES.TVL").substr(0, 1400));
  std::string res = racine_.Lire("CHENES.TVL/RES.DON") + std::string(40, 'x');
  const float nan = std::nanf("");
  res.replace(90 * 2 + 34 + 4 * 2, 4, reinterpret_cast<const char*>(&nan), 4);
  res[90 * 2 + 14] = '\x01';
  racine_.Ecrire("CHENES.TVL/RES.DON", res);
  racine_.Ecrire("CHENES.TVL/aaa.don", "");
  const std::string r = Rapport(racine_ / "CHENES.TVL");
  EXPECT_THAT(r, HasSubstr("! fichier CHENES.TVL incomplet : 1400 octets au lieu de 2110 ; les champs à partir de "
                           "AutresActivites (octet 1400) manquent"));
  EXPECT_THAT(r, HasSubstr("! fichier RES.DON : 310 octets, pas un multiple de 90 : l'enregistrement 4 est incomplet"));
  EXPECT_THAT(r, HasSubstr("! enregistrement 3 : valeur non numérique en colonne 2"));
  EXPECT_THAT(r, HasSubstr("! enregistrement 3 : caractères de contrôle dans le code ou l'intitulé"));
  EXPECT_THAT(r, HasSubstr("-- aaa.don --\n"));  // sorted without regard to case, before RES.DON
  EXPECT_LT(r.find("-- aaa.don --"), r.find("-- RES.DON --"));
  EXPECT_THAT(r, Not(HasSubstr("Organisation 0 :")));
}

}  // namespace
}  // namespace norvane
