// The graph store as the MODELES verb shows it.
#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "app/Application.h"

namespace norvane {

// The tree of graph.txt, one node a line, two blanks a level, in UTF-8.
void ArbreGraphiquesVersSortie(Application& application, std::ostream& sortie);

// "#tvl(gph(...))#" of the first model whose trimmed title is `nomUtf8`
// trimmed; std::nullopt when there is none. Windows-1252.
std::optional<std::string> CodeModeleGraphique(Application& application, const std::string& nomUtf8);

}  // namespace norvane
