// The measure shared by the generator's benchmarks: a template written once
// to a temporary folder, then a whole document made from it on each round.
#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "support/PortsScriptes.h"
#include "template/Generateur.h"

namespace norvane::banc {

inline void MesurerGeneration(benchmark::State& state, const std::string& contenu, Session& session,
                              const std::string& nomDossier) {
  namespace fs = std::filesystem;
  const fs::path dossier = fs::temp_directory_path() / nomDossier;
  fs::create_directories(dossier);
  const std::string modele = (dossier / "modele.tvm").string(), resultat = (dossier / "resultat.rtf").string();
  std::ofstream(modele, std::ios::binary) << contenu;
  MessagesMuets messages;
  ProgressionMuette progression;
  EntitesCourantes entites;
  for (auto _ : state) {
    Generation g(session, messages, progression, entites);
    ResultatDocument r =
        CreerDocument(g, modele, resultat, {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
    benchmark::DoNotOptimize(r);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(contenu.size()));
  fs::remove_all(dossier);
}

}  // namespace norvane::banc
