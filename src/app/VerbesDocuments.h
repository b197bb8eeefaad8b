// GENERER, METTREAJOUR and EXPLIQUER: the headless jobs on documents.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeGenerer(Application& application);
int VerbeMettreAJour(Application& application);
int VerbeExpliquer(Application& application);

}  // namespace norvane
