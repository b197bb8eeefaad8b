// The OpenOffice driver over a real headless LibreOffice: one private office
// for the whole program, started by the first case and ended by the last.
#include <gtest/gtest.h>

#include <signal.h>

#include <cstdlib>
#include <fstream>
#include <memory>

#include "drivers/libreoffice/BureauLibreOffice.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"

namespace norvane::test {
namespace {

// UNO's own libraries are not built for the sanitizers, and the client
// context they keep for the whole process is never freed: this build leaves
// the office to the normal build.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSousSanitizers = true;
#else
constexpr bool kSousSanitizers = false;
#endif

std::string Tete(const std::string& chemin, std::size_t n) {
  std::ifstream f(chemin, std::ios::binary);
  std::string t(n, '\0');
  f.read(t.data(), static_cast<std::streamsize>(n));
  t.resize(static_cast<std::size_t>(f.gcount()));
  return t;
}

struct Banc {
  MessagesScriptes messages;
  Options options;
  BureauLibreOffice bureau{SorteBureau::Prive, ProgrammeLibreOffice("")};
  ContexteSauvegarde contexte{messages, options, "", nullptr, nullptr};
  PiloteOpenOffice pilote{bureau, contexte};
  Banc() {
    contexte.pilote = [this](int code) -> Pilote* { return code == kEditeurOpenOffice ? &pilote : nullptr; };
  }
};

Banc* banc = nullptr;
int dernierProcessus = 0;

class PiloteLibreOffice : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (kSousSanitizers || ProgrammeLibreOffice("").empty()) return;
    banc = new Banc;
  }
  static void TearDownTestSuite() {
    if (banc == nullptr) return;
    dernierProcessus = banc->bureau.Processus();
    delete banc;
    banc = nullptr;
    // The office ended with the driver.
    EXPECT_TRUE(dernierProcessus == 0 || kill(dernierProcessus, 0) != 0);
  }
  void SetUp() override {
    if (kSousSanitizers) GTEST_SKIP() << "UNO n'est pas construit pour AddressSanitizer : essai ignoré dans cette construction";
    if (banc == nullptr) GTEST_SKIP() << "LibreOffice n'est pas installé";
    while (banc->bureau.DocumentCourant()) banc->bureau.FermerDocumentCourant();
    banc->messages.messages.clear();
    banc->messages.questions.clear();
  }
  std::string Selection() {
    banc->bureau.SelectionnerTout();
    return banc->pilote.LireSelection();
  }
  std::string Texte() { return banc->bureau.TexteDocument(); }
  DossierTemporaire d;
};

TEST_F(PiloteLibreOffice, InsertsAtTheCursorAndReadsTheSelection) {
  banc->pilote.NouveauDocument();
  EXPECT_EQ(banc->bureau.NombreCadres(), 1);
  banc->pilote.InsererTexte("Bonjour", {}, 0);
  FormatInsertion format;
  format.police = "DejaVu Sans";
  format.taille = 14;
  banc->pilote.InsererTexte("#tvl(commune)#", format, 1);
  banc->pilote.InsererTexte(" fin", {}, 0);
  EXPECT_EQ(banc->pilote.LireSelection(), "");  // nothing selected yet
  EXPECT_EQ(Selection(), "Bonjour\n#tvl(commune)# fin");
  EXPECT_TRUE(banc->messages.messages.empty()) << banc->messages.Journal();
}

TEST_F(PiloteLibreOffice, StoresEachFormatAndReadsItBack) {
  banc->pilote.NouveauDocument();
  banc->pilote.InsererTexte("Étude prévisionnelle 1 234,50 €", {}, 0);
  struct Cas {
    const char* nom;
    int16_t confirmer;
    const char* tete;  // first bytes of the file
  };
  const Cas cas[] = {{"a.rtf", 0, "{\\rtf"},
                     {"a.doc", -1, "\xD0\xCF\x11\xE0"},
                     {"a.odt", 0, "PK"},
                     {"a.pdf", 0, "%PDF"}};
  banc->messages.reponses = {Reponse::Oui};
  for (const Cas& c : cas) {
    EXPECT_TRUE(SauvegarderSous(banc->contexte, 0, kEditeurOpenOffice, d / c.nom, c.confirmer)) << c.nom;
    EXPECT_EQ(Tete(d / c.nom, std::string(c.tete).size()), c.tete) << c.nom;
  }
  banc->pilote.FermerDocument(kFermerSansEnregistrer);
  EXPECT_EQ(banc->bureau.NombreCadres(), 0);
  for (const char* nom : {"a.rtf", "a.doc", "a.odt"}) {
    banc->pilote.OuvrirDocument(d / nom);
    EXPECT_EQ(Texte(), "Étude prévisionnelle 1 234,50 €") << nom;
    banc->pilote.FermerDocument(kFermerSansEnregistrer);
  }
  EXPECT_EQ(banc->bureau.NombreCadres(), 0);
}

