// Damaged study files, their bytes kept here as they are: the report names the
// record, the field and the byte where reading stops, and goes on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "study/ApercuDossier.h"
#include "study/DossierGeneral.h"
#include "study/ParamLog.h"

namespace norvane {
namespace {

using ::testing::HasSubstr;

class DossierEndommage : public ::testing::Test {
 protected:
  void SetUp() override {
    construction::CreerDossierEtude(racine_.Chemin(), "ABIME.TVL", DossierGeneral{});
    session_.RepWinTervol = racine_.Chemin();
  }

  std::string Rapport() {
    std::ostringstream sortie;
    DecrireDossier(racine_ / "ABIME.TVL", session_, sortie);
    return sortie.str();
  }

  test::DossierTemporaire racine_;
  Session session_;
};

TEST_F(DossierEndommage, ASeriesRecordCutInItsLabel) {
  // One whole record, then 20 bytes of the second: its code and 8 bytes of its label.
  racine_.Ecrire("ABIME.TVL/RES.DON", construction::OctetsSerie(construction::Serie("RES-1:0", "Lait|l", {1})) +
                                          "RES-2:0     Viande|k");
  EXPECT_THAT(Rapport(), HasSubstr("  ! fichier RES.DON : 110 octets, pas un multiple de 90 : l'enregistrement 2 est "
                                   "incomplet (20 octets) et n'est pas affiché\n"
                                   "   N°"));
  EXPECT_THAT(Rapport(), HasSubstr("  ! lecture interrompue : fichier RES.DON, enregistrement 2, champ Intitule, "
                                   "octet 102\n"
                                   "  1 enregistrement(s)\n"));
}

TEST_F(DossierEndommage, AGeneralRecordCutInTheNamesOfTheAssociates) {
  std::string record = racine_.Lire("ABIME.TVL/ABIME.TVL").substr(0, 800);
  racine_.Ecrire("ABIME.TVL/ABIME.TVL", record);
  EXPECT_THAT(Rapport(), HasSubstr("  ! fichier ABIME.TVL incomplet : 800 octets au lieu de 2110 ; les champs à partir "
                                   "de NomAssocie(2) (octet 800) manquent\n"
                                   "  ! lecture interrompue : fichier ABIME.TVL, enregistrement 1, champ "
                                   "NomAssocie(2), octet 792\n"));
}

TEST_F(DossierEndommage, AParameterFileCutInAnOrganisation) {
  std::array<Organisation, 20> organisations;
  organisations[3].Ville = "Laval";
  // Organisation 3 starts at 1434 + 2 x 360 = 2154; its Ville at 2314. Cut 10 bytes into it.
  racine_.Ecrire("ParamLog/Tervol.par", construction::OctetsParamLog(organisations).substr(0, 2324));
  EXPECT_TRUE(LireParamLog(session_).Ok() == false);
  EXPECT_THAT(Rapport(), HasSubstr("== Organisations (ParamLog/Tervol.par) ==\n"
                                   "  ! Fichier des paramètres incomplet : 2324 octets au lieu de 8276.\n"
                                   "  ! lecture interrompue : fichier Tervol.par, champ Organisations(3).Ville, "
                                   "octet 2314\n"));
}

TEST(LectureDossierGeneral, TheErrorCarriesTheFileRecordFieldAndOffset) {
  DossierGeneral d;
  const Resultat<void> lu = LireDossierGeneral(std::string(197, ' '), d, "X.TVL");
  ASSERT_FALSE(lu);
  EXPECT_EQ(lu.Erreur().texte, "Enregistrement général incomplet : 197 octets au lieu de 2110.");
  EXPECT_EQ(lu.Erreur().Position(), "fichier X.TVL, enregistrement 1, champ TypeExploitation, octet 196");
  EXPECT_TRUE(LireDossierGeneral(std::string(5000, ' '), d, "X.TVL"));
}

}  // namespace
}  // namespace norvane
