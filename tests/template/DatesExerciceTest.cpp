// Exercise dates, months in clear and the age rule.
#include "template/BancInterpreteur.h"

namespace norvane::test {
namespace {

class DatesExercice : public BancInterpreteur {
 protected:
  void SetUp() override { Info().DateDebut = "01/01/2005"; }
};

TEST_F(DatesExercice, ExerciceZeroEstLAnneeAvantLEtude) {
  EXPECT_EQ(Valeur("date0"), Cp("Jan. 2004 - Déc. 2004"));
  EXPECT_EQ(Valeur("date1"), Cp("Jan. 2005 - Déc. 2005"));
  EXPECT_EQ(Valeur("date9"), Cp("Jan. 2013 - Déc. 2013"));
}

TEST_F(DatesExercice, ExerciceEnCoursDAnnee) {
  Info().DateDebut = "01/08/2005";
  EXPECT_EQ(Valeur("date1"), Cp("Août 2005 - Juil. 2006"));
  EXPECT_EQ(Valeur("moisCDeb1"), Cp("Août"));
  EXPECT_EQ(Valeur("moisCFin1"), "Juil.");
  EXPECT_EQ(Valeur("mois2Deb1"), "08");
  EXPECT_EQ(Valeur("mois2Fin1"), "07");
  EXPECT_EQ(Valeur("an4Deb1"), "2005");
  EXPECT_EQ(Valeur("an4Fin1"), "2006");
  EXPECT_EQ(Valeur("an2Deb0"), "04");
}

TEST_F(DatesExercice, AnneeDeFinSansLeJourRetire) {
  // A study starting on 1 January reads its end year one too high.
  EXPECT_EQ(Valeur("an4Fin1"), "2006");
  EXPECT_EQ(Valeur("an2Fin1"), "06");
  EXPECT_EQ(Valeur("mois2Fin1"), "12");
  EXPECT_EQ(Valeur("an4Deb1"), "2005");
}

TEST_F(DatesExercice, VingtNeufFevrier) {
  Info().DateDebut = "29/02/2008";
  EXPECT_EQ(Valeur("date1"), Cp("Fév. 2008 - Fév. 2009"));
  EXPECT_EQ(Valeur("date2"), Cp("Fév. 2009 - Fév. 2010"));
}

TEST_F(DatesExercice, DateDeDebutIllisible) {
  Info().DateDebut = "          ";
  EXPECT_EQ(Valeur("date1"), "\\~");
  EXPECT_EQ(Valeur("an4Deb1"), "\\~");
  Info().DateDebut = "31/02/2005";
  EXPECT_EQ(Valeur("moisCDeb1"), "\\~");
}

TEST(MoisClair, DouzeMoisEtRienAutour) {
  EXPECT_EQ(MoisClair(1), "Jan.");
  EXPECT_EQ(MoisClair(2), "F\xE9v.");
  EXPECT_EQ(MoisClair(8), "Ao\xFBt");
  EXPECT_EQ(MoisClair(9), "Sep.");
  EXPECT_EQ(MoisClair(12), "D\xE9"
                           "c.");
  EXPECT_EQ(MoisClair(0), "");
  EXPECT_EQ(MoisClair(13), "");
}

class Age : public BancInterpreteur {};

TEST_F(Age, AnneesEntieresAMoisDeTrenteJoursEtDemi) {
  // Today is 22/11/2026.
  Info().DateNaissance[0] = "22/11/1986";
  EXPECT_EQ(Valeur("ageExplJA"), "40");
  Info().DateNaissance[0] = "23/11/1986";
  EXPECT_EQ(Valeur("ageExplJA"), "39");
}

TEST_F(Age, DemiJourArrondiAuPair) {
  // 29 + 30.5 x 11 + 365 x 29 = 10949.5 days, taken as the 16-bit 10950:
  // 30 years by the rule, although the calendar says 29.
  maintenant = MomentLocal(2026, 12, 30, 9, 0, 0);
  Info().DateNaissance[0] = "01/01/1997";
  EXPECT_EQ(Valeur("ageExplJA"), "30");
}

TEST_F(Age, DateInconnue) {
  Info().DateNaissance[0] = "**/**/****";
  EXPECT_EQ(Valeur("ageExplJA"), "??");
  Info().DateNaissance[0] = "          ";
  EXPECT_EQ(Valeur("ageExplJA"), "??");
}

TEST_F(Age, AssociePrincipalDUneSociete) {
  Societe();
  Info().DateNaissance[0] = "01/01/1950";
  Info().AssocieJA[3] = 1;
  Info().DateNaissance[3] = "01/06/2000";
  EXPECT_EQ(Valeur("ageExplJA"), "26");
}

TEST_F(Age, AuDelaDuCompteDeJoursSur16Bits) {
  Info().DateNaissance[0] = "01/01/1900";
  EXPECT_EQ(Valeur("ageExplJA"), "89");
}

}  // namespace
}  // namespace norvane::test
