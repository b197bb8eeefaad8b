// Dates of generation: date(n) codes, the short date, the dossier's date.
#pragma once

#include <ctime>
#include <string>

#include "study/Enregistrements.h"
#include "template/Generation.h"

namespace norvane {

// "date(n)": the date or time of generation (generation.Maintenant()) in
// format n, 0 to 17, French conventions; "" for any other n.
std::string LireDate(Generation& generation, std::string& code);

// French short date "dd/mm/yyyy" of a moment, in local time.
std::string DateCourte(std::time_t moment);
// dateDossier: date of the dossier file named in the general record.
std::string DateDossier(const DossierGeneral& info);

}  // namespace norvane
