// The study-file builder: the layouts of the table files (crops, assets,
// loans, financing plan), the profile files, the PNG pictures, and the JSON
// descriptions with their notes and errors.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "construction/DescriptionJson.h"
#include "construction/FichiersIni.h"
#include "construction/FichiersTableaux.h"
#include "construction/ImagePng.h"
#include "frame/DossierTemporaire.h"
#include "frame/LecteurBinaire.h"
#include "frame/Texte.h"
#include "study/Catalogues.h"
#include "study/DossierGeneral.h"
#include "study/ParamLog.h"
#include "study/Series.h"

namespace norvane {
namespace {

using namespace construction;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

template <typename T>
T Lu(const std::string& octets, std::size_t position) {
  T valeur{};
  std::memcpy(&valeur, octets.data() + position, sizeof valeur);
  return valeur;
}

TEST(ConstructionTableaux, AnnualCropRecord) {
  CultureAnnuelle c;
  c.NumCulture = 4;
  c.NomCulture = "Ma\xEFs ensilage";
  c.UniteRendement = '1';
  c.Derobee = 1;
  c.TypeCulture = 3;
  c.Valeurs["rendement"][3] = 13.5f;
  c.Valeurs["creance"][10] = 77;
  const std::string o = OctetsCultureAnnuelle(c);
  ASSERT_EQ(o.size(), 1674u);
  EXPECT_EQ(Lu<float>(o, 0), 4.0f);
  EXPECT_EQ(o.substr(4, 23), "Ma\xEFs ensilage" + std::string(10, ' '));
  EXPECT_EQ(o.substr(27, 6), std::string(6, ' '));
  EXPECT_EQ(o[33], '1');
  EXPECT_EQ(Lu<int16_t>(o, 38), 1);
  EXPECT_EQ(Lu<int16_t>(o, 40), 3);
  EXPECT_EQ(Lu<float>(o, 42 + 4 * 3), 13.5f);
  EXPECT_EQ(Lu<float>(o, 1670), 77.0f);  // creance of exercise 10 ends the record
  EXPECT_EQ(PositionTableauCulture("valeurstock"), 706);
  EXPECT_EQ(PositionTableauCulture("inconnue"), -1);
  c.Valeurs["inconnue"] = {};
  EXPECT_THROW(OctetsCultureAnnuelle(c), std::invalid_argument);
}

TEST(ConstructionTableaux, PerennialCropRecord) {
  const std::string o = OctetsCulturePerenne({2, "Verger", 1, 0, 3, 4, 20});
  ASSERT_EQ(o.size(), 52u);
  EXPECT_EQ(Lu<int16_t>(o, 0), 2);
  EXPECT_EQ(o.substr(2, 7), "Verger ");
  EXPECT_EQ(Lu<int16_t>(o, 32), 1);
  EXPECT_EQ(Lu<int16_t>(o, 34), 0);
  EXPECT_EQ(Lu<int32_t>(o, 36), 3);
  EXPECT_EQ(Lu<int16_t>(o, 42), 4);
  EXPECT_EQ(Lu<int16_t>(o, 46), 20);
}

TEST(ConstructionTableaux, AssetAndGrantRecord) {
  Immobilisation i;
  i.Nouveau = 1;
  i.TypeImmo = 4;
  i.Libelle = "Robot de traite";
  i.DateRealisation = "15/01/2026";
  i.Montant = 160000;
  i.Duree = 10;
  i.DateRevente = "31/12/2035";
  i.NumEntreePlan = 1;
  i.LSM = -5;
  i.PlusValue1 = 1.25;
  i.PlusValue2 = 2.5;
  const std::string o = OctetsImmobilisation(i);
  ASSERT_EQ(o.size(), 3096u);
  EXPECT_EQ(Lu<float>(o, 0), 1.0f);
  EXPECT_EQ(Lu<float>(o, 12), 4.0f);
  EXPECT_EQ(o.substr(16, 15), "Robot de traite");
  EXPECT_EQ(o.substr(56, 10), "15/01/2026");
  EXPECT_EQ(Lu<float>(o, 66), 160000.0f);
  EXPECT_EQ(Lu<float>(o, 70), 10.0f);
  EXPECT_EQ(o.substr(78, 10), "31/12/2035");
  EXPECT_EQ(Lu<float>(o, 92), 1.0f);
  EXPECT_EQ(Lu<float>(o, 100), -5.0f);
  EXPECT_EQ(Lu<double>(o, 114), 1.25);
  EXPECT_EQ(Lu<double>(o, 122), 2.5);
  EXPECT_EQ(o.substr(130, 260), std::string(260, ' '));
  EXPECT_EQ(o.substr(390), std::string(2706, '\0'));
}

TEST(ConstructionTableaux, LoanRecord) {
  Emprunt e;
  e.Nouveau = 1;
  e.TypeEmprunt = 2;
  e.LibelleEmprunt = "Pr\xEAt JA";
  e.PretMtsJa = -1;
  e.DateRealisationEmprunt = "01/10/2025";
  e.DateFin = "01/10/2035";
  e.MontantEmprunt = 80000;
  e.Taux1 = 1.5f;
  e.Duree3 = 3;
  e.Periode = 12;
  e.DiffereEmprunt = 6;
  e.NumEntreePlan = 2;
  e.Annuite[26] = 26;
  e.Interets[0] = 100;
  e.CapitalRestant[1] = 80000;
  e.Differe1 = 7;
  e.Echeance2 = 9;
  const std::string o = OctetsEmprunt(e);
  ASSERT_EQ(o.size(), 1096u);
  EXPECT_EQ(Lu<int16_t>(o, 12), 2);
  EXPECT_EQ(o.substr(14, 7), "Pr\xEAt JA");
  EXPECT_EQ(Lu<int16_t>(o, 56), -1);
  EXPECT_EQ(o.substr(58, 10), "01/10/2025");
  EXPECT_EQ(o.substr(68, 20), std::string(20, ' '));
  EXPECT_EQ(o.substr(88, 10), "01/10/2035");
  EXPECT_EQ(Lu<float>(o, 98), 80000.0f);
  EXPECT_EQ(Lu<float>(o, 104), 1.5f);
  EXPECT_EQ(Lu<float>(o, 124), 3.0f);
  EXPECT_EQ(Lu<float>(o, 136), 12.0f);
  EXPECT_EQ(Lu<float>(o, 140), 6.0f);
  EXPECT_EQ(Lu<int16_t>(o, 160), 2);
  EXPECT_EQ(Lu<float>(o, 192 + 26 * 4), 26.0f);
  EXPECT_EQ(Lu<float>(o, 300), 100.0f);
  EXPECT_EQ(Lu<float>(o, 732 + 4), 80000.0f);
  EXPECT_EQ(Lu<float>(o, 1056), 7.0f);
  EXPECT_EQ(Lu<float>(o, 1064), 9.0f);
}

TEST(ConstructionTableaux, FinancingPlanHasAlwaysTwentyLines) {
  test::DossierTemporaire d;
  std::vector<LignePlanFinancement> lignes(21, {1, "Objet", 100, 5000, "Financement"});
  lignes[1] = {2, "Stabulation", 50, 0, "Pr\xEAt"};
  EcrirePlanFinancement(d / "PlanF.fin", lignes);
  const std::string o = d.Lire("PlanF.fin");
  ASSERT_EQ(o.size(), 20u * 116u);
  EXPECT_EQ(o.substr(116 + 4, 11), "Stabulation");
  EXPECT_EQ(Lu<float>(o, 116 + 54), 50.0f);
  EXPECT_EQ(o.substr(116 + 66, 4), "Pr\xEAt");
  EcrirePlanFinancement(d / "vide/PlanF.fin", {});
  const std::string vide = d.Lire("vide/PlanF.fin");
  ASSERT_EQ(vide.size(), 2320u);
  EXPECT_EQ(Lu<float>(vide, 116 * 19), 0.0f);
  EXPECT_EQ(vide.substr(116 * 19 + 4, 50), std::string(50, ' '));
}

TEST(ConstructionIni, FreeActivityModules) {
  EXPECT_EQ(TexteIni(SectionsModAniLib({{1, true, "Brebis"}, {3, false, "Lapins"}})),
            "[GLOBAL]\r\nNumLastMod=3\r\n[MOD1]\r\nACTIF=1\r\nNom=Brebis\r\n[MOD3]\r\nACTIF=0\r\nNom=Lapins\r\n");
  EXPECT_EQ(SectionsModAniLib({}, 0)[0].cles[0].second, "0");
  EXPECT_EQ(NomFichierActivite(3), "AL03AL.don");
  EXPECT_EQ(NomFichierActivite(12), "AL12AL.don");
}

TEST(ConstructionPng, SignatureHeaderAndEnd) {
  DessinPng dessin{3, 2, CouleurDe("#102030"), {{Forme::Sorte::Rectangle, 0, 0, 1, 1, 0, CouleurDe("#FFffFF")}}};
  const std::string o = OctetsPng(dessin);
  EXPECT_EQ(o.substr(0, 8), std::string("\x89PNG\r\n\x1a\n", 8));
  EXPECT_EQ(o.substr(12, 4), "IHDR");
  EXPECT_EQ(o.substr(16, 8), std::string("\0\0\0\x03\0\0\0\x02", 8));
  EXPECT_EQ(o.substr(o.size() - 12), std::string("\0\0\0\0IEND\xAE\x42\x60\x82", 12));
  // The raw rows follow the zlib header and the stored block's header: filter
  // byte, then the first pixel, painted white over a dark background.
  const std::size_t donnees = o.find("IDAT") + 4 + 2 + 5;
  EXPECT_EQ(o.substr(donnees, 7), std::string("\0\xFF\xFF\xFF\x10\x20\x30", 7));
  EXPECT_THROW(CouleurDe("vert"), std::invalid_argument);
}

class ConstructionJson : public ::testing::Test {
 protected:
  RapportConstruction Construire(const std::string& texte) {
    return ConstruireInstallation(Json::parse(texte), racine_.Chemin());
  }
  test::DossierTemporaire racine_;
};

TEST_F(ConstructionJson, ADossierFromCataloguesAndRecords) {
  const auto rapport = Construire(R"({
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
  const std::string dossier = racine_ / "Dossier/ESSAI.TVL/";

  DossierGeneral g;
  ASSERT_TRUE(LireDossierGeneral(racine_.Lire("Dossier/ESSAI.TVL/ESSAI.TVL"), g));
  EXPECT_EQ(Trim(g.NomExploitation), "\xC9levage");
  EXPECT_EQ(Trim(g.DescriptionProjet), "un\r\ndeux");
  EXPECT_EQ(g.NbAssocies, 2);
  EXPECT_EQ(g.AssocieJA[2], 1);
  EXPECT_EQ(Trim(g.ModeCom[1][1]), "Coop\xE9rative");
  EXPECT_EQ(Trim(g.ModeCom[0][0]), "");
  EXPECT_EQ(g.Devise, 1);

  // Records at the numbers of their codes; the unused one is blank.
  EXPECT_EQ(racine_.Lire("Dossier/ESSAI.TVL/RES.DON").size(), 5u * 90u);
  EXPECT_TRUE(EstBlanc(LireEnregistrementSerie(dossier + "RES.DON", 1).CodeSerie));
  EXPECT_EQ(Trim(LireEnregistrementSerie(dossier + "RES.DON", 2).Intitule), "Produit brut|\x80");
  EXPECT_TRUE(EstBlanc(LireEnregistrementSerie(dossier + "RES.DON", 3).Intitule));
  const SerieDonnees ebe = LireEnregistrementSerie(dossier + "RES.DON", 5);
  EXPECT_EQ(Trim(ebe.CodeSerie), "RES-5:1");
  EXPECT_EQ(Trim(ebe.Intitule), "EBE|k\x80");
  EXPECT_EQ(ebe.Valeur[3], 4.0f);
  EXPECT_EQ(LireEnregistrementSerie(dossier + "X.DON", 1).Valeur[0], 9.0f);
  EXPECT_EQ(Trim(LireEnregistrementSerie(dossier + "X.DON", 4).Intitule), "Quatre|u");

  const auto cfg = LireCatalogue(racine_.Lire("Datacfg/RES.CFG"));
  ASSERT_EQ(cfg.size(), 4u);
  EXPECT_EQ(Trim(cfg[0].Intitule), "R\xE9sultats");
  EXPECT_EQ(cfg[0].Sorte, 1);
  EXPECT_EQ(Trim(cfg[1].Groupe1), "Produits");
  EXPECT_FALSE(racine_.Existe("Dossier/ESSAI.TVL/Emprunt.emp"));  // only what is described
}

TEST_F(ConstructionJson, NotesForTextsCutAndUnknownKeys) {
  const auto rapport = Construire(R"({"organisations": [{"Sigle": "UN SIGLE BEAUCOUP TROP LONG", "Logo": "{racine}/)" +
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
  EXPECT_THROW(Construire(R"({"dossiers": [{"nom": "A.TVL", "general": {"AnneeDebut": "2025"}}]})"), ErreurDescription);
  EXPECT_THROW(Construire(R"({"dossiers": [{"general": {}}]})"), ErreurDescription);
  EXPECT_THROW(Construire(R"({"dossiers": [{"nom": "A.TVL", "general": {"NbAnEtude": 70000}}]})"), ErreurDescription);
  EXPECT_THROW(Construire(R"({"dossiers": [{"nom": "A.TVL", "series": [{"fichier": "R.DON", "modele": "ABSENT"}]}]})"),
               ErreurDescription);
  try {
    Construire(R"({"dossiers": [{"nom": "A.TVL", "general": {"Exploitant": {"JA": "oui"}}}]})");
    FAIL();
  } catch (const ErreurDescription& erreur) {
    EXPECT_STREQ(erreur.what(), "dossier A.TVL, general, Exploitant : « JA » doit être vrai ou faux (true, false)");
  }
}

// The example installation of the source tree builds without a note and
// reads back through the program's own readers.
TEST(ExempleInstallation, BuildsCleanAndReadsBack) {
  const char* source = std::getenv("NORVANE_SOURCE");
  const std::filesystem::path racineSource =
      source ? std::filesystem::path(source)
             : std::filesystem::path(__FILE__).parent_path().parent_path().parent_path();
  test::DossierTemporaire arbre;
  const auto rapport = ConstruireInstallation(
      ChargerDescription((racineSource / "exemple/etude/installation.json").string()), arbre.Chemin());
  EXPECT_THAT(rapport.avertissements, ::testing::IsEmpty());

  Session session;
  session.RepWinTervol = arbre.Chemin();
  session.RepDossier[0] = arbre / "Dossier";
  session.NomDossier[0] = "GAEC_DES_TILLEULS.TVL";
  ChargerInfoDossier(session);
  EXPECT_EQ(session.InfoDossier.NbAssocies, 3);
  EXPECT_EQ(session.InfoDossier.AssocieJA[3], 1);
  EXPECT_EQ(session.InfoDossier.AnneeDebut, 2025);
  EXPECT_EQ(Trim(session.InfoDossier.DateDebut), "01/10/2025");

  class Aucun : public PortMessages {
    void AfficherMessage(const std::string&, const std::string&, const std::string&, const std::string&,
                         const std::string&) override {
      ADD_FAILURE();
    }
    Reponse PoserQuestion(const std::string&, const std::string&, Boutons, Icone, int) override { return Reponse::Ok; }
  } messages;
  EntitesCourantes entites;
  std::string code = "RES.DON+RES-maxa17";
  int16_t annee = -1, decimales = -1;
  EXPECT_EQ(LireSerie({session, messages, entites}, code, 11, annee, decimales, 0), "2029");

  LireParamLog(session);
  EXPECT_EQ(Trim(session.Organisations[0].Sigle), "CAVL");
  EXPECT_TRUE(std::filesystem::is_regular_file(Trim(session.Organisations[0].Logo)));
  EXPECT_FALSE(RemplirArbreSeries("RES.CFG", arbre / "Datacfg").empty());
  EXPECT_TRUE(arbre.Existe("Norvane/donnees.INI"));
  EXPECT_TRUE(arbre.Existe("Dossier/MARTIN_PAUL.TVL/MARTIN_PAUL.TVL"));
}

}  // namespace
}  // namespace norvane
