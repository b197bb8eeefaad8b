// The vocabulary of general fields: société rules, associate lists, project
// description, marketing modes, exercise dates, the age rule and the
// organisations of ORGA codes.
#include <chrono>
#include <filesystem>
#include <tuple>

#include "construction/ImagePng.h"
#include "support/DossierTemporaire.h"
#include "support/BancInterpreteur.h"
#include "template/DatesExercice.h"

namespace norvane::test {
namespace {

class ChampsGeneraux : public BancInterpreteur {
 protected:
  void SetUp() override {
    Info().NomExploitation = "GAEC DES CHAMPS   ";
    Info().NomAssocie[0] = "Exploitant seul";
    Info().Situation[0] = "MARIE";
    Info().DateNaissance[0] = "15/11/1970";
  }
  void DeuxAssocies() {
    Societe();
    Info().NbAssocies = 2;
    Info().NomAssocie[1] = "Pierre   ";
    Info().DateNaissance[1] = "01/02/1980";
    Info().Situation[1] = Cp("Célibataire");
    Info().NomAssocie[2] = "Paul";
    Info().DateNaissance[2] = "          ";
    Info().AssocieJA[2] = 1;
    Info().Situation[2] = Cp("Marié");
  }
  DossierTemporaire temporaire;
};

TEST_F(ChampsGeneraux, NamesDependOnTheCompanyAndTheMainAssociate) {
  Valeurs({{"nomExploit", "GAEC DES CHAMPS"}, {"nomSociete", "\\~"}, {"nomExplJA", "GAEC DES CHAMPS"},
           {"typeSoc", "individuelle"}, {"sitExplJA", "marie"}});
  Societe();  // with no JA associate
  Valeurs({{"nomExplJA", "\\~"}, {"ageExplJA", "??"}});
  DeuxAssocies();  // the main associate is the first JA from slot 0: Paul
  Valeurs({{"nomExploit", "\\~"}, {"nomSociete", "GAEC DES CHAMPS"}, {"nomExplSoc", "GAEC DES CHAMPS"},
           {"typeSoc", Cp("société")}, {"nomExplJA", "Paul"}, {"sitExplJA", Cp("marié")}});
  Info().AssocieJA[0] = 1;  // slot 0 comes first
  EXPECT_EQ(Valeur("nomExplJA"), "Exploitant seul");
}

TEST_F(ChampsGeneraux, AssociatesAreListedInEachWording) {
  DeuxAssocies();
  Valeurs({{"associes", Cp("Liste des associés : \\par - Pierre, né(e) le : 01/02/1980\\par "
                           "- Paul, Jeune Agriculteur\\par")},
           {"nomAssocies", Cp("Nom des associés : \\par - Pierre\\par - Paul\\par")},
           {"assNesLe", Cp("Date de naissance des associés : \\par - Pierre : 01/02/1980\\par "
                           "- Paul : non renseignée\\par")},
           {"situAss", Cp("Situation familiale des associés : \\par - Pierre : Célibataire\\par - Paul : Marié\\par")},
           {"nomAssJA", Cp("Liste des associés JA : \\par - Paul\\par")}, {"nbAssJA", "1"},
           {"nomSocAss", Cp("Nom société : GAEC DES CHAMPS\\par - Pierre\\par - Paul\\par")},
           {"nomAss1", "Pierre"}, {"nomAss2", "JA : Paul"}, {"nomAss3", "\\~"}});
  Info().TypeExploitation = 0;  // an individual farm keeps the first line only
  Valeurs({{"nomSocAss", Cp("Nom société : GAEC DES CHAMPS\\par")}, {"associes", Cp("Liste des associés : \\par")},
           {"nbAssJA", "0"}, {"nomAss1", "\\~"}});
}

TEST_F(ChampsGeneraux, MoreThanTenAssociatesAreBoundedToTen) {
  Societe();
  Info().NbAssocies = 25;
  std::string attendu = Cp("Nom des associés : \\par");
  for (int i = 1; i <= 10; ++i) {
    Info().NomAssocie[i] = "A" + std::to_string(i);
    attendu += " - A" + std::to_string(i) + "\\par";
  }
  Valeurs({{"nomAssocies", attendu}, {"nbAssocies", "25"}, {"nomAss10", "A10"}});
  Info().NbAssocies = -3;
  EXPECT_EQ(Valeur("nomAssocies"), Cp("Nom des associés : \\par"));
}

TEST_F(ChampsGeneraux, DescriptionPathCurrencyMarketingModesAndPageBreakAreWritten) {
  Info().DescriptionProjet = "Ligne un  \r\n  Ligne deux\r\nTrois\r\nQuatre\r\nCinq      ";
  Info().CheminDossierTervol = "C:\\Etudes\\DUPONT.TVL\\   ";
  Info().Devise = 1;
  Info().ModeCom[0] = {"Jamais lu", "x"};
  Info().ModeCom[1] = {"Lait", "Coop"};
  Info().ModeCom[2] = {"Viande", "   "};
  Info().ModeCom[4] = {"Oeufs", "Vente directe"};
  Valeurs({{"descProjet", "Ligne un\\par\n  Ligne deux\\par\nTrois\\par\nQuatre\\par\nCinq"},
           {"descProjet1", "Ligne un"}, {"descProjet2", "\n  Ligne deux"}, {"descProjet4etFin", "\nQuatre \nCinq"},
           {"cheminDoss", "C:\\\\Etudes\\\\DUPONT.TVL\\\\"}, {"devise", "\x80uro"},
           {"modeCom", Cp("Mode de commercialisation des produits de l'exploitation : \\par - Lait : Coop\\par "
                          "- Viande : non renseigné\\par - Oeufs : Vente directe\\par")},
           {"modeCom1", "- Lait : Coop"}, {"modeCom2", "\\~"},  // the product alone gives a blank
           {"modeCom3", "\\~"}, {"modeCom4", "- Oeufs : Vente directe"}});
  Info().DescriptionProjet = "Tout sur une ligne   ";
  Info().Devise = 0;
  Valeurs({{"descProjet1", "Tout sur une ligne"}, {"descProjet2", "\\~"}, {"descProjet4etFin", "\\~"},
           {"devise", "Franc"}});
  EXPECT_EQ(Interpreter("{a#tvl(saut2page)#}"), "{a\\page}");
}

TEST_F(ChampsGeneraux, TheDossierDateIsCutToNineCharacters) {
  temporaire.Ecrire("ESSAI.TVL/ESSAI.TVL", "");
  const auto quand = std::chrono::system_clock::from_time_t(MomentLocal(2024, 3, 5, 12, 0, 0));
  std::filesystem::last_write_time(temporaire / "ESSAI.TVL", std::chrono::file_clock::from_sys(quand));
  // The record keeps the folder with a closing separator, which is dropped.
  Info().CheminDossierTervol = temporaire / "essai.tvl\\   ";
  EXPECT_EQ(Valeur("dateDossier"), "05/03/202");
  Info().CheminDossierTervol = "C:\\Etudes\\ABSENT.TVL\\";
  EXPECT_EQ(Valeur("dateDossier"), "\\~");
}

TEST_F(ChampsGeneraux, FinancialYearDatesFollowTheStudyStart) {
  // Exercise 0 is the year before the study; a study starting on 1 January
  // reads the year of its end one too high.
  const std::tuple<std::string, std::string, std::string> cas[] = {
      {"01/01/2005", "date0", Cp("Jan. 2004 - Déc. 2004")}, {"01/01/2005", "date1", Cp("Jan. 2005 - Déc. 2005")},
      {"01/01/2005", "date9", Cp("Jan. 2013 - Déc. 2013")}, {"01/01/2005", "an4Fin1", "2006"},
      {"01/01/2005", "an2Fin1", "06"}, {"01/01/2005", "mois2Fin1", "12"}, {"01/01/2005", "an4Deb1", "2005"},
      {"01/08/2005", "date1", Cp("Août 2005 - Juil. 2006")}, {"01/08/2005", "moisCDeb1", Cp("Août")},
      {"01/08/2005", "moisCFin1", "Juil."}, {"01/08/2005", "mois2Deb1", "08"}, {"01/08/2005", "mois2Fin1", "07"},
      {"01/08/2005", "an4Deb1", "2005"}, {"01/08/2005", "an4Fin1", "2006"}, {"01/08/2005", "an2Deb0", "04"},
      {"29/02/2008", "date1", Cp("Fév. 2008 - Fév. 2009")}, {"29/02/2008", "date2", Cp("Fév. 2009 - Fév. 2010")},
      {"          ", "date1", "\\~"}, {"          ", "an4Deb1", "\\~"}, {"31/02/2005", "moisCDeb1", "\\~"}};
  for (const auto& [debut, code, attendu] : cas) {
    Info().DateDebut = debut;
    EXPECT_EQ(Valeur(code), attendu) << debut << " " << code;
  }
  EXPECT_EQ(MoisClair(0) + MoisClair(13), "");
}

TEST_F(ChampsGeneraux, AgeIsCountedInYearsOfThirtyAndAHalfDayMonths) {
  // Today is 22/11/2026; the day count is held within 16 bits.
  for (const auto& [naissance, age] : Cas{{"22/11/1986", "40"}, {"23/11/1986", "39"}, {"**/**/****", "??"},
                                          {"          ", "??"}, {"01/01/1900", "89"}}) {
    Info().DateNaissance[0] = naissance;
    EXPECT_EQ(Valeur("ageExplJA"), age) << naissance;
  }
  // 29 + 30.5 x 11 + 365 x 29 = 10949.5 days, taken as the 16-bit 10950:
  // 30 years by the rule, although the calendar says 29.
  maintenant = MomentLocal(2026, 12, 30, 9, 0, 0);
  Info().DateNaissance[0] = "01/01/1997";
  EXPECT_EQ(Valeur("ageExplJA"), "30");
  Societe();  // the age of the first JA associate
  Info().AssocieJA[3] = 1;
  Info().DateNaissance[3] = "01/06/2000";
  EXPECT_EQ(Valeur("ageExplJA"), "26");
}

TEST_F(ChampsGeneraux, OrganisationsAreReadByFieldAndIndex) {
  for (int i = 0; i < 20; ++i) {
    const std::string n = std::to_string(i);
    auto& o = session.Organisations[i];
    std::tie(o.Nom, o.Ville, o.Sigle, o.Rue, o.Telephone, o.Fax) =
        std::make_tuple("Nom" + n + "   ", "Ville" + n, "S" + n, "Rue" + n, "Tel" + n, "Fax" + n);
  }
  // A field ending in "1" gives it to the index: 0 to 19.
  Valeurs({{"ORGANOM12", "Nom12"}, {"ORGANOM1", "Nom1"}, {"ORGANOM0", "Nom0"}, {"ORGASIGLE19", "S19"},
           {"ORGARUE5", "Rue5"}, {"ORGATEL3", "Tel3"}, {"ORGAFAX10", "Fax10"}, {"orgavillE1", "Ville1"},
           {"OrgaNom7", "Nom7"}, {"ORGAPAYS1", "??"}, {"ORGA", "??"}, {"ORGALOGO2", "\\~"}});
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(ChampsGeneraux, ALogoIsEmbeddedOrGoesThroughThePicturesPort) {
  session.Organisations[2].Logo = temporaire / "absent.png";
  EXPECT_EQ(Valeur("ORGALOGO2"), "\\~");
  construction::EcrirePng(temporaire / "logo.png", {});
  session.Organisations[3].Logo = temporaire / "logo.png" + "      ";
  EXPECT_EQ(Valeur("ORGALOGO3").rfind("{\\pict\\pngblip\\picw", 0), 0u);
  struct ImagesFixes : PortImages {
    std::string recu;
    std::string ImageVersRtf(const std::string& chemin) override {
      recu = chemin;
      return "{\\pict PORT}";
    }
  } images;
  generation.images = &images;
  session.Organisations[4].Logo = "C:\\Logos\\cerfrance.bmp   ";
  EXPECT_EQ(Valeur("ORGALOGO4"), "{\\pict PORT}");
  EXPECT_EQ(images.recu, "C:\\Logos\\cerfrance.bmp");
}

}  // namespace
}  // namespace norvane::test
