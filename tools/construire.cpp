// norvane-construire <description.json> <installation root>: writes the study
// files that a description names (dossiers, catalogues, parameter file...).
#include <exception>
#include <iostream>

#include "construction/DescriptionJson.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "Usage : norvane-construire <description.json> <racine de l'installation>\n";
    return 2;
  }
  try {
    const auto description = norvane::construction::ChargerDescription(argv[1]);
    for (const std::string& note : norvane::construction::ConstruireInstallation(description, argv[2])) {
      std::cerr << "norvane-construire : " << note << "\n";
    }
  } catch (const std::exception& erreur) {
    std::cerr << "norvane-construire : " << erreur.what() << "\n";
    return 1;
  }
  return 0;
}
