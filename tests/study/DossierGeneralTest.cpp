// The general record: each field at its offset, the builder writing back what
// the reader read, short files, and the loading of slot 0 with its blank,
// missing and case-insensitive cases.
#include <gtest/gtest.h>

#include <filesystem>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "frame/Texte.h"
#include "study/ChampsEssai.h"
#include "study/DossierGeneral.h"

namespace norvane {
namespace {

using test::I16;
using test::I32;

// Every byte differs from its neighbours, so a field read from the wrong
// offset or with the wrong width shows.
std::string Motif(std::size_t taille) {
  std::string octets(taille, ' ');
  for (std::size_t i = 0; i < taille; ++i) octets[i] = static_cast<char>('!' + i % 199);
  return octets;
}

TEST(DossierGeneral, EachFieldComesFromItsOffsetAndTheBuilderWritesItBack) {
  const std::string motif = Motif(kLongueurDossierGeneral);
  DossierGeneral d;
  ASSERT_TRUE(LireDossierGeneral(motif, d));
  test::VerifierChamps(motif, {
      {0, d.CheminDossierTervol}, {100, d.NomExploitation}, {160, d.Commune}, {190, I16(d.Reserve190)},
      {192, I16(d.AnneeDebut)}, {194, I16(d.NbAnEtude)}, {196, I32(d.TypeExploitation)}, {200, d.DescriptionProjet},
      {700, d.DateDebut}, {710, d.Conseiller}, {730, I16(d.NbAssocies)}, {732 + 10 * 30, d.NomAssocie[10]},
      {1062 + 2, I16(d.AssocieJA[1])}, {1084 + 4 * 10, d.DateNaissance[4]}, {1194 + 10 * 15, d.Situation[10]},
      {1359, d.RegionAgricole}, {1479, d.NumeroAdherent},
      // ModeCom: the first index runs fastest, the seven names then the seven modes.
      {1494 + 40, d.ModeCom[1][0]}, {1774, d.ModeCom[0][1]}, {1774 + 6 * 40, d.ModeCom[6][1]},
      {2054, I16(d.MoisTva)}, {2056, d.Reserve2056}, {2068, I16(d.Devise)}, {2090, d.Fax}});
  EXPECT_EQ(d.Fax.size(), 20u);  // texts keep their padding
  EXPECT_EQ(construction::OctetsDossierGeneral(d), motif);
}

TEST(DossierGeneral, FieldNamesForDiagnostics) {
  const std::pair<std::size_t, const char*> noms[] = {
      {0, "CheminDossierTervol"}, {197, "TypeExploitation"}, {732 + 30 * 2 + 5, "NomAssocie(2)"},
      {1494 + 40 * 6, "ModeCom(6, 0)"}, {1774 + 40 * 3, "ModeCom(3, 1)"}, {2109, "Fax"}, {2110, ""}};
  for (const auto& [position, nom] : noms) EXPECT_EQ(ChampDossierGeneral(position), nom) << position;
}

TEST(DossierGeneral, AShortFileLeavesTheFieldsBehindItsEndAsTheyWere) {
  DossierGeneral d;
  d.Banque = "ancienne banque";
  d.Fax = "ancien fax";
  // Cut in the middle of Banque: AutresActivites is read, Banque is not.
  EXPECT_FALSE(LireDossierGeneral(Motif(1439 + 20), d));
  EXPECT_EQ(d.AutresActivites, Motif(1439).substr(1399));
  EXPECT_EQ(d.Banque, "ancienne banque");
  EXPECT_EQ(d.Fax, "ancien fax");
  for (std::size_t taille : {0u, 1u, 2109u, 2110u, 5000u}) {
    EXPECT_EQ(LireDossierGeneral(Motif(taille), d), taille >= kLongueurDossierGeneral) << taille;
  }
}

// ChargerInfoDossier from slot 0. Each case starts with "avant" as the farm's
// name and "ancien fax" in the record in memory.
struct CasChargement {
  const char* rep;  // under the temporary root; nullptr: blanks only
  const char* nom;
  bool repGarde, nomGarde;
  const char* exploitation;
  const char* fax;
};

TEST(ChargementDossier, FromSlotZero) {
  test::DossierTemporaire racine;
  DossierGeneral dupont;
  dupont.NomExploitation = "GAEC DU PR\xC9";
  dupont.Fax = "02 43 00 00 01";
  construction::CreerDossierEtude(racine / "etudes", "DUPONT.TVL", dupont);
  std::filesystem::create_directories(racine / "etudes/VIDE.TVL");
  dupont.NomExploitation = "EARL COURTE";
  racine.Ecrire("etudes/COURT.TVL/COURT.TVL", construction::OctetsDossierGeneral(dupont).substr(0, 200));
  const CasChargement cas[] = {
      {"etudes/", "DUPONT.TVL", true, true, "GAEC DU PR\xC9", "02 43 00 00 01"},
      {"etudes", "dupont.tvl", true, true, "GAEC DU PR\xC9", "02 43 00 00 01"},  // no final "/", any case
      {nullptr, "DUPONT.TVL", true, true, "avant", "ancien fax"},
      {"etudes/", "", true, true, "avant", "ancien fax"},
      {"etudes/", "VIDE.TVL", true, false, "avant", "ancien fax"},  // a folder without its record file
      {"absent/", "DUPONT.TVL", false, false, "avant", "ancien fax"},
      {"etudes/", "COURT.TVL", true, true, "EARL COURTE", "ancien fax"},  // later fields kept
  };
  for (const CasChargement& c : cas) {
    SCOPED_TRACE(std::string(c.rep ? c.rep : "(blanks)") + " | " + c.nom);
    const std::string rep = c.rep ? racine / c.rep : "   ";
    Session session;
    session.RepDossier[0] = rep;
    session.NomDossier[0] = c.nom;
    session.InfoDossier.NomExploitation = "avant";
    session.InfoDossier.Fax = "ancien fax";
    ChargerInfoDossier(session);
    EXPECT_EQ(session.RepDossier[0], c.repGarde ? rep : "");
    EXPECT_EQ(session.NomDossier[0], c.nomGarde ? c.nom : "");
    EXPECT_EQ(Trim(session.InfoDossier.NomExploitation), c.exploitation);
    EXPECT_EQ(Trim(session.InfoDossier.Fax), c.fax);
  }
}

}  // namespace
}  // namespace norvane

