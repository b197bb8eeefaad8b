#include "frame/PortsConsole.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>

#include "frame/BoutonsBoite.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr int kEssaisMax = 3;

std::string Invite(Boutons boutons, Reponse parDefaut) {
  std::string invite;
  for (Reponse r : ReponsesPossibles(boutons)) {
    std::string mot = r == Reponse::Oui ? "oui" : r == Reponse::Non ? "non" : "annuler";
    if (r == parDefaut) mot = Majuscules(mot);
    invite += (invite.empty() ? "" : "/") + mot;
  }
  return "(" + invite + ") ? ";
}

}  // namespace

std::optional<Reponse> ReponseTapee(const std::string& texte) {
  const std::string mot = Minuscules(Trim(texte));
  if (mot == "o" || mot == "oui") return Reponse::Oui;
  if (mot == "n" || mot == "non") return Reponse::Non;
  if (mot == "a" || mot == "annuler") return Reponse::Annuler;
  return std::nullopt;
}

MessagesConsole::MessagesConsole(std::optional<Reponse> reponseLigne)
    : MessagesConsole(std::cerr, std::cin, ::isatty(STDIN_FILENO) == 1, reponseLigne) {}

MessagesConsole::MessagesConsole(std::ostream& sortie, std::istream& entree, bool entreeTerminal,
                                 std::optional<Reponse> reponseLigne)
    : sortie_(sortie), entree_(entree), entreeTerminal_(entreeTerminal), reponseLigne_(reponseLigne) {}

void MessagesConsole::AfficherMessage(const std::string&, const std::string& titre, const std::string& texte,
                                      const std::string& conseil, const std::string&) {
  for (const std::string* champ : {&titre, &texte, &conseil}) {
    if (!champ->empty()) sortie_ << *champ << '\n';
  }
  sortie_.flush();
}

Reponse MessagesConsole::PoserQuestion(const std::string& titre, const std::string& texte, Boutons boutons, Icone,
                                       int boutonParDefaut) {
  AfficherMessage({}, titre, texte, {}, {});
  const Reponse parDefaut = ReponseParDefaut(boutons, boutonParDefaut);
  if (boutons == Boutons::Ok) return Reponse::Ok;
  if (reponseLigne_ && EstReponsePossible(boutons, *reponseLigne_)) return *reponseLigne_;
  if (!entreeTerminal_) return parDefaut;
  return Demander(boutons, parDefaut);
}

Reponse MessagesConsole::Demander(Boutons boutons, Reponse parDefaut) {
  for (int essai = 0; essai < kEssaisMax; ++essai) {
    sortie_ << Invite(boutons, parDefaut) << std::flush;
    std::string ligne;
    if (!std::getline(entree_, ligne)) break;
    if (EstBlanc(ligne)) return parDefaut;
    auto reponse = ReponseTapee(ligne);
    if (reponse && EstReponsePossible(boutons, *reponse)) return *reponse;
  }
  return parDefaut;
}

ProgressionConsole::ProgressionConsole() : ProgressionConsole(std::cerr, ::isatty(STDERR_FILENO) == 1) {}

ProgressionConsole::ProgressionConsole(std::ostream& sortie, bool terminal) : sortie_(sortie), terminal_(terminal) {}

void ProgressionConsole::DefinirTexte(const std::string& texte) {
  texte_ = texte;
  Dessiner();
}

void ProgressionConsole::DefinirPourcentage(int pourcent) {
  // The gauge of the windows shows a value above 100 as 97; so does the line.
  pourcent_ = pourcent > 100 ? 97 : std::max(pourcent, 0);
  Dessiner();
}

void ProgressionConsole::Terminer() {
  if (!terminal_ || largeurDessinee_ == 0) return;
  sortie_ << '\n' << std::flush;
  largeurDessinee_ = 0;
}

void ProgressionConsole::Dessiner() {
  if (!terminal_) return;
  const std::string ligne = texte_.empty() ? std::string() : texte_ + " " + std::to_string(pourcent_) + " %";
  sortie_ << '\r' << ligne;
  if (ligne.size() < largeurDessinee_) sortie_ << std::string(largeurDessinee_ - ligne.size(), ' ') << '\r';
  largeurDessinee_ = ligne.size();
  sortie_ << std::flush;
}

}  // namespace norvane
