// Calendar dates of the study: exercises, ages, month names.
#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

#include "study/Enregistrements.h"

namespace norvane {

// A calendar date as the study files write it ("dd/mm/yyyy").
struct DateCivile {
  int jour = 1;
  int mois = 1;
  int annee = 1;
};
std::optional<DateCivile> LireDateCivile(std::string_view texte);
// Same day n years on; 29 February becomes 28 February in a common year.
DateCivile AjouterAnnees(DateCivile date, int annees);
DateCivile VeilleDe(DateCivile date);

// Exercise d (0..9) of the study: date<d>, an2/an4 Deb/Fin, mois2/moisC Deb/Fin.
// Empty when the study's DateDebut is no date.
std::string DateExercice(const DossierGeneral& info, int d);
std::string AnneeExercice(const DossierGeneral& info, int d, bool fin, int chiffres);
std::string MoisExercice(const DossierGeneral& info, int d, bool fin, bool enClair);
// Whole years from a birth date to `maintenant`; "??" when the date is unknown.
std::string AgeEnAnnees(std::string_view naissance, std::time_t maintenant);

// "Jan.", "Fév."... (Windows-1252); empty outside 1..12.
std::string MoisClair(int mois);

}  // namespace norvane
