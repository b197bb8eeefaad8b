// The series reader on every form of the code: years, labels, statistics and
// their years, the "@" families, decimals from the record, the two error
// boxes, and files that are missing, empty, short or garbage.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "construction/FichiersEtude.h"
#include "frame/DossierTemporaire.h"
#include "frame/PortsScriptes.h"
#include "frame/Texte.h"
#include "study/Series.h"

namespace norvane {
namespace {

using construction::Serie;

class EntitesEssai : public EntitesCourantes {
 public:
  std::string numCulture = "1";
  std::string NumCultureCourante() const override { return numCulture; }
  std::string NumCulturePCourante() const override { return "2"; }
  std::string NumActivite2Chiffres() const override { return "07"; }
  std::string TitreCultureCourante() const override { return "Culture : Bl\xE9 tendre"; }
  std::string NomCultureCourante() const override { return "Bl\xE9 tendre"; }
  std::string TitreCulturePCourante() const override { return "Culture p\xE9renne : Verger"; }
  std::string NomCulturePCourante() const override { return "Verger"; }
  std::string NomActivite() const override { return "Brebis"; }
};

// RES.DON of ETUDE.TVL:
//   1  Produit brut, column c holds 900 + 100 c
//   2  two decimals in its code
//   3  a code with no ":" and a label with no "|"
//   4  a code that is a bare number: "5"
//   5  all years equal;  6  ties for min and max;  7  sums that a float loses
//   17 column c holds 10 + c (the examples of the code table)
class LectureSeries : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_FALSE(racine_.Chemin().empty());
    std::vector<SerieDonnees> res(17);
    res[0] = Serie("RES-1:0", "Produit brut|\x80", {});
    for (std::size_t c = 0; c < 14; ++c) res[0].Valeur[c] = 900.0f + 100.0f * static_cast<float>(c);
    res[1] = Serie("RES-2:2", "Prix du lait|\x80/1000l", {350.5f, 360.25f, 370});
    res[2] = Serie("RES-3", "\xC9LEVAGE sans unit\xE9", {0, 1234.5f});
    res[3] = Serie("5", "Code nu|u", {0, 1.5f});
    res[4] = Serie("RES-5:0", "Egal|u", {1, 7, 7, 7, 7, 7});
    res[5] = Serie("RES-6:0", "Ex aequo|u", {0, 5, 3, 9, 3, 9});
    res[6] = Serie("RES-7:0", "Grand|u", {0, 16777216.0f, 1, 1, 1, 1});
    res[16] = Serie("RES-17:0", "EBE|k\x80", {});
    for (std::size_t c = 0; c < 14; ++c) res[16].Valeur[c] = 10.0f + static_cast<float>(c);
    construction::EcrireSeries(racine_ / "ETUDE.TVL/RES.DON", res);
    construction::EcrireSeries(racine_ / "ETUDE.TVL/Cult1.don",
                               {Serie("CUL-1:2", "Surface|ha", {0, 12}), Serie("CUL-2:0", "", {}),
                                Serie("CUL-3:0", "", {}), Serie("CUL-4:1", "Rendement|q/ha", {70, 72.5f, 75})});
    construction::EcrireSeries(racine_ / "ETUDE.TVL/CltP2.don",
                               {Serie("CLP-1:0", "Surface|ha", {}), Serie("CLP-2:0", "Production|T", {0, 30})});
    std::vector<SerieDonnees> activite(24);
    activite[23] = Serie("AL-24:0", "Brebis|t\xEAte", {0, 100, 110, 120});
    construction::EcrireSeries(racine_ / "ETUDE.TVL/AL07AL.don", activite);
    construction::EcrireSeries(racine_ / "ETUDE.TVL/VIDE.DON", {});
    construction::EcrireSeries(racine_ / "AUTRE.TVL/RES.DON",
                               std::vector<SerieDonnees>(17, Serie("RES-17:0", "Autre|u", {0, 0, 0, 333})));
    session_.RepDossier[0] = racine_.Chemin();
    session_.NomDossier[0] = "ETUDE.TVL";
    session_.RepDossier[1] = racine_.Chemin();
    session_.NomDossier[1] = "AUTRE.TVL";
    session_.InfoDossier.AnneeDebut = 2025;
    session_.InfoDossier.NbAnEtude = 5;
  }

