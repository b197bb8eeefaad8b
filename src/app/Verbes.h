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

// One function a verb, each in its own file.
int VerbeIni(Application& application);
int VerbeOuvrir(Application& application);
int VerbeCreer(Application& application);
int VerbeCerfa(Application& application);
int VerbeGraph(Application& application);
int VerbeDossier(Application& application);
int VerbeGenerer(Application& application);
int VerbeMettreAJour(Application& application);
int VerbeExpliquer(Application& application);
int VerbeConvertir(Application& application);
int VerbeModeles(Application& application);
int VerbeGraphique(Application& application);
int VerbeVerifier(Application& application);
int VerbePDE(Application& application);

}  // namespace norvane
