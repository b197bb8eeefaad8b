// The formula calculator against a dossier written by the study-file builder:
// formule: codes, LG(file-record) references with their years, LGn lines of
// a table, the boxes of malformed formulas, the arithmetic, the number's text,
// and random formulas.
#include "template/Formules.h"

#include <cmath>
#include <limits>
#include <random>
#include <tuple>

#include "support/DossierTemporaire.h"
#include "support/BancInterpreteur.h"
#include "template/Evaluateur.h"
#include "template/References.h"
#include "template/SeriesFormules.h"

namespace norvane::test {
namespace {

using construction::Serie;

const std::string kNonCalculee = Cp("<Code Mal renseigné : valeur non calculée>");

// Lines of a table in hand: line n of year a holds n * 100 + a.
class LignesEssai : public LignesTableau {
 public:
  bool anneeUn = false;
  float Valeur(int ligne, int annee) const override { return static_cast<float>(ligne * 100 + annee); }
  std::string Texte(int ligne) const override { return "Ligne " + std::to_string(ligne); }
  bool DebuteAnneeUn() const override { return anneeUn; }
};

class ActiviteEssai : public EntitesCourantes {
 public:
  std::string NumActivite2Chiffres() const override { return "07"; }
};

using Formule = std::tuple<std::string, int16_t, std::string>;  // {formula, year, expected}

// RES.DON: record 17 "Produit brut", 18 "Charges", 19 with a blank label,
// 20 negative, 21 a label of NUL bytes, 22 a label that looks like a reference.
// AL07AL.DON: the free activity's file.
class Formules : public BancInterpreteur {
 protected:
  void SetUp() override {
    std::vector<SerieDonnees> res(16);
    res.push_back(Serie("RES-17:0", "Produit brut|\x80", {1000, 1100, 1200.4f, 1300, 1400}));
    res.push_back(Serie("RES-18:0", "Charges|\x80", {10, 20, 300.3f, 40, 50}));
    res.push_back(Serie("RES-19:0", "", {1, 2, 3}));
    res.push_back(Serie("RES-20:2", "Solde", {-5, -5, -5, -5}));
    res.push_back(Serie("RES-21:0", std::string(22, '\0'), {}));
    res.push_back(Serie("RES-22:0", "LG(RES-17)", {}));
    DossierEssai(racine.Chemin(), res);
    construction::EcrireSeries(racine / "ESSAI.TVL/AL07AL.DON",
                               {Serie("AL-1:0", "Vaches", {7, 8, 9}), Serie("AL-2:0", "Lait|l", {70, 80, 90})});
    generation.entites = &activite;
  }
  // Each formula of the table calculated, or its references replaced.
  void Calculs(const std::vector<Formule>& cas) {
    for (const auto& [f, annee, attendu] : cas) EXPECT_EQ(CalculerFormule(generation, f, annee), attendu) << f;
  }
  void Remplacements(const std::vector<Formule>& cas) {
    for (const auto& [f, annee, attendu] : cas) EXPECT_EQ(RemplacerReferences(generation, f, annee), attendu) << f;
  }

