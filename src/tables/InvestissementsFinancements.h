// The investments and financing table ("imemp:inves"): for each entry of the
// financing plan, its object and amount on the left, its grants and loans on
// the right, then a TOTAL row and the self-financing that remains.
#pragma once

#include <cstdint>
#include <string>

#include "tables/CellulesRtf.h"
#include "tables/ImmoEmprunts.h"

namespace norvane {

struct ContexteTableau;

std::string InvestissementsFinancements(ContexteTableau& contexte, const CelluleRtf& format,
                                        const std::string& debut, int16_t decimales);

// The amount of a plan entry: its MontantPlan when Pourcentage is 100 or
// more, otherwise the sum of the assets that belong to it.
double MontantInvestissement(const FichePlan& entree, const std::vector<FicheImmo>& immos);

}  // namespace norvane
