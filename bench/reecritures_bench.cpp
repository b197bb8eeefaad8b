// Speed of the generator on templates held on one long line whose codes make
// it rewrite the piece in hand: the cut of a paragraph mark after a false
// condition, the repair of a bookmark torn into a start mark, the extension
// of repeated font and colour tables; plain codes for comparison. Each runs
// at 1, 2 and 4 MB: a cost per byte that stays the same across sizes is the
// linear cost the generator must keep.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "MesureGeneration.h"
#include "frame/Ports.h"
#include "template/Generateur.h"

namespace {

using namespace norvane;
namespace fs = std::filesystem;

// One line of `taille` bytes: `motif` repeated, in an RTF group.
std::string Ligne(std::size_t taille, const std::string& motif) {
  std::string t = "{\\rtf1 ";
  while (t.size() + motif.size() < taille) t += motif;
  return t + "}";
}

void Generer(benchmark::State& state, const std::string& motif) {
  const std::size_t taille = static_cast<std::size_t>(state.range(0)) << 20;
  Session session;
  session.InfoDossier.NomExploitation = "GAEC DES TILLEULS";
  banc::MesurerGeneration(state, Ligne(taille, motif), session, "nv-bench-reecritures");
}

void CodesSimples(benchmark::State& state) { Generer(state, "#tvl(nomExploit)# texte courant \\par "); }
void ConditionsFausses(benchmark::State& state) { Generer(state, "#tvl(si(0<>0)alors:nomExploit)#x\\par y "); }
void SignetsDansLaMarque(benchmark::State& state) {
  Generer(state, "#tvl{\\*\\bkmkend DDE_LINK}(nomExploit)# texte \\par ");
}
// A table every 200 bytes or so: each one is extended once by the code
// in front of it and once by its own round.
void TablesDePolices(benchmark::State& state) {
  Generer(state, "{\\fonttbl{\\f0 Arial;}}#tvl(nomExploit)# " + std::string(160, 't') + "\\par ");
}
void TablesDeCouleurs(benchmark::State& state) {
  Generer(state, "{\\colortbl;\\red0\\green0\\blue0;}#tvl(nomExploit)# " + std::string(160, 't') + "\\par ");
}

}  // namespace

BENCHMARK(CodesSimples)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(ConditionsFausses)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(SignetsDansLaMarque)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(TablesDePolices)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(TablesDeCouleurs)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
