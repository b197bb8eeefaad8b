// MODELES: the trees of the table and graph stores, or one model's code.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeModeles(Application& application);

}  // namespace norvane
