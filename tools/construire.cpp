// norvane-construire [--strict] <description.json> <installation root>:
// writes the study files that a description names (dossiers, catalogues,
// parameter file...). The builder's notes (texts cut to their field, unknown
// keys) go to standard error; with --strict the description's own faults make
// the run fail, not those that come from a long installation root.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "construction/DescriptionJson.h"

int main(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  const bool strict = !arguments.empty() && arguments[0] == "--strict";
  if (strict) arguments.erase(arguments.begin());
  if (arguments.size() != 2) {
    std::cerr << "Usage : norvane-construire [--strict] <description.json> <racine de l'installation>\n";
    return 2;
  }
  try {
    const auto description = norvane::construction::ChargerDescription(arguments[0]);
    const auto rapport = norvane::construction::ConstruireInstallation(description, arguments[1]);
    for (const std::string& note : rapport.avertissements) std::cerr << "norvane-construire : " << note << "\n";
    for (const std::string& note : rapport.remarques) std::cerr << "norvane-construire : " << note << "\n";
    return strict && !rapport.avertissements.empty() ? 1 : 0;
  } catch (const std::exception& erreur) {
    std::cerr << "norvane-construire : " << erreur.what() << "\n";
    return 1;
  }
}
