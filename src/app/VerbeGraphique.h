// GRAPHIQUE: one chart drawn to a PNG file.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeGraphique(Application& application);

}  // namespace norvane
