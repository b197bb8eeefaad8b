// The loans of the Cerfa page ("imemp:empr2") and its list of young-farmer
// loans ("imemp:empr3"): characteristics, capital due at the start, annuity
// and interest of each year of the study, capital due at the end, and a
// "TOTAL GENERAL" row.
#pragma once

#include <string>

#include "tables/ImmoEmprunts.h"

namespace norvane {

struct TableCerfa;

// Whether a loan stands in the table: all but the category 2 without
// `jeuneAgriculteur`; with it, the MTS-JA loans of the categories beyond
// existing (0) and new (1).
bool EmpruntRetenu(const FicheEmprunt& emprunt, bool jeuneAgriculteur);

std::string TableauEmprunts(const TableCerfa& table, bool jeuneAgriculteur);

}  // namespace norvane
