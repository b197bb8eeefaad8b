// PDE: the PDE Cerfa report made from the stock templates.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbePDE(Application& application);

}  // namespace norvane
