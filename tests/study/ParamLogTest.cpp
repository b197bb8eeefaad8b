// ParamLog/Tervol.par: the organisations around the fixed head, the two
// readings of ParamFinal, and a stream that ends early.
#include <gtest/gtest.h>

#include "construction/FichiersEtude.h"
#include "frame/DossierTemporaire.h"
#include "frame/Texte.h"
#include "study/ParamLog.h"

namespace norvane {
namespace {

std::array<Organisation, 20> Organisations() {
  std::array<Organisation, 20> o;
  for (std::size_t i = 0; i < o.size(); ++i) {
    const std::string n = std::to_string(i);
    o[i] = {"Nom " + n, "Rue " + n, "Ville " + n, "S" + n, "Tel " + n, "Fax " + n, "/logos/" + n + ".png"};
  }
  return o;
}

void Remplacer16(std::string& octets, std::size_t position, int16_t valeur) {
  std::string champ;
  EcrireEntier16(champ, valeur);
  octets.replace(position, 2, champ);
}

TEST(ParamLog, EveryOrganisationAndParamFinalAreReadBack) {
  const std::string octets = construction::OctetsParamLog(Organisations(), 4);
  std::array<Organisation, 20> lues;
  int16_t paramFinal = 0;
  LireParamLogOctets(octets, lues, paramFinal);
  EXPECT_EQ(paramFinal, 4);
  for (std::size_t i = 0; i < 20; ++i) {
    const std::string n = std::to_string(i);
    EXPECT_EQ(Trim(lues[i].Nom), "Nom " + n);
    EXPECT_EQ(Trim(lues[i].Rue), "Rue " + n);
    EXPECT_EQ(Trim(lues[i].Ville), "Ville " + n);
    EXPECT_EQ(Trim(lues[i].Sigle), "S" + n);
    EXPECT_EQ(Trim(lues[i].Telephone), "Tel " + n);
    EXPECT_EQ(Trim(lues[i].Fax), "Fax " + n);
    EXPECT_EQ(Trim(lues[i].Logo), "/logos/" + n + ".png");
  }
}

TEST(ParamLog, TheStreamsLayout) {
  const std::string octets = construction::OctetsParamLog(Organisations(), 4);
  ASSERT_EQ(octets.size(), 8276u);
  EXPECT_EQ(octets.substr(0, 5), "Nom 0");
  EXPECT_EQ(octets.substr(280, 14), "/logos/0.png  ");
  EXPECT_EQ(octets.substr(360, 2), std::string(2, '\0'));   // first unnamed integer
  EXPECT_EQ(octets.substr(362, 20), std::string(20, ' '));  // first unnamed text
  EXPECT_EQ(octets.substr(1432, 2), std::string("\x04\x00", 2));
  EXPECT_EQ(octets.substr(1434, 5), "Nom 1");
  EXPECT_EQ(octets.substr(1434 + 18 * 360 + 220, 3), "S19");
  EXPECT_EQ(octets.substr(8274, 2), std::string("\x04\x00", 2));
}

TEST(ParamLog, TheSecondParamFinalOverwritesTheFirst) {
  std::string octets = construction::OctetsParamLog(Organisations(), 0);
  Remplacer16(octets, 1432, 11);
  Remplacer16(octets, 8274, 22);
  std::array<Organisation, 20> lues;
  int16_t paramFinal = 0;
  LireParamLogOctets(octets, lues, paramFinal);
  EXPECT_EQ(paramFinal, 22);
  // Without the last two bytes the first reading stays.
  LireParamLogOctets(std::string_view(octets).substr(0, 8274), lues, paramFinal);
  EXPECT_EQ(paramFinal, 11);
}

TEST(ParamLog, AStreamThatEndsEarlyKeepsWhatWasRead) {
  const std::string octets = construction::OctetsParamLog(Organisations(), 5);
  std::array<Organisation, 20> lues;
  int16_t paramFinal = -1;
  // Ends inside Organisations(3), after its Rue.
  LireParamLogOctets(std::string_view(octets).substr(0, 1434 + 2 * 360 + 170), lues, paramFinal);
  EXPECT_EQ(paramFinal, 5);
  EXPECT_EQ(Trim(lues[2].Logo), "/logos/2.png");
  EXPECT_EQ(Trim(lues[3].Rue), "Rue 3");
  EXPECT_EQ(lues[3].Ville, "");
  EXPECT_EQ(lues[4].Nom, "");

  // Ends inside the head: only Organisations(0).
  std::array<Organisation, 20> debut;
  int16_t inchange = -1;
  LireParamLogOctets(std::string_view(octets).substr(0, 500), debut, inchange);
  EXPECT_EQ(Trim(debut[0].Nom), "Nom 0");
  EXPECT_EQ(inchange, -1);
  EXPECT_EQ(debut[1].Nom, "");
}

TEST(ParamLog, TheFileUnderTheRootOrNoFileAtAll) {
  test::DossierTemporaire racine;
  Session session;
  session.RepWinTervol = racine.Chemin();
  LireParamLog(session);
  EXPECT_EQ(session.Organisations[0].Nom, "");
  EXPECT_EQ(session.ParamFinal, 0);

  construction::EcrireParamLog(racine / "paramlog/TERVOL.PAR", Organisations(), 3);
  LireParamLog(session);
  EXPECT_EQ(Trim(session.Organisations[7].Ville), "Ville 7");
  EXPECT_EQ(session.ParamFinal, 3);
}

TEST(ParamLog, GarbageOfAnyLengthReadsWithoutHarm) {
  for (std::size_t taille : {0u, 1u, 359u, 361u, 1433u, 8275u, 9000u}) {
    std::string octets(taille, '\xFF');
    std::array<Organisation, 20> lues;
    int16_t paramFinal = 0;
    LireParamLogOctets(octets, lues, paramFinal);
    EXPECT_EQ(paramFinal, taille >= 1434 ? -1 : 0) << taille;
  }
}

}  // namespace
}  // namespace norvane
