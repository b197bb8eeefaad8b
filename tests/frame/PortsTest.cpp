#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

#include "frame/PortsConsole.h"

namespace norvane {
namespace {

TEST(MessagesConsole, AMessageIsItsNonEmptyFieldsOneALine) {
  std::ostringstream sortie;
  std::istringstream entree;
  MessagesConsole m(sortie, entree, false, std::nullopt);
  m.AfficherMessage("Gen", "Titre", "Texte", "Conseil", "");
  m.AfficherMessage("Gen", "Seul", "Ligne", "", "seule");
  EXPECT_EQ(sortie.str(), "Titre\nTexte\nConseil\nSeul\nLigne\n");
}

// The command line's answer when the box offers it, else the terminal (asked at
// most three times, a blank line taking the default), else the default button.
TEST(MessagesConsole, WhoAnswersAQuestion) {
  // Typed input, stdin a terminal, command-line answer, buttons, default button, answer, prompts shown.
  const std::tuple<const char*, bool, std::optional<Reponse>, Boutons, int, Reponse, const char*> cas[] = {
      {"non\n", true, Reponse::Oui, Boutons::OuiNon, 1, Reponse::Oui, ""},
      {"", false, Reponse::Annuler, Boutons::OuiNon, 1, Reponse::Non, ""},  // not offered: the box decides
      {"oui\n", false, {}, Boutons::OuiNon, 1, Reponse::Non, ""},
      {"", false, {}, Boutons::OuiNon, 5, Reponse::Oui, ""},  // no such button: the first one
      {"non\n", true, {}, Boutons::Ok, 0, Reponse::Ok, ""},
      {"peut-etre\n O \n", true, {}, Boutons::OuiNon, 1, Reponse::Oui, "(oui/NON) ? (oui/NON) ? "},
      {"\n", true, {}, Boutons::OuiNonAnnuler, 2, Reponse::Annuler, "(oui/non/ANNULER) ? "},
      {"", true, {}, Boutons::OuiNon, 0, Reponse::Oui, "(OUI/non) ? "},
      {"x\nx\nx\nnon\n", true, {}, Boutons::OuiNon, 0, Reponse::Oui, "(OUI/non) ? (OUI/non) ? (OUI/non) ? "},
  };
  for (const auto& [tape, terminal, ligne, boutons, defaut, attendue, invites] : cas) {
    std::ostringstream sortie;
    std::istringstream entree(tape);
    MessagesConsole m(sortie, entree, terminal, ligne);
    EXPECT_EQ(m.PoserQuestion("T", "Q", boutons, Icone::Question, defaut), attendue) << tape;
    EXPECT_EQ(sortie.str(), std::string("T\nQ\n") + invites) << tape;
  }
}

TEST(ProgressionConsole, ALineRedrawnInPlaceOnlyOnATerminal) {
  std::ostringstream muet, terminal;
  for (std::ostringstream* sortie : {&muet, &terminal}) {
    ProgressionConsole p(*sortie, sortie == &terminal);
    p.DefinirTexte("Recherche");
    p.DefinirPourcentage(150);  // above 100 shows as 97, as the gauge of the windows does
    p.DefinirTexte("");
    p.Terminer();  // nothing left drawn: no line to end
    p.DefinirTexte("Fin");
    p.Terminer();
  }
  EXPECT_EQ(muet.str(), "");
  EXPECT_EQ(terminal.str(), "\rRecherche 0 %\rRecherche 97 %\r" + std::string(14, ' ') + "\r\rFin 97 %\n");
}

}  // namespace
}  // namespace norvane
