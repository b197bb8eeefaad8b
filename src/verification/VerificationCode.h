// The check of one code: the interpreter's own path in explain mode, with a
// messages port that records what it says, then the table and graph
// decoders of the generator on the code behind its condition.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/Ports.h"
#include "graphs/GraphiquesGeneration.h"
#include "template/Generation.h"
#include "verification/PlacesModele.h"

namespace norvane {

struct CodeVerifie {
  PlaceCode place;
  std::string code;     // "#tvl(...)#" once cleaned, UTF-8
  std::string sens;     // the explanation of the code, UTF-8
  bool valide = true;
  std::string message;  // the faults in the system's words, UTF-8
  std::string valeur;   // what the code inserts, UTF-8
};

// Keeps the boxes instead of showing them: help boxes give the meaning of a
// code, every other box is a fault. Questions are answered no.
class MessagesEnregistres : public PortMessages {
 public:
  void AfficherMessage(const std::string& appelant, const std::string& titre, const std::string& texte,
                       const std::string& conseil, const std::string& style) override;
  Reponse PoserQuestion(const std::string& titre, const std::string& texte, Boutons boutons, Icone icone,
                        int boutonParDefaut) override;
  void Vider();

  std::string sens;
  std::vector<std::string> fautes;
  // Without a dossier only the syntax is checked: the box saying that no
  // dossier is linked is expected, not a fault.
  bool syntaxeSeule = false;
};

class VerificateurCode {
 public:
  // `generation` must speak through `messages`.
  VerificateurCode(Generation& generation, MessagesEnregistres& messages)
      : g_(generation), messages_(messages), graphiques_(nullptr) {}
  // `tranche`: the code with its marks, as the generator cuts it (Windows-1252).
  CodeVerifie Verifier(std::string_view tranche);

 private:
  void VerifierDecodeurs(std::string code);

  Generation& g_;
  MessagesEnregistres& messages_;
  GraphiquesGeneration graphiques_;  // no drawer: a graph code is read and its series filled, nothing drawn
};

}  // namespace norvane
