// The generator's word processor served by the drivers: a document shown to
// the user goes to the drivers of the user's word processor, a conversion to
// drivers that keep their documents hidden, through the shared save routine.
#pragma once

#include <string>

#include "drivers/Aiguillage.h"
#include "drivers/SauvegarderSous.h"
#include "template/Generation.h"

namespace norvane {

class EditeurGenerateur : public PortEditeur {
 public:
  // `visibles`: the drivers that show documents to the user. `caches`: the
  // context of the hidden drivers (its `pilote` gives them by code).
  EditeurGenerateur(PortMessages& messages, Pilotes& visibles, ContexteSauvegarde& caches)
      : messages_(messages), visibles_(visibles), caches_(caches) {}
  void OuvrirDocument(int editeur, const std::string& chemin) override;
  bool SauvegarderSous(bool fermer, int editeur, const std::string& source, const std::string& chemin) override;

 private:
  PortMessages& messages_;
  Pilotes& visibles_;
  ContexteSauvegarde& caches_;
};

// True when the file holds RTF (its first bytes are "{\rtf").
bool ContientRtf(const std::string& chemin);

// A document opened for the user by `pilote`; a failure is told with the
// office's own description. True when opened.
bool OuvrirPourUtilisateur(PortMessages& messages, Pilote& pilote, const std::string& chemin);

// The document `source` loaded hidden by `pilote` and stored under `chemin`
// in its extension's format, then closed. True when written.
bool Convertir(ContexteSauvegarde& caches, int editeur, const std::string& source, const std::string& chemin);

}  // namespace norvane
