// The words of the vocabulary table: the general fields of the dossier.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "template/Generation.h"
#include "template/IssueCode.h"

namespace norvane {

// A word of the vocabulary table (saut2page, numPage2, nomExploit...), or
// std::nullopt when the code is none of them.
std::optional<IssueCode> ChampGeneral(Generation& generation, const std::string& code);

// A help phrase of a family with its index in place of "<n>" and "<d>".
std::string AideAvecIndice(std::string_view aide, int indice);

}  // namespace norvane
