// What the dispatch chain of the interpreter makes of one cleaned code, and
// the chain itself.
#pragma once

#include <string>

#include "template/Generation.h"

namespace norvane {

// How the explanation box of a code is put together.
enum class FormeAide {
  Normale,    // text: entete + help; advice: exemple + ": " + value
  Precision,  // as Normale, with `precision` in place of ":" in the advice
  TexteSeul,  // the help is the whole text; no advice (saut2page, tables, graphs)
};

// What the dispatch chain made of one cleaned code.
struct IssueCode {
  bool inchange = false;  // nothing inserted: the code stays in the text as it stands
  std::string valeur;     // Windows-1252, inserted through InsererValeur
  std::string aide;       // UTF-8; empty: no explanation box
  FormeAide forme = FormeAide::Normale;
  std::string precision;  // UTF-8, for FormeAide::Precision
};

// The chain behind the condition: vocabulary, ORGA, INFO:, INI:, date(,
// tables, graphs, formulas, series, unknown code.
IssueCode ResoudreCode(Generation& generation, std::string& code, bool explication);

}  // namespace norvane
