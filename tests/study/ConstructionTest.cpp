// The study-file builder: the layouts of the table files (crops, assets,
// loans, financing plan), the profile files, the PNG pictures, and the JSON
// descriptions with their notes and errors.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "construction/DescriptionJson.h"
#include "construction/FichiersEtude.h"
#include "construction/FichiersIni.h"
#include "construction/FichiersTableaux.h"
#include "construction/ImagePng.h"
#include "support/DossierTemporaire.h"
#include "support/Resultats.h"
#include "frame/Texte.h"
#include "study/Catalogues.h"
#include "study/ChampsEssai.h"
#include "study/DossierGeneral.h"
#include "study/ParamLog.h"

namespace norvane {
namespace {

using namespace construction;
using test::F32;
using test::I16;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::string Blancs(std::size_t n) { return std::string(n, ' '); }

TEST(ConstructionTableaux, CropRecords) {
  CultureAnnuelle c{.NumCulture = 4, .NomCulture = "Ma\xEFs ensilage", .UniteRendement = '1', .Derobee = 1,
                    .TypeCulture = 3, .Valeurs = {}};
  c.Valeurs["rendement"][3] = 13.5f;
  c.Valeurs["valeurstock"][0] = 5;  // behind a 4-byte field that is kept
  c.Valeurs["creance"][10] = 77;    // ends the record
  const std::string o = OctetsCultureAnnuelle(c);
  ASSERT_EQ(o.size(), 1674u);
  test::VerifierChamps(o, {{0, F32(4)}, {4, "Ma\xEFs ensilage" + Blancs(16)}, {33, "1"}, {38, I16(1)}, {40, I16(3)},
                           {42 + 4 * 3, F32(13.5f)}, {706, F32(5)}, {1670, F32(77)}});
  c.Valeurs["inconnue"] = {};
  EXPECT_THROW(OctetsCultureAnnuelle(c), std::invalid_argument);

  const std::string p = OctetsCulturePerenne({2, "Verger", 1, 5, 3, 4, 20});
  ASSERT_EQ(p.size(), 52u);
  test::VerifierChamps(p, {{0, I16(2)}, {2, "Verger" + Blancs(24)}, {32, I16(1)}, {34, I16(5)}, {36, test::I32(3)},
                           {42, I16(4)}, {46, I16(20)}});
}

TEST(ConstructionTableaux, AssetAndLoanRecords) {
  const std::string i = OctetsImmobilisation({1, 4, "Robot de traite", "15/01/2026", 160000, 10, 2, "31/12/2035", 500,
                                              1, 3, -5, 1.25, 2.5});
  ASSERT_EQ(i.size(), 3096u);
  test::VerifierChamps(
      i, {{0, F32(1) + std::string(8, '\0') + F32(4)}, {16, "Robot de traite" + Blancs(25) + "15/01/2026"},
          {66, F32(160000) + F32(10) + F32(2) + "31/12/2035" + F32(500) + F32(1) + F32(3) + F32(-5)},
          {114, test::F64(1.25) + test::F64(2.5) + Blancs(260) + std::string(2706, '\0')}});

  Emprunt e{.Nouveau = 1, .TypeEmprunt = 2, .LibelleEmprunt = "Pr\xEAt JA", .PretMtsJa = -1,
            .DateRealisationEmprunt = "01/10/2025", .DateFin = "01/10/2035", .MontantEmprunt = 80000, .Taux1 = 1.5f,
            .Duree3 = 3, .Periode = 12, .DiffereEmprunt = 6, .NumEntreePlan = 2, .Differe1 = 7, .Echeance2 = 9};
  e.Annuite[26] = 26;
  e.Interets[0] = 100;
  e.CapitalRestant[1] = 80000;
  const std::string o = OctetsEmprunt(e);
  ASSERT_EQ(o.size(), 1096u);
  test::VerifierChamps(o, {{0, F32(1)}, {12, I16(2) + "Pr\xEAt JA"}, {56, I16(-1) + "01/10/2025" + Blancs(20)},
                           {88, "01/10/2035" + F32(80000)}, {104, F32(1.5f)}, {124, F32(3)}, {136, F32(12) + F32(6)},
                           {160, I16(2)}, {192 + 26 * 4, F32(26) + F32(100)}, {732 + 4, F32(80000)},
                           {1056, F32(7) + F32(0) + F32(9)}});
}

TEST(ConstructionTableaux, FinancingPlanHasAlwaysTwentyLines) {
  test::DossierTemporaire d;
  std::vector<LignePlanFinancement> lignes(21, {1, "Objet", 100, 5000, "Financement"});
  lignes[1] = {2, "Stabulation", 50, 0, "Pr\xEAt"};
  EcrirePlanFinancement(d / "PlanF.fin", lignes);
  const std::string o = d.Lire("PlanF.fin");
  ASSERT_EQ(o.size(), 20u * 116u);
  test::VerifierChamps(o, {{116, F32(2) + "Stabulation"}, {116 + 54, F32(50)}, {116 + 66, "Pr\xEAt"}});
  EcrirePlanFinancement(d / "vide/PlanF.fin", {});
  const std::string vide = d.Lire("vide/PlanF.fin");
  ASSERT_EQ(vide.size(), 2320u);
  test::VerifierChamps(vide, {{116 * 19, F32(0) + Blancs(50)}});
}

TEST(ConstructionIni, FreeActivityModules) {
  EXPECT_EQ(TexteIni(SectionsModAniLib({{1, true, "Brebis"}, {3, false, "Lapins"}})),
            "[GLOBAL]\r\nNumLastMod=3\r\n[MOD1]\r\nACTIF=1\r\nNom=Brebis\r\n[MOD3]\r\nACTIF=0\r\nNom=Lapins\r\n");
  EXPECT_EQ(SectionsModAniLib({}, 0)[0].cles[0].second, "0");
  EXPECT_EQ(NomFichierActivite(3), "AL03AL.don");
}

TEST(ConstructionPng, SignatureHeaderAndEnd) {
  const std::string o = OctetsPng(
      {3, 2, CouleurDe("#102030"), {{Forme::Sorte::Rectangle, 0, 0, 1, 1, 0, CouleurDe("#FFffFF")}}});
  test::VerifierChamps(o, {{0, std::string("\x89PNG\r\n\x1a\n", 8)},
                           {12, "IHDR" + std::string("\0\0\0\x03\0\0\0\x02", 8)},  // width 3, height 2
                           {o.size() - 12, std::string("\0\0\0\0IEND\xAE\x42\x60\x82", 12)}});
  // The raw rows follow the zlib header and the stored block's header: filter
  // byte, then the first pixel, painted white over a dark background.
  EXPECT_EQ(o.substr(o.find("IDAT") + 4 + 2 + 5, 7), std::string("\0\xFF\xFF\xFF\x10\x20\x30", 7));
  EXPECT_THROW(CouleurDe("vert"), std::invalid_argument);
}

class ConstructionJson : public ::testing::Test {
 protected:
  Resultat<RapportConstruction> Construire(const std::string& texte) {
    return ConstruireInstallation(Json::parse(texte), racine_.Chemin());
  }
  // The report of a build that must succeed.
  RapportConstruction Construit(const std::string& texte) {
    const Resultat<RapportConstruction> rapport = Construire(texte);
    EXPECT_TRUE(rapport) << test::Raison(rapport);
    return rapport ? *rapport : RapportConstruction{};
  }
  test::DossierTemporaire racine_;
};

TEST_F(ConstructionJson, ADossierFromCataloguesAndRecords) {
  const auto rapport = Construit(R"({
    "catalogues": [{"fichier": "RES.CFG", "Intitule": "Résultats", "series": [
      {"CodeCatalogue": "RES-2:0", "Intitule": "Produit brut", "Unite": "€", "Groupe1": "Produits"},
      {"CodeCatalogue": "RES-3:0", "Intitule": "[ sans nom ]"},
      {"CodeCatalogue": "RES-5:1", "Intitule": "EBE", "Unite": "k€"}]}],
    "dossiers": [{"nom": "ESSAI.TVL",
      "general": {"NomExploitation": "Élevage", "AnneeDebut": 2025, "NbAnEtude": 3, "TypeExploitation": 1,
                  "DescriptionProjet": ["un", "deux"], "Associes": [{"Nom": "A"}, {"Nom": "B", "JA": true}],
                  "ModeCom": [{"Produit": "Lait", "Mode": "Coopérative"}]},
      "series": [{"fichier": "RES.DON", "modele": "res.cfg", "valeurs": {"RES-5": [1, 2, 3, 4]}},
                 {"fichier": "X.DON", "enregistrements": [{"CodeSerie": "X-1", "Valeurs": [9]},
                   {"numero": 4, "CodeSerie": "X-4", "Intitule": "Quatre|u"}]}]}]})");
  EXPECT_TRUE(rapport.avertissements.empty());

