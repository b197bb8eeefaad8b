// Automation objects that record the members called, in order, as
// "Membre(arguments)" lines, and answer from fields the test sets. A store
// writes a small file named by its path, so that what lands on disk can be
// checked.
#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "drivers/PiloteOpenOffice.h"
#include "drivers/PiloteWord.h"
#include "drivers/PiloteWordPro.h"

namespace norvane::test {

inline void Deposer(const std::string& chemin, const std::string& contenu) { std::ofstream(chemin) << contenu; }

struct Journal {
  std::vector<std::string> appels;
  std::string Tout() const {
    std::string t;
    for (const std::string& a : appels) t += a + ";";
    return t;
  }
};

class FauxWord : public AutomationWord, public Journal {
 public:
  bool connecte = true;
  int documents = 1;
  std::string nomComplet = "/d/lettre.doc";
  Police police{false, false, 1, "Arial", 10};

  bool Connecter() override { return connecte; }
  int NombreDocuments() override { return documents; }
  void AjouterDocument() override { appels.push_back("Documents.Add"); ++documents; }
  void OuvrirDocument(const std::string& c) override { appels.push_back("Documents.Open(" + c + ")"); ++documents; }
  void Montrer() override { appels.push_back("Montrer"); }
  std::string NomComplet() override { return nomComplet; }
  void Enregistrer() override { appels.push_back("Save"); }
  void EnregistrerSous(const std::string& c, int format) override {
    appels.push_back("SaveAs(" + c + "," + std::to_string(format) + ")");
    Deposer(c, "word");
  }
  void Fermer(bool e) override { appels.push_back(std::string("Close(") + (e ? "true" : "false") + ")"); --documents; }
  void FermerEnRtf(const std::string& c) override {
    appels.push_back("Close(true,Rich Text Format," + c + ")");
    Deposer(c, "rtf");
    --documents;
  }
  void Quitter() override { appels.push_back("Quit"); }
  Police LirePolice() override { return police; }
  void EcrirePolice(const Police& p) override {
    police = p;
    appels.push_back("Font(" + p.nom + "," + std::to_string(static_cast<int>(p.taille)) + ")");
  }
  void TaperTexte(const std::string& t) override { appels.push_back("TypeText(" + t + ")"); }
  void TaperParagraphe() override { appels.push_back("TypeParagraph"); }
  std::string TexteSelection() override { return "#tvl(commune)#"; }
  void Activer() override { appels.push_back("Activate"); }
};

class FauxWordPro : public AutomationWordPro, public Journal {
 public:
  bool cree = true;
  bool creationPossible = true;
  bool documentActif = true;
  bool texte = true;
  std::string nomComplet = "/d/lettre.lwp";

  bool EstCree() override { return cree; }
  void Creer() override {
    if (!creationPossible) throw ErreurAutomation("classe non enregistrée");
    cree = true;
  }
  void NouveauDocument() override { appels.push_back("NewDocument"); }
  void OuvrirDocument(const std::string& c) override { appels.push_back("OpenDocument(" + c + ")"); }
  void Montrer() override { appels.push_back("Visible"); }
  bool ADocumentActif() override { return documentActif; }
  std::string NomComplet() override { return nomComplet; }
  void Enregistrer() override { appels.push_back("Save"); }
  void Fermer(bool e) override {
    appels.push_back(std::string("Close(") + (e ? "true" : "false") + ")");
    documentActif = false;
  }
  void FermerSous(const std::string& n, const std::string& r, const std::string& f) override {
    appels.push_back("Close(true," + n + "," + r + "," + f + ")");
    Deposer(r + "/" + n, f);
    documentActif = false;
  }
  void EnregistrerSous(const std::string& n, const std::string& r, const std::string& f) override {
    appels.push_back("SaveAs(" + n + "," + r + "," + f + ")");
    Deposer(r + "/" + n, f);
  }
  void Quitter() override { appels.push_back("Quit"); }
  void RepondreBoites(int code) override { appels.push_back("AnswerMsgBox(" + std::to_string(code) + ")"); }
  bool ATexte() override { return texte; }
  void InsererTexte(const std::string& t, int16_t mode) override {
    appels.push_back("InsertText(" + t + "," + std::to_string(mode) + ")");
  }
  std::string CopierSelection() override { return "copie"; }
};

class FauxOpenOffice : public AutomationOpenOffice, public Journal {
 public:
  int cadres = 1;
  bool courant = true;
  bool lectureSeule = false;
  bool location = true;
  bool modifie = true;

  void Charger(const std::string& url) override {
    appels.push_back("Load(" + url + ")");
    ++cadres;
    courant = true;
  }
  int NombreCadres() override { return cadres; }
  bool DocumentCourant() override { return courant; }
  bool LectureSeule() override { return lectureSeule; }
  bool ALocation() override { return location; }
  bool EstModifie() override { return modifie; }
  void Enregistrer() override { appels.push_back("store"); }
  void EnregistrerSous(const std::string& url, const std::string& filtre) override {
    appels.push_back("storeAsURL(" + url + "," + filtre + ")");
    Deposer(url.substr(7), filtre);
  }
  void FermerDocumentCourant() override {
    appels.push_back("close");
    courant = --cadres > 0;
  }
  void Liberer() override { appels.push_back("release"); }
  void InsererTexte(const std::string& t, const std::string& p, int taille) override {
    appels.push_back("insertString(" + t + "," + p + "," + std::to_string(taille) + ")");
  }
  std::string TexteSelection() override { return "choisi"; }
};

}  // namespace norvane::test
