// The guard every job that writes a file goes through: what the user gave us
// to read is never written over. A result is refused when it is the file the
// job reads (its template), when it lies inside a study dossier (a ".TVL"
// folder, or a dossier of the job whatever its name), or when it bears the
// name of one of the stores the program rewrites whole. Paths are compared
// as the system resolves them: names without regard to case, symbolic links
// followed, "." and ".." taken out, hard links seen as the same file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

// Stores the program rewrites whole: a result never takes one of these names.
inline constexpr std::string_view kNomsMagasins[] = {"Editeur.svg", "tableaux.txt", "graph.txt"};

struct DemandeEcriture {
  std::string cible;                  // the file about to be written (or removed)
  std::vector<std::string> lus;       // files the job reads, never written over
  std::vector<std::string> dossiers;  // study dossiers of the job: nothing inside them is written
};

// Why the target may not be written, as a sentence for the user; nothing
// when it may.
std::optional<std::string> RefusEcriture(const DemandeEcriture& demande);

// The advice that goes with a refusal.
inline constexpr char kConseilRefusEcriture[] = "Choisissez un autre nom ou un autre répertoire pour le document résultat.";

}  // namespace norvane