  DossierTemporaire racine;
  ActiviteEssai activite;
  LignesEssai lignes;
};

TEST_F(Formules, FormulaCodesGiveTheirFormattedValue) {
  for (const auto& [code, attendu] : Cas{
           {"formule:2a:LG(RES-17)+LG(RES-18):0", "1\xA0" "501"},  // year 2, no decimals
           {"formule:1a:LG(RES-17)+LG(RES-18):2", "1\xA0" "120,00"},
           {"formule: 3a:LG(RES-17)", "1\xA0" "300"},  // the year is the trimmed text before the "a"
           {"formule:12a:LG(RES-17):1", "0,0"},
           {"formule:3a:LG(RES-17!A0)*2", "2\xA0" "000"},  // a fixed year
           {"formule:3a:LG(RES-17!A4)-LG(RES-17)", "100"},
           {"formule:1a:100/3:2", "33,33"}, {"formule:1a:10/4", "2,5"}, {"formule:1a:2,5*2", "5"},
           {"formule:1a:1/0:2", "0,00"}, {"formule:1a:n'importe quoi", "0"}}) {
    EXPECT_EQ(ValeurCodeFormule(generation, code), attendu) << code;
  }
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Formules, FormulasCalculateOnTheSeries) {
  Calculs({{"2/3:3", 1, "0,667"}, {"2/3:", 1, "1"}, {"2/3", 1, "0,67"},  // decimals behind the second ":"
           {"LG(RES-17!A-1)", 3, "1\xA0" "200,4"},                      // the year before
           {"LG(RES-17)+1", 14, "1"}, {"LG(RES-17!A20)+1", 2, "1"},     // years outside the record read 0
           {"LG(RES-17!A-1)+1", 0, "1"}, {"LG(RES-17)+LG(RES-18)", 13, "0"},
           {"10-LG(RES-20)", 1, "15"}, {"LG(RES-20)^2", 1, "25"},  // negative values keep their sign
           {"LG(RES-18)_*_2", 1, "40"}, {"LG(AL-2)", 1, "80"},     // "_" a blank; AL the free activity's file
           {"LG(RES-999)+1", 1, "1"}, {"LG(ABSENT-1)+1", 1, "1"}});
  EXPECT_TRUE(messages.messages.empty());
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(Formules, ReferencesAreReplacedByValuesOrByLabelsForDisplay) {
  Remplacements({{"10-LG(RES-20)", 1, "10--5"}, {"LG(RES-18)_*_2", 1, "20 * 2"}, {"LG(AL-1)", -1, "Vaches"},
                 {"LG(RES-17)+LG(RES-18!A-1)", -1, "Produit brut|\x80+Charges|\x80"},
                 {"LG(RES-19)", -2, "Enregistrement n\xB0" "19 de RES"},
                 {"LG(RES-21)", -1, "Enregistrement n\xB0" "21 de RES"},
                 {"LG(RES-999)", -1, "Enregistrement n\xB0" "999 de RES"},
                 {"LG(RES-22)+LG(RES-22)", -1, "LG(RES-17)+LG(RES-17)"}});  // a label is not scanned again
  std::string libelle = "RES-17!A3", valeur = "RES-17!A4";  // both lose their year
  EXPECT_EQ(LibelleLigne(generation, libelle) + libelle, "Produit brut|\x80RES-17");
  EXPECT_FLOAT_EQ(ValeurLigne(generation, valeur, 1), 1400.0f);
  EXPECT_FLOAT_EQ(ValeurLigne(generation, valeur, 2), 1200.4f);
}

TEST_F(Formules, LinesOfTheTableInHandAreRead) {
  Calculs({{"LG5+1", 2, "1"}});  // no table: no line
  EXPECT_EQ(RemplacerReferences(generation, "LG5", -1), "");
  generation.lignes = &lignes;
  Remplacements({{"LG5+1", 2, "502+1"}, {"LG5_+LG6", -1, "Ligne 5 +Ligne 6"}, {"LG511+LG512+LG0", 15, "51115+0+0"},
                 {"LG5+1", 16, "0+1"},
                 // The line number ends at every end character.
                 {"LG1-LG2*LG3/LG4(LG5)LG6\xB2LG7^LG8&LG9|LG1:LG2 LG3", 0,
                  "100-200*300/400(500)600\xB2" "700^800&900|100:200 300"}});
  Calculs({{"LG5+LG6", 2, "1\xA0" "104"}, {"(LG5)*LG1/LG2", 0, "250"}, {"LG(RES-17!A-1)", 3, "1\xA0" "200,4"}});
  EXPECT_TRUE(messages.messages.empty());
  EXPECT_TRUE(messages.questions.empty());
}

TEST_F(Formules, ThePreviousYearInATableStartingInYearOneIsWarnedAbout) {
  lignes.anneeUn = true;
  generation.lignes = &lignes;
  Calculs({{"LG(RES-17!A-1)", 3, "1\xA0" "300"}});  // the year stays
  ASSERT_EQ(messages.questions.size(), 1u);
  EXPECT_EQ(messages.questions[0].icone, Icone::Exclamation);
  EXPECT_EQ(messages.questions[0].boutons, Boutons::Ok);
  EXPECT_EQ(messages.questions[0].texte,
            "Erreur de conception du modèle de tableau en cours d'interprétation :\n"
            "Une formule de calcul demande à ce que les valeurs d'une ligne débute à NumAnnee-1\n"
            "pour un tableau qui débute déjà à l'année début ! Modifier le modèle.");
}

TEST_F(Formules, AMalformedCodeGivesABoxAndAReplacementText) {
  EXPECT_EQ(ValeurCodeFormule(generation, "formule:2aLG(RES-17)"), kNonCalculee);
  const auto m = Boite();
  EXPECT_EQ(m.titre, kErreurDetectee);
  EXPECT_EQ(m.texte,
            "La portion de code \"formule:2aLG(RES-17)\" dans le modèle est mal renseignée : il manque le caractère "
            "\":\" séparant l'année d'étude de la formule à calculer.");
  EXPECT_EQ(m.conseil, kConseilModele);
  EXPECT_EQ(m.style, "");
  messages.messages.clear();
  EXPECT_EQ(ValeurCodeFormule(generation, "formule:2:LG(RES-17)"), kNonCalculee);
  EXPECT_EQ(Boite().texte,
            "La portion de code \"formule:2:LG(RES-17)\" dans le modèle est mal renseignée : il manque "
            "l'indicateur \"a\" suivant l'année d'exercice sur laquelle doit être fait le calcul.");
  messages.messages.clear();
  ValeurCodeFormule(generation, "formule:ann\xE9" "e");  // the template's bytes reach the box as UTF-8
  EXPECT_NE(Boite().texte.find("\"formule:année\""), std::string::npos);
}

TEST_F(Formules, WithoutADossierABoxIsShownAndTheValueIsZero) {
  session.NomDossier[0] = "  ";
  Calculs({{"LG(RES-17)+1", 1, "1"}});
  EXPECT_EQ(Boite().titre, "Dossier Tervol non sélectionné !");
  const std::string fin = "afin de pouvoir récupérer les valeurs des fichiers .DON du dossier ! Merci.";
  const std::string texte = Boite().texte;
  EXPECT_EQ(texte.substr(texte.size() - std::min(texte.size(), fin.size())), fin);
}

TEST_F(Formules, LinesAreRefusedWhereNoTableCanExist) {
  generation.lignes = &lignes;
  Remplacements({{"LG5+1", -2, "+1"}});
  EXPECT_EQ(Boite().titre, "Formule erronée. Insertion impossible.");
  EXPECT_EQ(Boite().texte,
            "Votre formule contient le code LGn qui désigne une ligne n de tableau. \n"
            "Vous ne pouvez utiliser ce type de code ici, utilisez la formulation LG<nomFic-numEnreg>\n"
            "en sélectionnant vos séries de données directement dans l'arbre de choix ci-contre.");
}

TEST_F(Formules, AMalformedReferenceStopsTheReplacement) {
  Remplacements({{"LG(RES-17)+LG(RES-18", 2, "1200.4+LG(RES-18"}});
  auto m = Boite();
  EXPECT_EQ(m.titre, "Tableau incorrect dans le modèle de document.");
  EXPECT_EQ(m.texte, "La formule de calcul d'une ligne de total est erronée.");
  EXPECT_EQ(m.conseil, "Diagnostic : Il manque la parenthèse fermante après le code d'un LG.");
  Calculs({{"LG(RES-17)+LG(RES-18", 2, "0"}});
  messages.messages.clear();
  Remplacements({{"LG(RES17)+LG(RES-18)", -1, "LG(RES17)+LG(RES-18)"}});
  m = Boite();
  EXPECT_EQ(m.titre, "Formule de total incorrecte.");
  EXPECT_EQ(m.conseil,
            "Diagnostic : Concernant le code entre parenthèses d'un LG, il manque le tiret entre le nom du fichier "
            "et le numéro d'enregistrement.");
}

TEST_F(Formules, ALoneLGGivesABoxAndTheFormulaAsItStands) {
  generation.lignes = &lignes;
  for (const auto& [formule, attendu] : Cas{{"LG1+LG", "100+LG"}, {"LG1+LG+2", "100+LG+2"},
                                            {"LG1+LGx", "100+LGx"}, {"LG1+LG_2", "100+LG 2"}}) {
    messages.messages.clear();
    EXPECT_EQ(RemplacerReferences(generation, formule, 0), attendu);
    EXPECT_EQ(Boite().titre, "Formule erronée.");
    EXPECT_EQ(Boite().texte, "Il manque le code après un LG qui n'a pas de sens écrit tout seul");
  }
}

TEST_F(Formules, RandomFormulasGiveANumber) {
  const std::string_view morceaux[] = {"LG", "LG(", "RES", "-", "17", "!A", "-1", ")", "(", "+", "*", "/", "^", ":",
                                       "_", "a", "2", "0", ".", ",", "e", "formule:", "\xB2", "&", "|", " ", "AL",
                                       std::string_view("\0", 1), "\xFF", "9999999"};
  // A number's text: digits, no-break spaces, a comma, a minus.
  const auto nombre = [](const std::string& t) {
    return !t.empty() && t.find_first_not_of("-0123456789,\xA0") == std::string::npos;
  };
  generation.lignes = &lignes;
  std::mt19937 alea(20240601);
  for (int i = 0; i < 10000; ++i) {
    std::string formule;
    for (int n = alea() % 25; n > 0; --n) {
      formule += alea() % 2 ? std::string(morceaux[alea() % std::size(morceaux)]) : std::string(1, char(alea()));
    }
    EXPECT_TRUE(std::isfinite(EvaluerExpression(formule))) << formule;
    const std::string valeur = ValeurCodeFormule(generation, "formule:" + formule);
    EXPECT_TRUE(nombre(valeur) || valeur == kNonCalculee) << formule;
    EXPECT_TRUE(nombre(CalculerFormule(generation, formule, static_cast<int16_t>(int(alea() % 20) - 3)))) << formule;
    messages.messages.clear();
    messages.questions.clear();
  }
}

TEST(EvaluerExpression, ArithmeticOfACellIsEvaluated) {
  const std::pair<const char*, double> cas[] = {
      // "." is the decimal mark; a comma is none (the caller turns it into a point).
      {"42", 42}, {"12.75", 12.75}, {".5", 0.5}, {"5.", 5}, {"1e+20", 1e20}, {"2.5E-3", 0.0025}, {"12,5", 0},
      // Usual precedence, left to right, "^" included.
      {"2+3*4", 14}, {"10-4-3", 3}, {"100/10/5", 2}, {"2*3^2", 18}, {"2^3^2", 64}, {"(2+3)*4", 20},
      {"((1+2)*(3+4))/7", 3}, {"100/3", 100.0 / 3.0},
      // Signs bind tighter than "^", as in a spreadsheet.
      {"-2^2", 4}, {"0-2^2", -4}, {"2^-1", 0.5}, {"-(3+4)", -7}, {"3--5", 8}, {"3*-5", -15}, {"+-+-4", 4},
      {"---4", -4},
      // One leading "=", and blanks between tokens only.
      {"=1+2", 3}, {"+1+2", 3}, {"  ( 1 +\t2 ) * 3  ", 9}, {"==1", 0}, {"1 2", 0}};
  for (const auto& [texte, attendu] : cas) EXPECT_DOUBLE_EQ(EvaluerExpression(texte), attendu) << texte;
}

TEST(EvaluerExpression, WhatCannotBeComputedIsZeroWithoutACrash) {
  for (const char* texte : {"", "   ", "1/0", "5/(2-2)", "0^0", "0^-1", "(-8)^(1/3)", "1e308*10", "1e999",
                            "(1+2", "1+2)", "()", "1+", "*2", "abc", "1+x", "2 ^", "1e", "1e+", "1..2",
                            "3\xB2", "1&2", "1|2", "nan", "inf"}) {
    EXPECT_DOUBLE_EQ(EvaluerExpression(texte), 0.0) << texte;
  }
  // Nesting is bounded, long inputs are read without recursion.
  auto imbrique = [](int n) { return std::string(n, '(') + "7" + std::string(n, ')'); };
  EXPECT_DOUBLE_EQ(EvaluerExpression(imbrique(200)), 7.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(imbrique(201)), 0.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(std::string(100000, '(')), 0.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(std::string(100000, '-') + "1"), 1.0);
  std::string somme = "0";
  for (int i = 0; i < 100000; ++i) somme += "+1";
  EXPECT_DOUBLE_EQ(EvaluerExpression(somme), 100000.0);
  EXPECT_DOUBLE_EQ(EvaluerExpression(std::string(200000, '9')), 0.0);  // beyond double range
  EXPECT_DOUBLE_EQ(EvaluerExpression(std::string(300, '9')), 1e300);
}

}  // namespace
}  // namespace norvane::test
