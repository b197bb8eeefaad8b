// What the document verbs share: a generation set up from the application,
// and the placing of dossier arguments into their slots.
#pragma once

#include <memory>
#include <string>

#include "app/Application.h"
#include "template/Generation.h"

namespace norvane {

// Puts a dossier argument ("/x/DUPONT.TVL", "#tvl#" for a blank) into slot n.
void PlacerDossier(Session& session, int slot, const std::string& argument);

// Places the dossier argument (if any) in slot 0 and the --comparer dossiers
// in slots 1 to 9. Returns false, with a message, when more than nine are given.
bool PlacerDossiers(Application& application, const std::string& dossier);

// A generation on the application's session and ports, with the bound word
// processor driven from the command line.
class Travail {
 public:
  // `messages`: a port to use in place of the application's own.
  explicit Travail(Application& application, PortMessages* messages = nullptr);
  ~Travail();
  Generation& generation() { return generation_; }

 private:
  EntitesCourantes aucuneEntite_;
  std::unique_ptr<PortEditeur> editeur_;
  Generation generation_;
};

}  // namespace norvane
