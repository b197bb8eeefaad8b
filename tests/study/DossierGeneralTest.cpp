// The general record: what the builder writes, the reader reads back; the
// offsets that are easy to get wrong; short and damaged files; the loading of
// slot 0 with its blank, missing and case-insensitive cases.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "construction/FichiersEtude.h"
#include "frame/DossierTemporaire.h"
#include "frame/LecteurBinaire.h"
#include "frame/Texte.h"
#include "study/DossierGeneral.h"

namespace norvane {
namespace {

// A record with a distinct value in every field.
DossierGeneral DossierComplet() {
  DossierGeneral d;
  d.CheminDossierTervol = "C:\\WinTervol\\Dossier\\DUPONT.TVL\\";
  d.NomDossierTervol = "Installation Dupont";
  d.NomExploitation = "GAEC DU PR\xC9";
  d.Adresse = "La Grange";
  d.Commune = "Saint-Aubin";
  d.Reserve190 = 7;
  d.AnneeDebut = 2025;
  d.NbAnEtude = 5;
  d.TypeExploitation = 1;
  d.DescriptionProjet = "Ligne 1\rLigne 2";
  d.DateDebut = "01/10/2025";
  d.Conseiller = "A. Conseil";
  d.NbAssocies = 3;
  for (std::size_t i = 0; i < 11; ++i) {
    d.NomAssocie[i] = "Associe " + std::to_string(i);
    d.AssocieJA[i] = static_cast<int16_t>(i % 2);
    d.DateNaissance[i] = std::to_string(10 + i) + "/01/1990";
    d.Situation[i] = "Situation " + std::to_string(i);
  }
  d.RegionAgricole = "Bocage";
  d.AutresActivites = "Gite";
  d.Banque = "Banque verte";
  d.NumeroAdherent = "A-1234";
  for (std::size_t p = 0; p < 7; ++p) d.ModeCom[p] = {"Produit " + std::to_string(p), "Mode " + std::to_string(p)};
  d.MoisTva = 3;
  d.Reserve2056 = "reserve";
  d.Devise = 1;
  d.Telephone = "02 43 00 00 00";
  d.Fax = "02 43 00 00 01";
  return d;
}

std::string Texte(const std::string& octets, std::size_t position, std::size_t largeur) {
  return octets.substr(position, largeur);
}

int16_t Entier16(const std::string& octets, std::size_t position) {
  int16_t v = 0;
  LecteurBinaire l(std::string_view(octets).substr(position));
  l.Lire(v);
  return v;
}

TEST(DossierGeneral, WhatTheBuilderWritesIsReadBackFieldForField) {
  const DossierGeneral ecrit = DossierComplet();
  const std::string octets = construction::OctetsDossierGeneral(ecrit);
  ASSERT_EQ(octets.size(), kLongueurDossierGeneral);
  DossierGeneral lu;
  ASSERT_TRUE(LireDossierGeneral(octets, lu));
  // Texts come back padded to their width.
  EXPECT_EQ(lu.CheminDossierTervol,
            ecrit.CheminDossierTervol + std::string(50 - ecrit.CheminDossierTervol.size(), ' '));
  EXPECT_EQ(Trim(lu.NomExploitation), "GAEC DU PR\xC9");
  EXPECT_EQ(Trim(lu.Commune), "Saint-Aubin");
  EXPECT_EQ(lu.Reserve190, 7);
  EXPECT_EQ(lu.AnneeDebut, 2025);
  EXPECT_EQ(lu.NbAnEtude, 5);
  EXPECT_EQ(lu.TypeExploitation, 1);
  EXPECT_EQ(Trim(lu.DescriptionProjet), "Ligne 1\rLigne 2");
  EXPECT_EQ(Trim(lu.DateDebut), "01/10/2025");
  EXPECT_EQ(Trim(lu.Conseiller), "A. Conseil");
  EXPECT_EQ(lu.NbAssocies, 3);
  for (std::size_t i = 0; i < 11; ++i) {
    EXPECT_EQ(Trim(lu.NomAssocie[i]), ecrit.NomAssocie[i]);
    EXPECT_EQ(lu.AssocieJA[i], ecrit.AssocieJA[i]);
    EXPECT_EQ(Trim(lu.DateNaissance[i]), ecrit.DateNaissance[i]);
    EXPECT_EQ(Trim(lu.Situation[i]), ecrit.Situation[i]);
  }
  EXPECT_EQ(Trim(lu.RegionAgricole), "Bocage");
  EXPECT_EQ(Trim(lu.AutresActivites), "Gite");
  EXPECT_EQ(Trim(lu.Banque), "Banque verte");
  EXPECT_EQ(Trim(lu.NumeroAdherent), "A-1234");
  for (std::size_t p = 0; p < 7; ++p) {
    EXPECT_EQ(Trim(lu.ModeCom[p][0]), ecrit.ModeCom[p][0]);
    EXPECT_EQ(Trim(lu.ModeCom[p][1]), ecrit.ModeCom[p][1]);
  }
  EXPECT_EQ(lu.MoisTva, 3);
  EXPECT_EQ(Trim(lu.Reserve2056), "reserve");
  EXPECT_EQ(lu.Devise, 1);
  EXPECT_EQ(Trim(lu.Telephone), "02 43 00 00 00");
  EXPECT_EQ(Trim(lu.Fax), "02 43 00 00 01");
}

TEST(DossierGeneral, FieldsStandAtTheirOffsets) {
  const std::string o = construction::OctetsDossierGeneral(DossierComplet());
  EXPECT_EQ(Entier16(o, 192), 2025);
  EXPECT_EQ(Entier16(o, 194), 5);
  EXPECT_EQ(Entier16(o, 196), 1);  // TypeExploitation is 32-bit: its high half is 0
  EXPECT_EQ(Entier16(o, 198), 0);
  EXPECT_EQ(Texte(o, 700, 10), "01/10/2025");
  EXPECT_EQ(Entier16(o, 730), 3);  // NbAssocies right after the 20 bytes of Conseiller
  EXPECT_EQ(Texte(o, 732 + 3 * 30, 9), "Associe 3");
  EXPECT_EQ(Texte(o, 732 + 10 * 30, 10), "Associe 10");
  EXPECT_EQ(Entier16(o, 1062 + 2 * 1), 1);
  EXPECT_EQ(Entier16(o, 1062 + 2 * 2), 0);
  EXPECT_EQ(Texte(o, 1084 + 10 * 4, 10), "14/01/1990");
  EXPECT_EQ(Texte(o, 1194 + 15 * 10, 12), "Situation 10");
  EXPECT_EQ(Texte(o, 1359, 6), "Bocage");
  EXPECT_EQ(Texte(o, 1479, 6), "A-1234");
  // ModeCom: the first index runs fastest, so the seven names come first,
  // then the seven modes.
  EXPECT_EQ(Texte(o, 1494, 9), "Produit 0");
  EXPECT_EQ(Texte(o, 1494 + 40, 9), "Produit 1");
  EXPECT_EQ(Texte(o, 1494 + 6 * 40, 9), "Produit 6");
  EXPECT_EQ(Texte(o, 1774, 6), "Mode 0");
  EXPECT_EQ(Texte(o, 1774 + 6 * 40, 6), "Mode 6");
  EXPECT_EQ(Entier16(o, 2054), 3);
  EXPECT_EQ(Entier16(o, 2068), 1);
  EXPECT_EQ(Texte(o, 2090, 14), "02 43 00 00 01");
}

TEST(DossierGeneral, FieldNamesForDiagnostics) {
  EXPECT_EQ(ChampDossierGeneral(0), "CheminDossierTervol");
  EXPECT_EQ(ChampDossierGeneral(197), "TypeExploitation");
  EXPECT_EQ(ChampDossierGeneral(732 + 30 * 2 + 5), "NomAssocie(2)");
  EXPECT_EQ(ChampDossierGeneral(1774 + 40 * 3), "ModeCom(3, 1)");
  EXPECT_EQ(ChampDossierGeneral(2109), "Fax");
  EXPECT_EQ(ChampDossierGeneral(2110), "");
}

TEST(DossierGeneral, AShortFileLeavesTheFieldsBehindItsEndAsTheyWere) {
  const std::string complet = construction::OctetsDossierGeneral(DossierComplet());
  DossierGeneral d;
  d.Banque = "ancienne banque";
  d.Fax = "ancien fax";
  d.NumeroAdherent = "ancien";
  // Cut in the middle of Banque: RegionAgricole is read, Banque is not.
  EXPECT_FALSE(LireDossierGeneral(std::string_view(complet).substr(0, 1439 + 20), d));
  EXPECT_EQ(Trim(d.AutresActivites), "Gite");
  EXPECT_EQ(d.Banque, "ancienne banque");
  EXPECT_EQ(d.NumeroAdherent, "ancien");
  EXPECT_EQ(d.Fax, "ancien fax");
  EXPECT_EQ(ChampDossierGeneral(1439 + 20), "Banque");
}

TEST(DossierGeneral, EmptyAndGarbageBytesReadWithoutHarm) {
  DossierGeneral d = DossierComplet();
  EXPECT_FALSE(LireDossierGeneral("", d));
  EXPECT_EQ(d.AnneeDebut, 2025);

  std::mt19937 alea(42);
  for (std::size_t taille : {1u, 191u, 733u, 2109u, 2110u, 5000u}) {
    std::string octets(taille, '\0');
    for (char& c : octets) c = static_cast<char>(alea());
    DossierGeneral g;
    EXPECT_EQ(LireDossierGeneral(octets, g), taille >= kLongueurDossierGeneral);
  }
}

class ChargementDossier : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_FALSE(racine_.Chemin().empty());
    construction::CreerDossierEtude(racine_.Chemin(), "DUPONT.TVL", DossierComplet());
    session_.RepDossier[0] = racine_.Chemin();
    session_.NomDossier[0] = "DUPONT.TVL";
    session_.InfoDossier.NomExploitation = "avant";
  }

