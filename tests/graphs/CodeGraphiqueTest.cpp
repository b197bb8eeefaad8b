#include "graphs/CodeGraphique.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>

#include "frame/Texte.h"
#include "graphs/ModelesEssai.h"
#include "support/PortsScriptes.h"

namespace norvane {
namespace {

using test::ModeleComplet;

// The fields that travel in a code, texts trimmed.
void ExpectMemesChampsDeCode(const ModeleGraphique& lu, const ModeleGraphique& attendu) {
  ModeleGraphique a = lu;
  ModeleGraphique b = attendu;
  for (ModeleGraphique* m : {&a, &b}) {
    m->Titre = Trim(m->Titre);
    m->Commentaire = Trim(m->Commentaire);
    for (AxeGraphique* axe : {&m->AxeX, &m->AxeY, &m->AxeY2, &m->AxeZ}) axe->Libelle = Trim(axe->Libelle);
    for (int k = 0; k < kSeriesParGraphique; ++k) {
      SerieGraphique& s = m->Series[static_cast<std::size_t>(k)];
      if (k >= m->NbSeries) s = SerieGraphique{};
      s.CodeSerie = Trim(s.CodeSerie);
      s.NomSerie = Trim(s.NomSerie);
      s.FichierSerie = Trim(s.FichierSerie);
      s.Reserve60.clear();
      s.Reserve70 = {};
    }
    m->Reserve0 = 0;
    m->Reserve1200.clear();
    m->Reserve1218 = {};
    m->TexteTitre.Reserve = m->TexteNote.Reserve = 0;
  }
  EXPECT_EQ(ConstruireCodeGraphique(a), ConstruireCodeGraphique(b));
  EXPECT_EQ(std::memcmp(&a.RectPlot, &b.RectPlot, sizeof a.RectPlot), 0);
  EXPECT_EQ(a.Elevation, b.Elevation);
  EXPECT_EQ(a.Series[0].Rouge, b.Series[0].Rouge);
}

std::string Corps(const ModeleGraphique& m) {
  const std::string code = ConstruireCodeGraphique(m);
  return code.substr(4, code.size() - 5);
}

TEST(CodeGraphique, TextOfACompleteModel) {
  EXPECT_EQ(ConstruireCodeGraphique(ModeleComplet()),
            "gph(R\xE9sultats de l'exploitation;10;1;2;-1;Source : dossier d'\xE9tude;1;3;2;5;"
            "100,5;7800;5000;5800;200;7000,25;600;4900;7000;7800;1000;2000;100;4000;0;500;20,5;-35;"
            "1;2;0;4;Ann\xE9" "es;12;30;Euros;11;20;Pourcentage;10;15;S\xE9ries;9;10;16;"
            "[RES-17:0;EBE;1;RES.DON;0;10;120;250;30;1][RES-18:0;Annuit\xE9s;2;RES.DON;1;11;120;250;30;2])");
}

TEST(CodeGraphique, AnInsertedCodeHasItsBlanksAsUnderscores) {
  ModeleGraphique m;
  m.Titre = "Mon graphique   ";
  const std::string code = CodeGraphiqueInsere(m);
  EXPECT_EQ(code.substr(0, 24), "#tvl(gph(Mon_graphique;0");
  EXPECT_EQ(code.substr(code.size() - 4), ";))#");
  EXPECT_EQ(code.find(' '), std::string::npos);
}

TEST(CodeGraphique, RoundTripFieldByField) {
  ModeleGraphique lu;
  EXPECT_EQ(LireCodeGraphique(lu, Corps(ModeleComplet())).etat, LectureCode::Complete);
  ExpectMemesChampsDeCode(lu, ModeleComplet());
}

TEST(CodeGraphique, RoundTripOfRandomModels) {
  test::ModelesAleatoires modeles(20261124);
  for (int i = 0; i < 500; ++i) {
    const ModeleGraphique m = modeles.Suivant();
    const ModeleGraphique avant = modeles.Suivant();  // what the slot held
    ModeleGraphique lu = avant;
    ASSERT_EQ(LireCodeGraphique(lu, Corps(m)).etat, LectureCode::Complete) << Corps(m);
    ExpectMemesChampsDeCode(lu, m);
    for (int k = m.NbSeries; k < kSeriesParGraphique; ++k) {
      EXPECT_EQ(lu.Series[static_cast<std::size_t>(k)].NomSerie, avant.Series[static_cast<std::size_t>(k)].NomSerie);
    }
  }
}

TEST(CodeGraphique, FloatsAreReadWithACommaOrAPoint) {
  std::string corps = "T;1;1;0;0;;0;0;0;0;";
  for (const char* v : {"1,5;", "1.5;", "-2.25;", "1E+30;", "3,5e2;", " 7 ;", "+4;", "8;"}) corps += v;
  for (int champ = 18; champ < kChampsEnteteGraphique; ++champ) corps += "0;";
  ModeleGraphique m;
  ASSERT_EQ(LireCodeGraphique(m, corps).etat, LectureCode::Complete);
  EXPECT_EQ(m.RectTitre.MinX, 1.5f);
  EXPECT_EQ(m.RectTitre.MaxX, 1.5f);
  EXPECT_EQ(m.RectTitre.MinY, -2.25f);
  EXPECT_EQ(m.RectTitre.MaxY, 1e30f);
  EXPECT_EQ(m.RectPlot.MinX, 350.0f);
  EXPECT_EQ(m.RectPlot.MaxX, 7.0f);
  EXPECT_EQ(m.RectPlot.MinY, 4.0f);
  EXPECT_EQ(TexteFlottantCode(0.1f), "0,1");
  EXPECT_EQ(TexteFlottantCode(1e30f), "1E+30");
  EXPECT_EQ(TexteFlottantCode(std::numeric_limits<float>::quiet_NaN()), "0");
  EXPECT_EQ(TexteFlottantCode(-std::numeric_limits<float>::infinity()), "0");
}

TEST(CodeGraphique, ACodeWithoutSeriesIsCompleteAfterItsFortyFifthSemicolon) {
  ModeleGraphique m = ModeleComplet();
  m.NbSeries = 0;
  const std::string corps = Corps(m);
  EXPECT_EQ(std::count(corps.begin(), corps.end(), ';'), 45);
  EXPECT_EQ(corps.back(), ';');
  ModeleGraphique lu;
  EXPECT_EQ(LireCodeGraphique(lu, corps + "reste ignoré").etat, LectureCode::Complete);
  EXPECT_EQ(lu.NbSeries, 0);
  EXPECT_EQ(lu.TailleTitre, 16);
}

TEST(CodeGraphique, FewerHeaderFieldsKeepTheSlotValues) {
  ModeleGraphique slot = ModeleComplet();
  const IssueLectureCode issue = LireCodeGraphique(slot, "Nouveau;4;0;0;1;Note");
  EXPECT_EQ(issue.etat, LectureCode::Complete);
  EXPECT_EQ(slot.Titre, "Nouveau");
  EXPECT_EQ(slot.TypeGraph, kCourbes2D);
  EXPECT_EQ(slot.Legende, 0);
  EXPECT_EQ(slot.NbSeries, 0);
  EXPECT_EQ(slot.Empile, 1);
  // "Note" has no ";" behind it: it is not read, nor anything after it.
  EXPECT_EQ(Trim(slot.Commentaire), Trim(ModeleComplet().Commentaire));
  EXPECT_EQ(slot.TailleTitre, 16);
  EXPECT_EQ(slot.AxeY.Libelle, "Euros");
}

TEST(CodeGraphique, AMissingBracketStopsTheReadingAndIsReported) {
  ModeleGraphique m = ModeleComplet();
  std::string corps = Corps(m);
  corps.erase(corps.rfind('['), 1);
  ModeleGraphique slot = ModeleComplet();
  slot.Series[1].NomSerie = "Ancienne";
  const IssueLectureCode issue = LireCodeGraphique(slot, corps);
  EXPECT_EQ(issue.etat, LectureCode::CrochetManquant);
  EXPECT_EQ(issue.serie, 2);
  EXPECT_EQ(slot.Series[1].NomSerie, "Ancienne");
  MessagesScriptes messages;
  SignalerLectureCode(messages, slot, issue);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].titre, "Code d'un graphique erroné dans le modèle TVM");
  EXPECT_EQ(messages.messages[0].texte,
            "Le code du graphique \"Résultats de l'exploitation\" comporte des erreurs dans le modèle de document en "
            "cours d'analyse.");
  EXPECT_EQ(messages.messages[0].conseil,
            "Description technique de l'erreur : Le crochet \"[\", annonçant une série de données pour le graphique, "
            "n'apparaît pas à l'endroit demandé.\nLa série de données n°2 (et suivante(s) s'il y en a) n'a (n'ont) "
            "donc pas été correctement récupérée(s).");
}

