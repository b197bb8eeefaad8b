// The readers of the crop catalogues, asset, grant, loan and plan files, and
// ModAniLib.ini, on bytes made by the study-file builder.
#include <gtest/gtest.h>

#include "construction/FichiersIni.h"
#include "construction/FichiersTableaux.h"
#include "frame/Encodage.h"
#include "frame/LecteurBinaire.h"
#include "frame/Texte.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"
#include "tables/ActivitesLibres.h"
#include "tables/Cultures.h"
#include "tables/ImmoEmprunts.h"

namespace norvane::test {
namespace {

namespace c = construction;

TEST(Cultures, EveryNamedArrayReadsBackAtItsPlace) {
  c::CultureAnnuelle ble;
  ble.NumCulture = 7;
  ble.NomCulture = "Bl\xE9 tendre";
  ble.UniteRendement = '2';
  ble.Derobee = -1;
  ble.TypeCulture = 3;
  float graine = 1;
  for (const c::TableauCulture& t : c::kTableauxCulture) {
    std::array<float, 11> v{};
    for (float& x : v) x = graine++;
    ble.Valeurs[t.nom] = v;
  }
  const FicheCulture f = DecoderCulture(c::OctetsCultureAnnuelle(ble));
  EXPECT_EQ(f.Numero(), "7");
  EXPECT_EQ(f.NomCulture, "Bl\xE9 tendre" + std::string(13, ' '));
  EXPECT_EQ(f.UniteRendement, '2');
  EXPECT_EQ(f.Derobee, -1);
  EXPECT_EQ(f.TypeCulture, 3);
  for (const c::TableauCulture& t : c::kTableauxCulture) {
    ASSERT_NE(f.Tableau(t.nom), nullptr) << t.nom;
    EXPECT_EQ(*f.Tableau(t.nom), ble.Valeurs[t.nom]) << t.nom;
  }
  EXPECT_NE(f.Tableau("Assolement"), nullptr);
  EXPECT_EQ(f.Tableau("totalvente"), nullptr);
}

TEST(Cultures, ThePerennialRecordAndItsUnits) {
  c::CulturePerenne vigne{4, "Vigne", 1, 2, 1, 3, 12};
  const FicheCulturePerenne f = DecoderCulturePerenne(c::OctetsCulturePerenne(vigne));
  EXPECT_EQ(f.NumCultureP, 4);
  EXPECT_EQ(Trim(f.NomCultureP), "Vigne");
  EXPECT_EQ(f.TypeCultureP, 1);
  EXPECT_EQ(TexteUniteSurface(f.UniteSurface), Utf8VersCp1252("m²"));
  EXPECT_EQ(TexteUniteRendementP(f.UniteRendementP), "T");
  EXPECT_EQ(f.PleineProduction, 3);
  EXPECT_EQ(f.DureeAmortissement, 12);
}

TEST(Cultures, TheListEndsAtTheFirstRecordBelowTypeOneAndACutRecordCounts) {
  DossierTemporaire d;
  c::CultureAnnuelle a, fin, b;
  a.NumCulture = 1;
  fin.TypeCulture = 0;
  b.NumCulture = 2;
  c::EcrireCulturesAnnuelles(d / "X.TVL/CULT.CLT", {a, fin, b});
  EXPECT_EQ(ChargerCultures(d / "X.TVL/").size(), 1u);
  EXPECT_TRUE(ChargerCultures(d / "Y.TVL/").empty());
  const std::string octets = c::OctetsCultureAnnuelle(a);
  EXPECT_EQ(LireCultures(octets + octets.substr(0, 50)).size(), 2u);
  EXPECT_EQ(NombreFichesCatalogue(0, kLongueurCulture), 0u);
}

TEST(ImmoEmprunts, AnAssetReadsBackFieldByField) {
  c::Immobilisation i;
  i.Nouveau = 1;
  i.TypeImmo = 4;
  i.Libelle = "Tracteur";
  i.DateRealisation = "15/03/2008";
  i.Montant = 45000;
  i.Duree = 7;
  i.TypeAmort = 1;
  i.DateRevente = "01/01/2012";
  i.MontantRevente = 9000;
  i.NumEntreePlan = 2;
  i.Differe = 1;
  i.LSM = -5;
  i.PlusValue1 = 100.5;
  i.PlusValue2 = 20;
  i.MontantsAnnuels[0] = 7;
  i.MontantsAnnuels[25] = 2500;
  const FicheImmo f = DecoderImmo(c::OctetsImmobilisation(i));
  EXPECT_EQ(f.Nouveau, 1);
  EXPECT_EQ(f.TypeImmo, 4);
  EXPECT_EQ(Trim(f.Libelle), "Tracteur");
  EXPECT_EQ(f.DateRealisation, "15/03/2008");
  EXPECT_EQ(f.Montant, 45000);
  EXPECT_EQ(f.Duree, 7);
  EXPECT_EQ(f.TypeAmort, 1);
  EXPECT_EQ(f.DateRevente, "01/01/2012");
  EXPECT_EQ(f.MontantRevente, 9000);
  EXPECT_EQ(f.NumEntreePlan, 2);
  EXPECT_EQ(f.Differe, 1);
  EXPECT_EQ(f.LSM, -5);
  EXPECT_EQ(f.PlusValues[0] + f.PlusValues[1], 120.5);
  EXPECT_EQ(f.MontantsAnnuels[0], 7);
  EXPECT_EQ(f.MontantsAnnuels[1], 0);
  EXPECT_EQ(f.MontantsAnnuels[25], 2500);
}

TEST(ImmoEmprunts, TheYearlyAmountsOpenTheScheduleAtByte390OneFloatAnExercise) {
  std::string octets(kLongueurImmo, '\0');
  std::string montant;
  EcrireFlottant(montant, 12.5f);
  octets.replace(390 + 4 * 3, 4, montant);
  octets.replace(390 + 4 * 26, 4, montant);  // past exercise 25: not an amount
  const FicheImmo f = DecoderImmo(octets);
  for (std::size_t n = 0; n < kExercicesImmo; ++n) EXPECT_EQ(f.MontantsAnnuels[n], n == 3 ? 12.5f : 0.0f) << n;
}

TEST(ImmoEmprunts, ALoanReadsBackFieldByField) {
  c::Emprunt e;
  e.Nouveau = 2;
  e.TypeEmprunt = 2;
  e.LibelleEmprunt = "Pr\xEAt JA";
  e.PretMtsJa = -1;
  e.DateRealisationEmprunt = "01/06/2008";
  e.DateFin = "01/06/2018";
  e.MontantEmprunt = 30000;
  e.Taux1 = 2.5f;
  e.Duree1 = 5;
  e.Taux2 = 4;
  e.Duree2 = 5;
  e.Taux3 = 1;
  e.Duree3 = 2;
  e.Periode = 12;
  e.DiffereEmprunt = 1;
  e.NumEntreePlan = 3;
  e.Annuite[26] = 11;
  e.Interets[0] = 12;
  e.CapitalRestant[26] = 13;
  e.Differe1 = 400;
  e.Echeance1 = 3500;
  e.Echeance2 = 3600;
  const FicheEmprunt f = DecoderEmprunt(c::OctetsEmprunt(e));
  EXPECT_EQ(f.Nouveau, 2);
  EXPECT_EQ(f.TypeEmprunt, 2);
  EXPECT_EQ(Trim(f.LibelleEmprunt), "Pr\xEAt JA");
  EXPECT_EQ(f.PretMtsJa, -1);
  EXPECT_EQ(f.DateRealisationEmprunt, "01/06/2008");
  EXPECT_EQ(f.DateFin, "01/06/2018");
  EXPECT_EQ(f.MontantEmprunt, 30000);
  EXPECT_EQ(std::vector<float>({f.Taux1, f.Duree1, f.Taux2, f.Duree2, f.Taux3, f.Duree3}),
            std::vector<float>({2.5f, 5, 4, 5, 1, 2}));
  EXPECT_EQ(f.Periode, 12);
  EXPECT_EQ(f.DiffereEmprunt, 1);
  EXPECT_EQ(f.NumEntreePlan, 3);
  EXPECT_EQ(f.Annuite[26], 11);
  EXPECT_EQ(f.Interets[0], 12);
  EXPECT_EQ(f.CapitalRestant[26], 13);
  EXPECT_EQ(f.Differe1, 400);
  EXPECT_EQ(f.Echeance1, 3500);
  EXPECT_EQ(f.Echeance2, 3600);
}

TEST(ImmoEmprunts, RecordCountsAreRoundedToTheNearest) {
  struct Cas {
    std::size_t taille;
    std::size_t attendu;
  };
  for (const Cas& cas : {Cas{0, 0}, Cas{1547, 0}, Cas{1548, 1}, Cas{3096, 1}, Cas{3096 + 1547, 1},
                         Cas{3096 + 1548, 2}}) {
    EXPECT_EQ(NombreFichesArrondi(cas.taille, kLongueurImmo), cas.attendu) << cas.taille;
    EXPECT_EQ(LireImmos(std::string(cas.taille, '\0')).size(), cas.attendu) << cas.taille;
  }
}

TEST(ImmoEmprunts, APlanIsTwentyEntriesUsedWhenItsObjectIsNotBlank) {
  c::LignePlanFinancement l{1, "Stabulation", 100, 80000, "Pr\xEAt bancaire"};
  const std::vector<FichePlan> plan = LirePlan(c::OctetsLignePlan(l));
  ASSERT_EQ(plan.size(), kFichesPlan);
  EXPECT_TRUE(plan[0].Utilisee());
  EXPECT_EQ(plan[0].MontantPlan, 80000);
  EXPECT_EQ(plan[0].Pourcentage, 100);
  EXPECT_EQ(Trim(plan[0].ObjetFinancement), "Pr\xEAt bancaire");
  EXPECT_FALSE(plan[1].Utilisee());
  EXPECT_EQ(OctetsPlanVide().size(), kFichesPlan * kLongueurPlan);
}

TEST(ImmoEmprunts, AMissingPlanIsCreatedEmptyThenRead) {
  DossierTemporaire d;
  d.Ecrire("X.TVL/Immo.imm", "");
  MessagesScriptes messages;
  const std::vector<FichePlan> plan = ChargerPlan(d / "X.TVL/", messages);
  EXPECT_EQ(plan.size(), kFichesPlan);
  EXPECT_EQ(d.Lire("X.TVL/PlanF.fin"), OctetsPlanVide());
  // No folder: nothing is made.
  EXPECT_EQ(ChargerPlan(d / "Y.TVL/", messages).size(), kFichesPlan);
  EXPECT_FALSE(d.Existe("Y.TVL"));
}

TEST(ImmoEmprunts, APlanThatCannotBeCreatedIsToldAndReadEmpty) {
  // No one, root included, creates a file in /proc/self.
  MessagesScriptes messages;
  const std::vector<FichePlan> plan = ChargerPlan("/proc/self/", messages);
  EXPECT_EQ(plan.size(), kFichesPlan);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].titre, "Plan de financement");
  EXPECT_NE(messages.messages[0].conseil.find("lecture seule"), std::string::npos);
}

TEST(ActivitesLibres, ModulesUpToTheLastOneWithTheirTwoDigitFiles) {
  const std::string texte = c::TexteIni(c::SectionsModAniLib(
      {{1, true, "Brebis"}, {2, false, "Ch\xE8vres"}, {3, true, "  Porcs "}}));
  const std::vector<ModuleActivite> modules = LireModulesActivites(ProfilIni::DepuisTexte(texte));
  ASSERT_EQ(modules.size(), 3u);
  EXPECT_TRUE(modules[0].actif);
  EXPECT_FALSE(modules[1].actif);
  EXPECT_EQ(modules[2].nom, "Porcs");
  EXPECT_EQ(FichierActivite(3), "AL03AL.don");
  EXPECT_EQ(FichierActivite(12), "AL12AL.don");
  EXPECT_TRUE(LireModulesActivites(ProfilIni::DepuisTexte("[GLOBAL]\r\nNumLastMod=0\r\n")).empty());
  EXPECT_EQ(LireModulesActivites(ProfilIni::DepuisTexte("[GLOBAL]\r\nNumLastMod=100000\r\n")).size(),
            static_cast<std::size_t>(kModulesActivitesMax));
}

}  // namespace
}  // namespace norvane::test
