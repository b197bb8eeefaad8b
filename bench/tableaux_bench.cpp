// Speed of table generation against the example dossier of the installation
// tree, its study stretched to ten years: (a) one table of 125 to 500 lines
// (series of RES.DON, a total every tenth line, a heading first), alone;
// (b) a template holding 25 to 100 such tables of 500 lines, generated whole.
// Cost should grow linearly with lines and with tables.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "DossierExemple.h"
#include "frame/Ports.h"
#include "study/DossierGeneral.h"
#include "tables/GenerationTableau.h"
#include "tables/MultiDossier.h"
#include "tables/TableauxDocument.h"
#include "template/Generateur.h"

namespace {

using namespace norvane;
namespace fs = std::filesystem;

constexpr int16_t kAnnees = 10;
const std::string kFormat = "5006;10;1;0;0;0;0;0;r;1;1;1;1;8";

// A table code of `lignes` lines over the years.
std::string CodeTableau(int lignes) {
  std::string code = "taba2p1cr0;larg2400;larg9000([280;120][;" + kFormat + "][entete:1:;" + kFormat + "]";
  for (int n = 2; n <= lignes; ++n) {
    const std::string definition = n % 10 == 0
                                       ? "totalS:LG" + std::to_string(n - 1) + "+LG" + std::to_string(n - 2) + ":0:0"
                                       : "serie:RES.DON+RES-" + std::to_string(n % 27 + 1) + ":0:0";
    code += "#[280;120][Ligne_" + std::to_string(n) + ";" + kFormat + "][" + definition + ";" + kFormat + "]";
  }
  return code + ")";
}

// The session on the example dossier, with ten study years.
bool PreparerSession(Session& session, benchmark::State& state) {
  if (!banc::PlacerDossierExemple(session, state)) return false;
  ChargerInfoDossier(session);
  session.InfoDossier.NbAnEtude = kAnnees;
  return true;
}

void UnTableau(benchmark::State& state) {
  Session session;
  if (!PreparerSession(session, state)) return;
  const std::string code = CodeTableau(static_cast<int>(state.range(0)));
  MessagesMuets messages;
  ProgressionMuette progression;
  EntitesCourantes entites;
  ChoixDossiersParSlots choix(session);
  std::size_t octets = 0;
  // A fresh generation each time: its files are read again, as in a real run.
  for (auto _ : state) {
    Generation generation(session, messages, progression, entites);
    TableauxDocument tableaux(choix);
    const std::string rtf = GenererTableau(generation, tableaux, code);
    octets = rtf.size();
    benchmark::DoNotOptimize(rtf);
  }
  state.counters["lignes"] = static_cast<double>(state.range(0));
  state.counters["octets_rtf"] = static_cast<double>(octets);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

// A whole document: the generator with the command line's tables, the
// dossier reloaded as each generation does (so its years are set in the
// copy of the record that the tables read, through AnneesCerfa).
void ModeleDeTableaux(benchmark::State& state) {
  Session session;
  if (!PreparerSession(session, state)) return;
  const fs::path dossier = fs::temp_directory_path() / "nv-bench-tableaux";
  fs::create_directories(dossier);
  const std::string modele = (dossier / "modele.tvm").string(), resultat = (dossier / "resultat.rtf").string();
  {
    std::ofstream flux(modele, std::ios::binary);
    flux << "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0\\green0\\blue0;}\r\n";
    const std::string code = CodeTableau(500);
    for (int t = 0; t < state.range(0); ++t) flux << "{\\pard Tableau " << t << "\\par}{#tvl(" << code << ")#}\r\n";
    flux << "}\r\n";
  }
  MessagesMuets messages;
  ProgressionMuette progression;
  EntitesCourantes entites;
  for (auto _ : state) {
    Generation generation(session, messages, progression, entites);
    generation.AnneesCerfa = kAnnees;
    ChoixDossiersParSlots choix(session);
    TableauxDocument tableaux(choix);
    generation.tableaux = &tableaux;
    ResultatDocument r = CreerDocument(generation, modele, resultat,
                                       {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
    benchmark::DoNotOptimize(r);
  }
  state.counters["tableaux"] = static_cast<double>(state.range(0));
  state.SetItemsProcessed(state.iterations() * state.range(0));
  fs::remove_all(dossier);
}

}  // namespace

BENCHMARK(UnTableau)->Arg(125)->Arg(250)->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK(ModeleDeTableaux)->Arg(25)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