  // As the interpreter calls it: the "-" is the first one, or the second when
  // there are two.
  std::string Lire(std::string code, int16_t annee = -1, int16_t decimales = -1, int16_t dossier = 0) {
    std::size_t tiret = code.find('-');
    if (tiret != std::string::npos && code.find('-', tiret + 1) != std::string::npos) tiret = code.find('-', tiret + 1);
    decimales_ = decimales;
    codeApres_ = code;
    return LireSerie(contexte_, codeApres_, static_cast<int16_t>(tiret), annee, decimales_, dossier);
  }

  test::DossierTemporaire racine_;
  Session session_;
  MessagesScriptes messages_;
  EntitesEssai entites_;
  ContexteSeries contexte_{session_, messages_, entites_};
  int16_t decimales_ = -1;
  std::string codeApres_;
};

TEST_F(LectureSeries, YearBeforeTheRecordOneOrTwoDigits) {
  EXPECT_EQ(Lire("RES.DON+RES-3a17"), "13");
  EXPECT_EQ(Lire("RES.DON+RES-12a17"), "22");
  EXPECT_EQ(Lire("RES.DON+RES-0a17"), "10");  // the year before the study
  EXPECT_EQ(Lire("RES.DON+RES-1a1"),
            "1\xA0"
            "000");
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(LectureSeries, YearGivenByTheCaller) {
  EXPECT_EQ(Lire("RES.DON+RES-17", 3), "13");
  EXPECT_EQ(Lire("RES.DON+RES-17", 0), "10");
  EXPECT_EQ(Lire("RES.DON+RES-17", 14), "0");  // no such column
  EXPECT_EQ(Lire("RES.DON+RES-99a17"), "0");
}

TEST_F(LectureSeries, DecimalsComeFromTheRecordAndGoBack) {
  EXPECT_EQ(Lire("RES.DON+RES-1a2"), "360,25");
  EXPECT_EQ(decimales_, 2);
  EXPECT_EQ(Lire("RES.DON+RES-1a2", -1, 0), "360");
  EXPECT_EQ(decimales_, 0);
  // No ":": the whole field's leading integer, 0 for "RES-3", 5 for "5".
  EXPECT_EQ(Lire("RES.DON+RES-1a3"),
            "1\xA0"
            "235");
  EXPECT_EQ(decimales_, 0);
  EXPECT_EQ(Lire("RES.DON+RES-1a4"), "1,50000");
  EXPECT_EQ(decimales_, 5);
  EXPECT_EQ(DecimalesDeCode("RES-1: 3 "), 3);
  EXPECT_EQ(DecimalesDeCode("RES-1:x"), 0);
}

TEST_F(LectureSeries, LabelInLowerCaseAndUnit) {
  EXPECT_EQ(Lire("RES.DON+RES-i17"), "ebe");
  EXPECT_EQ(Lire("RES.DON+RES-u17"), std::string("k\x80") + std::string(16, ' '));  // not trimmed
  EXPECT_EQ(Lire("RES.DON+RES-u2"), std::string("\x80/1000l") + std::string(2, ' '));
  // No "|": all of it in lower case, and no unit.
  EXPECT_EQ(Lire("RES.DON+RES-i3"), "\xE9levage sans unit\xE9    ");
  EXPECT_EQ(Lire("RES.DON+RES-u3"), "");
}

TEST_F(LectureSeries, StatisticsOverTheStudyYears) {
  EXPECT_EQ(Lire("RES.DON+RES-som1"),
            "6\xA0"
            "000");
  EXPECT_EQ(Lire("RES.DON+RES-moy1"),
            "1\xA0"
            "200");
  EXPECT_EQ(Lire("RES.DON+RES-min1"),
            "1\xA0"
            "000");
  EXPECT_EQ(Lire("RES.DON+RES-max1"),
            "1\xA0"
            "400");
  EXPECT_EQ(Lire("RES.DON+RES-mina1"), "2025");
  EXPECT_EQ(Lire("RES.DON+RES-maxa1"), "2029");
  EXPECT_EQ(Lire("RES.DON+RES-moy2"), "146,05");  // (360.25 + 370 + 0 + 0 + 0) / 5
}

TEST_F(LectureSeries, OneStudyYearGivesTheFirstYearForEveryStatistic) {
  session_.InfoDossier.NbAnEtude = 1;
  for (const char* mot : {"som", "moy", "min", "max"})
    EXPECT_EQ(Lire(std::string("RES.DON+RES-") + mot + "1"),
              "1\xA0"
              "000");
  EXPECT_EQ(Lire("RES.DON+RES-maxa1"), "2025");
  session_.InfoDossier.NbAnEtude = 0;
  EXPECT_EQ(Lire("RES.DON+RES-moy1"),
            "1\xA0"
            "000");  // not divided
}

TEST_F(LectureSeries, StudyYearsStopAtColumnThirteen) {
  session_.InfoDossier.NbAnEtude = 40;
  EXPECT_EQ(Lire("RES.DON+RES-som1"),
            "20\xA0"
            "800");  // 1000 + ... + 2200
  EXPECT_EQ(Lire("RES.DON+RES-maxa1"), "2037");
}

TEST_F(LectureSeries, TiesGoToTheFirstYear) {
  EXPECT_EQ(Lire("RES.DON+RES-maxa5"), "2025");
  EXPECT_EQ(Lire("RES.DON+RES-mina5"), "2025");
  EXPECT_EQ(Lire("RES.DON+RES-mina6"), "2026");
  EXPECT_EQ(Lire("RES.DON+RES-maxa6"), "2027");
}

TEST_F(LectureSeries, SumsAreMadeIn32BitFloats) {
  EXPECT_EQ(Lire("RES.DON+RES-som7"),
            "16\xA0"
            "777\xA0"
            "216");  // each +1 is lost
}

TEST_F(LectureSeries, ACodeWithoutPlusIsUnknown) {
  EXPECT_EQ(Lire("RES.DON-3a17"), "");
  ASSERT_EQ(messages_.messages.size(), 1u);
  const MessageEnregistre& m = messages_.messages[0];
  EXPECT_EQ(m.appelant, "CreationDoc");
  EXPECT_EQ(m.titre, "Erreur détectée :  cliquez Fermer pour continuer");
  EXPECT_EQ(m.texte, "Le code \"RES.DON-3a17\" est inconnu de l'interpréteur Norvane.");
  EXPECT_EQ(
      m.conseil,
      "Vous devez modifier en conséquence le modèle de document utilisé pour que cette erreur n'apparaisse plus.");
  EXPECT_EQ(m.style, "");
}

TEST_F(LectureSeries, AWrongStatisticWord) {
  EXPECT_EQ(Lire("RES.DON+RES-sum17"), "");
  ASSERT_EQ(messages_.messages.size(), 1u);
  const MessageEnregistre& m = messages_.messages[0];
  EXPECT_EQ(m.titre, "Erreur détectée dans le modèle");
  EXPECT_EQ(m.texte,
            "Le code \"RES.DON+RES-sum17\" est erroné ( après le - ).\nCette portion de code ne peut être traitée.");
  EXPECT_EQ(m.conseil, "Modifiez le modèle utilisé pour que ce message d'erreur n'apparaisse plus.");
  EXPECT_EQ(m.style, "");
}

TEST_F(LectureSeries, MissingOrEmptyFileGivesNothingWithoutMessage) {
  EXPECT_EQ(Lire("ABSENT.DON+X-3a1"), "");
  EXPECT_EQ(Lire("VIDE.DON+V-som1"), "");
  EXPECT_EQ(Lire("VIDE.DON+V-zzz1"), "");  // the file decides before the word
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(LectureSeries, ARecordPastTheEndReadsAsZerosAndBlanks) {
  EXPECT_EQ(Lire("RES.DON+RES-3a99"), "0");
  EXPECT_TRUE(EstBlanc(Lire("RES.DON+RES-i99")));
  EXPECT_EQ(Lire("RES.DON+RES-som99"), "0");
  EXPECT_EQ(Lire("RES.DON+RES-3a0"), "0");
  const SerieDonnees vide = LireEnregistrementSerie(racine_ / "ETUDE.TVL/RES.DON", 1000);
  EXPECT_EQ(vide.CodeSerie, std::string(12, ' '));
  EXPECT_EQ(vide.Valeur[1], 0.0f);
}

TEST_F(LectureSeries, FileNamesIgnoreCaseAndSlotsChooseTheDossier) {
  EXPECT_EQ(Lire("res.don+RES-3a17"), "13");
  EXPECT_EQ(Lire("RES.DON+RES-3a17", -1, -1, 1), "333");
  EXPECT_EQ(DossierDuSlot(session_, 1), racine_.Chemin() + "AUTRE.TVL/");
}

TEST_F(LectureSeries, FamiliesOfTheEntityInHand) {
  EXPECT_EQ(Lire("@c4-1a"), "72,5");  // Cult1.don, record before the "-"
  EXPECT_EQ(codeApres_, "4-1a");      // "@" and the letter are gone
  EXPECT_EQ(Lire("@c4-i"), "rendement");
  EXPECT_EQ(Lire("@c-i4"), "rendement");
  EXPECT_EQ(Lire("@c1-2a", -1, 0), "0");
  EXPECT_EQ(Lire("@x4-2a"), "75,0");  // another letter: c is assumed
  EXPECT_EQ(Lire("@p2-u"), "T" + std::string(10, ' '));
  EXPECT_EQ(Lire("@p2-som"), "30");
  EXPECT_EQ(Lire("@a24-som"), "330");
  EXPECT_EQ(Lire("@a24-maxa"), "2027");
  EXPECT_EQ(Lire("@a24-", 2), "110");
}

TEST_F(LectureSeries, NamesOfTheEntityInHand) {
  EXPECT_EQ(Lire("@c-c"), "Culture : Bl\xE9 tendre");
  EXPECT_EQ(Lire("@c-n"), "Bl\xE9 tendre");
  EXPECT_EQ(Lire("@p-pc"), "Culture p\xE9renne : Verger");
  EXPECT_EQ(Lire("@p-p"), "Verger");
  EXPECT_EQ(Lire("@a-a"), "Brebis");
  EXPECT_EQ(Lire("@a-ac"), "");
  entites_.numCulture = "9";  // no Cult9.don: the file decides first
  EXPECT_EQ(Lire("@c-c"), "");
}

TEST_F(LectureSeries, AShortFileKeepsWhatItHas) {
  const std::string complet = racine_.Lire("ETUDE.TVL/RES.DON");
  racine_.Ecrire("ETUDE.TVL/COURT.DON", complet.substr(0, 16 * 90 + 34 + 2 * 4));
  EXPECT_EQ(Lire("COURT.DON+RES-1a17"), "11");
  EXPECT_EQ(Lire("COURT.DON+RES-2a17"), "0");
  EXPECT_EQ(Lire("COURT.DON+RES-i17"), "ebe");
}

TEST_F(LectureSeries, GarbageFilesAndOddPositionsReadWithoutHarm) {
  std::mt19937 alea(7);
  std::string octets(1000, '\0');
  for (char& c : octets) c = static_cast<char>(alea());
  racine_.Ecrire("ETUDE.TVL/GARBAGE.DON", octets);
  for (const char* code : {"GARBAGE.DON+G-3a1", "GARBAGE.DON+G-i5", "GARBAGE.DON+G-u11", "GARBAGE.DON+G-moy3",
                           "GARBAGE.DON+G-maxa2", "GARBAGE.DON+G-", "GARBAGE.DON+G-a", "GARBAGE.DON+G-m"}) {
    Lire(code);
  }
  for (int16_t tiret : {-5, -1, 0, 3, 30, 500}) {
    for (const char* texte : {"RES.DON+RES-3a17", "@c4-1a", "@", "@-", "+", ""}) {
      std::string code = texte;
      int16_t annee = -1, decimales = -1;
      LireSerie(contexte_, code, tiret, annee, decimales, 0);
    }
  }
  SUCCEED();
}

}  // namespace
}  // namespace norvane
