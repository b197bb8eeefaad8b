// The formula calculator against a dossier written by the study-file builder:
// formule: codes, LG(file-record) references with their years, LGn lines of
// a table, and the boxes of malformed formulas.
#include "template/Formules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "construction/FichiersEtude.h"
#include "frame/DossierTemporaire.h"
#include "frame/PortsScriptes.h"

namespace norvane {
namespace {

using construction::Serie;

const std::string kNonCalculee = "<Code Mal renseign\xE9 : valeur non calcul\xE9" "e>";

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

// RES.DON: record 17 "Produit brut", 18 "Charges", 19 with a blank label,
// 20 negative, 21 a label of NUL bytes, 22 a label that looks like a reference.
// AL07AL.DON: the free activity's file.
class Formules : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_FALSE(racine_.Chemin().empty());
    std::vector<SerieDonnees> res(16);
    res.push_back(Serie("RES-17:0", "Produit brut|\x80", {1000, 1100, 1200.4f, 1300, 1400}));
    res.push_back(Serie("RES-18:0", "Charges|\x80", {10, 20, 300.3f, 40, 50}));
    res.push_back(Serie("RES-19:0", "", {1, 2, 3}));
    res.push_back(Serie("RES-20:2", "Solde", {-5, -5, -5, -5}));
    res.push_back(Serie("RES-21:0", std::string(22, '\0'), {}));
    res.push_back(Serie("RES-22:0", "LG(RES-17)", {}));
    construction::EcrireSeries(racine_ / "ESSAI.TVL/RES.DON", res);
    construction::EcrireSeries(racine_ / "ESSAI.TVL/AL07AL.DON",
                               {Serie("AL-1:0", "Vaches", {7, 8, 9}), Serie("AL-2:0", "Lait|l", {70, 80, 90})});
    session_.RepDossier[0] = racine_.Chemin();
    session_.NomDossier[0] = "ESSAI.TVL";
  }

  std::string Code(const std::string& code) { return ValeurCodeFormule(generation_, code); }
  std::string Calcul(const std::string& formule, int16_t annee) { return CalculerFormule(generation_, formule, annee); }
  std::string Remplacer(const std::string& formule, int16_t annee) {
    return RemplacerReferences(generation_, formule, annee);
  }

  test::DossierTemporaire racine_;
  Session session_;
  MessagesScriptes messages_;
  ProgressionMuette progression_;
  ActiviteEssai activite_;
  LignesEssai lignes_;
  Generation generation_{session_, messages_, progression_, activite_};
};

