// VERIFIER: every code of a template checked, nothing generated.
#pragma once

#include "app/Application.h"

namespace norvane {

int VerbeVerifier(Application& application);

}  // namespace norvane
