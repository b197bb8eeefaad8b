// Ports: how the core reaches the user. The core declares them; the console,
// the windows and the tests each plug in an implementation. Every text that
// crosses a port is UTF-8.
#pragma once

#include <string>

namespace norvane {

// Title of the common box for a fault met in a template or a file.
inline constexpr char kTitreErreurDetectee[] = "Erreur détectée :  cliquez Fermer pour continuer";

enum class Boutons { Ok, OuiNon, OuiNonAnnuler };
enum class Icone { Aucune, Information, Question, Exclamation, Critique };
enum class Reponse { Ok, Oui, Non, Annuler };
// The silent facts of a run: a series file or record that the dossier
// lacks; a formula whose arithmetic fails on the values it is given (a
// division by zero); a formula whose text cannot be read, whatever the values.
enum class Constat { DonneeAbsente, CalculImpossible, FormuleIllisible };

class PortMessages {
 public:
  virtual ~PortMessages() = default;
  // The common message box. `style`: "Aide" for help, "seule" for a single
  // statement, empty for an error.
  virtual void AfficherMessage(const std::string& appelant, const std::string& titre, const std::string& texte,
                               const std::string& conseil, const std::string& style) = 0;
  // A plain box of the platform: yes/no(/cancel) or OK. `boutonParDefaut` is the
  // index (0-based) of the default button among those of `boutons`.
  virtual Reponse PoserQuestion(const std::string& titre, const std::string& texte, Boutons boutons, Icone icone,
                                int boutonParDefaut) = 0;
  // A fact that a run passes over without a word, because the template and
  // the study files allow it: a series file or record that the dossier
  // lacks, a formula worked out as 0. Nothing is shown: only a checker of
  // templates listens, and says so, so that the texts are made for it alone.
  virtual bool EcouteConstats() const { return false; }
  virtual void Constater(Constat /*sorte*/, const std::string& /*texte*/) {}
};

class PortProgression {
 public:
  virtual ~PortProgression() = default;
  virtual void DefinirTexte(const std::string& texte) = 0;
  virtual void DefinirPourcentage(int pourcent) = 0;
  // True once the user has asked the work in hand to stop.
  virtual bool ArretDemande() = 0;
  // The work in hand is over: its last state stays shown.
  virtual void Terminer() {}
};

// A message port that shows nothing and answers every question with OK.
class MessagesMuets : public PortMessages {
 public:
  void AfficherMessage(const std::string&, const std::string&, const std::string&, const std::string&,
                       const std::string&) override {}
  Reponse PoserQuestion(const std::string&, const std::string&, Boutons, Icone, int) override { return Reponse::Ok; }
};

// A progress port that shows nothing and never asks to stop.
class ProgressionMuette : public PortProgression {
 public:
  void DefinirTexte(const std::string&) override {}
  void DefinirPourcentage(int) override {}
  bool ArretDemande() override { return false; }
};

}  // namespace norvane
