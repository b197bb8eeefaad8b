// %tvl(...)% codes inside the text of a table cell.
#pragma once

#include <string>

#include "template/Generation.h"

namespace norvane {

// Interprets each "%tvl(" ... ")%" of a table cell's text in place, without
// annotation; the scan goes on behind each inserted value.
void InterpreterCellule(Generation& generation, std::string& texte);

}  // namespace norvane
