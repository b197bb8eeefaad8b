// The document generator: a template (.tvm, RTF with #tvl(...)# codes)
// becomes a result document, or a result document with update marks is
// recalculated in place.
#pragma once

#include <cstdint>
#include <string>

#include "template/Generation.h"

namespace norvane {

struct ResultatDocument {
  bool ecrit = false;            // the result file was written
  bool abandonne = false;        // nothing done: empty template name, or replacement refused
  int32_t nbCodes = 0;           // code start marks found in the template
  int32_t nbChampsMisAJour = 0;  // fields recalculated (update only)
};

// How one document is made.
struct OptionsCreation {
  // Recalculate the fields of the template in place, then save it under the
  // result's name through the word processor.
  bool miseAJour = false;
  // Do not open the result when done.
  bool sansOuvrir = true;
  // Ask before replacing an existing result.
  bool demanderRemplacement = false;
};

ResultatDocument CreerDocument(Generation& generation, const std::string& modele, const std::string& resultat,
                               const OptionsCreation& options);

// Opens a document in the bound word processor, or says that none is bound.
void OuvrirDocument(Generation& generation, const std::string& chemin);

}  // namespace norvane
