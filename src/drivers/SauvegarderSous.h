// The one save routine that every driver shares, and the boxes it shows:
// a template (.tvm) is written as RTF then renamed, an LWP file is refused
// by the editors that cannot write it, a format other than RTF may be
// confirmed after a word of advice.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "drivers/Contrat.h"
#include "frame/Options.h"
#include "frame/Ports.h"

namespace norvane {

// The common file dialog. Mode 1: open a result to update; mode 2: save a
// document or template. Empty text when the user cancels.
class PortChoixFichier {
 public:
  virtual ~PortChoixFichier() = default;
  virtual std::string ChoisirFichier(const std::string& repertoire, const std::string& filtre, int mode) = 0;
};

struct ContexteSauvegarde {
  PortMessages& messages;
  const Options& options;         // the binding: NomEditeur decides the dialog's filter
  std::string repModlDocs;        // folder the dialog opens on
  PortChoixFichier* choix = nullptr;                // null: the dialog is cancelled
  std::function<Pilote*(int editeur)> pilote;     // the driver of a code, null when none serves it
};

// Upper-case last three characters of a path ("RTF", "DOC", "TVM"...).
std::string ExtensionDe(const std::string& chemin);

// Saves the current document of the driver `editeur` under `chemin` (empty:
// ask the user). `fermer` -1 closes the document as part of the save;
// `confirmer` -1 asks before a format other than RTF. Returns true when the
// document was written.
bool SauvegarderSous(ContexteSauvegarde& contexte, int16_t fermer, int editeur, std::string chemin,
                     int16_t confirmer);

// The refusal of LWP by Word and OpenOffice; nothing is written.
void RefuserFormatLwp(PortMessages& messages);
// The advice to keep to RTF.
void ConseilFormatRtf(PortMessages& messages, const std::string& formulaire);
// Advice, then the yes/no question of the format ("Microsoft Word" or "Lotus
// Word Pro"); on no, "Sauvegarde annulée". True when the save may go on.
// Asked only when `fermer` is not -1 and `confirmer` is -1.
bool ConfirmerFormat(PortMessages& messages, int16_t fermer, int16_t confirmer, bool lotus);

}  // namespace norvane
