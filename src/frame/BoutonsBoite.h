// The buttons of a plain question box, shared by every implementation of
// PortMessages so that all of them take the same default answer.
#pragma once

#include <vector>

#include "frame/Ports.h"

namespace norvane {

// The answers a box offers, in the order of its buttons.
std::vector<Reponse> ReponsesPossibles(Boutons boutons);
// The answer of the default button; an index out of range means the first.
Reponse ReponseParDefaut(Boutons boutons, int boutonParDefaut);
// True when `reponse` is one of the box's buttons.
bool EstReponsePossible(Boutons boutons, Reponse reponse);

}  // namespace norvane
