// The rules of the drivers and of the shared save routine, played against
// automation objects that record what they are asked.
#include <gtest/gtest.h>

#include "drivers/Aiguillage.h"
#include "drivers/EditeurGenerateur.h"
#include "drivers/Faux.h"
#include "support/DossierTemporaire.h"
#include "frame/Texte.h"
#include "support/PortsScriptes.h"

namespace norvane::test {
namespace {

class ChoixScripte : public PortChoixFichier {
 public:
  std::string reponse;
  std::string filtre;
  std::string ChoisirFichier(const std::string&, const std::string& f, int) override {
    filtre = f;
    return reponse;
  }
};

class PilotesTest : public ::testing::Test {
 protected:
  PilotesTest() {
    contexte.choix = &choix;
    contexte.pilote = [this](int code) -> Pilote* {
      switch (code) {
        case kEditeurWord: return &word;
        case kEditeurWordPro: return &wordPro;
        case kEditeurOpenOffice: return &openOffice;
        default: return nullptr;
      }
    };
  }
  bool Sauver(int editeur, const std::string& chemin, int16_t fermer = 0, int16_t confirmer = 0) {
    return SauvegarderSous(contexte, fermer, editeur, chemin, confirmer);
  }
  std::vector<std::string> Titres() const {
    std::vector<std::string> t;
    for (const auto& m : messages.messages) t.push_back(m.titre);
    return t;
  }

