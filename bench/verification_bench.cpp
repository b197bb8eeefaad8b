// Speed of the template checker: a 1 MB template holding 5,000 codes of
// every family (fields, series, formulas, conditions, tables, graphs, a few
// wrong ones), checked against the example dossier of the installation tree
// and without a dossier.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "DossierExemple.h"
#include "study/DossierGeneral.h"
#include "verification/VerificationModele.h"

namespace {

using namespace norvane;

const std::vector<std::string> kCodes = {
    "#tvl(nomExplSoc)#",
    "#tvl(commune)#",
    "#tvl(RES.DON+RES-2a17)#",
    "#tvl(RES.DON+RES-som1)#",
    "#tvl(formule:3a:LG(RES-17)/LG(RES-1)*100:1)#",
    "#tvl(si(RES.DON+RES-17>0)alors:RES.DON+RES-i17)#",
    "#tvl(taba2p1cr0;larg3400;larg6200([340;80][Exercice;5006;9;1;1;0;0;0;0;l;1;1;1;1;16][entete:1;5006;9;1;1;0;"
    "0;0;0;c;1;1;1;1;16]#[300;80][Produit_brut;5006;9;1;0;0;0;0;0;l;0;0;1;1;8][serie:RES.DON+RES-1:0:0;5006;9;1;0;"
    "0;0;0;0;r;0;0;1;1;8]))#",
    "#tvl(gph(Produit_brut;9;1;1;0;Source;0;0;2;5;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;0;20;30;1;1;1;1;Annees;10;30;Euros;"
    "10;30;;12;30;;12;30;14;[RES-1:0;Produit_brut;1;RES.DON;0;21;101;192;30;1]))#",
    "#tvl(motInconnu)#",
    "#tvl(date(8))#",
};

// About 1 MB of RTF with `nombre` codes spread evenly through it.
std::string Modele(std::size_t nombre) {
  std::string t = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\r\n";
  const std::string texte = "Le r\\'e9sultat courant de l'exploitation progresse r\\'e9guli\\'e8rement. ";
  const std::size_t parCode = (std::size_t{1} << 20) / nombre;
  for (std::size_t n = 0; n < nombre; ++n) {
    const std::size_t debut = t.size();
    t += kCodes[n % kCodes.size()];
    while (t.size() - debut < parCode) t += texte;
    t += "\\par\r\n";
  }
  return t + "}\r\n";
}

void Verifier(benchmark::State& state, bool avecDossier) {
  const std::string modele = Modele(5000);
  Session session;
  if (avecDossier && !banc::PlacerDossierExemple(session, state)) return;
  const EntitesCourantes entites;
  std::size_t codes = 0;
  for (auto _ : state) {
    const std::vector<CodeVerifie> resultat = VerifierModele(session, entites, modele);
    codes = resultat.size();
    benchmark::DoNotOptimize(resultat.data());
  }
  state.counters["codes"] = static_cast<double>(codes);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * modele.size()));
}

void BM_VerificationAvecDossier(benchmark::State& state) { Verifier(state, true); }
void BM_VerificationSansDossier(benchmark::State& state) { Verifier(state, false); }

BENCHMARK(BM_VerificationAvecDossier)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_VerificationSansDossier)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
