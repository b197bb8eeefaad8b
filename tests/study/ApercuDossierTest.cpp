// The report of the DOSSIER verb: every field of the general record, the
// organisations, each series file with its years; damaged files are named
// with the record where they go wrong and the report goes on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "study/ApercuDossier.h"
#include "study/ChampsEssai.h"

namespace norvane {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class Inspection : public ::testing::Test {
 protected:
  void SetUp() override {
    DossierGeneral d;
    d.NomExploitation = "GAEC DES CH\xCA" "NES";
    d.AnneeDebut = 2025;
    d.NbAnEtude = 3;
    d.TypeExploitation = 1;
    d.DescriptionProjet = "Reprise\rInstallation JA";
    d.NbAssocies = 2;
    d.NomAssocie = {"", "Paul", "Marie"};
    d.AssocieJA[2] = 1;
    d.ModeCom[1] = {"Lait", "Laiterie"};
    construction::CreerDossierEtude(racine_.Chemin(), "CHENES.TVL", d);
    construction::EcrireSeries(racine_ / "CHENES.TVL/RES.DON",
                               {construction::Serie("RES-1:0", "Produit brut|\x80", {100, 1000, 2000.5f, 3000}), {},
                                construction::Serie("RES-3:2", "Prix|\x80/l", {0, 0.35f})});
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
  for (const char* ligne : {"Nom de l'exploitation : GAEC DES CHÊNES\n", "Type d'exploitation : 1 (société)\n",
                            "      Reprise\n      Installation JA\n", "Associé 2 : Marie ; JA : oui",
                            "Produit 1 : Lait ; commercialisation : Laiterie\n",
                            "Organisation 2 : Chambre d'agriculture ; sigle : CA53", "ParamFinal : 7\n",
                            // The year before the study, then the three study years.
                            "         2024         2025         2026         2027\n",
                            // Label 22, unit 10, then 13 for each year.
                            "RES-1:0      Produit brut           €         "
                            "          100        1\u00A0000        2\u00A0001        3\u00A0000\n",
                            "Prix                   €/l                0,00         0,35",
                            "3 enregistrement(s), dont 1 vide(s) non affiché(s)"}) {
    EXPECT_THAT(r, HasSubstr(ligne));
  }
}

TEST_F(Inspection, ADescriptionWithCrLfLineEndsShowsNoQuestionMark) {
  DossierGeneral d;
  d.DescriptionProjet = "Agrandissement\r\nRobot de traite\r\n\r\nVerger\x01";
  construction::CreerDossierEtude(racine_.Chemin(), "CRLF.TVL", d);
  EXPECT_THAT(Rapport(racine_ / "CRLF.TVL"),
              HasSubstr("  Description du projet :\n      Agrandissement\n      Robot de traite\n      Verger?\n"));
}

TEST_F(Inspection, AMissingFolderOrGeneralRecord) {
  for (const std::string& chemin : {racine_ / "ABSENT.TVL", std::string()}) {
    EXPECT_THAT(Rapport(chemin, false), HasSubstr("Dossier introuvable"));
  }
  std::filesystem::remove(racine_ / "CHENES.TVL/CHENES.TVL");
  const std::string r = Rapport(racine_ / "CHENES.TVL", false);
  EXPECT_THAT(r, HasSubstr("! fichier CHENES.TVL introuvable ou illisible"));
  EXPECT_THAT(r, HasSubstr("Produit brut"));  // the series are still shown
}

TEST_F(Inspection, DamagedFilesAreNamedWithTheRecordWhereTheyGoWrong) {
  racine_.Ecrire("CHENES.TVL/CHENES.TVL", racine_.Lire("CHENES.TVL/CHENES.TVL").substr(0, 1400));
  std::string res = racine_.Lire("CHENES.TVL/RES.DON") + std::string(40, 'x');
  res.replace(90 * 2 + 34 + 4 * 2, 4, test::F32(std::nanf("")));
  res[90 * 2 + 14] = '\x01';
  racine_.Ecrire("CHENES.TVL/RES.DON", res);
  racine_.Ecrire("CHENES.TVL/aaa.don", "");
  const std::string r = Rapport(racine_ / "CHENES.TVL");
  EXPECT_THAT(r, HasSubstr("! fichier CHENES.TVL incomplet : 1400 octets au lieu de 2110 ; les champs à partir de "
                           "AutresActivites (octet 1400) manquent"));
  EXPECT_THAT(r, HasSubstr("! fichier RES.DON : 310 octets, pas un multiple de 90 : l'enregistrement 4 est incomplet"));
  EXPECT_THAT(r, HasSubstr("! enregistrement 3 : valeur non numérique en colonne 2"));
  EXPECT_THAT(r, HasSubstr("! enregistrement 3 : caractères de contrôle dans le code ou l'intitulé"));
  EXPECT_LT(r.find("-- aaa.don --\n"), r.find("-- RES.DON --"));  // sorted without regard to case
  EXPECT_THAT(r, Not(HasSubstr("Organisation 0 :")));
}

}  // namespace
}  // namespace norvane
