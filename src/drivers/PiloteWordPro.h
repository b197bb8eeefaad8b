// Lotus Word Pro, driven through its automation object (AutomationWordPro,
// which no Linux build has). It is the one editor that writes .lwp.
#pragma once

#include <string>

#include "drivers/Contrat.h"
#include "drivers/SauvegarderSous.h"

namespace norvane {

// The members of "WordPro.Application" that the driver uses. Any of them may
// throw ErreurAutomation.
class AutomationWordPro {
 public:
  virtual ~AutomationWordPro() = default;
  virtual bool EstCree() = 0;   // the application object is set
  virtual void Creer() = 0;     // create "WordPro.Application"
  virtual void NouveauDocument() = 0;
  virtual void OuvrirDocument(const std::string& chemin) = 0;
  virtual void Montrer() = 0;   // Visible false, then true: the window comes forward
  virtual bool ADocumentActif() = 0;
  virtual std::string NomComplet() = 0;
  virtual void Enregistrer() = 0;
  virtual void Fermer(bool enregistrer) = 0;
  virtual void FermerSous(const std::string& nom, const std::string& repertoire, const std::string& filtre) = 0;
  virtual void EnregistrerSous(const std::string& nom, const std::string& repertoire, const std::string& filtre) = 0;
  virtual void Quitter() = 0;
  virtual void RepondreBoites(int code) = 0;  // AnswerMsgBox
  virtual bool ATexte() = 0;                  // Text is set
  virtual void InsererTexte(const std::string& texte, int16_t modeInsertion) = 0;
  virtual std::string CopierSelection() = 0;  // CopySelection, then the clipboard's text
};

class PiloteWordPro : public Pilote {
 public:
  PiloteWordPro(AutomationWordPro& wordPro, ContexteSauvegarde& contexte) : wp_(wordPro), contexte_(contexte) {}
  void NouveauDocument() override;
  void OuvrirDocument(const std::string& chemin) override;
  void SauvegarderDocument(bool sousAutreNom, bool confirmer) override;
  // The question is always asked: `reponse` is not used by this editor.
  void FermerDocument(int16_t reponse) override;
  // Only the text: the format of the contract is ignored by this editor.
  void InsererTexte(const std::string& texte, const FormatInsertion& format, int16_t modeInsertion) override;
  std::string LireSelection() override;
  bool Enregistrer(ContexteSauvegarde& contexte, int16_t fermer, const std::string& chemin,
                   int16_t confirmer) override;
  void FermerSansEnregistrer() override { wp_.Fermer(false); }

 private:
  bool Connecter();
  bool DocumentActif(const char* titre);

  AutomationWordPro& wp_;
  ContexteSauvegarde& contexte_;
};

}  // namespace norvane
