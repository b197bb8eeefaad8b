// What the document verbs share: a generation set up from the application,
// and the placing of dossier arguments into their slots.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "app/Application.h"
#include "cerfa/ProducteursCerfa.h"
#include "graphs/GraphiquesGeneration.h"
#include "tables/MultiDossier.h"
#include "tables/TableauxDocument.h"
#include "template/Generation.h"

namespace norvane {

// Puts a dossier argument ("/x/DUPONT.TVL", "#tvl#" for a blank) into slot n.
void PlacerDossier(Session& session, int slot, const std::string& argument);

// Places the dossier argument (if any) in slot 0 and the --comparer dossiers
// in slots 1 to 9. Returns false, with a message, when more than nine are
// given or when one of them is missing, a file, or cannot be read.
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
  // Tables compare the dossiers of slots 1 to 9 (--comparer, or the settings).
  ChoixDossiersParSlots choixDossiers_;
  // Crop, activity, asset and loan tables, and those of the Cerfa report.
  ProducteursCerfa producteurs_;
  TableauxDocument tableaux_;
  // The chart drawer (Qt), and the picture port that embeds logos.
  std::unique_ptr<PortDessinGraphique> dessin_;
  GraphiquesGeneration graphiques_;
  std::unique_ptr<PortImages> images_;
};

// One document created as GENERER creates it: the word processor bound when
// the result needs it, the generation, then the conversion to the result's
// format; the options say whether to open it and whether to replace it
// without asking. `anneesCerfa` overrides the years of --annees. Returns the
// verb's exit status (0 when written, 1 otherwise).
int GenererDocument(Application& application, const std::string& modele, const std::string& resultat,
                    std::optional<int16_t> anneesCerfa = std::nullopt);

}  // namespace norvane
