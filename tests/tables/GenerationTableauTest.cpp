// Whole tables generated from their codes, compared byte for byte where the
// bytes matter, on the dossier of BancTableaux (three years from 01/05/2007,
// program colours from 3 on).
#include <string>
#include <vector>

#include "tables/BancTableaux.h"

namespace norvane::test {
namespace {

// Formats of the cells used below: labels plain, left, framed all round,
// white; values bold, right, bottom border only, light grey.
const std::string kLibelle = "5006;10;1;0;0;0;0;0;l;1;1;1;1;8";
const std::string kValeur = "5006;10;1;1;0;0;0;0;r;0;1;0;0;16";

std::string Ligne(const std::string& libelle, const std::string& definition, const std::string& hauteur = "280") {
  return "[" + hauteur + ";120][" + libelle + ";" + kLibelle + "][" + definition + ";" + kValeur + "]";
}

// A one-column table over the years, centred, negatives in red unless told.
std::string Code(const std::vector<std::string>& lignes, char modeAnnees = '0', bool rouges = true) {
  std::string code = std::string("taba2p1c") + (rouges ? "r" : "") + modeAnnees + ";larg2000;larg7200(";
  for (std::size_t i = 0; i < lignes.size(); ++i) code += (i ? "#" : "") + lignes[i];
  return code + ")";
}

// Pieces of the expected rows.
const std::string kDebut = R"(\plain \trowd\trgaph120\trrh280\trqc)";
const std::string kCadreLibelle =
    R"( \clbrdrt\brdrs \clbrdrb\brdrs \clbrdrl\brdrs \clbrdrr\brdrs\clvertalc\clcbpat10\cellx2000)";
std::string CadreValeur(int droite) { return R"( \clbrdrb\brdrs\clvertalc\clcbpat18\cellx)" + std::to_string(droite); }
std::string Libelle(const std::string& texte) { return R"(\ql\intbl\clvertalb{\fs20\f5006\cf3 )" + texte + R"(}\cell)"; }
std::string Valeur(const std::string& texte, int couleur = 3) {
  return R"(\qr\intbl\clvertalb{\fs20\f5006\cf)" + std::to_string(couleur) + R"(\b )" + texte + R"(}\cell)";
}
const std::string kFin = R"(\row\pard\plain )";

TEST_F(BancTableaux, SeriesLineGivesItsRowByteForByte) {
  EXPECT_EQ(Generer(Code({Ligne("Produit", "serie:RES.DON+RES-1:0:0", "11")})),
            R"(\plain \trowd\trgaph120\trrh11\trqc)"
            R"( \clbrdrt\brdrs \clbrdrb\brdrs \clbrdrl\brdrs \clbrdrr\brdrs\clvertalc\clcbpat10\cellx2000)"
            R"( \clbrdrb\brdrs\clvertalc\clcbpat18\cellx4400)"
            R"( \clbrdrb\brdrs\clvertalc\clcbpat18\cellx6800)"
            R"( \clbrdrb\brdrs\clvertalc\clcbpat18\cellx9200)"
            R"(\ql\intbl\clvertalb{\fs20\f5006\cf3 Produit}\cell)"
            R"(\qr\intbl\clvertalb{\fs20\f5006\cf3\b 100}\cell)"
            R"(\qr\intbl\clvertalb{\fs20\f5006\cf8\b -3}\cell)"
            R"(\qr\intbl\clvertalb{\fs20\f5006\cf3\b  }\cell)"
            R"(\row\pard\plain )");
  EXPECT_TRUE(messages.messages.empty());
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(BancTableaux, RowHeightAndGapAreWrittenOnlyAboveTen) {
  struct Cas {
    std::string ligne;
    std::string debut;
  };
  const std::vector<Cas> cas = {
      {"[10;120]", R"(\plain \trowd\trgaph120\trqc)"},
      {"[11;120]", R"(\plain \trowd\trgaph120\trrh11\trqc)"},
      {"[280;10]", R"(\plain \trowd\trrh280\trqc)"},
      {"[0;0]", R"(\plain \trowd\trqc)"},
  };
  for (const auto& [crochet, debut] : cas) {
    const std::string tableau = Generer(Code({crochet + "[A;" + kLibelle + "][serie:RES.DON+RES-1:0:0;" + kValeur + "]"}));
    EXPECT_EQ(tableau.substr(0, debut.size() + 1), debut + " ") << crochet;
  }
  EXPECT_EQ(Generer("taba2p1r0;larg2000;larg7200(" + Ligne("A", "serie:RES.DON+RES-1:0:0") + ")").substr(0, 44),
            R"(\plain \trowd\trgaph120\trrh280\trleft0 \clb)");
}

TEST_F(BancTableaux, NegativeValuesAreRedOnlyWhenTheModelAsks) {
  const std::string ligne = Ligne("Produit", "serie:RES.DON+RES-1:0:0");
  EXPECT_NE(Generer(Code({ligne}, '0', true)).find(Valeur("-3", 8)), std::string::npos);
  EXPECT_NE(Generer(Code({ligne}, '0', false)).find(Valeur("-3", 3)), std::string::npos);
  EXPECT_EQ(Generer(Code({ligne}, '0', false)).find(R"(\cf8)"), std::string::npos);
}

TEST_F(BancTableaux, YearsModesGiveTheirColumnsAndWidths) {
  struct Cas {
    char mode;
    int16_t annees;
    std::string cadres;
    std::string valeurs;
  };
  const std::vector<Cas> cas = {
      // Every year, 7200 / 3 each.
      {'0', 3, CadreValeur(4400) + CadreValeur(6800) + CadreValeur(9200),
       Valeur("100") + Valeur("-3", 8) + Valeur(" ")},
      // Year 0 first: four columns of 7200 / 3.
      {'1', 3, CadreValeur(4400) + CadreValeur(6800) + CadreValeur(9200) + CadreValeur(11600),
       Valeur("7") + Valeur("100") + Valeur("-3", 8) + Valeur(" ")},
      // First and last of five years, each 7200 / 5.
      {'2', 5, CadreValeur(3440) + CadreValeur(4880), Valeur("100") + Valeur("50")},
      // No value column at all.
      {'3', 3, "", ""},
  };
  for (const Cas& c : cas) {
    session.InfoDossier.NbAnEtude = c.annees;
    EXPECT_EQ(Generer(Code({Ligne("Produit", "serie:RES.DON+RES-1:0:0")}, c.mode)),
              kDebut + kCadreLibelle + c.cadres + Libelle("Produit") + c.valeurs + kFin)
        << "mode " << c.mode;
  }
}

TEST_F(BancTableaux, HeadingsFollowTheYearsModeAndTheStudyStart) {
  struct Cas {
    std::string debut;
    char mode;
    std::string definition;
    std::vector<std::string> textes;
  };
  const std::vector<Cas> cas = {
      {"01/05/2007", '0', "entete:1", {"2007/08", "2008/09", "2009/10"}},
      {"01/01/2007", '0', "entete:1", {"2007", "2008", "2009"}},
      {"31/12/2007", '0', "entete:1", {"08", "09", "10"}},
      {"31/12/2007", '1', "entete:4:", {"2007", "2008", "2009", "2010"}},
      {"01/05/2007", '0', "entete:3", {"2007/08", "2008/09", "2009/10"}},  // no second ":": kind 1
      {"01/05/2007", '0', "entete:3:",
       {R"(Mai 2007\par Avr. 2008)", R"(Mai 2008\par Avr. 2009)", R"(Mai 2009\par Avr. 2010)"}},
      {"01/05/2007", '1', "entete:5:", {"exercice 0", "exercice 1", "exercice 2", "exercice 3"}},
      {"01/05/2007", '2', Cp("entete:1:Début_du_plan&Fin_du_plan"), {Cp("Début du plan"), "Fin du plan"}},
      {"01/05/2007", '2', "entete:1", {Cp("1ère année de prévision"), Cp("Fin de prévision")}},
  };
  for (const Cas& c : cas) {
    session.InfoDossier.DateDebut = c.debut;
    std::string attendu;
    for (const std::string& texte : c.textes) attendu += Valeur(texte);
    const std::string tableau = Generer(Code({Ligne(" ", c.definition)}, c.mode));
    EXPECT_NE(tableau.find(Libelle(" ") + attendu + kFin), std::string::npos)
        << c.debut << " " << c.definition << "\n" << tableau;
  }
}

TEST_F(BancTableaux, ZeroLinesFollowTheirDisplayOption) {
  struct Cas {
    std::string definition;
    std::vector<Reponse> reponses;
    bool montree;
    std::size_t questions;
  };
  const std::vector<Cas> cas = {
      {"serie:RES.DON+RES-2:0:0", {}, true, 0},              // always shown
      {"serie:RES.DON+RES-2:0:1", {}, false, 0},             // dropped without a word
      {"serie:RES.DON+RES-2:0:2", {Reponse::Oui}, true, 1},  // asked: yes
      {"serie:RES.DON+RES-2:0:2", {Reponse::Non}, false, 1},
      {"serie:RES.DON+RES-2", {Reponse::Non}, false, 1},    // no option: asked
      {"serie:RES.DON+RES-2:0:3", {}, false, 0},             // never shown
      {"serie:RES.DON+RES-1:0:3", {}, false, 0},             // never shown, even with values
      {"serie:RES.DON+RES-1:0:1", {}, true, 0},              // values: shown
  };
  for (const Cas& c : cas) {
    messages.questions.clear();
    messages.reponses.assign(c.reponses.begin(), c.reponses.end());
    const std::string tableau = Generer(Code({Ligne("Nul_partout", c.definition)}));
    EXPECT_EQ(!tableau.empty(), c.montree) << c.definition;
    EXPECT_EQ(messages.questions.size(), c.questions) << c.definition;
  }
}

TEST_F(BancTableaux, TheZeroLineQuestionNamesTheLine) {
  messages.reponses = {Reponse::Non};
  Generer(Code({"[280;120][ ;" + kLibelle + "][" + "serie:RES.DON+RES-2:0:2;" + kValeur + "]"}));
  Generer("taba2p3c0;larg1000;larg1000;larg1000;larg7200([280;120][;" + kLibelle + "][ ;" + kLibelle +
          "][Second_libell\\'e9;" + kLibelle + "][serie:RES.DON+RES-2:0:2;" + kValeur + "])");
  ASSERT_EQ(messages.questions.size(), 2u);
  EXPECT_EQ(messages.questions[1].texte,
            "La ligne serie 'Second libellé' d'un tableau ne contient que des valeurs nulles. \n"
            "Souhaitez-vous l'afficher dans le document ?");
  EXPECT_EQ(messages.questions[1].boutons, Boutons::OuiNon);
}

TEST_F(BancTableaux, TotalLinesReadTheValuesOfLinesAboveEvenHiddenOnes) {
  const std::string tableau = Generer(Code({Ligne("Produit", "serie:RES.DON+RES-1:0:3"),
                                            Ligne("Charges", "serie:RES.DON+RES-3:0:0"),
                                            Ligne("TOTAL", "totalS:LG1+LG2:0:0"),
                                            Ligne("Ratio", "totalC:LG2/LG3*100:1:0")}));
  EXPECT_EQ(tableau.find("Produit"), std::string::npos);
  EXPECT_NE(tableau.find(Libelle("TOTAL") + Valeur("110") + Valeur("17") + Valeur("30") + kFin), std::string::npos)
      << tableau;
  EXPECT_NE(tableau.find(Libelle("Ratio") + Valeur("9,1") + Valeur("117,6") + Valeur("100,0") + kFin),
            std::string::npos)
      << tableau;
  EXPECT_EQ(tableaux.etat.Valeur(3, 2), 17.0f);
}

TEST_F(BancTableaux, ATableCodeInALabelLeavesTheOuterTableOnItsLine) {
  const std::string tableau = Generer(Code({Ligne("Produit", "serie:RES.DON+RES-1:0:0"),
                                            Ligne("Charges%tvl(tab)%", "serie:RES.DON+RES-3:0:0"),
                                            Ligne("Rappel", "totalS:LG2:0:0")}));
  EXPECT_NE(tableau.find(Libelle("Rappel") + Valeur("10") + Valeur("20") + Valeur("30") + kFin), std::string::npos)
      << tableau;
}

TEST_F(BancTableaux, FirstAndLastYearsModeClearsTheYearsBetween) {
  session.InfoDossier.NbAnEtude = 5;
  for (int c = 0; c < 16; ++c) tableaux.etat.Stocker(2, c, 99.0f);
  const std::string tableau =
      Generer(Code({Ligne("Produit", "serie:RES.DON+RES-1:0:0"), Ligne("Double", "totalS:LG1*2:0:0")}, '2'));
  EXPECT_NE(tableau.find(Libelle("Double") + Valeur("200") + Valeur("100") + kFin), std::string::npos) << tableau;
  for (int c = 2; c <= 4; ++c) {
    EXPECT_EQ(tableaux.etat.Valeur(1, c), 0.0f) << c;
    EXPECT_EQ(tableaux.etat.Valeur(2, c), 0.0f) << c;
  }
  EXPECT_EQ(tableaux.etat.Valeur(2, 0), 99.0f);  // a column never printed keeps what it had
}

TEST_F(BancTableaux, SpacePageBreakAndLabelCodes) {
  const std::string tableau =
      Generer(Code({"[280;120][Les_ann\\'e9es_:_%tvl(nbAnEtude)%;5006;12;2;1;0;1;0;0;c;0;0;0;0;8][espace]",
                    "[280;120][;" + kLibelle + "][newpg]", Ligne("Sur_%tvl(nbAnEtude)%_ans", "serie:RES.DON+RES-1:0:0")}));
  EXPECT_EQ(tableau.substr(0, tableau.find(R"(\plain \trowd)")),
            Cp(R"(\qc\f5006\fs24\cf4\b\ul Les années : 3\par\plain }\page {)"));
  EXPECT_NE(tableau.find(Libelle("Sur 3 ans")), std::string::npos);
}

TEST_F(BancTableaux, ALineThatCannotBeMadeIsLeftOutAndTheTableGoesOn) {
  const std::string tableau = Generer(Code({Ligne("Sans", "sans_deux_points"), Ligne("Produit", "serie:RES.DON+RES-1:0:0"),
                                            Ligne("Autre", "autre:texte")}));
  EXPECT_EQ(tableau.find("Sans"), std::string::npos);
  EXPECT_NE(tableau.find(Libelle("Produit")), std::string::npos);
  // A kind the generator does not know prints its definition as it stands.
  EXPECT_NE(tableau.find(Libelle("Autre") + Valeur("autre:texte") + Valeur("autre:texte")), std::string::npos);
}

TEST_F(BancTableaux, PremiumLinesPrintNothingWithoutTheirFile) {
  EXPECT_EQ(Generer(Code({Ligne("Primes", "prime:pricv:0:1")})), "");
  EXPECT_EQ(Generer(Code({Ligne("Cultures", "cultu:margeglobale:0:1")})), "");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(BancTableaux, OtherTableKindsGoToTheirProducers) {
  EXPECT_EQ(tableaux.GenererTableau(generation, "culture1tabap1(...)"), std::string());
  EXPECT_EQ(tableaux.GenererTableau(generation, "gph(1)"), std::nullopt);
}

TEST(NettoyageCodeTableau, SpacesGoAndAccentEscapesBecomeLetters) {
  EXPECT_EQ(NettoyerCodeTableau(R"(ta b[Ann\'e9e\'ff;x] \'e0\'e2\'e7\'e8\'e9\'ea\'ee\'f4\'f9\'fb\'c9)"),
            Utf8VersCp1252("tab[Année;x]àâçèéêîôùû"));
  EXPECT_EQ(NettoyerCodeTableau(R"(fin\')"), "fin");
  EXPECT_EQ(NettoyerCodeTableau(R"(d\' e9but)"), Utf8VersCp1252("début"));
}

// A code that breaks on its second line still gives its first, and the user
// is told once where the reading stopped.
TEST_F(BancTableaux, AnUnreadableLineIsToldOnceAndTheLinesBeforeItCome) {
  const std::string format = "5006;10;1;0;0;0;0;0;r;1;1;1;1;8";
  const std::string code = "taba2p1cr0;larg2000;larg7200([280;120][Produit;" + format +
                           "][serie:RES.DON+RES-1:0:0;" + format + "]#[300;x0][Charges;" + format +
                           "][serie:RES.DON+RES-3:0:0;" + format + "])";
  const std::optional<std::string> rtf = tableaux.GenererTableau(generation, code);
  ASSERT_TRUE(rtf.has_value());
  EXPECT_NE(rtf->find("Produit}\\cell"), std::string::npos);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].texte,
            "Le code du tableau ne peut être lu (ligne 2 du tableau) : hauteur ou marge de ligne non numérique.");
}

}  // namespace
}  // namespace norvane::test
