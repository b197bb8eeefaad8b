// The bound word processor driven by its command line: documents are opened
// in a detached process, and converted by a headless run of LibreOffice.
// The full driver (UNO) replaces this in the graphical build.
#pragma once

#include <string>
#include <vector>

#include "frame/Options.h"
#include "frame/Ports.h"
#include "template/Generation.h"

namespace norvane {

class EditeurLigneCommande : public PortEditeur {
 public:
  EditeurLigneCommande(const Options& options, PortMessages& messages) : options_(options), messages_(messages) {}
  void OuvrirDocument(int editeur, const std::string& chemin) override;
  void SauvegarderSous(bool fermer, int editeur, const std::string& chemin) override;

 private:
  std::string Programme() const;

  const Options& options_;
  PortMessages& messages_;
};

// Runs a program with its arguments and waits for it; its exit status, or -1
// when it could not be started.
int ExecuterProgramme(const std::vector<std::string>& arguments, bool attendre);

}  // namespace norvane
