// Start of the program: paths, settings, parameter file, then the command line.
#pragma once

namespace norvane {

int Demarrer(int argc, char** argv);

}  // namespace norvane
