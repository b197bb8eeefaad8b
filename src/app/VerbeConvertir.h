// CONVERTIR: documents converted through one LibreOffice started once.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeConvertir(Application& application);

}  // namespace norvane
