// The lines of a table code, checked as generation would print them, once
// the code has been decoded: the table itself is not built.
#pragma once

#include "tables/ModeleTableau.h"
#include "template/Generation.h"
#include "verification/VerificationCode.h"

namespace norvane {

// Only the lines that get value columns say anything, as in generation. A
// year heading of a kind the table engine does not know is a fault, in the
// words of generation. The series of "serie:" lines and of total formulas are
// read from the dossiers the table reads, so that what a dossier lacks is
// told; a total formula whose text cannot be read is told, whatever values
// its lines would have. `generation` speaks through `messages`.
void VerifierLignesTableau(Generation& generation, MessagesEnregistres& messages, const ModeleTableau& modele);

}  // namespace norvane
