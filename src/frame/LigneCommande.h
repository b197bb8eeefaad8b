// The command line: how the parent product passes a job to the program.
// It cannot always quote, so a blank inside a path travels as a placeholder
// word: "#esp#" for the INI verb, "#tvl#" for the verbs on a dossier.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Session.h"

namespace norvane {

// Splits a raw command line. Outside an argument, a double quote opens a
// quoted argument and any other non-blank character a plain one; a quoted
// argument ends at the next double quote, a plain one at the next blank. The
// last argument counts even when left open. Double quotes are never kept.
std::vector<std::string> DecouperLigneCommande(std::string_view ligne);

// The arguments of a Linux process (already split by the shell, program name
// left out): double quotes removed from each, and arguments that are blank
// after trimming dropped, so that a list of blanks only counts as none.
std::vector<std::string> ArgumentsProcessus(const std::vector<std::string>& argv);

int16_t NbParamCmd(const std::vector<std::string>& arguments);
// Argument `index` (from 1); empty when there are fewer.
std::string ParamCmd(const std::vector<std::string>& arguments, int index);

// Every `marqueur` ("#esp#", "#tvl#"), in any case, becomes a blank.
std::string RemplacerBlancs(std::string_view texte, std::string_view marqueur);

// Takes a dossier argument apart into slot 0: "#tvl#" becomes a blank, one
// trailing separator ("/" or "\") is dropped, the part behind the last
// separator goes to NomDossier[0] and the part up to and including it to
// RepDossier[0] (so that RepDossier[0] + NomDossier[0] names the folder).
void DecouperArgumentDossier(std::string_view texte, SessionCadre& session);

}  // namespace norvane
