// What generation passes over in silence comes out of the checker as
// warnings, and what it shows a box for as errors: heading kinds, series and
// records that the dossier lacks, formulas that cannot be computed.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/OutilsFichiers.h"
#include "verification/Rapport.h"
#include "verification/VerificationModele.h"

namespace norvane {
namespace {

const std::string kDossier = std::string(NORVANE_ARBRE) + "/Dossier/MARTIN_PAUL.TVL";

// A one-line table whose line definition is `definition`, in years mode `mode`
// ("a2" one dossier, "d2" two dossiers compared).
std::string Tableau(const std::string& definition, const std::string& dossiers = "a2", char mode = '0') {
  return "#tvl(tab" + dossiers + "p1cr" + mode + ";larg3400;larg6200([300;80][Exercice;5006;9;1;1;0;0;0;0;l;1;1;1;1;16][" +
         definition + ";5006;9;1;1;0;0;0;0;c;1;1;1;1;16]))#";
}

std::vector<CodeVerifie> Verifier(const std::string& codes, bool avecDossier) {
  Session session;
  if (avecDossier) {
    session.RepDossier[0] = std::string(NORVANE_ARBRE) + "/Dossier/";
    session.NomDossier[0] = "MARTIN_PAUL.TVL";
  }
  const EntitesCourantes entites;
  return VerifierModele(session, entites, "{\\rtf1 " + codes + "}");
}

class Avertissements : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!DossierExiste(kDossier)) GTEST_SKIP() << "example dossier not built";
  }
};

TEST(HeadingKinds, AYearHeadingOfAnUnknownKindIsAnErrorWhereverGenerationShowsIt) {
  struct Cas {
    std::string code;
    Statut statut;
  } cas[] = {
      {Tableau("entete:9:"), Statut::Erreur},
      {Tableau("entete:12:Debut&Fin"), Statut::Erreur},
      {Tableau("entete:7:"), Statut::Valide},
      {Tableau("entete:1:Debut&Fin"), Statut::Valide},
      {Tableau("entete:9"), Statut::Valide},                 // no second ":": kind 1 whatever follows
      {Tableau("entete:9:Debut&Fin", "a2", '2'), Statut::Valide},  // first and last years show the texts
      {Tableau("entete:9:", "a2", '3'), Statut::Valide},     // no value column, no heading
      {Tableau("entete:9:", "d2"), Statut::Valide},          // a dossier heading of no kind is left empty
  };
  for (const Cas& c : cas) {
    for (const bool avecDossier : {false, true}) {
      if (avecDossier && !DossierExiste(kDossier)) continue;
      const auto codes = Verifier(c.code, avecDossier);
      ASSERT_EQ(codes.size(), 1u);
      EXPECT_EQ(codes[0].statut, c.statut) << c.code << " " << codes[0].message;
    }
  }
  const auto codes = Verifier(Tableau("entete:9:"), false);
  EXPECT_EQ(codes[0].message,
            "Le format de la ligne d'intitulé d'un tableau est incorrect. La sorte d'intitulé \"9\" n'existe pas : "
            "les sortes d'intitulé d'année vont de 1 à 7. (ligne 1 du tableau)");
}

TEST_F(Avertissements, WhatTheDossierLacksIsAWarningSaidPlainly) {
  struct Cas {
    std::string code;
    std::string message;
  } cas[] = {
      {"#tvl(LAIT.DON+LAIT-3a1)#",
       "Le fichier LAIT.DON n'existe pas dans le dossier MARTIN_PAUL.TVL : ses séries restent vides."},
      {"#tvl(si(LAIT.DON+LAIT-1<>0)alors:nomExploit)#",
       "Le fichier LAIT.DON n'existe pas dans le dossier MARTIN_PAUL.TVL : ses séries restent vides."},
      {"#tvl(RES.DON+RES-3a99)#",
       "L'enregistrement n°99 n'existe pas dans le fichier RES.DON du dossier MARTIN_PAUL.TVL, qui en compte 28 : "
       "cette série reste vide."},
      {"#tvl(RES.DON+RES-som0)#",
       "L'enregistrement n°0 n'existe pas dans le fichier RES.DON du dossier MARTIN_PAUL.TVL, qui en compte 28 : "
       "cette série reste vide."},
      {"#tvl(formule:1a:LG(LAIT-2)+LG(RES-40))#",
       "Le fichier LAIT.DON n'existe pas dans le dossier MARTIN_PAUL.TVL : ses séries restent vides. | "
       "L'enregistrement n°40 n'existe pas dans le fichier RES.DON du dossier MARTIN_PAUL.TVL, qui en compte 28 : "
       "cette série reste vide."},
      {"#tvl(gph(Lait;9;1;1;0;;0;0;2;5;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;20;30;1;1;1;1;;10;30;;10;30;;12;30;;12;30;14;"
       "[RES-99:0;Produit_brut;1;RES.DON;0;21;101;192;30;1]))#",
       "La série RES-99:0 n'existe pas dans le fichier RES.DON du dossier MARTIN_PAUL.TVL : la série \"Produit brut\" "
       "du graphique \"Lait\" est tracée à zéro."},
  };
  for (const Cas& c : cas) {
    const auto codes = Verifier(c.code, true);
    ASSERT_EQ(codes.size(), 1u);
    EXPECT_EQ(codes[0].statut, Statut::Avertissement) << c.code;
    EXPECT_EQ(codes[0].message, c.message) << c.code;
    // Without a dossier its contents are not looked at.
    EXPECT_EQ(Verifier(c.code, false)[0].statut, Statut::Valide) << c.code;
  }
  for (const char* present : {"#tvl(RES.DON+RES-3a17)#", "#tvl(formule:1a:LG(RES-17)+LG(RES-1))#"}) {
    EXPECT_EQ(Verifier(present, true)[0].statut, Statut::Valide) << present;
  }
}

