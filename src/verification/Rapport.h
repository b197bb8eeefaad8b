// The report of a template check: a French text for the terminal, or JSON
// for scripts.
#pragma once

#include <string>
#include <vector>

#include "verification/VerificationCode.h"

namespace norvane {

// One block a code, then a summary: the counts of errors and of warnings,
// the errors, then the warnings.
std::string RapportTexte(const std::string& modele, const std::vector<CodeVerifie>& codes, bool avecValeurs);

// A JSON array, one object a code: ligne, colonne, page, paragraphe, code,
// sens, statut ("valide", "avertissement" or "erreur"), message, and valeur
// with a dossier.
std::string RapportJson(const std::vector<CodeVerifie>& codes, bool avecValeurs);

// "valide", "avertissement", "erreur".
const char* NomStatut(Statut statut);

// `texte` (UTF-8) as a JSON string, quotes included.
std::string ChaineJson(const std::string& texte);

}  // namespace norvane
