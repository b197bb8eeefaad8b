// What the producers of one table work with: the generation, the tables of
// the document and the model being printed.
#pragma once

#include "tables/ModeleTableau.h"
#include "tables/TableauxDocument.h"
#include "template/Generation.h"

namespace norvane {

// What the producers of one table work with.
struct ContexteTableau {
  Generation& generation;
  TableauxDocument& tableaux;
  ModeleTableau& modele;

  EtatTableaux& etat() { return tableaux.etat; }
  const LigneTableau& LigneEnCours() const;
};

}  // namespace norvane
