// OpenOffice (LibreOffice on Linux), driven through its automation bridge.
// The bridge itself lives behind AutomationOpenOffice (src/drivers/
// libreoffice/ gives one over UNO); the rules of the driver are here. It is
// also the converter of the system: every format it stores has its filter.
#pragma once

#include <string>

#include "drivers/Contrat.h"
#include "drivers/SauvegarderSous.h"

namespace norvane {

// What the driver asks of the office. Texts are UTF-8; paths are given as
// file URLs. Any member may throw ErreurAutomation.
class AutomationOpenOffice {
 public:
  virtual ~AutomationOpenOffice() = default;
  // LoadComponentFromURL in a new frame; the document becomes the current one.
  virtual void Charger(const std::string& url) = 0;
  virtual int NombreCadres() = 0;            // Desktop.Frames.Count
  virtual bool DocumentCourant() = 0;        // a current document is in hand
  virtual bool LectureSeule() = 0;
  virtual bool ALocation() = 0;
  virtual bool EstModifie() = 0;
  virtual void Enregistrer() = 0;            // store
  // The document stored under `url` through the filter `filtre`.
  virtual void EnregistrerSous(const std::string& url, const std::string& filtre) = 0;
  virtual void FermerDocumentCourant() = 0;  // the active frame's document closed
  virtual void Liberer() = 0;                // Desktop and ServiceManager dropped
  // Sets the cursor's font name (when not empty) and height (when not 0),
  // then inserts `texte` at the view cursor.
  virtual void InsererTexte(const std::string& texte, const std::string& police, int taille) = 0;
  virtual std::string TexteSelection() = 0;  // String of the view cursor
};

// The office's filter for a format, by the upper-case extension: RTF, ODT
// and PDF have their own, anything else is Word ("MS Word 97").
std::string FiltreOpenOffice(const std::string& extension);

class PiloteOpenOffice : public Pilote {
 public:
  PiloteOpenOffice(AutomationOpenOffice& office, ContexteSauvegarde& contexte)
      : office_(office), contexte_(contexte) {}
  void NouveauDocument() override;
  // Errors of the office are thrown to the caller (ErreurAutomation).
  void OuvrirDocument(const std::string& chemin) override;
  void SauvegarderDocument(bool sousAutreNom, bool confirmer) override;
  void FermerDocument(int16_t reponse) override;
  // Bold, italic and colour are not used by this driver; font and size stay set.
  void InsererTexte(const std::string& texte, const FormatInsertion& format, int16_t modeInsertion) override;
  std::string LireSelection() override;
  bool Enregistrer(ContexteSauvegarde& contexte, int16_t fermer, const std::string& chemin,
                   int16_t confirmer) override;
  void FermerSansEnregistrer() override { FermerDocument(kFermerSansEnregistrer); }

 private:
  AutomationOpenOffice& office_;
  ContexteSauvegarde& contexte_;
};

}  // namespace norvane
