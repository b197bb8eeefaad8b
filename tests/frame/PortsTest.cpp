#include <gtest/gtest.h>

#include <sstream>

#include "frame/BoutonsBoite.h"
#include "frame/PortsConsole.h"
#include "frame/PortsScriptes.h"

namespace norvane {
namespace {

TEST(BoutonsBoite, DefaultButtonByIndex) {
  EXPECT_EQ(ReponseParDefaut(Boutons::OuiNon, 1), Reponse::Non);
  EXPECT_EQ(ReponseParDefaut(Boutons::OuiNonAnnuler, 2), Reponse::Annuler);
  EXPECT_EQ(ReponseParDefaut(Boutons::OuiNon, 5), Reponse::Oui);
  EXPECT_EQ(ReponseParDefaut(Boutons::Ok, 0), Reponse::Ok);
}

struct Console {
  std::ostringstream sortie;
  std::istringstream entree;
  explicit Console(const std::string& tape = {}) : entree(tape) {}
  MessagesConsole Messages(bool terminal, std::optional<Reponse> ligne = std::nullopt) {
    return MessagesConsole(sortie, entree, terminal, ligne);
  }
};

TEST(MessagesConsole, OneFieldALineOnTheErrorStream) {
  Console c;
  c.Messages(false).AfficherMessage("Gen", "Titre", "Texte", "Conseil", "");
  c.Messages(false).AfficherMessage("Gen", "Seul", "Ligne", "", "seule");
  EXPECT_EQ(c.sortie.str(), "Titre\nTexte\nConseil\nSeul\nLigne\n");
}

TEST(MessagesConsole, TheCommandLineAnswerComesFirst) {
  Console c("non\n");
  EXPECT_EQ(c.Messages(true, Reponse::Oui).PoserQuestion("T", "Remplacer ?", Boutons::OuiNon, Icone::Question, 1),
            Reponse::Oui);
  // An answer the box does not offer leaves the choice to the box.
  EXPECT_EQ(c.Messages(false, Reponse::Annuler).PoserQuestion("T", "Q", Boutons::OuiNon, Icone::Question, 1),
            Reponse::Non);
}

TEST(MessagesConsole, WithoutTerminalTheDefaultButtonAnswers) {
  Console c("oui\n");
  EXPECT_EQ(c.Messages(false).PoserQuestion("T", "Q", Boutons::OuiNon, Icone::Question, 1), Reponse::Non);
  EXPECT_EQ(c.sortie.str(), "T\nQ\n");
}

TEST(MessagesConsole, OnATerminalTheUserIsAskedUntilTheAnswerMakesSense) {
  Console c("peut-etre\n O \n");
  EXPECT_EQ(c.Messages(true).PoserQuestion("T", "Q", Boutons::OuiNon, Icone::Question, 1), Reponse::Oui);
  EXPECT_EQ(c.sortie.str(), "T\nQ\n(oui/NON) ? (oui/NON) ? ");
  Console vide("\n");
  EXPECT_EQ(vide.Messages(true).PoserQuestion("T", "Q", Boutons::OuiNonAnnuler, Icone::Question, 2),
            Reponse::Annuler);
  Console fin("");
  EXPECT_EQ(fin.Messages(true).PoserQuestion("T", "Q", Boutons::OuiNon, Icone::Question, 0), Reponse::Oui);
}

TEST(ProgressionConsole, ALineRedrawnInPlaceOnlyOnATerminal) {
  std::ostringstream muet;
  ProgressionConsole cache(muet, false);
  cache.DefinirTexte("Recherche");
  cache.DefinirPourcentage(50);
  EXPECT_EQ(muet.str(), "");

  std::ostringstream terminal;
  ProgressionConsole ligne(terminal, true);
  ligne.DefinirTexte("Recherche");
  ligne.DefinirPourcentage(150);
  ligne.DefinirTexte("");
  EXPECT_EQ(terminal.str(), "\rRecherche 0 %\rRecherche 97 %\r" + std::string(14, ' ') + "\r");
  EXPECT_FALSE(ligne.ArretDemande());
  ligne.DemanderArret();
  EXPECT_TRUE(ligne.ArretDemande());
}

TEST(MessagesScriptes, RecordsEverythingAndAnswersFromTheScript) {
  MessagesScriptes m;
  m.reponses = {Reponse::Non};
  m.AfficherMessage("Gen", "Titre", "Texte", "Conseil", "Aide");
  EXPECT_EQ(m.PoserQuestion("Info", "Fin", Boutons::Ok, Icone::Information, 0), Reponse::Ok);
  EXPECT_EQ(m.PoserQuestion("Q1", "?", Boutons::OuiNon, Icone::Question, 0), Reponse::Non);
  EXPECT_EQ(m.PoserQuestion("Q2", "?", Boutons::OuiNon, Icone::Question, 1), Reponse::Non);
  EXPECT_EQ(m.PoserQuestion("Q3", "?", Boutons::OuiNon, Icone::Question, 0), Reponse::Oui);
  ASSERT_EQ(m.messages.size(), 1u);
  EXPECT_EQ(m.messages[0].style, "Aide");
  ASSERT_EQ(m.questions.size(), 4u);
  EXPECT_EQ(m.questions[1].reponse, Reponse::Non);
  EXPECT_EQ(m.Journal(), "Titre: Texte\nInfo: Fin\nQ1: ?\nQ2: ?\nQ3: ?\n");
}

TEST(ProgressionScriptee, StopsAfterTheScriptedNumberOfChecks) {
  ProgressionScriptee p;
  p.arretApres = 1;
  EXPECT_FALSE(p.ArretDemande());
  EXPECT_TRUE(p.ArretDemande());
  p.DefinirTexte("t");
  p.DefinirPourcentage(5);
  EXPECT_EQ(p.textes, std::vector<std::string>{"t"});
  EXPECT_EQ(p.pourcentages, std::vector<int>{5});
}

}  // namespace
}  // namespace norvane
