// INI: codes: values of donnees.INI.
#pragma once

#include <string>

#include "template/Generation.h"

namespace norvane {

// "INI:[section:]key": the value of RepNorvane + "donnees.INI". Without a
// section the section is "Général". A missing file gives a warning and "".
std::string LireDonneeIni(Generation& generation, std::string& code);

}  // namespace norvane
