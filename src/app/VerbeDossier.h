// DOSSIER: what a dossier holds, printed.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeDossier(Application& application);

}  // namespace norvane
