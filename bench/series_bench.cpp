// The series reader as a table of 500 lines over 10 years asks it: 5,000
// codes on RES.DON of the example dossier, each file read at each call
// (no cache) or once for the whole run (the generation's cache).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "DossierExemple.h"
#include "frame/Ports.h"
#include "study/CacheEtude.h"
#include "study/Series.h"

namespace {

using namespace norvane;
namespace fs = std::filesystem;

// "RES.DON+RES-<year>a<line>" for 500 lines and years 1 to 10.
std::vector<std::string> CodesTableau() {
  std::vector<std::string> codes;
  for (int ligne = 1; ligne <= 500; ++ligne) {
    for (int annee = 1; annee <= 10; ++annee) {
      codes.push_back("RES.DON+RES-" + std::to_string(annee) + "a" + std::to_string(ligne % 28 + 1));
    }
  }
  return codes;
}

void TableauDeSeries(benchmark::State& etat, bool avecCache) {
  Session session;
  if (!banc::PlacerDossierExemple(session, etat)) return;
  MessagesMuets messages;
  EntitesCourantes entites;
  const std::vector<std::string> codes = CodesTableau();
  for (auto _ : etat) {
    CacheEtude cache;  // one generation
    const ContexteSeries contexte{session, messages, entites, avecCache ? &cache : nullptr};
    for (const std::string& code : codes) {
      std::string copie = code;
      int16_t annee = -1;
      int16_t decimales = -1;
      benchmark::DoNotOptimize(LireSerie(contexte, copie, 11, annee, decimales, 0));
    }
  }
  etat.SetItemsProcessed(etat.iterations() * static_cast<int64_t>(codes.size()));
}

BENCHMARK_CAPTURE(TableauDeSeries, sans_cache, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(TableauDeSeries, cache_de_generation, true)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
