// The choices of the PDE Cerfa report: page list, stock template, number of
// years and the refusal without a dossier.
#include <gtest/gtest.h>

#include <deque>
#include <set>

#include "cerfa/ChoixPDE.h"
#include "study/Session.h"
#include "support/PortsScriptes.h"

namespace norvane::test {
namespace {

TEST(ListePDE, SixteenEntriesEachNamingItsTemplateAndItsSuggestedName) {
  const auto& liste = ListePDE();
  EXPECT_STREQ(liste[0].texte, "Toutes les pages dans un même document Word");
  EXPECT_STREQ(liste[0].nom, "PDECerfa");
  EXPECT_STREQ(liste[1].texte, "1: Le candidat et le projet, MO, Surface, ... ");
  EXPECT_EQ(std::string(liste[6].texte).substr(1), std::string(liste[7].texte).substr(1));
  std::set<std::string> modeles;
  for (int i = 1; i < kPagesPDE; ++i) {
    const std::string n = std::to_string(i);
    EXPECT_EQ(std::string(liste[static_cast<std::size_t>(i)].modele), "PDE/PDE" + n + ".tvm");
    EXPECT_EQ(std::string(liste[static_cast<std::size_t>(i)].nom), "PDE" + n);
    EXPECT_EQ(std::string(liste[static_cast<std::size_t>(i)].texte).rfind(n + ": ", 0), 0u) << i;
    modeles.insert(liste[static_cast<std::size_t>(i)].modele);
  }
  EXPECT_EQ(modeles.size(), 15u);
}

TEST(ModelePDE, TheCompanyPagesAreAskedOnlyForTheWholeReportOfAnIndividualFarm) {
  struct Cas {
    int index;
    bool societe;
    std::deque<Reponse> reponses;
    const char* modele;
    std::size_t questions;
  };
  for (const Cas& cas : {Cas{0, true, {}, "PDE/PDECerfasoc.tvm", 0}, Cas{0, false, {Reponse::Non}, "PDE/PDECerfa.tvm", 1},
                         Cas{0, false, {Reponse::Oui}, "PDE/PDECerfasoc.tvm", 1},
                         Cas{14, false, {}, "PDE/PDE14.tvm", 0}, Cas{15, false, {}, "PDE/PDE15.tvm", 0},
                         Cas{8, true, {}, "PDE/PDE8.tvm", 0}, Cas{16, true, {}, "PDE/PDECerfasoc.tvm", 0}}) {
    MessagesScriptes messages;
    messages.reponses = cas.reponses;
    EXPECT_EQ(ModelePDE(cas.index, cas.societe, messages), cas.modele) << cas.index << cas.societe;
    EXPECT_EQ(messages.questions.size(), cas.questions) << cas.index << cas.societe;
  }
}

TEST(NombreAnneesPDE, ZeroOrANonNumberGivesFiveYears) {
  struct Cas {
    const char* texte;
    int16_t annees;
  };
  for (const Cas& cas : {Cas{"5", 5}, Cas{"3", 3}, Cas{"0", 5}, Cas{"abc", 5}, Cas{"", 5}, Cas{"7,6", 8},
                         Cas{" 4 ", 4}, Cas{"0,2", 5}}) {
    EXPECT_EQ(NombreAnneesPDE(cas.texte), cas.annees) << cas.texte;
  }
}

TEST(DossierLiePDE, AnEmptyPathOrNameIsRefusedWithTheMessage) {
  Session session;
  MessagesScriptes messages;
  EXPECT_FALSE(DossierLiePDE(session, messages));
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].titre, "Aucun dossier d'étude Tervol n'est lié !");
  session.RepDossier[0] = "/tmp/";
  EXPECT_FALSE(DossierLiePDE(session, messages));
  session.NomDossier[0] = "DUPONT.TVL";
  EXPECT_TRUE(DossierLiePDE(session, messages));
  EXPECT_EQ(messages.messages.size(), 2u);
}

}  // namespace
}  // namespace norvane::test
