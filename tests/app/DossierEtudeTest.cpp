// The DOSSIER and GENERER verbs on damaged dossiers, as a user runs them:
// the damaged bytes are kept here, and the exact message is expected.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Programme.h"
#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

using ::testing::HasSubstr;

TEST(DossierEtude, DossierNamesTheRecordFieldAndByteWhereASeriesFileStops) {
  DossierTemporaire racine;
  construction::CreerDossierEtude(racine.Chemin(), "ABIME.TVL", DossierGeneral{});
  // A whole record, then a second one cut 2 bytes into its third value.
  racine.Ecrire("ABIME.TVL/RES.DON",
                construction::OctetsSerie(construction::Serie("RES-1:0", "Lait|l", {1})) +
                    std::string("RES-2:0     Viande|kg             ") + std::string(8, '\0') + "\x01\x02");
  const Execution e = Lancer("DOSSIER " + Guillemets(racine / "ABIME.TVL"));
  EXPECT_EQ(e.statut, 0);
  EXPECT_THAT(e.sortie, HasSubstr("  ! lecture interrompue : fichier RES.DON, enregistrement 2, champ Valeur(2), "
                                  "octet 132\n"));
}

TEST(DossierEtude, AShortGeneralRecordStillGeneratesWithAWarningNamingItsSize) {
  DossierTemporaire racine;
  DossierGeneral d;
  d.NomExploitation = "EARL COURTE";
  construction::CreerDossierEtude(racine.Chemin(), "COURT.TVL", d);
  racine.Ecrire("COURT.TVL/COURT.TVL", racine.Lire("COURT.TVL/COURT.TVL").substr(0, 150));
  racine.Ecrire("m.tvm", "{\\rtf1 #tvl(nomExploit)#|#tvl(commune)#\\par}");
  const Execution e = Lancer("GENERER " + Guillemets(racine / "m.tvm") + " " + Guillemets(racine / "r.rtf") + " " +
                             Guillemets(racine / "COURT.TVL") + " --remplacer");
  EXPECT_EQ(e.statut, 0) << e.sortie;
  EXPECT_THAT(e.sortie, HasSubstr("COURT.TVL/COURT.TVL est incomplet (150 octets au lieu de 2110)"));
  EXPECT_THAT(racine.Lire("r.rtf"), HasSubstr("EARL COURTE"));
}

}  // namespace
}  // namespace norvane::test
