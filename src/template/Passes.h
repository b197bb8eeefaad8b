// Steps shared by the creation and the update of a document: the output
// text, the passing of the document's property block, and the progress.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "template/Generation.h"
#include "template/Morceaux.h"

namespace norvane {

inline constexpr std::string_view kFinDeLigne = "\r\n";

struct Sortie {
  std::string texte;
  void Ecrire(std::string_view t, bool finDeLigne) {
    texte.append(t);
    if (finDeLigne) texte.append(kFinDeLigne);
  }
};

// The property block ({\info ...{\title ...}{\author ...}}) is copied out
// uninterpreted, so that a code in the title never runs.
class PassageProprietes {
 public:
  // Returns true when the whole piece has been written (a title with neither
  // author nor company behind it): the caller moves to the next piece.
  bool Passer(MorceauCourant& morceau, Sortie& sortie);

 private:
  RechercheMemorisee titre_{"\\title", false};
  RechercheMemorisee auteur_{"\\author", false};
  RechercheMemorisee societe_{"\\company", false};
};

// Percent of codes handled, on the progress port.
class SuiviProgression {
 public:
  SuiviProgression(PortProgression& port, int32_t nbCodes, const std::string& cible);
  void CodeTraite();
  void Terminer(const std::string& texte);

 private:
  PortProgression& port_;
  int32_t nbCodes_;
  int32_t nbTraites_ = 0;
};

// What the walk over the pieces does after one round on the piece in hand.
enum class Suite { PieceSuivante, Coller, MemePiece, Fin };

// The walk over the pieces of a template or document, shared by creation and
// update: each round on the piece in hand says what comes next.
class ParcoursMorceaux {
 public:
  ParcoursMorceaux(Generation& generation, ModeleDecoupe decoupe, const std::string& cible)
      : g_(generation), morceaux_(std::move(decoupe.morceaux)), progression_(generation.progression, decoupe.nbCodes, cible) {}
  virtual ~ParcoursMorceaux() = default;

  // Runs the rounds to the last piece and gives the text written.
  std::string Executer();
  SuiviProgression& Progression() { return progression_; }

 protected:
  virtual Suite Tour(std::size_t i) = 0;
  bool Dernier(std::size_t i) const { return i + 1 >= morceaux_.size(); }
  // Writes the piece from its start up to `position`, with no line end, and
  // makes the piece begin there.
  void EcrireJusqua(std::size_t position);
  // From now on `origines` knows where each byte of the piece in hand stood
  // in the template. Called before Executer; without it nothing is followed.
  void SuivreOrigines(OriginesMorceau& origines);

  Generation& g_;
  std::vector<std::string> morceaux_;
  MorceauCourant morceau_;
  Sortie sortie_;
  SuiviProgression progression_;
  PassageProprietes proprietes_;
  OriginesMorceau* origines_ = nullptr;
  std::vector<std::size_t> debutsPieces_;  // where each piece starts in the template, when followed
};

// The whole text of a template or document; std::nullopt, after the box
// saying that `quoi` (its French designation) cannot be read, when it cannot.
std::optional<std::string> LireDocument(Generation& generation, const std::string& chemin, const std::string& quoi,
                                        const std::string& conseil);
// True, after the box saying why, when the guard of GardeEcriture refuses
// the result (or a file that finishing it writes or removes beside it): the
// template itself, a file of a study dossier of the session, a store.
// `modele` is empty in an update, which rewrites its document in place.
bool EcritureRefusee(Generation& generation, const std::string& modele, const std::string& resultat);
// Writes a result; false, after the box saying so, when it cannot be written.
bool EcrireDocument(Generation& generation, const std::string& chemin, const std::string& texte);

// The target path as the progress display shows it: whole under 33
// characters, else its first 3, "..." and its last 30.
std::string CheminAbrege(const std::string& chemin);

}  // namespace norvane
