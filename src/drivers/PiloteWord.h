// Microsoft Word, driven through its automation object. The object itself
// lives behind AutomationWord (no Linux build has one); the rules of the
// driver are here: which member is called, which box is shown.
#pragma once

#include <string>

#include "drivers/Contrat.h"
#include "drivers/SauvegarderSous.h"

namespace norvane {

// The members of "Word.Application" that the driver uses. Any of them may
// throw ErreurAutomation.
class AutomationWord {
 public:
  struct Police {
    bool gras = false;
    bool italique = false;
    int couleur = 0;
    std::string nom;
    float taille = 0;
  };
  virtual ~AutomationWord() = default;
  // ConnecterWord: the running instance, or a new one captioned "Editeur
  // Norvane"; false when there is none to drive. Errors are ignored.
  virtual bool Connecter() = 0;
  virtual int NombreDocuments() = 0;
  virtual void AjouterDocument() = 0;                        // Documents.Add
  virtual void OuvrirDocument(const std::string& chemin) = 0;  // Documents.Open, not read-only
  virtual void Montrer() = 0;                                // Visible true, WindowState 1
  virtual std::string NomComplet() = 0;                      // ActiveDocument.FullName
  virtual void Enregistrer() = 0;                            // ActiveDocument.Save
  virtual void EnregistrerSous(const std::string& chemin, int format) = 0;  // 0 document, 6 RTF
  virtual void Fermer(bool enregistrer) = 0;                 // ActiveDocument.Close
  virtual void FermerEnRtf(const std::string& chemin) = 0;   // Close(true, "Rich Text Format", chemin)
  virtual void Quitter() = 0;
  virtual Police LirePolice() = 0;                           // Selection.Font
  virtual void EcrirePolice(const Police& police) = 0;
  virtual void TaperTexte(const std::string& texte) = 0;     // Selection.TypeText
  virtual void TaperParagraphe() = 0;                        // Selection.TypeParagraph
  virtual std::string TexteSelection() = 0;                  // Selection.FormattedText.Text
  virtual void Activer() = 0;
};

class PiloteWord : public Pilote {
 public:
  PiloteWord(AutomationWord& word, ContexteSauvegarde& contexte) : word_(word), contexte_(contexte) {}
  void NouveauDocument() override;
  void OuvrirDocument(const std::string& chemin) override;
  void SauvegarderDocument(bool sousAutreNom, bool confirmer) override;
  void FermerDocument(int16_t reponse) override;
  void InsererTexte(const std::string& texte, const FormatInsertion& format, int16_t modeInsertion) override;
  std::string LireSelection() override;
  bool Enregistrer(ContexteSauvegarde& contexte, int16_t fermer, const std::string& chemin,
                   int16_t confirmer) override;
  void FermerSansEnregistrer() override { word_.Fermer(false); }
  void SautParagraphe(int nombre = 1);

 private:
  // Connects and tells whether a document is open; says so when none is.
  bool DocumentOuvert(const char* titre);
  // A new document is named "Document1" and the like: no name of its own.
  bool SansNom();

  AutomationWord& word_;
  ContexteSauvegarde& contexte_;
};

}  // namespace norvane
