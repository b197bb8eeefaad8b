// Garbage, truncated and empty files of every kind read without a crash, under
// the sanitizers of the test build too (the fuzz targets go further, but need
// clang).
#include <gtest/gtest.h>

#include <random>

#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"
#include "study/Catalogues.h"
#include "study/DossierGeneral.h"
#include "study/ParamLog.h"
#include "study/Series.h"

namespace norvane {
namespace {

TEST(OctetsAleatoires, EveryReaderEndsOnAnyBytes) {
  std::mt19937 hasard(2026);
  test::DossierTemporaire d;
  Session session;
  session.RepDossier[0] = d.Chemin();
  session.NomDossier[0] = "E.TVL";
  session.InfoDossier.NbAnEtude = 5;
  MessagesScriptes messages;
  EntitesCourantes entites;
  for (int essai = 0; essai < 300; ++essai) {
    std::string octets(hasard() % 2500, '\0');
    for (char& c : octets) c = static_cast<char>(hasard() % 7 == 0 ? '-' : hasard());
    DossierGeneral general;
    LireDossierGeneral(octets, general);
    std::array<Organisation, 20> organisations;
    int16_t paramFinal = 0;
    LireParamLogOctets(octets, organisations, paramFinal);
    LireCatalogue(octets);
    d.Ecrire("E.TVL/F.DON", octets);
    for (std::string code : {"F.DON+F-3a7", "F.DON+F-som2", "F.DON+F-maxa3", "F.DON+F-i9", "F.DON+F-17:3"}) {
      int16_t annee = -1, decimales = -1;
      LireSerie({session, messages, entites}, code, static_cast<int16_t>(code.find('-')), annee, decimales, 0);
    }
  }
  SUCCEED();
}

}  // namespace
}  // namespace norvane