TEST(CodeGraphique, ANonNumericFieldIsReportedWithoutACrash) {
  struct Cas {
    std::string corps;
    int serie;
    int champ;
    std::string texte;
  };
  const std::string tete = Corps(ModeleComplet()).substr(0, Corps(ModeleComplet()).find('['));
  const std::vector<Cas> tableau = {
      {"T;deux;1;", 0, 1, "deux"},
      {"T;1;1;0;0;;0;0;0;0;1,2,3;", 0, 10, "1,2,3"},
      {"T;;", 0, 1, ""},
      {"T;40000;", 0, 1, "40000"},
      {"T;1;1;0;0;;0;0;0;0;1e99;", 0, 10, "1e99"},
      {tete + "[A;B;x;", 1, 2, "x"},
      {tete + "[A;B;1;F;0;1;2;3;4;z]", 1, 9, "z"},
      {tete + "[A;B;1;F;0;1;2;3;4;", 1, 9, ""},
  };
  for (const Cas& cas : tableau) {
    ModeleGraphique slot;
    const IssueLectureCode issue = LireCodeGraphique(slot, cas.corps);
    EXPECT_EQ(issue.etat, LectureCode::ChampNonNumerique) << cas.corps;
    EXPECT_EQ(issue.serie, cas.serie) << cas.corps;
    EXPECT_EQ(issue.champ, cas.champ) << cas.corps;
    EXPECT_EQ(issue.texte, cas.texte) << cas.corps;
  }
  MessagesScriptes messages;
  ModeleGraphique slot;
  slot.Titre = "T";
  SignalerLectureCode(messages, slot, {LectureCode::ChampNonNumerique, 1, 2, "x"});
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].conseil,
            "Description technique de l'erreur : le champ n°3 de la série de données n°1 (\"x\") devrait être un "
            "nombre.\nLe graphique est laissé vide.");
}

