// Codes inside a table cell: "%tvl(" ... ")%", so that they do not collide
// with the "#tvl(" of the table's own code. Each is interpreted in place,
// without annotation, and the scan goes on behind its value, so a value is
// never read again as a code.
#include "template/Cellules.h"

#include "template/Directives.h"
#include "template/Interpreteur.h"

namespace norvane {

void InterpreterCellule(Generation& generation, std::string& texte) {
  constexpr std::string_view debut = "%tvl(";
  constexpr std::string_view fin = ")%";
  for (auto p = texte.find(debut); p != std::string::npos; p = texte.find(debut, p)) {
    const auto e = texte.find(fin, p + debut.size());
    if (e == std::string::npos) return;
    std::size_t suite = p + debut.size();
    InterpreterCode(generation, texte, p, suite, e, false, true);
    p = suite;
  }
}

}  // namespace norvane
