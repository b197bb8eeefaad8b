// The table producers of a document that may hold Cerfa pages: those of the
// table engine, with the keys of the Cerfa report added to the "imemp"
// lines ("inve1", "finap", "finan", "finaa", "empr2", "empr3"), and the
// values of the "imemp" cells of the investments table.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cerfa/TableauInvestissements.h"
#include "tables/ProducteursTables.h"

namespace norvane {

class ProducteursCerfa : public ProducteursTables {
 public:
  std::string LignesPredefinies(ContexteTableau& contexte, std::string_view sorte,
                                const std::string& debutLigne) override;
  std::string ValeurSpeciale(ContexteTableau& contexte, std::string_view sorte, const std::string& reste,
                             int c) override;

  // Sum of the investments of the last financing plan printed.
  double TotalGeneral = 0;
  // The assets of the investments row being made.
  ImmosCourantes ImmoCourant;
};

// The Cerfa table of an "imemp" line, or nothing when its key is none of
// the report's.
std::optional<std::string> TableauCerfa(ContexteTableau& contexte, const std::string& debutLigne,
                                        ProducteursCerfa& producteurs);

}  // namespace norvane