  DossierGeneral g;
  ASSERT_TRUE(LireDossierGeneral(racine_.Lire("Dossier/ESSAI.TVL/ESSAI.TVL"), g));
  EXPECT_EQ(Trim(g.NomExploitation), "\xC9levage");
  EXPECT_EQ(Trim(g.DescriptionProjet), "un\r\ndeux");
  EXPECT_EQ(g.NbAssocies, 2);
  EXPECT_EQ(g.AssocieJA[2], 1);
  EXPECT_EQ(Trim(g.ModeCom[1][1]), "Coop\xE9rative");  // row 0 is unused
  EXPECT_EQ(g.Devise, 1);

  // Records at the numbers of their codes, code and "label|unit" from the model; unused ones blank.
  const std::string vide = OctetsSerie({});
  EXPECT_EQ(racine_.Lire("Dossier/ESSAI.TVL/RES.DON"), vide + OctetsSerie(Serie("RES-2:0", "Produit brut|\x80", {})) +
                                                           vide + vide +
                                                           OctetsSerie(Serie("RES-5:1", "EBE|k\x80", {1, 2, 3, 4})));
  EXPECT_EQ(racine_.Lire("Dossier/ESSAI.TVL/X.DON"),
            OctetsSerie(Serie("X-1", "", {9})) + vide + vide + OctetsSerie(Serie("X-4", "Quatre|u", {})));
  const auto cfg = LireCatalogue(racine_.Lire("Datacfg/RES.CFG"));
  ASSERT_EQ(cfg.size(), 4u);
  EXPECT_EQ(Trim(cfg[0].Intitule), "R\xE9sultats");
  EXPECT_EQ(cfg[0].Sorte, 1);
  EXPECT_EQ(Trim(cfg[1].Groupe1), "Produits");
  EXPECT_FALSE(racine_.Existe("Dossier/ESSAI.TVL/Emprunt.emp"));  // only what is described
}

TEST_F(ConstructionJson, NotesForTextsCutAndUnknownKeys) {
  const auto rapport = Construit(R"({"organisations": [{"Sigle": "UN SIGLE BEAUCOUP TROP LONG", "Logo": "{racine}/)" +
                                  std::string(90, 'x') + R"(.png", "Nmo": "faute"}], "_note": "ignorée"})");
  EXPECT_THAT(
      rapport.avertissements,
      ElementsAre("organisation 0, Sigle : « UN SIGLE BEAUCOUP TROP LONG » dépasse 20 caractères, la fin est coupée",
                  "organisation 0 : clé « Nmo » inconnue, ignorée"));
  ASSERT_EQ(rapport.remarques.size(), 1u);
  EXPECT_THAT(rapport.remarques[0], HasSubstr("racine de l'installation trop longue"));
  std::array<Organisation, 20> organisations;
  int16_t paramFinal = 0;
  LireParamLogOctets(racine_.Lire("ParamLog/Tervol.par"), organisations, paramFinal);
  EXPECT_EQ(organisations[0].Sigle, "UN SIGLE BEAUCOUP TR");
  EXPECT_TRUE(CommencePar(organisations[0].Logo, racine_.Chemin().substr(0, 20)));
}

