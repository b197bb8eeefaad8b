// ParamLog/Tervol.par: the organisations around the fixed head, the two
// readings of ParamFinal, and a stream that ends early.
#include <gtest/gtest.h>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "frame/Texte.h"
#include "study/ChampsEssai.h"
#include "study/ParamLog.h"

namespace norvane {
namespace {

using test::I16;

std::array<Organisation, 20> Organisations() {
  std::array<Organisation, 20> o;
  for (std::size_t i = 0; i < o.size(); ++i) {
    const std::string n = std::to_string(i);
    o[i] = {"Nom " + n, "Rue " + n, "Ville " + n, "S" + n, "Tel " + n, "Fax " + n, "/logos/" + n + ".png"};
  }
  return o;
}

TEST(ParamLog, OrganisationsAroundTheHeadAreReadBackWhole) {
  const std::string octets = construction::OctetsParamLog(Organisations(), 4);
  ASSERT_EQ(octets.size(), 8276u);
  test::VerifierChamps(octets, {{0, "Nom 0"}, {280, "/logos/0.png  "}, {1432, I16(4)}, {1434, "Nom 1"},
                                {1434 + 18 * 360 + 220, "S19"}, {8274, I16(4)}});
  std::array<Organisation, 20> lues;
  int16_t paramFinal = 0;
  LireParamLogOctets(octets, lues, paramFinal);
  EXPECT_EQ(construction::OctetsParamLog(lues, paramFinal), octets);
}

// A stream that ends early keeps what was read. The first ParamFinal (11)
// stands at byte 1432, the second (22) at 8274 and overwrites it.
TEST(ParamLog, AStreamThatEndsEarlyKeepsWhatWasRead) {
  std::string octets = construction::OctetsParamLog(Organisations());
  octets.replace(1432, 2, I16(11));
  octets.replace(8274, 2, I16(22));
  const std::tuple<std::size_t, int16_t, std::size_t> cas[] = {  // length, ParamFinal, organisations read
      {0, -1, 0}, {500, -1, 1}, {1433, -1, 1}, {1434, 11, 1}, {1434 + 2 * 360 + 170, 11, 4}, {8275, 11, 20},
      {8276, 22, 20}};
  for (const auto& [taille, attendu, lues] : cas) {
    std::array<Organisation, 20> organisations;
    int16_t paramFinal = -1;
    LireParamLogOctets(std::string_view(octets).substr(0, taille), organisations, paramFinal);
    EXPECT_EQ(paramFinal, attendu) << taille;
    for (std::size_t i = 0; i < 20; ++i) {
      EXPECT_EQ(Trim(organisations[i].Nom), i < lues ? "Nom " + std::to_string(i) : "") << taille << " " << i;
    }
  }
}

TEST(ParamLog, TheFileUnderTheRootFoundInAnyCaseOrNoFileAtAll) {
  test::DossierTemporaire racine;
  Session session;
  session.RepWinTervol = racine.Chemin();
  LireParamLog(session);
  EXPECT_EQ(session.Organisations[0].Nom, "");
  construction::EcrireParamLog(racine / "paramlog/TERVOL.PAR", Organisations(), 3);
  LireParamLog(session);
  EXPECT_EQ(Trim(session.Organisations[7].Ville), "Ville 7");
  EXPECT_EQ(session.ParamFinal, 3);
}

}  // namespace
}  // namespace norvane
