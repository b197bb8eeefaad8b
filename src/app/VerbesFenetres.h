// CREER, CERFA and GRAPH: the verbs that open windows of the graphical build.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeCreer(Application& application);
int VerbeCerfa(Application& application);
int VerbeGraph(Application& application);

}  // namespace norvane
