// The financing plan over the study's years ("imemp:finan", "imemp:finaa"):
// each investment with its loans and grants and what they weigh each year,
// then the totals of the years. The variant "a" leaves out the year columns
// of the plan, its padding and the two rows that the form keeps empty.
#pragma once

#include <string>

namespace norvane {

struct TableCerfa;

// `totalGeneral` receives the sum of the investments printed.
std::string TableauFinancementAnnuel(const TableCerfa& table, bool varianteA, double& totalGeneral);

}  // namespace norvane