TEST(CodeGraphique, MoreThanTenSeriesAreReadAsTen) {
  ModeleGraphique m = ModeleComplet();
  m.NbSeries = 10;
  std::string corps = Corps(m);
  corps.replace(corps.find(";10;1;10;") + 6, 2, "12");
  ModeleGraphique lu;
  EXPECT_EQ(LireCodeGraphique(lu, corps).etat, LectureCode::Complete);
  EXPECT_EQ(lu.NbSeries, 10);
}

TEST(CodeGraphique, PreparingTheTextThatCameFromTheRtfTemplate) {
  const std::vector<std::pair<std::string, std::string>> cas = {
      {"Mon graphique", "Mongraphique"},
      {"Mon_graphique", "Mon graphique"},
      {"R\\'e9sultats_\\'e0_\\'e7a", "R\xE9sultats \xE0 \xE7" "a"},
      {"\\'e2\\'e8\\'ea\\'ee\\'f4\\'f9\\'fb", "\xE2\xE8\xEA\xEE\xF4\xF9\xFB"},
      {"No\\'ebl", "Nol"},
      {"R\\'E9sultats", "Rsultats"},
      {"fin\\'e", "fin"},
      {"fin\\'", "fin"},
  };
  for (const auto& [entree, attendu] : cas) EXPECT_EQ(PreparerCodeGraphique(entree), attendu) << entree;
}

}  // namespace
}  // namespace norvane
