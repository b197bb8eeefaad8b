// Speed of the charts: each of the twelve types drawn at print resolution and
// encoded as the PNG picture group of a document (with and without the BMP
// file that generation leaves behind), and a template holding 30 charts of
// the example store generated against the example dossier.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "DossierExemple.h"
#include "graphs/CodeGraphique.h"
#include "graphs/GraphiquesGeneration.h"
#include "graphs/StockGraphiques.h"
#include "graphs/render/Fabriques.h"
#include "graphs/render/ModelesEssai.h"
#include "support/PortsScriptes.h"
#include "template/Generateur.h"

namespace {

using namespace norvane;
namespace fs = std::filesystem;

void Dessiner(benchmark::State& state, const std::string& repModelGraph) {
  ModeleGraphique modele = test::ModeleEssai(static_cast<int16_t>(state.range(0)));
  const GrilleGraphique grille = test::GrilleEssai(modele);
  const auto dessin = CreerDessinGraphique(repModelGraph);
  std::size_t octets = 0;
  for (auto _ : state) {
    const std::string rtf = dessin->ImageGraphique(modele, grille);
    octets = rtf.size();
    benchmark::DoNotOptimize(rtf.data());
  }
  state.SetLabel(std::string(NomCourtTypeGraphique(static_cast<int>(state.range(0)))) + ", " +
                 std::to_string(octets / 1024) + " Kio de RTF");
}

// Drawing, PNG and its RTF text.
void GraphiqueParType(benchmark::State& state) { Dessiner(state, ""); }

// The same, with graphSvg.bmp written as generation does.
void GraphiqueParTypeAvecBmp(benchmark::State& state) {
  const fs::path rep = fs::temp_directory_path() / "nv-bench-graph";
  Dessiner(state, rep.string());
  fs::remove_all(rep);
}

// 30 gph codes of the example store, 5 a page of text.
void ModeleTrenteGraphiques(benchmark::State& state) {
  const fs::path dossier = banc::DossierExemple();
  StockGraphiques stock;
  MessagesScriptes messages;
  ChargerGraphiques(stock, (fs::path(NORVANE_ARBRE) / "ModelGraph").string() + "/", messages);
  if (dossier.empty() || stock.NbGraphiques == 0) {
    state.SkipWithError("pas d'arbre d'installation d'exemple : le construire d'abord");
    return;
  }
  const fs::path travail = fs::temp_directory_path() / "nv-bench-30";
  fs::create_directories(travail);
  std::string texte = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Arial;}}\r\n";
  for (int i = 0; i < 30; ++i) {
    texte += "\\par Graphique " + std::to_string(i + 1) + " :\\par " +
             CodeGraphiqueInsere(stock.Slot(1 + i % stock.NbGraphiques)) + "\\par\r\n";
  }
  texte += "}\r\n";
  const std::string modele = (travail / "trente.tvm").string(), resultat = (travail / "trente.rtf").string();
  std::ofstream(modele, std::ios::binary) << texte;

  Session session;
  session.RepDossier[0] = dossier.parent_path().string() + "/";
  session.NomDossier[0] = dossier.filename().string();
  ProgressionMuette progression;
  EntitesCourantes entites;
  const auto dessin = CreerDessinGraphique((travail / "ModelGraph").string());
  for (auto _ : state) {
    Generation g(session, messages, progression, entites);
    GraphiquesGeneration graphiques(dessin.get(), [] { return 0.5; });
    g.graphiques = &graphiques;
    ResultatDocument r =
        CreerDocument(g, modele, resultat, {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
    benchmark::DoNotOptimize(r);
  }
  fs::remove_all(travail);
}

}  // namespace

BENCHMARK(GraphiqueParType)->DenseRange(1, 12)->Unit(benchmark::kMillisecond);
BENCHMARK(GraphiqueParTypeAvecBmp)->DenseRange(1, 12)->Unit(benchmark::kMillisecond);
BENCHMARK(ModeleTrenteGraphiques)->Unit(benchmark::kMillisecond);
BENCHMARK_MAIN();
