// norvane-construire-graphiques [--strict] <graphiques.json> <installation root>:
// writes <root>/ModelGraph/graph.txt from a description of graph models. The
// description's faults go to standard error; with --strict they make the run
// fail.
#include <exception>
#include <memory>
#include <stdexcept>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "frame/ResolutionChemins.h"
#include "graphiques/DescriptionGraphiques.h"

int main(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  const bool strict = !arguments.empty() && arguments[0] == "--strict";
  if (strict) arguments.erase(arguments.begin());
  if (arguments.size() != 2) {
    std::cerr << "Usage : norvane-construire-graphiques [--strict] <graphiques.json> <racine de l'installation>\n";
    return 2;
  }
  try {
    std::ifstream flux(arguments[0]);
    if (!flux) throw std::runtime_error("lecture impossible de " + arguments[0]);
    const auto description = norvane::construction::Json::parse(flux);
    norvane::construction::Journal journal;
    auto stock = std::make_unique<norvane::StockGraphiques>();
    norvane::construction::ConstruireGraphiques(description, *stock, journal);
    for (const std::string& note : journal.avertissements) std::cerr << "norvane-construire-graphiques : " << note << "\n";
    const std::string rep = norvane::JoindreChemin(arguments[1], "ModelGraph/");
    if (!norvane::SauverGraphiques(*stock, rep)) throw std::runtime_error("écriture impossible dans " + rep);
    return strict && !journal.avertissements.empty() ? 1 : 0;
  } catch (const std::exception& erreur) {
    std::cerr << "norvane-construire-graphiques : " << erreur.what() << "\n";
    return 1;
  }
}