TEST_F(Formules, SumOfTwoSeriesOfTheCodesYearWithNoDecimals) {
  EXPECT_EQ(Code("formule:2a:LG(RES-17)+LG(RES-18):0"), "1\xA0" "501");
  EXPECT_EQ(Code("formule:1a:LG(RES-17)+LG(RES-18):2"), "1\xA0" "120,00");
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(Formules, FormulaWithoutReferences) {
  EXPECT_EQ(Code("formule:1a:100/3:2"), "33,33");
  EXPECT_EQ(Code("formule:1a:10/4"), "2,5");
  EXPECT_EQ(Code("formule:1a:2,5*2"), "5");
  EXPECT_EQ(Code("formule:1a:1/0:2"), "0,00");
  EXPECT_EQ(Code("formule:1a:n'importe quoi"), "0");
}

TEST_F(Formules, YearSpecIsTheTrimmedTextBeforeTheA) {
  EXPECT_EQ(Code("formule: 3a:LG(RES-17)"), "1\xA0" "300");
  EXPECT_EQ(Code("formule:12a:LG(RES-17):1"), "0,0");
}

TEST_F(Formules, DecimalsTextBehindTheSecondColon) {
  EXPECT_EQ(Calcul("2/3:3", 1), "0,667");
  EXPECT_EQ(Calcul("2/3:", 1), "1");
  EXPECT_EQ(Calcul("2/3", 1), "0,67");
}

TEST_F(Formules, MissingColonGivesTheBoxAndThePlaceholder) {
  EXPECT_EQ(Code("formule:2aLG(RES-17)"), kNonCalculee);
  ASSERT_EQ(messages_.messages.size(), 1u);
  const MessageEnregistre& m = messages_.messages[0];
  EXPECT_EQ(m.titre, "Erreur détectée :  cliquez Fermer pour continuer");
  EXPECT_EQ(m.texte,
            "La portion de code \"formule:2aLG(RES-17)\" dans le modèle est mal renseignée : il manque le caractère "
            "\":\" séparant l'année d'étude de la formule à calculer.");
  EXPECT_EQ(m.conseil, "Modifier le modèle de document pour que l'erreur n'apparaisse plus.");
  EXPECT_EQ(m.style, "");
}

TEST_F(Formules, MissingAGivesTheBoxAndThePlaceholder) {
  EXPECT_EQ(Code("formule:2:LG(RES-17)"), kNonCalculee);
  ASSERT_EQ(messages_.messages.size(), 1u);
  EXPECT_EQ(messages_.messages[0].texte,
            "La portion de code \"formule:2:LG(RES-17)\" dans le modèle est mal renseignée : il manque "
            "l'indicateur \"a\" suivant l'année d'exercice sur laquelle doit être fait le calcul.");
}

TEST_F(Formules, TemplateBytesOfTheCodeReachTheBoxAsUtf8) {
  Code("formule:ann\xE9" "e");
  ASSERT_EQ(messages_.messages.size(), 1u);
  EXPECT_NE(messages_.messages[0].texte.find("\"formule:année\""), std::string::npos);
}

TEST_F(Formules, FixedYearOfAReference) {
  EXPECT_EQ(Code("formule:3a:LG(RES-17!A0)*2"), "2\xA0" "000");
  EXPECT_EQ(Code("formule:3a:LG(RES-17!A4)-LG(RES-17)"), "100");
}

TEST_F(Formules, YearBeforeTheCurrentOne) {
  EXPECT_EQ(Calcul("LG(RES-17!A-1)", 3), "1\xA0" "200,4");
  generation_.lignes = &lignes_;
  EXPECT_EQ(Calcul("LG(RES-17!A-1)", 3), "1\xA0" "200,4");
  EXPECT_TRUE(messages_.questions.empty());
}

TEST_F(Formules, YearBeforeInATableStartingAtYearOneWarnsAndKeepsTheYear) {
  lignes_.anneeUn = true;
  generation_.lignes = &lignes_;
  EXPECT_EQ(Calcul("LG(RES-17!A-1)", 3), "1\xA0" "300");
  ASSERT_EQ(messages_.questions.size(), 1u);
  EXPECT_EQ(messages_.questions[0].icone, Icone::Exclamation);
  EXPECT_EQ(messages_.questions[0].boutons, Boutons::Ok);
  EXPECT_EQ(messages_.questions[0].texte,
            "Erreur de conception du modèle de tableau en cours d'interprétation :\n"
            "Une formule de calcul demande à ce que les valeurs d'une ligne débute à NumAnnee-1\n"
            "pour un tableau qui débute déjà à l'année début ! Modifier le modèle.");
}

TEST_F(Formules, YearsOutsideTheRecordReadZero) {
  EXPECT_EQ(Calcul("LG(RES-17)+1", 14), "1");
  EXPECT_EQ(Calcul("LG(RES-17!A20)+1", 2), "1");
  EXPECT_EQ(Calcul("LG(RES-17!A-1)+1", 0), "1");
  EXPECT_EQ(Calcul("LG(RES-17)+LG(RES-18)", 13), "0");
}

TEST_F(Formules, NegativeValuesEnterTheFormulaWithTheirSign) {
  EXPECT_EQ(Remplacer("10-LG(RES-20)", 1), "10--5");
  EXPECT_EQ(Calcul("10-LG(RES-20)", 1), "15");
  EXPECT_EQ(Calcul("LG(RES-20)^2", 1), "25");
}

TEST_F(Formules, UnderscoresAreBlanks) {
  EXPECT_EQ(Remplacer("LG(RES-18)_*_2", 1), "20 * 2");
  EXPECT_EQ(Calcul("LG(RES-18)_*_2", 1), "40");
}

TEST_F(Formules, FreeActivityFile) {
  EXPECT_EQ(Calcul("LG(AL-2)", 1), "80");
  EXPECT_EQ(Remplacer("LG(AL-1)", -1), "Vaches");
}

TEST_F(Formules, RecordBeyondTheFileOrMissingFileReadsZero) {
  EXPECT_EQ(Calcul("LG(RES-999)+1", 1), "1");
  EXPECT_EQ(Calcul("LG(ABSENT-1)+1", 1), "1");
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(Formules, NoDossierGivesTheBoxAndZero) {
  session_.NomDossier[0] = "  ";
  EXPECT_EQ(Calcul("LG(RES-17)+1", 1), "1");
  ASSERT_EQ(messages_.messages.size(), 1u);
  EXPECT_EQ(messages_.messages[0].titre, "Dossier Tervol non sélectionné !");
  const std::string fin = "afin de pouvoir récupérer les valeurs des fichiers .DON du dossier ! Merci.";
  const std::string& texte = messages_.messages[0].texte;
  ASSERT_GE(texte.size(), fin.size());
  EXPECT_EQ(texte.substr(texte.size() - fin.size()), fin);
}

TEST_F(Formules, LabelsOfReferencesForTheDisplayOfAFormula) {
  EXPECT_EQ(Remplacer("LG(RES-17)+LG(RES-18!A-1)", -1), "Produit brut|\x80+Charges|\x80");
  EXPECT_EQ(Remplacer("LG(RES-19)", -2), "Enregistrement n\xB0" "19 de RES");
  EXPECT_EQ(Remplacer("LG(RES-21)", -1), "Enregistrement n\xB0" "21 de RES");
  EXPECT_EQ(Remplacer("LG(RES-999)", -1), "Enregistrement n\xB0" "999 de RES");
}

TEST_F(Formules, ALabelHoldingLGIsNotScannedAgain) {
  EXPECT_EQ(Remplacer("LG(RES-22)+LG(RES-22)", -1), "LG(RES-17)+LG(RES-17)");
}

TEST_F(Formules, LibelleLigneCutsTheYearOffTheReference) {
  std::string reference = "RES-17!A3";
  EXPECT_EQ(LibelleLigne(generation_, reference), "Produit brut|\x80");
  EXPECT_EQ(reference, "RES-17");
}

TEST_F(Formules, ValeurLigneReadsTheColumnOfTheYear) {
  std::string reference = "RES-17!A4";
  EXPECT_FLOAT_EQ(ValeurLigne(generation_, reference, 1), 1400.0f);
  EXPECT_EQ(reference, "RES-17");
  EXPECT_FLOAT_EQ(ValeurLigne(generation_, reference, 2), 1200.4f);
}

TEST_F(Formules, LinesOfTheTableInHand) {
  generation_.lignes = &lignes_;
  EXPECT_EQ(Remplacer("LG5+1", 2), "502+1");
  EXPECT_EQ(Calcul("LG5+LG6", 2), "1\xA0" "104");
  EXPECT_EQ(Calcul("(LG5)*LG1/LG2", 0), "250");
  EXPECT_EQ(Remplacer("LG5_+LG6", -1), "Ligne 5 +Ligne 6");
  EXPECT_EQ(Remplacer("LG511+LG512+LG0", 15), "51115+0+0");
  EXPECT_EQ(Remplacer("LG5+1", 16), "0+1");
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(Formules, LineNumberEndsAtEveryEndCharacter) {
  generation_.lignes = &lignes_;
  EXPECT_EQ(Remplacer("LG1-LG2*LG3/LG4(LG5)LG6\xB2LG7^LG8&LG9|LG1:LG2 LG3", 0),
            "100-200*300/400(500)600\xB2" "700^800&900|100:200 300");
}

TEST_F(Formules, LinesWithoutATableAreZero) {
  EXPECT_EQ(Calcul("LG5+1", 2), "1");
  EXPECT_EQ(Remplacer("LG5", -1), "");
}

TEST_F(Formules, LinesAreRefusedWhenNoTableMayExist) {
  generation_.lignes = &lignes_;
  EXPECT_EQ(Remplacer("LG5+1", -2), "+1");
  ASSERT_EQ(messages_.messages.size(), 1u);
  EXPECT_EQ(messages_.messages[0].titre, "Formule erronée. Insertion impossible.");
  EXPECT_EQ(messages_.messages[0].texte,
            "Votre formule contient le code LGn qui désigne une ligne n de tableau. \n"
            "Vous ne pouvez utiliser ce type de code ici, utilisez la formulation LG<nomFic-numEnreg>\n"
            "en sélectionnant vos séries de données directement dans l'arbre de choix ci-contre.");
}

TEST_F(Formules, MissingClosingBracketStopsTheReplacement) {
  EXPECT_EQ(Remplacer("LG(RES-17)+LG(RES-18", 2), "1200.4+LG(RES-18");
  ASSERT_EQ(messages_.messages.size(), 1u);
  EXPECT_EQ(messages_.messages[0].titre, "Tableau incorrect dans le modèle de document.");
  EXPECT_EQ(messages_.messages[0].texte, "La formule de calcul d'une ligne de total est erronée.");
  EXPECT_EQ(messages_.messages[0].conseil, "Diagnostic : Il manque la parenthèse fermante après le code d'un LG.");
  EXPECT_EQ(Calcul("LG(RES-17)+LG(RES-18", 2), "0");
}

TEST_F(Formules, MissingHyphenStopsTheReplacement) {
  EXPECT_EQ(Remplacer("LG(RES17)+LG(RES-18)", -1), "LG(RES17)+LG(RES-18)");
  ASSERT_EQ(messages_.messages.size(), 1u);
  EXPECT_EQ(messages_.messages[0].titre, "Formule de total incorrecte.");
  EXPECT_EQ(messages_.messages[0].conseil,
            "Diagnostic : Concernant le code entre parenthèses d'un LG, il manque le tiret entre le nom du fichier "
            "et le numéro d'enregistrement.");
}

TEST_F(Formules, LGAloneGivesTheBoxAndTheFormulaAsItIs) {
  generation_.lignes = &lignes_;
  for (const char* formule : {"LG1+LG", "LG1+LG+2", "LG1+LGx", "LG1+LG_2"}) {
    messages_.messages.clear();
    std::string attendu = std::string("100") + (formule + 3);
    for (char& c : attendu) c = c == '_' ? ' ' : c;
    EXPECT_EQ(Remplacer(formule, 0), attendu) << formule;
    ASSERT_EQ(messages_.messages.size(), 1u) << formule;
    EXPECT_EQ(messages_.messages[0].titre, "Formule erronée.");
    EXPECT_EQ(messages_.messages[0].texte, "Il manque le code après un LG qui n'a pas de sens écrit tout seul");
  }
}

}  // namespace
}  // namespace norvane