namespace norvane {
namespace {

TEST(ExaminerDossier, WhatStandsInTheWayOfADossierNamedByTheUser) {
  test::DossierTemporaire racine;
  construction::CreerDossierEtude(racine.Chemin(), "BON.TVL", DossierGeneral{});
  construction::CreerDossierEtude(racine.Chemin(), "VIDE.TVL", DossierGeneral{});
  racine.Ecrire("VIDE.TVL/VIDE.TVL", "");
  racine.Ecrire("COURT.TVL/COURT.TVL", std::string(150, ' '));
  racine.Ecrire("SANS.TVL/RES.DON", "");
  racine.Ecrire("FICHIER.TVL", "x");
  using Sorte = ProblemeDossier::Sorte;
  const struct {
    std::string dossier;
    std::optional<Sorte> sorte;
    std::string texte;
  } cas[] = {
      {"BON.TVL", std::nullopt, ""},
      {"bon.tvl/", std::nullopt, ""},
      {"ABSENT.TVL", Sorte::Introuvable, "Le dossier " + racine / "ABSENT.TVL" + " n'existe pas."},
      {"FICHIER.TVL", Sorte::PasUnDossier, racine / "FICHIER.TVL" + " n'est pas un dossier d'étude (.TVL) mais un fichier."},
      {"SANS.TVL", Sorte::SansRecord,
       "Le dossier ne contient pas d'enregistrement général : " + racine / "SANS.TVL/SANS.TVL" + " introuvable."},
      {"VIDE.TVL", Sorte::RecordCourt,
       "Attention : l'enregistrement général " + racine / "VIDE.TVL/VIDE.TVL" +
           " est vide (0 octets au lieu de 2110) : les champs manquants restent vides."},
      {"COURT.TVL", Sorte::RecordCourt,
       "Attention : l'enregistrement général " + racine / "COURT.TVL/COURT.TVL" +
           " est incomplet (150 octets au lieu de 2110) : les champs manquants restent vides."},
  };
  for (const auto& c : cas) {
    const auto probleme = ExaminerDossier(racine / c.dossier);
    ASSERT_EQ(probleme.has_value(), c.sorte.has_value()) << c.dossier;
    if (!probleme) continue;
    EXPECT_EQ(probleme->sorte, *c.sorte) << c.dossier;
    EXPECT_EQ(probleme->Texte(), c.texte);
    EXPECT_EQ(probleme->Bloquant(), *c.sorte != Sorte::RecordCourt);
  }
}

}  // namespace
}  // namespace norvane
