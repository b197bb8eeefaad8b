// The word processor of a command-line run: LibreOffice through its driver.
// Conversions run in a private office that Norvane starts once, at the first
// document that needs it, and ends with the run; a document opened for the
// user goes to the user's own LibreOffice. Word and Word Pro cannot be driven
// here: a binding to them finds no driver, and says so.
#pragma once

#include <memory>
#include <string>

#include "app/Application.h"
#include "template/Generation.h"

namespace norvane {

class EditeurLigneCommande : public PortEditeur {
 public:
  EditeurLigneCommande(const Options& options, PortMessages& messages);
  ~EditeurLigneCommande() override;

  void OuvrirDocument(int editeur, const std::string& chemin) override;
  bool SauvegarderSous(bool fermer, int editeur, const std::string& source, const std::string& chemin) override;

  // The document `source` stored under `cible` in its extension's format,
  // through the private office. True when written.
  bool Convertir(const std::string& source, const std::string& cible);
  // A document opened in the user's LibreOffice. True when opened.
  bool Ouvrir(const std::string& chemin);

 private:
  struct Etat;
  std::unique_ptr<Etat> etat_;
};

// With no editor bound, the LibreOffice of this machine is looked for and
// bound, as the choice of an editor would (the settings are saved). False
// when no editor is bound afterwards.
bool LierEditeurSiAucun(Application& application);

// The word processor is wanted for a result in another format than RTF, for
// a result to open, and for the conversion to .doc of the settings: it is
// then bound if none is.
void LierEditeurPour(Application& application, const std::string& resultat, bool ouvrir);

// A result that should be in another format but still holds RTF (the word
// processor could not convert it) is renamed to its .rtf twin, and the user
// told where it is. True when the result is in its format.
bool GarderRtfSousSonNom(const std::string& resultat);

}  // namespace norvane
