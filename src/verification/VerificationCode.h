// The check of one code: the interpreter's own path in explain mode, with a
// messages port that records what it says, then the table and graph
// decoders of the generator on the code behind its condition.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Ports.h"
#include "graphs/GraphiquesGeneration.h"
#include "template/Generation.h"
#include "verification/PlacesModele.h"

namespace norvane {

// An error is what generation shows a box for; a warning is what it passes
// over in silence (a series the dossier lacks, a formula printed as 0), so
// that the document comes out, but not as the template's author meant it.
enum class Statut { Valide, Avertissement, Erreur };

struct CodeVerifie {
  PlaceCode place;
  std::string code;     // "#tvl(...)#" once cleaned, UTF-8
  std::string sens;     // the explanation of the code, UTF-8
  Statut statut = Statut::Valide;
  std::string message;  // the faults, then the warnings, in the system's words, UTF-8
  std::string valeur;   // what the code inserts, UTF-8
};

// Keeps the boxes instead of showing them: help boxes give the meaning of a
// code, every other box is a fault; the silent facts of the run are its
// warnings. Questions are answered no. A text said twice is kept once.
class MessagesEnregistres : public PortMessages {
 public:
  void AfficherMessage(const std::string& appelant, const std::string& titre, const std::string& texte,
                       const std::string& conseil, const std::string& style) override;
  Reponse PoserQuestion(const std::string& titre, const std::string& texte, Boutons boutons, Icone icone,
                        int boutonParDefaut) override;
  bool EcouteConstats() const override { return true; }
  void Constater(Constat sorte, const std::string& texte) override;
  void Vider();
  // A fault of the code's own, in the checker's words.
  void AjouterFaute(const std::string& texte);

  // A text said, and the lines of the table code that said it.
  struct Dit {
    std::string texte;
    std::vector<int> lignes;
  };
  // The texts said, each once, joined by " | ", each with its table lines.
  static std::string Joindre(const std::vector<Dit>& dits);

  std::string sens;
  std::vector<Dit> fautes;
  std::vector<Dit> avertissements;
  // Without a dossier only the syntax is checked: the box saying that no
  // dossier is linked is expected, not a fault, and only the facts that do
  // not depend on the dossier's contents are kept.
  bool syntaxeSeule = false;
  // Set while the formulas of a table are checked outside generation, where
  // the lines they total have no values: their arithmetic tells nothing.
  bool calculsIgnores = false;
  // The line of the table code being checked, 0 outside one: told behind
  // each text ("(lignes 2 et 3 du tableau)"), so that a fault still opens
  // with the words of generation.
  int ligneTableau = 0;
};

class VerificateurCode {
 public:
  // `generation` must speak through `messages`.
  VerificateurCode(Generation& generation, MessagesEnregistres& messages)
      : g_(generation), messages_(messages), graphiques_(nullptr) {}
  // `tranche`: the code with its marks, as the generator cuts it (Windows-1252).
  CodeVerifie Verifier(std::string_view tranche);
  // What the interpretation of the last code returned: 0 after a false
  // condition, which hides what follows as in generation.
  int16_t DernierResultat() const { return dernierResultat_; }

 private:
  void VerifierDecodeurs(std::string code);

  Generation& g_;
  MessagesEnregistres& messages_;
  int16_t dernierResultat_ = -1;
  GraphiquesGeneration graphiques_;  // no drawer: a graph code is read and its series filled, nothing drawn
};

}  // namespace norvane
