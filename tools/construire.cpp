// norvane-construire [--strict] <description.json> <installation root>:
// writes the study files that a description names (dossiers, catalogues,
// parameter file...). The builder's notes (texts cut to their field, unknown
// keys) go to standard error; with --strict the description's own faults make
// the run fail, not those that come from a long installation root.
#include <iostream>
#include <string>
#include <vector>

#include "construction/DescriptionJson.h"

namespace {

int Echec(const norvane::ErreurLecture& erreur) {
  std::cerr << "norvane-construire : " << erreur.texte << "\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  const bool strict = !arguments.empty() && arguments[0] == "--strict";
  if (strict) arguments.erase(arguments.begin());
  if (arguments.size() != 2) {
    std::cerr << "Usage : norvane-construire [--strict] <description.json> <racine de l'installation>\n";
    return 2;
  }
  const auto description = norvane::construction::ChargerDescription(arguments[0]);
  if (!description) return Echec(description.Erreur());
  const auto rapport = norvane::construction::ConstruireInstallation(*description, arguments[1]);
  if (!rapport) return Echec(rapport.Erreur());
  for (const std::string& note : rapport->avertissements) std::cerr << "norvane-construire : " << note << "\n";
  for (const std::string& note : rapport->remarques) std::cerr << "norvane-construire : " << note << "\n";
  return strict && !rapport->avertissements.empty() ? 1 : 0;
}