TEST_F(ConstructionJson, WrongTypesAndMissingNamesAreErrors) {
  for (const char* description :
       {R"({"dossiers": [{"nom": "A.TVL", "general": {"AnneeDebut": "2025"}}]})", R"({"dossiers": [{"general": {}}]})",
        R"({"dossiers": [{"nom": "A.TVL", "general": {"NbAnEtude": 70000}}]})",
        R"({"dossiers": [{"nom": "A.TVL", "series": [{"fichier": "R.DON", "modele": "ABSENT"}]}]})"}) {
    EXPECT_FALSE(Construire(description)) << description;
  }
  const auto refus = Construire(R"({"dossiers": [{"nom": "A.TVL", "general": {"Exploitant": {"JA": "oui"}}}]})");
  ASSERT_FALSE(refus);
  EXPECT_EQ(refus.Erreur().texte, "dossier A.TVL, general, Exploitant : « JA » doit être vrai ou faux (true, false)");
}

TEST(ChargerDescription, AMissingFileOrBadJsonIsNamed) {
  test::DossierTemporaire dossier;
  dossier.Ecrire("installation.json", R"({"dossiers": ["absent.json"]})");
  const Resultat<Json> absent = ChargerDescription(dossier / "installation.json");
  ASSERT_FALSE(absent);
  EXPECT_EQ(absent.Erreur().texte, "description introuvable : " + dossier.Chemin() + "absent.json");
  EXPECT_EQ(absent.Erreur().fichier, dossier.Chemin() + "absent.json");
  dossier.Ecrire("absent.json", "{\"nom\": ");
  const Resultat<Json> invalide = ChargerDescription(dossier / "installation.json");
  ASSERT_FALSE(invalide);
  EXPECT_THAT(invalide.Erreur().texte, ::testing::StartsWith(dossier.Chemin() + "absent.json : JSON invalide : "));
}

