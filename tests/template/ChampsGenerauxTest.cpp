// The vocabulary of general fields: société rules, associate lists, project
// description, path, currency and marketing modes.
#include <chrono>
#include <filesystem>

#include "frame/DossierTemporaire.h"
#include "template/BancInterpreteur.h"

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
};

TEST_F(ChampsGeneraux, NomsSelonSocieteOuNon) {
  EXPECT_EQ(Valeur("nomExploit"), "GAEC DES CHAMPS");
  EXPECT_EQ(Valeur("nomSociete"), "\\~");
  EXPECT_EQ(Valeur("nomExplJA"), "GAEC DES CHAMPS");
  EXPECT_EQ(Valeur("typeSoc"), "individuelle");
  EXPECT_EQ(Valeur("sitExplJA"), "marie");
  DeuxAssocies();
  EXPECT_EQ(Valeur("nomExploit"), "\\~");
  EXPECT_EQ(Valeur("nomSociete"), "GAEC DES CHAMPS");
  EXPECT_EQ(Valeur("nomExplSoc"), "GAEC DES CHAMPS");
  EXPECT_EQ(Valeur("typeSoc"), Cp("société"));
  // The main associate is the first JA from slot 0: Paul.
  EXPECT_EQ(Valeur("nomExplJA"), "Paul");
  EXPECT_EQ(Valeur("sitExplJA"), Cp("marié"));
}

TEST_F(ChampsGeneraux, SocieteSansJA) {
  Societe();
  EXPECT_EQ(Valeur("nomExplJA"), "\\~");
  EXPECT_EQ(Valeur("ageExplJA"), "??");
}

TEST_F(ChampsGeneraux, ListesDAssocies) {
  DeuxAssocies();
  EXPECT_EQ(Valeur("associes"), Cp("Liste des associés : \\par - Pierre, né(e) le : 01/02/1980\\par "
                                    "- Paul, Jeune Agriculteur\\par"));
  EXPECT_EQ(Valeur("nomAssocies"), Cp("Nom des associés : \\par - Pierre\\par - Paul\\par"));
  EXPECT_EQ(Valeur("assNesLe"), Cp("Date de naissance des associés : \\par - Pierre : 01/02/1980\\par "
                                    "- Paul : non renseignée\\par"));
  EXPECT_EQ(Valeur("situAss"), Cp("Situation familiale des associés : \\par - Pierre : Célibataire\\par "
                                   "- Paul : Marié\\par"));
  EXPECT_EQ(Valeur("nomAssJA"), Cp("Liste des associés JA : \\par - Paul\\par"));
  EXPECT_EQ(Valeur("nbAssJA"), "1");
  EXPECT_EQ(Valeur("nomSocAss"), Cp("Nom société : GAEC DES CHAMPS\\par - Pierre\\par - Paul\\par"));
  EXPECT_EQ(Valeur("nomAss1"), "Pierre");
  EXPECT_EQ(Valeur("nomAss2"), "JA : Paul");
  EXPECT_EQ(Valeur("nomAss3"), "\\~");
}

TEST_F(ChampsGeneraux, ExploitationIndividuelleGardeLaPremiereLigne) {
  Info().NbAssocies = 2;
  Info().NomAssocie[1] = "Pierre";
  EXPECT_EQ(Valeur("nomSocAss"), Cp("Nom société : GAEC DES CHAMPS\\par"));
  EXPECT_EQ(Valeur("associes"), Cp("Liste des associés : \\par"));
  EXPECT_EQ(Valeur("nbAssJA"), "0");
  EXPECT_EQ(Valeur("nomAss1"), "\\~");
}

TEST_F(ChampsGeneraux, PlusDeDixAssociesBornesADix) {
  Societe();
  Info().NbAssocies = 25;
  for (int i = 1; i <= 10; ++i) Info().NomAssocie[i] = "A" + std::to_string(i);
  std::string attendu = Cp("Nom des associés : \\par ");
  for (int i = 1; i <= 10; ++i) attendu += "- A" + std::to_string(i) + "\\par ";
  EXPECT_EQ(Valeur("nomAssocies"), attendu.substr(0, attendu.size() - 1));
  EXPECT_EQ(Valeur("nbAssocies"), "25");
  EXPECT_EQ(Valeur("nomAss10"), "A10");
  Info().NbAssocies = -3;
  EXPECT_EQ(Valeur("nomAssocies"), Cp("Nom des associés : \\par"));
}