  test::DossierTemporaire racine_;
  Session session_;
};

TEST_F(ChargementDossier, BothSlotPartsGivenTheRecordIsRead) {
  ChargerInfoDossier(session_);
  EXPECT_EQ(Trim(session_.InfoDossier.NomExploitation), "GAEC DU PR\xC9");
  EXPECT_EQ(CheminRecordDossier(session_, 0), racine_.Chemin() + "DUPONT.TVL/DUPONT.TVL");
}

TEST_F(ChargementDossier, BlankFolderOrNameReadsNothingAndChangesNothing) {
  session_.RepDossier[0] = "   ";
  ChargerInfoDossier(session_);
  EXPECT_EQ(session_.InfoDossier.NomExploitation, "avant");
  EXPECT_EQ(session_.NomDossier[0], "DUPONT.TVL");

  session_.RepDossier[0] = racine_.Chemin();
  session_.NomDossier[0] = "";
  ChargerInfoDossier(session_);
  EXPECT_EQ(session_.InfoDossier.NomExploitation, "avant");
  EXPECT_EQ(session_.RepDossier[0], racine_.Chemin());
}

TEST_F(ChargementDossier, AFolderWithoutItsRecordFileBlanksTheName) {
  std::filesystem::create_directories(racine_ / "VIDE.TVL");
  session_.NomDossier[0] = "VIDE.TVL";
  ChargerInfoDossier(session_);
  EXPECT_EQ(session_.NomDossier[0], "");
  EXPECT_EQ(session_.RepDossier[0], racine_.Chemin());
  EXPECT_EQ(session_.InfoDossier.NomExploitation, "avant");
}

