// OUVRIR: a document of a dossier opened in the word processor.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeOuvrir(Application& application);

}  // namespace norvane
