// Speed of the PDE Cerfa report: the whole report of the company example
// (GAEC_DES_TILLEULS, so PDECerfasoc.tvm with the two company sheets) over
// five years, generated to an RTF file by the same work as the PDE verb's,
// before any conversion. The stock templates are those of the installation
// tree (target pde_stock).
#include <benchmark/benchmark.h>

#include <filesystem>

#include "DossierExemple.h"
#include "app/Travail.h"
#include "cerfa/ChoixPDE.h"
#include "frame/Chemins.h"
#include "frame/Ports.h"
#include "template/Generateur.h"

namespace {

using namespace norvane;
namespace fs = std::filesystem;

void RapportComplet(benchmark::State& state) {
  Session session;
  InitChemins(session, std::string(NORVANE_ARBRE) + "/Norvane");
  if (!banc::PlacerDossierExemple(session, state)) return;
  MessagesMuets messages;
  ProgressionMuette progression;
  const std::string modele = session.RepNorvane + ModelePDE(0, true, messages);
  if (!fs::exists(modele)) {
    state.SkipWithError("pas de modèles du PDE : construire pde_stock d'abord");
    return;
  }
  Application application{session, messages, progression, {}, {}};
  const fs::path sortie = fs::temp_directory_path() / "nv-bench-pde";
  fs::create_directories(sortie);
  const std::string resultat = (sortie / "PDECerfa.rtf").string();
  int32_t codes = 0;
  for (auto _ : state) {
    Travail travail(application);
    travail.generation().AnneesCerfa = kAnneesPDEParDefaut;
    const ResultatDocument r = CreerDocument(travail.generation(), modele, resultat,
                                             {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
    codes = r.nbCodes;
  }
  state.counters["codes"] = static_cast<double>(codes);
  state.counters["octets_rtf"] = static_cast<double>(fs::file_size(resultat));
  fs::remove_all(sortie);
}

}  // namespace

BENCHMARK(RapportComplet)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