TEST_F(PiloteLibreOffice, ClosesTheCurrentDocumentAndKeepsTheOthers) {
  d.Ecrire("un.rtf", "{\\rtf1 un\\par}");
  d.Ecrire("deux.rtf", "{\\rtf1 deux\\par}");
  banc->pilote.OuvrirDocument(d / "un.rtf");
  banc->pilote.OuvrirDocument(d / "deux.rtf");
  EXPECT_EQ(banc->bureau.NombreCadres(), 2);
  banc->pilote.FermerDocument(kFermerSansEnregistrer);
  EXPECT_EQ(banc->bureau.NombreCadres(), 1);
  EXPECT_EQ(Texte(), "un");
  banc->pilote.FermerDocument(kFermerDemander);  // unmodified: no question
  EXPECT_EQ(banc->bureau.NombreCadres(), 0);
  EXPECT_TRUE(banc->messages.questions.empty());
}

TEST_F(PiloteLibreOffice, TemplateSavedAsRtfIsRenamedAndReopened) {
  d.Ecrire("modele.tvm", "{\\rtf1 ancien\\par}");
  banc->pilote.NouveauDocument();
  banc->pilote.InsererTexte("#tvl(date(18))#", {}, 0);
  EXPECT_TRUE(SauvegarderSous(banc->contexte, 0, kEditeurOpenOffice, d / "modele.tvm", 0));
  EXPECT_FALSE(d.Existe("modele.rtf"));
  EXPECT_EQ(Tete(d / "modele.tvm", 5), "{\\rtf");
  EXPECT_EQ(banc->bureau.NombreCadres(), 1);
  EXPECT_EQ(Texte(), "#tvl(date(18))#");
  EXPECT_TRUE(banc->bureau.ALocation());
}

TEST_F(PiloteLibreOffice, AnOfficeKilledBehindTheDriverIsStartedAgain) {
  banc->pilote.NouveauDocument();
  const int avant = banc->bureau.Processus();
  ASSERT_GT(avant, 0);
  kill(avant, SIGKILL);
  banc->pilote.NouveauDocument();
  EXPECT_NE(banc->bureau.Processus(), avant);
  EXPECT_EQ(banc->bureau.NombreCadres(), 1);
  banc->pilote.InsererTexte("encore là", {}, 0);
  EXPECT_EQ(Selection(), "encore là");
}

// Tool tips of the generator are RTF annotations.
TEST_F(PiloteLibreOffice, ConvertsADocumentWithAnnotations) {
  d.Ecrire("bulle.rtf",
           "{\\rtf1\\ansi Avant {\\*\\atnid N}{\\*\\atnauthor Norvane}\\chatn{\\*\\annotation{\\*\\atnref 1}"
           "{Un commentaire}} apr\\'e8s\\par}");
  banc->pilote.OuvrirDocument(d / "bulle.rtf");
  EXPECT_EQ(Texte(), "Avant  après");
  EXPECT_TRUE(SauvegarderSous(banc->contexte, 0, kEditeurOpenOffice, d / "bulle.pdf", 0)) << banc->messages.Journal();
  EXPECT_TRUE(SauvegarderSous(banc->contexte, -1, kEditeurOpenOffice, d / "bulle.odt", 0));
  EXPECT_EQ(Tete(d / "bulle.odt", 2), "PK");
  EXPECT_EQ(Tete(d / "bulle.pdf", 4), "%PDF");
}

TEST_F(PiloteLibreOffice, AMissingFileIsAnErrorOfTheOffice) {
  EXPECT_THROW(banc->pilote.OuvrirDocument(d / "absent.rtf"), ErreurAutomation);
  EXPECT_EQ(banc->bureau.NombreCadres(), 0);
}

}  // namespace
}  // namespace norvane::test