  DossierTemporaire d;
  MessagesScriptes messages;
  Options options;
  ChoixScripte choix;
  ContexteSauvegarde contexte{messages, options, "/modeles/", nullptr, nullptr};
  FauxWord fauxWord;
  FauxWordPro fauxWordPro;
  FauxOpenOffice fauxOpenOffice;
  PiloteWord word{fauxWord, contexte};
  PiloteWordPro wordPro{fauxWordPro, contexte};
  PiloteOpenOffice openOffice{fauxOpenOffice, contexte};
};

// Each branch of each editor: what the automation object is asked.
TEST_F(PilotesTest, EachEditorStoresEachFormatAsItsTableSays) {
  struct Cas {
    int editeur;
    int16_t fermer;
    int16_t confirmer;
    const char* nom;
    const char* appels;  // with <d> for the folder
  };
  const Cas cas[] = {
      {kEditeurWord, -1, 0, "a.rtf", "Close(true,Rich Text Format,<d>a.rtf);"},
      {kEditeurWord, -1, 0, "a.doc", "SaveAs(<d>a.doc,0);Close(false);"},
      {kEditeurWord, 0, 0, "a.rtf", "SaveAs(<d>a.rtf,6);"},
      {kEditeurWord, 0, 0, "a.doc", "SaveAs(<d>a.doc,0);"},
      {kEditeurWordPro, -1, 0, "a.rtf", "AnswerMsgBox(2079);Close(true,a.rtf,<D>,Rich Text Format);"},
      {kEditeurWordPro, -1, 0, "a.doc", "AnswerMsgBox(2079);Close(true,a.doc,<D>,MS Word 97);"},
      {kEditeurWordPro, 0, 0, "a.txt", "AnswerMsgBox(2079);SaveAs(a.txt,<D>,Lotus Word Pro);"},
      {kEditeurWordPro, 0, 0, "a.lwp", "AnswerMsgBox(2079);SaveAs(a.lwp,<D>,Lotus Word Pro);"},
      {kEditeurOpenOffice, -1, 0, "a.rtf", "storeAsURL(file://<d>a.rtf,Rich Text Format);close;"},
      {kEditeurOpenOffice, -1, 0, "a.doc", "storeAsURL(file://<d>a.doc,MS Word 97);close;"},
      {kEditeurOpenOffice, 0, 0, "a.rtf", "storeAsURL(file://<d>a.rtf,Rich Text Format);"},
      // Unconfirmed and left open: a Word name keeps the RTF content.
      {kEditeurOpenOffice, 0, 0, "a.doc", "storeAsURL(file://<d>a.doc,Rich Text Format);"},
      {kEditeurOpenOffice, 0, 0, "a.odt", "storeAsURL(file://<d>a.odt,writer8);"},
      {kEditeurOpenOffice, -1, 0, "a.pdf", "storeAsURL(file://<d>a.pdf,writer_pdf_Export);close;"},
  };
  std::string dossier = d.Chemin();
  for (const Cas& c : cas) {
    for (Journal* j : std::initializer_list<Journal*>{&fauxWord, &fauxWordPro, &fauxOpenOffice}) j->appels.clear();
    fauxOpenOffice.cadres = 2;
    fauxOpenOffice.courant = true;
    EXPECT_TRUE(Sauver(c.editeur, d / c.nom, c.fermer, c.confirmer)) << c.nom;
    const std::string journal = fauxWord.Tout() + fauxWordPro.Tout() + fauxOpenOffice.Tout();
    std::string attendu = RemplacerTout(RemplacerTout(c.appels, "<d>", dossier), "<D>",
                                        dossier.substr(0, dossier.size() - 1));
    EXPECT_EQ(journal, attendu) << c.editeur << " " << c.fermer << " " << c.nom;
  }
  EXPECT_TRUE(messages.messages.empty()) << messages.Journal();
}

TEST_F(PilotesTest, LwpIsRefusedByWordAndOpenOffice) {
  for (int editeur : {kEditeurWord, kEditeurOpenOffice}) {
    EXPECT_FALSE(Sauver(editeur, d / "a.lwp"));
    EXPECT_FALSE(Sauver(editeur, d / "a.lwp", -1));
  }
  EXPECT_EQ(Titres(), std::vector<std::string>(4, "Sauvegarde impossible dans le format demandé"));
  EXPECT_EQ(messages.messages[0].texte,
            "Pour pouvoir sauvegarder au format LWP, Norvane doit être lié à l'éditeur de texte Lotus Word Pro.");
  EXPECT_FALSE(d.Existe("a.lwp"));
  EXPECT_EQ(fauxWord.documents, 1);  // the document stays open
}

TEST_F(PilotesTest, OtherFormatsAreConfirmedAfterTheAdvice) {
  messages.reponses = {Reponse::Non, Reponse::Oui};
  EXPECT_FALSE(Sauver(kEditeurOpenOffice, d / "a.doc", 0, -1));
  EXPECT_FALSE(d.Existe("a.doc"));
  EXPECT_TRUE(Sauver(kEditeurOpenOffice, d / "a.doc", 0, -1));
  EXPECT_EQ(d.Lire("a.doc"), "MS Word 97");
  EXPECT_EQ(Titres(), (std::vector<std::string>{"Préférer le format RTF à tout autre format !", "Sauvegarde annulée",
                                                "Préférer le format RTF à tout autre format !"}));
  ASSERT_EQ(messages.questions.size(), 2u);
  EXPECT_EQ(messages.questions[0].titre, "Sauvegarde au format DOC");
  EXPECT_EQ(messages.questions[0].texte, "Confirmer la sauvegarde au format Microsoft Word");
  // Word Pro asks about its own format; RTF and DOC need no confirmation.
  messages.reponses = {Reponse::Oui};
  EXPECT_TRUE(Sauver(kEditeurWordPro, d / "b.lwp", 0, -1));
  EXPECT_TRUE(Sauver(kEditeurWordPro, d / "b.doc", 0, -1));
  EXPECT_EQ(messages.questions.back().titre, "Sauvegarde au format LWP");
  EXPECT_EQ(messages.questions.size(), 3u);
}

TEST_F(PilotesTest, TemplateIsWrittenAsRtfThenRenamedAndReopened) {
  d.Ecrire("modele.tvm", "ancien");
  EXPECT_TRUE(Sauver(kEditeurOpenOffice, d / "modele.tvm"));
  EXPECT_EQ(d.Lire("modele.tvm"), "Rich Text Format");
  EXPECT_FALSE(d.Existe("modele.rtf"));
  EXPECT_EQ(fauxOpenOffice.appels.back(), "Load(file://" + d.Chemin() + "modele.tvm)");
  // Word closes its copy without saving before the rename.
  EXPECT_TRUE(Sauver(kEditeurWord, d / "lettre.TVM"));
  EXPECT_EQ(fauxWord.Tout(), "SaveAs(" + d.Chemin() + "lettre.rtf,6);Close(false);Documents.Open(" + d.Chemin() +
                                 "lettre.tvm);Montrer;");
}

TEST_F(PilotesTest, PathsAreCheckedBeforeAnythingIsWritten) {
  EXPECT_FALSE(Sauver(kEditeurOpenOffice, "modele.rtf"));
  EXPECT_EQ(Titres(), std::vector<std::string>{"Erreur : sauvegarde impossible."});
  EXPECT_EQ(messages.messages[0].texte, "Le chemin du document à sauvegarder est erroné.");
  // A final separator is dropped before the extension is read.
  EXPECT_TRUE(Sauver(kEditeurWord, d / "a.rtf/"));
  EXPECT_EQ(fauxWord.appels.back(), "SaveAs(" + d.Chemin() + "a.rtf,6)");
  // An empty path asks; a cancelled dialog does nothing and says nothing.
  messages.messages.clear();
  fauxWord.appels.clear();
  EXPECT_FALSE(Sauver(kEditeurWord, ""));
  EXPECT_TRUE(messages.messages.empty() && fauxWord.appels.empty());
  EXPECT_EQ(choix.filtre, "Modèle document Norvane (*.tvm)|*.tvm|Document Rich Text Format (*.rtf)|*.rtf");
  options.CheminEditeur = "C:\\Lotus\\wordpro.exe";
  choix.reponse = "  " + d / "choisi.lwp" + " ";
  EXPECT_TRUE(Sauver(kEditeurWordPro, ""));
  EXPECT_TRUE(d.Existe("choisi.lwp"));
  EXPECT_EQ(choix.filtre, "Modèle document Norvane (*.tvm)|*.tvm|Document Rich Text Format (*.rtf)|*.rtf"
                          "|Document Lotus Word Pro (*.lwp)|*.lwp");
  // Unknown codes save nothing; an error of the editor is described.
  EXPECT_FALSE(Sauver(7, d / "x.rtf"));
  fauxOpenOffice.courant = false;
  EXPECT_FALSE(Sauver(kEditeurOpenOffice, d / "x.rtf"));
  EXPECT_EQ(messages.messages.back().titre,
            "Erreur du traitement de texte lors de la sauvegarde du document en cours :");
  EXPECT_EQ(messages.messages.back().texte, "Description technique de l'erreur : aucun document courant");
}

TEST_F(PilotesTest, WordCountsNewDocumentsAsUnnamed) {
  for (const char* nom : {"Document1", "", "DOCUMENTS/a.doc"}) {
    fauxWord.nomComplet = nom;
    fauxWord.appels.clear();
    word.SauvegarderDocument(false, false);
    EXPECT_TRUE(fauxWord.appels.empty()) << nom;  // the dialog was cancelled: nothing saved
  }
  fauxWord.nomComplet = "/d/lettre.doc";
  word.SauvegarderDocument(false, false);
  EXPECT_EQ(fauxWord.Tout(), "Save;");
  fauxWord.documents = 0;
  word.SauvegarderDocument(false, false);
  EXPECT_EQ(messages.messages.back().texte, "Aucun document n'est actuellement ouvert dans MSWord.");
}

TEST_F(PilotesTest, WordClosesAsTheUserAnswers) {
  messages.reponses = {Reponse::Annuler, Reponse::Oui};
  word.FermerDocument(kFermerDemander);
  EXPECT_EQ(fauxWord.Tout(), "");
  EXPECT_EQ(messages.questions[0].texte, "Voulez-vous enregistrer les changements apportés à :\n/d/lettre.doc ?");
  EXPECT_EQ(messages.questions[0].boutons, Boutons::OuiNonAnnuler);
  word.FermerDocument(kFermerDemander);
  EXPECT_EQ(fauxWord.Tout(), "Close(true);Quit;");
  // With two documents, closing one leaves Word running.
  fauxWord.documents = 2;
  fauxWord.appels.clear();
  word.FermerDocument(kFermerSansEnregistrer);
  EXPECT_EQ(fauxWord.Tout(), "Close(false);");
}

TEST_F(PilotesTest, WordInsertsInTheGivenFontAndRestoresTheCursorFont) {
  FormatInsertion format;
  format.police = "Courier New";
  format.taille = 12;
  word.InsererTexte("#tvl(commune)#", format, 1);
  EXPECT_EQ(fauxWord.Tout(),
            "TypeParagraph;Font(Courier New,12);TypeText(#tvl(commune)#);Font(Arial,10);Activate;");
  fauxWord.documents = 0;
  word.InsererTexte("x", {}, 0);
  EXPECT_EQ(Titres(), std::vector<std::string>{"Erreur : insertion impossible."});
  EXPECT_EQ(word.LireSelection(), "#tvl(commune)#");
}

TEST_F(PilotesTest, WordProInsertionSaysWhatIsMissing) {
  struct Cas {
    bool cree, document, texte;
    const char* raison;
  };
  const Cas cas[] = {{false, true, true, "Lotus Word Pro n'est pas ouvert."},
                     {true, false, true, "Aucun document n'est actuellement ouvert dans WordPro."},
                     {true, true, false, "Insertion dans le document courant impossible."}};
  for (const Cas& c : cas) {
    fauxWordPro.cree = c.cree;
    fauxWordPro.documentActif = c.document;
    fauxWordPro.texte = c.texte;
    wordPro.InsererTexte("x", {}, 1);
    EXPECT_EQ(messages.messages.back().texte, c.raison);
  }
  fauxWordPro = FauxWordPro{};
  wordPro.InsererTexte("#tvl(x)#", {}, 1);
  EXPECT_EQ(fauxWordPro.Tout(), "InsertText(#tvl(x)#,1);Visible;");
  fauxWordPro.cree = false;
  fauxWordPro.creationPossible = false;
  wordPro.NouveauDocument();
  EXPECT_EQ(messages.messages.back().texte, "Impossible de lancer Word Pro.");
}

TEST_F(PilotesTest, WordProAlwaysAsksBeforeClosing) {
  messages.reponses = {Reponse::Non};
  wordPro.FermerDocument(kFermerSansEnregistrer);
  EXPECT_EQ(messages.questions[0].texte, "Voulez-vous enregistrer les changements apportés au document ?");
  EXPECT_EQ(fauxWordPro.Tout(), "Close(false);Quit;");
}

TEST_F(PilotesTest, OpenOfficeClosesAndSavesAsTheDocumentNeeds) {
  // Unmodified: closed without a question.
  fauxOpenOffice.modifie = false;
  openOffice.FermerDocument(kFermerDemander);
  EXPECT_TRUE(messages.questions.empty());
  EXPECT_EQ(fauxOpenOffice.Tout(), "close;release;");
  // Modified, two documents: saved on yes, and the objects stay.
  fauxOpenOffice = FauxOpenOffice{};
  fauxOpenOffice.cadres = 2;
  messages.reponses = {Reponse::Oui};
  openOffice.FermerDocument(kFermerDemander);
  EXPECT_EQ(messages.questions[0].texte, "Voulez-vous enregistrer les changements apportés au document en cours ?");
  EXPECT_EQ(fauxOpenOffice.Tout(), "store;close;");
  // 5 with a location is the unfinished route.
  openOffice.FermerDocument(kFermerForcer);
  EXPECT_EQ(Titres().back(), "A faire !");
  // Saving an unmodified document is useless; a read-only one cannot be saved.
  fauxOpenOffice = FauxOpenOffice{};
  fauxOpenOffice.modifie = false;
  openOffice.SauvegarderDocument(false, false);
  EXPECT_EQ(Titres().back(), "Sauvegarde du document inutile !");
  fauxOpenOffice.lectureSeule = true;
  openOffice.SauvegarderDocument(false, false);
  EXPECT_EQ(Titres().back(), "Sauvegarde du document impossible !");
  EXPECT_EQ(fauxOpenOffice.Tout(), "");
}

TEST_F(PilotesTest, OpenOfficeInsertsAndReadsOnlyWithADocument) {
  FormatInsertion format;
  format.police = "Arial";
  format.gras = true;
  openOffice.InsererTexte("#tvl(x)#", format, 1);
  EXPECT_EQ(fauxOpenOffice.Tout(), "insertString(\n#tvl(x)#,Arial,0);");
  EXPECT_EQ(openOffice.LireSelection(), "choisi");
  fauxOpenOffice.cadres = 0;
  openOffice.InsererTexte("x", {}, 0);
  EXPECT_EQ(openOffice.LireSelection(), "");
  EXPECT_EQ(Titres(), (std::vector<std::string>{"Erreur : insertion impossible.",
                                                "Erreur : récupération de la sélection impossible."}));
  EXPECT_EQ(messages.messages[1].texte, "Aucun document n'est actuellement ouvert dans OpenOffice avec Norvane.");
}

TEST_F(PilotesTest, OpenOfficeOpensTheUrlOfThePath) {
  d.Ecrire("mon doc.rtf", "{\\rtf1}");
  openOffice.OuvrirDocument(d / "mon doc.rtf");
  EXPECT_EQ(fauxOpenOffice.Tout(), "Load(file://" + d.Chemin() + "mon%20doc.rtf);");
}

// With no driver for the bound editor, each request shows its own advice,
// and only some open the choice of an editor.
TEST_F(PilotesTest, RequestsWithoutADriverSaySo) {
  Pilotes pilotes(options, messages);
  pilotes.Brancher(kEditeurOpenOffice, &openOffice);
  struct Cas {
    const char* editeur;
    Demande demande;
    const char* conseil;
    bool choix;
  };
  const Cas cas[] = {
      {"C:\\Office\\WINWORD.EXE\\", Demande::Nouveau,
       "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\" puis cliquez à nouveau sur "
       "\"DOCUMENT\" -> \"NOUVEAU\".",
       true},
      {"/opt/wordpro.exe", Demande::Fermeture, "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE "
                                               "CHOIX\".",
       true},
      {"", Demande::Sauvegarde, "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\".", false},
      {"/bin/editeur.exe", Demande::OuvertureListe,
       "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\" puis cliquez à nouveau sur "
       "\"DOCUMENT\" -> \"OUVRIR\".",
       false},
      {"", Demande::OuvertureGenerateur,
       "Sélectionnez un traitement de texte dans \"PROPRIETES\" puis cliquez à nouveau sur \"DOCUMENT\" -> "
       "\"OUVRIR\".",
       true},
      {"", Demande::Creation,
       "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\" puis cliquez à nouveau sur "
       "\"CREER DOC\".",
       false},
  };
  for (const Cas& c : cas) {
    options.CheminEditeur = c.editeur;
    bool choixEditeur = !c.choix;
    EXPECT_EQ(pilotes.Servir(c.demande, &choixEditeur), nullptr) << c.editeur;
    EXPECT_EQ(choixEditeur, c.choix) << c.editeur;
    EXPECT_EQ(messages.messages.back().titre, kTitreErreurDetectee);
    EXPECT_EQ(messages.messages.back().texte, "Aucun traitement de texte n'est actuellement lié à Norvane !");
    EXPECT_EQ(messages.messages.back().conseil, c.conseil);
  }
  for (const char* nom : {"/usr/bin/soffice", "/usr/lib/libreoffice/program/soffice.bin", "/usr/bin/libreoffice",
                          "C:\\OpenOffice\\SOFFICE.EXE"}) {
    options.CheminEditeur = nom;
    EXPECT_EQ(pilotes.Servir(Demande::Sauvegarde), &openOffice) << nom;
  }
}

TEST_F(PilotesTest, GeneratorConvertsThroughTheHiddenDriver) {
  Pilotes visibles(options, messages);
  visibles.Brancher(kEditeurOpenOffice, &openOffice);
  EditeurGenerateur editeur(messages, visibles, contexte);
  d.Ecrire("r.doc", "{\\rtf1 x}");
  EXPECT_TRUE(editeur.SauvegarderSous(true, kEditeurOpenOffice, d / "r.doc", d / "r.doc"));
  EXPECT_EQ(fauxOpenOffice.Tout(), "Load(file://" + d.Chemin() + "r.doc);storeAsURL(file://" + d.Chemin() +
                                       "r.doc,MS Word 97);close;");
  // Already a Word file: left as it is.
  fauxOpenOffice.appels.clear();
  EXPECT_TRUE(editeur.SauvegarderSous(true, kEditeurOpenOffice, d / "r.doc", d / "r.doc"));
  EXPECT_EQ(fauxOpenOffice.Tout(), "");
  // Word cannot be driven here: the creation's advice.
  contexte.pilote = [](int) -> Pilote* { return nullptr; };
  EXPECT_FALSE(editeur.SauvegarderSous(true, kEditeurWord, d / "r.doc", d / "r.doc"));
  EXPECT_EQ(messages.messages.back().conseil,
            "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\" puis cliquez à nouveau sur "
            "\"CREER DOC\".");
}

}  // namespace
}  // namespace norvane::test
