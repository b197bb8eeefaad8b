// Per-crop and per-activity tables, crop rows with their totals, and the
// references of crop series, on dossiers built by the study-file builder.
#include <map>

#include "construction/FichiersEtude.h"
#include "construction/FichiersIni.h"
#include "construction/FichiersTableaux.h"
#include "tables/BancProducteurs.h"
#include "tables/ReferencesCultures.h"

namespace norvane::test {
namespace {

namespace c = construction;

c::CultureAnnuelle Culture(float numero, const std::string& nom, int16_t type, float assolement) {
  c::CultureAnnuelle culture;
  culture.NumCulture = numero;
  culture.NomCulture = nom;
  culture.TypeCulture = type;
  std::array<float, 11> valeurs{};
  valeurs.fill(assolement);
  culture.Valeurs["assolement"] = valeurs;
  return culture;
}

class ParCulture : public BancSpeciaux {
 protected:
  ParCulture() {
    c::EcrireCulturesAnnuelles(Dossier() + "cult.clt", {Culture(1, "Ble", 1, 10), Culture(2, "Mais ensilage", 3, 4),
                                                         Culture(3, "Colza", 1, 5)});
  }
};

TEST_F(ParCulture, AnAssolementLineGroupsCropsByTypeWithTheirTotals) {
  const std::string rtf = GenererSpecial(Code("x", "cultu:assolement:0:0"));
  std::vector<std::size_t> places;
  for (const char* texte : {" Ble}", " Colza}", " Cultures de vente}", " Mais ensilage}", " Cult. fourrag",
                            " Cult. mara"}) {
    places.push_back(rtf.find(texte));
    EXPECT_NE(places.back(), std::string::npos) << texte;
  }
  EXPECT_TRUE(std::is_sorted(places.begin(), places.end())) << rtf;
  // The sale total is bold and holds 10 + 5.
  const std::string total = rtf.substr(places[2], places[3] - places[2]);
  EXPECT_NE(total.find("\\b 15}"), std::string::npos) << total;
  EXPECT_EQ(Compter(rtf, "\\row"), 6);
}

TEST_F(ParCulture, AnotherItemHasNoTotalRows) {
  const std::string rtf = GenererSpecial(Code("x", "cultu:rendement:0:0"));
  EXPECT_EQ(Compter(rtf, "\\row"), 3);
  EXPECT_EQ(rtf.find("Cultures de vente"), std::string::npos);
}

TEST_F(ParCulture, OneTablePerCropWithTheChapterCounterAndNoHeadingInStyleThree) {
  producteurs.CompteurTableaux = 4;
  const std::string rtf = Interpreter("culture32" + Code("@cn-a", "serie:RES.DON+RES-1:0:0"));
  EXPECT_NE(rtf.find("\\qr\\fs20\\cf3\\b 2-5"), std::string::npos) << rtf;
  EXPECT_NE(rtf.find("\\b 2-7"), std::string::npos);
  EXPECT_EQ(rtf.find("ACTIVITE"), std::string::npos);
  EXPECT_EQ(rtf.find("\\fs28"), std::string::npos);
  EXPECT_EQ(Compter(rtf, "\\row"), 3);
}

TEST_F(ParCulture, TheLongHeadingAndTheActivityBox) {
  const std::string longue = Interpreter("culture1" + Code("x", "serie:RES.DON+RES-1:0:0"));
  EXPECT_NE(longue.find("\\b     \\ql\\fs28\\cf1\\b\\ul Ble\\par \\plain "), std::string::npos);
  EXPECT_NE(longue.find(std::string(51, ' ') + Cp("Culture fourragère principale")), std::string::npos);
  EXPECT_NE(longue.find(Cp("Unité : q/ha")), std::string::npos);
  const std::string boite = Interpreter("culture2" + Code("x", "serie:RES.DON+RES-1:0:0"));
  EXPECT_NE(boite.find("\\b ACTIVITE :}\\cell"), std::string::npos);
  EXPECT_NE(boite.find(" Colza}\\cell\\row\\pard\\plain "), std::string::npos);
}

TEST_F(ParCulture, PerennialCropsWithoutTransformationAreSkippedWhenAsked) {
  c::EcrireCulturesPerennes(Dossier() + "CltP.cpD", {{1, "Vigne", 1, 0, 0, 1, 20}, {2, "Pommier", 1, 0, 0, 2, 15}});
  std::vector<SerieDonnees> series(74, c::Serie("X-1:0", "x|y", {}));
  series[73] = c::Serie("X-74:0", "transfo|hl", {0, 0, 0, 3});
  c::EcrireSeries(Dossier() + "CltP1.don", series);
  const std::string code = "cultper1" + Code("x", "serie:RES.DON+RES-1:0:0");
  const std::string toutes = Interpreter(code);
  EXPECT_NE(toutes.find("Pleine production : 1 an"), std::string::npos);
  EXPECT_NE(toutes.find("Pleine production : 2 ans"), std::string::npos);
  generation.etat.TransfoPerenne = true;
  const std::string filtrees = Interpreter(code);
  EXPECT_NE(filtrees.find("Vigne"), std::string::npos);
  EXPECT_EQ(filtrees.find("Pommier"), std::string::npos);
}

TEST_F(ParCulture, CropSeriesReadTheCropsOwnFile) {
  c::EcrireSeries(Dossier() + "Cult1.don", {c::Serie("C-1:0", "Surface|ha", {0, 2, 2, 2}),
                                             c::Serie("C-2:0", "Rendement|q", {0, 70, 80, 90})});
  const std::string rtf = Interpreter("culture3" + Code("x", "scult:@1x2:0:0"));
  EXPECT_NE(rtf.find(" 140}"), std::string::npos) << rtf;
  EXPECT_NE(rtf.find(" 180}"), std::string::npos);
}

TEST_F(ParCulture, AFodderCropsMarginIsANetCostInTheLongHeadingStyle) {
  const std::string code = Code("Marge", "scult:@15:0:0");
  const std::string longue = Interpreter("culture1" + code);
  EXPECT_EQ(Compter(longue, Cp(" Coût net op.}")), 1);  // Mais ensilage only
  EXPECT_NE(longue.find(" Ble}"), std::string::npos);
  EXPECT_EQ(Interpreter("culture3" + code).find(Cp("Coût net op.")), std::string::npos);
}

TEST(ReferencesCultures, FixedFormsTypesAndZeroDivisors) {
  // Record n is worth n, its transformation record 100 n, one year back 1000 n.
  const LectureRecord lire = [](int32_t n, int annee, bool t) {
    return static_cast<float>(annee == 1 ? n * (t ? 100 : 1) : n * 1000);
  };
  const LectureRecord zero22 = [](int32_t n, int, bool) { return n == 1 ? 0.0f : static_cast<float>(n); };
  struct Cas {
    const char* reference;
    int16_t type;
    double attendu;
  };
  for (const Cas& cas : {Cas{"7", 0, 7}, Cas{"27t", 0, 2700}, Cas{"82a-1", 0, 82000}, Cas{"63+65+67", 0, 195},
                         Cas{"23+24/1", 0, 47}, Cas{"6-5", 1, 1}, Cas{"17x22/1", 1, 374},
                         Cas{"78x86/100/46t", 0, 78.0 * 86 / 100 / 4600}, Cas{"78/46t", 0, 78.0 / 4600},
                         Cas{"75-85+87/52t+53t+54t", 0, 77.0 / 15900}, Cas{"18", 1, 17}, Cas{"18", 2, 18},
                         Cas{"25", 3, 26}, Cas{"65", 4, 71}, Cas{"24", 1, 0}, Cas{"4cession", 2, 4},
                         Cas{"4cession", 3, 0}, Cas{"18x19", 1, 18 * 17}, Cas{"18x19", 3, 18 * 19},
                         Cas{"18x19", 0, 0}, Cas{"13x1", 0, 0}, Cas{"abc", 0, 0}}) {
    EXPECT_DOUBLE_EQ(EvaluerReferenceCulture(cas.reference, 1, cas.type, lire), cas.attendu) << cas.reference;
  }
  EXPECT_EQ(EvaluerReferenceCulture("22/1", 1, 0, zero22), 0);
}

class Activites : public BancSpeciaux {
 protected:
  Activites() {
    c::EcrireModAniLib(Dossier() + "ModAniLib.ini",
                       {{1, true, "Brebis"}, {2, false, "Chevres"}, {3, true, "Porcs"}});
    std::vector<SerieDonnees> series(4, c::Serie("A-1:0", "x|y", {}));
    series[3] = c::Serie("A-4:0", "Effectif|tetes", {0, 120, 130, 140});
    c::EcrireSeries(Dossier() + "AL03AL.don", series);
  }
};

TEST_F(Activites, OneTablePerActiveModuleAndAMissingFileToldOnce) {
  const std::string rtf = Interpreter("actlibr11" + Code("@an-a", "ALani:@4:0:0"));
  EXPECT_NE(rtf.find("\\b 1-1"), std::string::npos);
  EXPECT_NE(rtf.find("\\b 1-2"), std::string::npos);
  EXPECT_EQ(rtf.find("1-3"), std::string::npos);
  EXPECT_NE(rtf.find("\\ul Porcs\\par"), std::string::npos);
  EXPECT_EQ(rtf.find("Chevres"), std::string::npos);
  EXPECT_NE(rtf.find(" 130}"), std::string::npos) << rtf;
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_NE(messages.messages[0].texte.find("Le fichier AL01AL.don contenant"), std::string::npos);
}

TEST_F(Activites, NoModulesFileNoTableAndNoWord) {
  std::filesystem::remove(Dossier() + "ModAniLib.ini");
  EXPECT_EQ(Interpreter("actlibr0" + Code("x", "ALani:@4:0:0")), "");
  EXPECT_TRUE(messages.messages.empty());
}

}  // namespace
}  // namespace norvane::test
