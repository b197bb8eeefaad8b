// Speed of the generator on large templates: (a) no codes, (b) a general
// field every 200 bytes, (c) series and formula codes every 200 bytes against
// the example dossier of the installation tree. Each runs at 1 MB and 10 MB,
// so that the cost per byte can be compared across sizes.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "DossierExemple.h"
#include "MesureGeneration.h"
#include "support/PortsScriptes.h"
#include "template/Generateur.h"

namespace {

using namespace norvane;
namespace fs = std::filesystem;

// An RTF body of `taille` bytes, with one of `codes` in turn every 200 bytes.
std::string Modele(std::size_t taille, const std::vector<std::string>& codes) {
  std::string t =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}{\\colortbl;\\red0\\green0\\blue0;}\r\n";
  const std::string texte = "Le r\\'e9sultat courant de l'exploitation progresse r\\'e9guli\\'e8rement. ";
  std::size_t depuisCode = 0, suivant = 0;
  while (t.size() < taille) {
    if (!codes.empty() && depuisCode >= 200) {
      t += codes[suivant++ % codes.size()];
      depuisCode = 0;
    }
    t += texte;
    depuisCode += texte.size();
    if (t.size() % 240 < texte.size()) t += "\\par\r\n";
  }
  return t + "}\r\n";
}

void Generer(benchmark::State& state, const std::vector<std::string>& codes, bool avecDossier) {
  const std::size_t taille = static_cast<std::size_t>(state.range(0)) << 20;
  Session session;
  if (avecDossier) {
    if (!banc::PlacerDossierExemple(session, state)) return;
  } else {
    session.InfoDossier.NomExploitation = "GAEC DES TILLEULS";
  }
  banc::MesurerGeneration(state, Modele(taille, codes), session, "nv-bench");
}

void SansCode(benchmark::State& state) { Generer(state, {}, false); }
void ChampGeneral(benchmark::State& state) { Generer(state, {"#tvl(nomExplSoc)#"}, false); }
// A series value, a statistic and a formula in turn.
void SeriesEtFormules(benchmark::State& state) {
  Generer(state, {"#tvl(RES.DON+RES-3a1)#", "#tvl(RES.DON+RES-som2)#", "#tvl(formule:2a:LG(RES-1)-LG(RES-2):0)#"},
          true);
}

}  // namespace

BENCHMARK(SansCode)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(ChampGeneral)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(SeriesEtFormules)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
