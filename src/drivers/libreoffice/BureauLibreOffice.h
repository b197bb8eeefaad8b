// One LibreOffice process driven over UNO, seen by the OpenOffice driver as
// its automation object. Two kinds exist:
// - the private office: started by Norvane itself, headless, with a profile
//   of its own under the user's cache folder and a pipe name of its own; it
//   holds the hidden documents of conversions and is ended at exit;
// - the user's office: the LibreOffice the user works in, with their own
//   profile; a running one is asked to accept a connection, a missing one is
//   started so. Its documents are shown, and it is left running at exit.
// The connection is made with retries, and made again (the office started
// again) when the bridge has been disposed, for instance because the user
// closed the office. This header includes no UNO header.
#pragma once

#include <memory>
#include <string>

#include "drivers/PiloteOpenOffice.h"

namespace norvane {

enum class SorteBureau { Prive, Utilisateur };

class BureauLibreOffice : public AutomationOpenOffice {
 public:
  // `programme`: the office's executable (soffice).
  BureauLibreOffice(SorteBureau sorte, std::string programme);
  ~BureauLibreOffice() override;
  BureauLibreOffice(const BureauLibreOffice&) = delete;
  BureauLibreOffice& operator=(const BureauLibreOffice&) = delete;

  // Connects now (starting the office when needed); throws ErreurAutomation.
  void Connecter();
  // The private office ends, its documents closed unmodified; the user's
  // office is only let go.
  void Terminer();
  // Process id of the office this object started, 0 when none.
  int Processus() const;

  void Charger(const std::string& url) override;
  int NombreCadres() override;
  bool DocumentCourant() override;
  bool LectureSeule() override;
  bool ALocation() override;
  bool EstModifie() override;
  void Enregistrer() override;
  void EnregistrerSous(const std::string& url, const std::string& filtre) override;
  void FermerDocumentCourant() override;
  void Liberer() override;
  void InsererTexte(const std::string& texte, const std::string& police, int taille) override;
  std::string TexteSelection() override;
  // The whole text of the current document.
  std::string TexteDocument();
  // The view cursor selects the whole text of the current document.
  void SelectionnerTout();

 private:
  struct Etat;
  std::unique_ptr<Etat> etat_;
};

// The LibreOffice of this machine: the bound path when it names one that
// exists, else the usual places ("soffice" on the PATH, /usr/lib/libreoffice).
// Empty when none is found.
std::string ProgrammeLibreOffice(const std::string& cheminEditeur);

}  // namespace norvane