// The example installation of the source tree builds without a note and
// reads back through the program's own readers.
TEST(ExempleInstallation, BuildsCleanAndReadsBack) {
  test::DossierTemporaire arbre;
  const auto description = ChargerDescription(NORVANE_SOURCE_DIR "/exemple/etude/installation.json");
  ASSERT_TRUE(description) << test::Raison(description);
  const auto rapport = ConstruireInstallation(*description, arbre.Chemin());
  ASSERT_TRUE(rapport) << test::Raison(rapport);
  EXPECT_THAT(rapport->avertissements, ::testing::IsEmpty());
  Session session;
  session.RepWinTervol = arbre.Chemin();
  session.RepDossier[0] = arbre / "Dossier";
  session.NomDossier[0] = "GAEC_DES_TILLEULS.TVL";
  ChargerInfoDossier(session);
  EXPECT_EQ(session.InfoDossier.NbAssocies, 3);
  EXPECT_EQ(Trim(session.InfoDossier.DateDebut), "01/10/2025");
  LireParamLog(session);
  EXPECT_EQ(Trim(session.Organisations[0].Sigle), "CAVL");
  EXPECT_TRUE(std::filesystem::is_regular_file(Trim(session.Organisations[0].Logo)));  // "{racine}" resolved
  EXPECT_FALSE(RemplirArbreSeries("RES.CFG", arbre / "Datacfg").empty());
  EXPECT_TRUE(arbre.Existe("Norvane/donnees.INI"));
  EXPECT_TRUE(arbre.Existe("Dossier/MARTIN_PAUL.TVL/MARTIN_PAUL.TVL"));
}

}  // namespace
}  // namespace norvane
