#if __has_include("frame/Editeur.h") && __has_include("study/DossierGeneral.h")  // TEMPORAIRE
#include "app/Demarrage.h"

#include <iostream>

#include "app/Verbes.h"
#include "app/Version.h"

namespace norvane {

int Demarrer(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  if (!arguments.empty() && arguments[0] == "--help") {
    std::cout << TexteAide();
    return 0;
  }
  if (!arguments.empty() && arguments[0] == "--version") {
    std::cout << "norvane " NORVANE_VERSION "\n";
    return 0;
  }
  return 0;
}

}  // namespace norvane
#endif  // TEMPORAIRE
