// What a command-line run of the program holds: the session, the console
// ports, the positional arguments and the options of the headless verbs.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frame/Ports.h"
#include "study/Session.h"

namespace norvane {

struct OptionsLigne {
  bool remplacer = false;              // --remplacer: no replacement question
  bool ouvrir = false;                 // --ouvrir: open the result when done
  std::optional<Reponse> reponse;      // --reponse=oui|non: the answer to every question
  std::vector<std::string> comparer;   // --comparer=<dossier>, slots 1 to 9
  std::optional<std::string> annees;   // --annees=N: the text of the Cerfa frame's years box
  int page = 0;                        // --page=0..15: page of the PDE report, 0 the whole report
  std::string format;                  // --format=doc|odt|pdf|rtf: the format CONVERTIR makes
  std::string dossierSortie;           // --dossier-sortie=<dossier>: where CONVERTIR writes
  bool aide = false;                   // --help
  bool version = false;                // --version
  std::vector<std::string> inconnues;  // options not understood
};

struct Application {
  Session& session;
  PortMessages& messages;
  PortProgression& progression;
  // Positional arguments, ParamCmd(1) first (the verb).
  std::vector<std::string> arguments;
  OptionsLigne options;

  // ParamCmd(n), 1-based; empty when there are fewer arguments.
  std::string Param(std::size_t n) const { return n >= 1 && n <= arguments.size() ? arguments[n - 1] : std::string(); }
};

}  // namespace norvane