TEST_F(ChampsGeneraux, FamillesNumeroteesExactes) {
  EXPECT_EQ(Valeur("nomAss01"), "#tvl(nomAss01)#");
  EXPECT_EQ(Valeur("nomAss0"), "#tvl(nomAss0)#");
  EXPECT_EQ(Valeur("modeCom7"), "#tvl(modeCom7)#");
  EXPECT_EQ(Valeur("date10"), "#tvl(date10)#");
  EXPECT_EQ(messages.messages.size(), 4u);
}

TEST_F(ChampsGeneraux, DescriptionDuProjet) {
  Info().DescriptionProjet = "Ligne un  \r\n  Ligne deux\r\nTrois\r\nQuatre\r\nCinq      ";
  EXPECT_EQ(Valeur("descProjet"), "Ligne un\\par\n  Ligne deux\\par\nTrois\\par\nQuatre\\par\nCinq");
  EXPECT_EQ(Valeur("descProjet1"), "Ligne un");
  EXPECT_EQ(Valeur("descProjet2"), "\n  Ligne deux");
  EXPECT_EQ(Valeur("descProjet4etFin"), "\nQuatre \nCinq");
  Info().DescriptionProjet = "Tout sur une ligne   ";
  EXPECT_EQ(Valeur("descProjet1"), "Tout sur une ligne");
  EXPECT_EQ(Valeur("descProjet2"), "\\~");
  EXPECT_EQ(Valeur("descProjet4etFin"), "\\~");
}

TEST_F(ChampsGeneraux, CheminDeviseEtNombres) {
  Info().CheminDossierTervol = "C:\\Etudes\\DUPONT.TVL\\   ";
  EXPECT_EQ(Valeur("cheminDoss"), "C:\\\\Etudes\\\\DUPONT.TVL\\\\");
  EXPECT_EQ(Valeur("devise"), "Franc");
  Info().Devise = 1;
  EXPECT_EQ(Valeur("devise"), "\x80uro");
  Info().NbAnEtude = 5;
  Info().MoisTva = 3;
  EXPECT_EQ(Valeur("nbAnEtude"), "5");
  EXPECT_EQ(Valeur("moisTva"), "3");
}

TEST_F(ChampsGeneraux, ModesDeCommercialisation) {
  Info().ModeCom[1] = {"Lait", "Coop"};
  Info().ModeCom[2] = {"Viande", "   "};
  Info().ModeCom[4] = {"Oeufs", "Vente directe"};
  Info().ModeCom[0] = {"Jamais lu", "x"};
  EXPECT_EQ(Valeur("modeCom"), Cp("Mode de commercialisation des produits de l'exploitation : \\par "
                                   "- Lait : Coop\\par - Viande : non renseigné\\par - Oeufs : Vente directe\\par"));
  EXPECT_EQ(Valeur("modeCom1"), "- Lait : Coop");
  EXPECT_EQ(Valeur("modeCom2"), "\\~");  // the product alone gives a blank
  EXPECT_EQ(Valeur("modeCom3"), "\\~");
  EXPECT_EQ(Valeur("modeCom4"), "- Oeufs : Vente directe");
}

TEST_F(ChampsGeneraux, DateDuDossierCoupeANeufCaracteres) {
  DossierTemporaire temporaire;
  temporaire.Ecrire("ESSAI.TVL/ESSAI.TVL", "");
  const auto quand = std::chrono::system_clock::from_time_t(MomentLocal(2024, 3, 5, 12, 0, 0));
  std::filesystem::last_write_time(temporaire / "ESSAI.TVL",
                                   std::chrono::file_clock::from_sys(quand));
  // The record keeps the folder with a closing separator, which is dropped.
  Info().CheminDossierTervol = temporaire / "essai.tvl\\   ";
  EXPECT_EQ(Valeur("dateDossier"), "05/03/202");
  Info().CheminDossierTervol = "C:\\Etudes\\ABSENT.TVL\\";
  EXPECT_EQ(Valeur("dateDossier"), "\\~");
}

TEST_F(ChampsGeneraux, SautDePage) { EXPECT_EQ(Interpreter("{a#tvl(saut2page)#}"), "{a\\page}"); }

}  // namespace
}  // namespace norvane::test
