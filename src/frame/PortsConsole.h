// The ports of a headless run. Messages go to standard error, one field a
// line (title, text, advice). A question takes the answer given on the command
// line when there is one; else it is asked on the terminal when standard
// input is one; else the box's default button answers. Progress is a line on
// standard error, redrawn in place, shown only when standard error is a
// terminal. Streams are given to the constructors so that tests can read them.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "frame/Ports.h"

namespace norvane {

class MessagesConsole : public PortMessages {
 public:
  // Standard error and input; asks only when standard input is a terminal.
  explicit MessagesConsole(std::optional<Reponse> reponseLigne = std::nullopt);
  MessagesConsole(std::ostream& sortie, std::istream& entree, bool entreeTerminal,
                  std::optional<Reponse> reponseLigne);

  void AfficherMessage(const std::string& appelant, const std::string& titre, const std::string& texte,
                       const std::string& conseil, const std::string& style) override;
  Reponse PoserQuestion(const std::string& titre, const std::string& texte, Boutons boutons, Icone icone,
                        int boutonParDefaut) override;

 private:
  Reponse Demander(Boutons boutons, Reponse parDefaut);

  std::ostream& sortie_;
  std::istream& entree_;
  bool entreeTerminal_;
  std::optional<Reponse> reponseLigne_;
};

// The answer a user typed: "o", "oui", "n", "non", "a", "annuler" in any
// case; std::nullopt for anything else.
std::optional<Reponse> ReponseTapee(const std::string& texte);

class ProgressionConsole : public PortProgression {
 public:
  // Standard error, shown when it is a terminal.
  ProgressionConsole();
  ProgressionConsole(std::ostream& sortie, bool terminal);

  void DefinirTexte(const std::string& texte) override;
  void DefinirPourcentage(int pourcent) override;
  bool ArretDemande() override { return arret_; }
  // Ends the progress line, so that what follows starts on a line of its own.
  void Terminer() override;
  // Asks the work in hand to stop (from an interrupt handler, for instance).
  void DemanderArret() { arret_ = true; }

 private:
  void Dessiner();

  std::ostream& sortie_;
  bool terminal_;
  std::string texte_;
  int pourcent_ = 0;
  std::size_t largeurDessinee_ = 0;
  volatile bool arret_ = false;
};

}  // namespace norvane
