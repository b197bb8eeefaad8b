// Which driver serves a request: the bound word processor's executable name
// decides, and when none serves it the caller's box says what to do.
#pragma once

#include <string>

#include "drivers/Contrat.h"
#include "frame/Options.h"
#include "frame/Ports.h"

namespace norvane {

// The request that found no driver, which decides the box's second line.
enum class Demande {
  Nouveau,             // the new-document entry
  Fermeture,           // the close entry
  Sauvegarde,          // save, save as, insertion, reading the selection
  OuvertureListe,      // opening from the document list or the transfer window
  OuvertureGenerateur, // opening by the generator
  Creation,            // creating a document (the conversion after generation)
};

// The bound editor's code is IndexEditeur (template/Editeurs.h): "soffice",
// "soffice.bin", "libreoffice" and "soffice.exe" are OpenOffice.

// Shows the box "no word processor is bound" for `demande`. True when the
// choice of an editor must open next.
bool SignalerAucunEditeur(PortMessages& messages, Demande demande);

// The drivers this build has, by code; a code may have none (Word and Word
// Pro cannot be driven on Linux).
class Pilotes {
 public:
  Pilotes(const Options& options, PortMessages& messages) : options_(options), messages_(messages) {}
  void Brancher(int editeur, Pilote* pilote);
  // The driver of a code, null when none serves it.
  Pilote* DeCode(int editeur) const;
  // The driver of the bound editor; null after the box of `demande` when
  // none serves it. `choixEditeur` tells whether the choice must open.
  Pilote* Servir(Demande demande, bool* choixEditeur = nullptr) const;

 private:
  const Options& options_;
  PortMessages& messages_;
  Pilote* pilotes_[4] = {};
};

}  // namespace norvane
