// Scripted ports for tests: they record everything the core shows and asks,
// and answer from a script.
//
//   MessagesScriptes messages;
//   messages.reponses = {Reponse::Non};      // answer to the first question
//   ... run the code under test with `messages` ...
//   EXPECT_EQ(messages.messages[0].titre, "...");
//
// A question asked when the script is empty takes the box's default button.
// An OK box answers Ok and leaves the script alone.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "frame/Ports.h"

namespace norvane {

struct MessageEnregistre {
  std::string appelant;
  std::string titre;
  std::string texte;
  std::string conseil;
  std::string style;
};

struct QuestionEnregistree {
  std::string titre;
  std::string texte;
  Boutons boutons = Boutons::Ok;
  Icone icone = Icone::Aucune;
  int boutonParDefaut = 0;
  Reponse reponse = Reponse::Ok;  // what was answered
};

class MessagesScriptes : public PortMessages {
 public:
  std::deque<Reponse> reponses;  // answers to the coming questions, first first
  std::vector<MessageEnregistre> messages;
  std::vector<QuestionEnregistree> questions;

  void AfficherMessage(const std::string& appelant, const std::string& titre, const std::string& texte,
                       const std::string& conseil, const std::string& style) override;
  Reponse PoserQuestion(const std::string& titre, const std::string& texte, Boutons boutons, Icone icone,
                        int boutonParDefaut) override;

  // Every message and question, in the order shown, as "titre: texte" lines.
  std::string Journal() const;

 private:
  std::vector<std::string> journal_;
};

class ProgressionScriptee : public PortProgression {
 public:
  std::vector<std::string> textes;
  std::vector<int> pourcentages;
  // The stop request: set `arret` to stop at the next check, or
  // `arretApres` to answer "stop" once ArretDemande has been called that
  // many times without stopping.
  bool arret = false;
  std::optional<int> arretApres;
  int appelsArret = 0;  // calls of ArretDemande so far

  void DefinirTexte(const std::string& texte) override { textes.push_back(texte); }
  void DefinirPourcentage(int pourcent) override { pourcentages.push_back(pourcent); }
  bool ArretDemande() override;
};

}  // namespace norvane
