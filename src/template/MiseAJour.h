// Update of a result document: each field "{\v #debdata#}value{\v #findata=#tvl(...)#}"
// gets its value recomputed from the dossier, in place.
#pragma once

#include <string>

#include "template/Generateur.h"

namespace norvane {

// Called by CreerDocument with its update flag on.
ResultatDocument MettreAJourDocument(Generation& generation, const std::string& document,
                                     const std::string& resultat, bool sansOuvrir);

}  // namespace norvane
