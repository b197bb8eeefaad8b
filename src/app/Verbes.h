// The verbs of the command line: one job, then the program ends.
#pragma once

#include <string>
#include <vector>

#include "app/Application.h"

namespace norvane {

struct Verbe {
  const char* nom;      // compared in upper case
  const char* syntaxe;  // for --help
  const char* aide;     // one line, for --help
  int (*executer)(Application&);
};

const std::vector<Verbe>& TableVerbes();
// Runs the verb named by ParamCmd(1); a verb of no row does nothing and returns 0.
int ExecuterVerbe(Application& application);
std::string TexteAide();

}  // namespace norvane
