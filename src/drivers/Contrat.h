// What the rest of the system asks of a word processor: six operations that
// every driver offers, whatever program stands behind it. A driver traps the
// errors of its automation object itself; an operation that fails shows at
// most one message and leaves the word processor as it is.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

#include "template/Editeurs.h"  // the codes of the word processors

namespace norvane {

// Answers of FermerDocument: ask the user, save, do not save; 5 (OpenOffice
// only) saves whatever the modified flag says.
constexpr int16_t kFermerDemander = 0;
constexpr int16_t kFermerForcer = 5;
constexpr int16_t kFermerEnregistrer = 6;
constexpr int16_t kFermerSansEnregistrer = 7;

// A failure of the automation object, with the description it gave.
class ErreurAutomation : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Character format asked for an insertion; what is not given stays as the
// cursor has it.
struct FormatInsertion {
  std::optional<bool> gras;
  std::optional<bool> italique;
  std::optional<int> couleur;
  std::string police;   // empty: not given
  uint8_t taille = 0;   // 0: not given
};

struct ContexteSauvegarde;

class Pilote {
 public:
  virtual ~Pilote() = default;
  virtual void NouveauDocument() = 0;
  // Clears the file's attributes, opens it for editing and shows it.
  virtual void OuvrirDocument(const std::string& chemin) = 0;
  // Saves the current document, through SauvegarderSous when it has no name
  // of its own or when `sousAutreNom` is set.
  virtual void SauvegarderDocument(bool sousAutreNom, bool confirmer) = 0;
  // Closes the current document (kFermer...); quits when none is left.
  virtual void FermerDocument(int16_t reponse) = 0;
  // Types `texte` at the cursor; `modeInsertion` 1 puts a line break first.
  virtual void InsererTexte(const std::string& texte, const FormatInsertion& format, int16_t modeInsertion) = 0;
  virtual std::string LireSelection() = 0;

  // This driver's branch of SauvegarderSous: the current document stored
  // under `chemin` (its last separator already checked). Returns true when a
  // file was written. Automation errors are thrown to SauvegarderSous.
  virtual bool Enregistrer(ContexteSauvegarde& contexte, int16_t fermer, const std::string& chemin,
                           int16_t confirmer) = 0;
  // Closes the current document without saving it (after a template save).
  virtual void FermerSansEnregistrer() = 0;
};

}  // namespace norvane