// A table names its series line by line: each missing one is told once,
// with the lines that name it.
TEST_F(Avertissements, ATableNamingSeriesTheDossierLacksSaysWhichLines) {
  const std::string code =
      "#tvl(taba2p1cr0;larg3400;larg6200([300;80][A;5006;9;1;1;0;0;0;0;l;1;1;1;1;16][serie:LAIT.DON+LAIT-1:0:0;5006;9;"
      "1;1;0;0;0;0;c;1;1;1;1;16]#[300;80][B;5006;9;1;1;0;0;0;0;l;1;1;1;1;16][serie:RES.DON+RES-17:0:0;5006;9;1;1;0;0;"
      "0;0;c;1;1;1;1;16]#[300;80][C;5006;9;1;1;0;0;0;0;l;1;1;1;1;16][totalC:LG1+LG(LAIT-3):0:0;5006;9;1;1;0;0;0;0;c;"
      "1;1;1;1;16]#[300;80][D;5006;9;1;1;0;0;0;0;l;1;1;1;1;16][serie:RES.DON+RES-60:0:0;5006;9;1;1;0;0;0;0;c;1;1;1;1;"
      "16]))#";
  const auto codes = Verifier(code, true);
  ASSERT_EQ(codes.size(), 1u);
  EXPECT_EQ(codes[0].statut, Statut::Avertissement);
  EXPECT_EQ(codes[0].message,
            "Le fichier LAIT.DON n'existe pas dans le dossier MARTIN_PAUL.TVL : ses séries restent vides. (lignes 1 et 3 "
            "du tableau) | L'enregistrement n°60 n'existe pas dans le fichier RES.DON du dossier MARTIN_PAUL.TVL, qui en "
            "compte 28 : cette série reste vide. (ligne 4 du tableau)");
}

// The arithmetic that fails on the dossier's values is a warning with the
// dossier only; a text that cannot be read is one with or without it, and a
// table's total is read whatever values its lines would hold.
TEST_F(Avertissements, AFormulaThatCannotBeComputedIsAWarning) {
  const std::string illisible =
      "La formule \"LG(RES-17)+*2\" ne peut être calculée : son écriture n'est pas comprise (opérateur, nombre ou "
      "parenthèse mal placé) ; le document affichera 0.";
  for (const bool avecDossier : {true, false}) {
    const auto codes = Verifier("#tvl(formule:1a:LG(RES-17)+*2:0)#", avecDossier);
    EXPECT_EQ(codes[0].statut, Statut::Avertissement);
    EXPECT_EQ(codes[0].message, illisible);
  }
  const auto division = Verifier("#tvl(formule:1a:LG(RES-17)/(LG(RES-1)-LG(RES-1)))#", true);
  EXPECT_EQ(division[0].statut, Statut::Avertissement);
  EXPECT_NE(division[0].message.find("avec les valeurs du dossier (division par zéro"), std::string::npos);
  EXPECT_EQ(Verifier("#tvl(formule:1a:LG(RES-17)/(LG(RES-1)-LG(RES-1)))#", false)[0].statut, Statut::Valide);

  // LG1 - LG1 is 0 in the checker, which builds no line: no division by zero is claimed.
  EXPECT_EQ(Verifier(Tableau("totalC:LG(RES-17)/(LG1-LG1):0:0"), true)[0].statut, Statut::Valide);
  const auto total = Verifier(Tableau("totalC:LG1)(2:0:0"), true);
  EXPECT_EQ(total[0].statut, Statut::Avertissement);
  EXPECT_EQ(total[0].message,
            "La formule \"LG1)(2\" ne peut être calculée : son écriture n'est pas comprise (opérateur, nombre ou "
            "parenthèse mal placé) ; le document affichera 0. (ligne 1 du tableau)");
}

// A code with a fault and a warning is an error; the report counts each
// status apart, lists errors before warnings, and JSON names the status.
TEST_F(Avertissements, TheReportCountsWarningsApartFromErrors) {
  const auto codes = Verifier("#tvl(LAIT.DON+LAIT-3a1)# #tvl(motInconnu)# #tvl(nomExploit)# #tvl(si(LAIT.DON+LAIT-1<>0)X)#",
                              true);
  ASSERT_EQ(codes.size(), 4u);
  EXPECT_EQ(codes[3].statut, Statut::Erreur);
  EXPECT_EQ(Nombre(codes, Statut::Erreur), 2u);
  EXPECT_EQ(Nombre(codes, Statut::Avertissement), 1u);
  const std::string texte = RapportTexte("m.tvm", codes, true);
  const std::size_t resume = texte.find("4 code(s) vérifié(s), 2 erreur(s), 1 avertissement(s).\nErreurs :\n");
  ASSERT_NE(resume, std::string::npos) << texte;
  const std::size_t avertissements = texte.find("Avertissements :\n  ligne 1, colonne 8");
  EXPECT_GT(avertissements, texte.find("#tvl(motInconnu)#", resume));
  EXPECT_NE(texte.find("  Statut : avertissement — Le fichier LAIT.DON"), std::string::npos);
  const std::string json = RapportJson(codes, true);
  EXPECT_NE(json.find("\"statut\": \"avertissement\", \"message\": \"Le fichier LAIT.DON"), std::string::npos);
  EXPECT_EQ(RapportTexte("m.tvm", {}, false), "Vérification du modèle m.tvm\n\n0 code(s) vérifié(s), 0 erreur(s), 0 avertissement(s).\n");
}

}  // namespace
}  // namespace norvane
