// The document generator: a template (.tvm, RTF with #tvl(...)# codes)
// becomes a result document, or a result document with update marks is
// recalculated in place.
#pragma once

#include <cstdint>
#include <string>

#include "template/Generation.h"

namespace norvane {

struct ResultatDocument {
  bool ecrit = false;          // the result file was written
  bool abandonne = false;      // nothing done: empty template name, or replacement refused
  int32_t nbCodes = 0;         // code start marks found in the template
  int32_t nbChampsMisAJour = 0;  // fields recalculated (update only)
};

// `miseAJour`: recalculate the fields of `modele` in place, then save it
// under `resultat` through the word processor. `sansOuvrir`: do not open the
// result when done. `demanderRemplacement`: ask before replacing an existing
// result.
ResultatDocument CreerDocument(Generation& generation, const std::string& modele, const std::string& resultat,
                               bool miseAJour, bool sansOuvrir, bool demanderRemplacement);

// Opens a document in the bound word processor, or says that none is bound.
void OuvrirDocument(Generation& generation, const std::string& chemin);

}  // namespace norvane
