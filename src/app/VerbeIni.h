// INI: a document made with no dossier.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeIni(Application& application);

}  // namespace norvane