TEST_F(ChargementDossier, AMissingParentFolderBlanksBoth) {
  session_.RepDossier[0] = racine_ / "absent/";
  ChargerInfoDossier(session_);
  EXPECT_EQ(session_.NomDossier[0], "");
  EXPECT_EQ(session_.RepDossier[0], "");
  EXPECT_EQ(session_.InfoDossier.NomExploitation, "avant");
}

TEST_F(ChargementDossier, NamesAreFoundWithoutRegardToCase) {
  std::filesystem::rename(racine_ / "DUPONT.TVL/DUPONT.TVL", racine_ / "DUPONT.TVL/dupont.tvl");
  session_.NomDossier[0] = "Dupont.Tvl";
  session_.RepDossier[0] = racine_.Chemin().substr(0, racine_.Chemin().size() - 1);  // no final "/"
  ChargerInfoDossier(session_);
  EXPECT_EQ(Trim(session_.InfoDossier.NomExploitation), "GAEC DU PR\xC9");
  EXPECT_EQ(session_.NomDossier[0], "Dupont.Tvl");
}

TEST_F(ChargementDossier, AShortRecordFileKeepsThePreviousDossiersLaterFields) {
  session_.InfoDossier = DossierComplet();
  session_.InfoDossier.Fax = "fax du dossier precedent";
  DossierGeneral autre;
  autre.NomExploitation = "EARL COURTE";
  racine_.Ecrire("COURT.TVL/COURT.TVL", construction::OctetsDossierGeneral(autre).substr(0, 200));
  session_.NomDossier[0] = "COURT.TVL";
  ChargerInfoDossier(session_);
  EXPECT_EQ(Trim(session_.InfoDossier.NomExploitation), "EARL COURTE");
  EXPECT_EQ(session_.InfoDossier.Fax, "fax du dossier precedent");
  EXPECT_EQ(Trim(session_.InfoDossier.DateDebut), "01/10/2025");
}

}  // namespace
}  // namespace norvane
