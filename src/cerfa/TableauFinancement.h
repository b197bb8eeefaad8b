// The financing plan of the Cerfa page ("imemp:finap"): each investment of
// the plan with its loans and grants, the body padded to 27 lines, and the
// summary of the five exercises and beyond.
#pragma once

#include <string>

namespace norvane {

struct TableCerfa;

// `totalGeneral` receives the sum of the investments printed.
std::string TableauFinancement(const TableCerfa& table, double& totalGeneral);

}  // namespace norvane
