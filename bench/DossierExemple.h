// The example dossier of the installation tree, which the benchmarks read:
// the company study, with its tables, crops, loans and financing plan.
#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "study/Session.h"

namespace norvane::banc {

inline std::filesystem::path DossierExemple() {
  const std::filesystem::path d = std::filesystem::path(NORVANE_ARBRE) / "Dossier" / "GAEC_DES_TILLEULS.TVL";
  return std::filesystem::is_directory(d) ? d : std::filesystem::path();
}

// Puts the example dossier in slot 0; false, with the run marked as skipped,
// when the installation tree has not been built.
inline bool PlacerDossierExemple(Session& session, benchmark::State& state) {
  const std::filesystem::path d = DossierExemple();
  if (d.empty()) {
    state.SkipWithError("pas de dossier d'exemple : construire l'arbre d'installation d'abord");
    return false;
  }
  session.RepDossier[0] = d.parent_path().string() + "/";
  session.NomDossier[0] = d.filename().string();
  return true;
}

}  // namespace norvane::banc
