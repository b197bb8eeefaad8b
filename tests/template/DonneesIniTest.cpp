// INI: codes: section and key rules, the file of the program's folder.
#include "construction/FichiersIni.h"
#include "frame/DossierTemporaire.h"
#include "template/BancInterpreteur.h"

namespace norvane::test {
namespace {

class DonneesIni : public BancInterpreteur {
 protected:
  void SetUp() override {
    session.RepNorvane = temporaire.Chemin();
    construction::EcrireIni(temporaire / "donnees.INI",
                            {{Cp("Général"), {{"Cle", "valeur generale"}, {"Prix", "12,5"}}},
                             {"Sect", {{"Cle", "valeur de Sect"}}},
                             {"a", {{"c", "valeur de a"}, {"b", "pas celle-ci"}}}});
  }
  DossierTemporaire temporaire;
};

TEST_F(DonneesIni, SansSectionLaSectionGeneral) {
  EXPECT_EQ(Valeur("INI:Cle"), "valeur generale");
  EXPECT_EQ(Valeur("ini:Prix"), "12,5");
}

TEST_F(DonneesIni, SectionPuisCle) { EXPECT_EQ(Valeur("INI:Sect:Cle"), "valeur de Sect"); }

TEST_F(DonneesIni, SectionAuPremierDeuxPointsCleApresLeDernier) {
  EXPECT_EQ(Valeur("INI:a:b:c"), "valeur de a");
}

TEST_F(DonneesIni, CleAbsenteDonneInsecable) {
  EXPECT_EQ(Valeur("INI:Sect:Absente"), "\\~");
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(DonneesIni, BlancsDuCodeEcrits_) {
  // Blanks are cleaned away before the key is read.
  EXPECT_EQ(Valeur("INI: Sect : Cle"), "valeur de Sect");
}

TEST_F(DonneesIni, FichierAbsent) {
  session.RepNorvane = temporaire / "ailleurs/";
  EXPECT_EQ(Valeur("INI:Cle"), "\\~");
  ASSERT_EQ(messages.questions.size(), 1u);
  EXPECT_EQ(messages.questions[0].texte,
            "Attention ! Le fichier \"donnees.INI\" n'existe pas dans le répertoire de Wintervol\\Norvane\\ ! "
            "Données non récupérable !");
  EXPECT_EQ(messages.questions[0].icone, Icone::Exclamation);
  EXPECT_EQ(messages.questions[0].boutons, Boutons::Ok);
}

}  // namespace
}  // namespace norvane::test
