// The series reader on every form of the code: years, labels, statistics and
// their years, the "@" families, decimals from the record, the two error
// boxes, and files that are missing, empty or short.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "construction/FichiersEtude.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"
#include "study/Series.h"

namespace norvane {
namespace {

using construction::Serie;
using ::testing::ElementsAre;

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
// COURT.DON: RES.DON cut inside the values of record 17.
class LectureSeries : public ::testing::Test {
 protected:
  void SetUp() override {
    std::vector<SerieDonnees> res(17);
    res[0] = Serie("RES-1:0", "Produit brut|\x80", {900, 1000, 1100, 1200, 1300, 1400, 1500, 1600, 1700, 1800, 1900,
                                                    2000, 2100, 2200});
    res[1] = Serie("RES-2:2", "Prix du lait|\x80/1000l", {350.5f, 360.25f, 370});
    res[2] = Serie("RES-3", "\xC9LEVAGE sans unit\xE9", {0, 1234.5f});
    res[3] = Serie("5", "Code nu|u", {0, 1.5f});
    res[4] = Serie("RES-5:0", "Egal|u", {1, 7, 7, 7, 7, 7});
    res[5] = Serie("RES-6:0", "Ex aequo|u", {0, 5, 3, 9, 3, 9});
    res[6] = Serie("RES-7:0", "Grand|u", {0, 16777216.0f, 1, 1, 1, 1});
    res[16] = Serie("RES-17:0", "EBE|k\x80", {10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23});
    construction::EcrireSeries(racine_ / "ETUDE.TVL/RES.DON", res);
    racine_.Ecrire("ETUDE.TVL/COURT.DON", racine_.Lire("ETUDE.TVL/RES.DON").substr(0, 16 * 90 + 34 + 2 * 4));
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
    for (int slot : {0, 1}) session_.RepDossier[slot] = racine_.Chemin();
    session_.NomDossier[0] = "ETUDE.TVL";
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

struct CasSerie {
  const char* code;
  std::string attendu;
  int16_t annee = -1;
  int16_t decimales = -1;
  int16_t dossier = 0;
};

TEST_F(LectureSeries, EveryFormOfTheCode) {
  const std::string mille = "1\xA0" "000";
  const CasSerie cas[] = {
      // A year before the record, one or two digits; or given by the caller.
      {"RES.DON+RES-3a17", "13"}, {"RES.DON+RES-12a17", "22"}, {"RES.DON+RES-0a17", "10"}, {"RES.DON+RES-1a1", mille},
      {"RES.DON+RES-17", "13", 3}, {"RES.DON+RES-17", "10", 0}, {"RES.DON+RES-17", "0", 14}, {"RES.DON+RES-99a17", "0"},
      // Decimals: from the record unless given; no ":" takes the whole field's leading integer.
      {"RES.DON+RES-1a2", "360,25"}, {"RES.DON+RES-1a2", "360", -1, 0}, {"RES.DON+RES-1a3", "1\xA0" "235"},
      {"RES.DON+RES-1a4", "1,50000"},
      // Label in lower case before the "|", unit behind it, neither trimmed.
      {"RES.DON+RES-i17", "ebe"}, {"RES.DON+RES-u17", "k\x80" + std::string(16, ' ')},
      {"RES.DON+RES-u2", "\x80/1000l  "}, {"RES.DON+RES-i3", "\xE9levage sans unit\xE9    "}, {"RES.DON+RES-u3", ""},
      // Statistics over the five study years and the calendar year they fall in; ties go to the first.
      {"RES.DON+RES-som1", "6\xA0" "000"}, {"RES.DON+RES-moy1", "1\xA0" "200"}, {"RES.DON+RES-min1", mille},
      {"RES.DON+RES-max1", "1\xA0" "400"}, {"RES.DON+RES-mina1", "2025"}, {"RES.DON+RES-maxa1", "2029"},
      {"RES.DON+RES-moy2", "146,05"}, {"RES.DON+RES-maxa5", "2025"}, {"RES.DON+RES-mina5", "2025"},
      {"RES.DON+RES-mina6", "2026"}, {"RES.DON+RES-maxa6", "2027"},
      {"RES.DON+RES-som7", "16\xA0" "777\xA0" "216"},  // 32-bit sums: each +1 is lost
      // Missing or empty file: nothing, before the selector is looked at; past the end: zeros and blanks.
      {"ABSENT.DON+X-3a1", ""}, {"VIDE.DON+V-som1", ""}, {"VIDE.DON+V-zzz1", ""}, {"RES.DON+RES-3a99", "0"},
      {"RES.DON+RES-i99", std::string(22, ' ')}, {"RES.DON+RES-som99", "0"}, {"RES.DON+RES-3a0", "0"},
      {"COURT.DON+RES-1a17", "11"}, {"COURT.DON+RES-2a17", "0"}, {"COURT.DON+RES-i17", "ebe"},
      // File names in any case; the slot chooses the dossier.
      {"res.don+RES-3a17", "13"}, {"RES.DON+RES-3a17", "333", -1, -1, 1},
      // "@": the file of the entity in hand, record before the "-"; another letter means c.
      {"@c4-1a", "72,5"}, {"@c4-i", "rendement"}, {"@c-i4", "rendement"}, {"@c1-2a", "0", -1, 0},
      {"@x4-2a", "75,0"}, {"@p2-u", "T" + std::string(10, ' ')}, {"@p2-som", "30"}, {"@a24-som", "330"},
      {"@a24-maxa", "2027"}, {"@a24-", "110", 2},
      // Names of the entity in hand.
      {"@c-c", "Culture : Bl\xE9 tendre"}, {"@c-n", "Bl\xE9 tendre"}, {"@p-pc", "Culture p\xE9renne : Verger"},
      {"@p-p", "Verger"}, {"@a-a", "Brebis"}, {"@a-ac", ""}};
  for (const CasSerie& c : cas) {
    EXPECT_EQ(Lire(c.code, c.annee, c.decimales, c.dossier), c.attendu) << c.code << " year " << c.annee;
  }
  entites_.numCulture = "9";  // no Cult9.don: even the crop's title needs the file
  EXPECT_EQ(Lire("@c-c"), "");
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(LectureSeries, DecimalsAndCodeGoBackToTheCaller) {
  Lire("RES.DON+RES-1a2");
  EXPECT_EQ(decimales_, 2);
  Lire("RES.DON+RES-1a4");  // code "5"
  EXPECT_EQ(decimales_, 5);
  EXPECT_EQ(DecimalesDeCode("RES-1: 3 "), 3);
  EXPECT_EQ(DecimalesDeCode("RES-1:x"), 0);
  Lire("@c4-1a");
  EXPECT_EQ(codeApres_, "4-1a");  // "@" and the letter are gone
}

TEST_F(LectureSeries, StudyYearsFromOneUpToColumnThirteen) {
  const std::string mille = "1\xA0" "000";
  const std::tuple<int16_t, const char*, std::string> cas[] = {
      {1, "som", mille}, {1, "moy", mille}, {1, "min", mille}, {1, "max", mille}, {1, "maxa", "2025"},
      {0, "moy", mille},  // not divided
      {40, "som", "20\xA0" "800"}, {40, "maxa", "2037"}};
  for (const auto& [nbAnEtude, mot, attendu] : cas) {
    session_.InfoDossier.NbAnEtude = nbAnEtude;
    EXPECT_EQ(Lire(std::string("RES.DON+RES-") + mot + "1"), attendu) << nbAnEtude << " " << mot;
  }
}

TEST_F(LectureSeries, ACodeWithoutPlusOrAWrongStatisticWordIsReported) {
  EXPECT_EQ(Lire("RES.DON-3a17"), "");
  EXPECT_EQ(Lire("RES.DON+RES-sum17"), "");
  std::vector<std::string> boites;
  for (const MessageEnregistre& m : messages_.messages) {
    boites.push_back(m.appelant + " | " + m.titre + " | " + m.texte + " | " + m.conseil + " | " + m.style);
  }
  EXPECT_THAT(boites,
              ElementsAre("CreationDoc | Erreur détectée :  cliquez Fermer pour continuer | Le code \"RES.DON-3a17\" "
                          "est inconnu de l'interpréteur Norvane. | Vous devez modifier en conséquence le modèle de "
                          "document utilisé pour que cette erreur n'apparaisse plus. | ",
                          "CreationDoc | Erreur détectée dans le modèle | Le code \"RES.DON+RES-sum17\" est erroné ( "
                          "après le - ).\nCette portion de code ne peut être traitée. | Modifiez le modèle utilisé "
                          "pour que ce message d'erreur n'apparaisse plus. | "));
}

}  // namespace
}  // namespace norvane
