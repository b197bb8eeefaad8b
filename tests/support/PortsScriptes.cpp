#include "support/PortsScriptes.h"

#include "frame/BoutonsBoite.h"

namespace norvane {

void MessagesScriptes::AfficherMessage(const std::string& appelant, const std::string& titre,
                                       const std::string& texte, const std::string& conseil,
                                       const std::string& style) {
  messages.push_back({appelant, titre, texte, conseil, style});
  journal_.push_back(titre + ": " + texte);
}

Reponse MessagesScriptes::PoserQuestion(const std::string& titre, const std::string& texte, Boutons boutons,
                                        Icone icone, int boutonParDefaut) {
  Reponse reponse = ReponseParDefaut(boutons, boutonParDefaut);
  if (boutons != Boutons::Ok && !reponses.empty()) {
    reponse = reponses.front();
    reponses.pop_front();
  }
  questions.push_back({titre, texte, boutons, icone, boutonParDefaut, reponse});
  journal_.push_back(titre + ": " + texte);
  return reponse;
}

std::string MessagesScriptes::Journal() const {
  std::string texte;
  for (const std::string& ligne : journal_) texte += ligne + "\n";
  return texte;
}

bool ProgressionScriptee::ArretDemande() {
  const bool stop = arret || (arretApres && appelsArret >= *arretApres);
  ++appelsArret;
  return stop;
}

}  // namespace norvane
