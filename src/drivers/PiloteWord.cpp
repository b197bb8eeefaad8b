#include "drivers/PiloteWord.h"

#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr char kAppelant[] = "PiloteMSWord";
constexpr char kAucunDocument[] = "Aucun document n'est actuellement ouvert dans MSWord.";
constexpr int kFormatDocument = 0;
constexpr int kFormatRtf = 6;

}  // namespace

bool PiloteWord::DocumentOuvert(const char* titre) {
  if (word_.NombreDocuments() > 0) return true;
  contexte_.messages.AfficherMessage(kAppelant, titre, kAucunDocument, "", "");
  return false;
}

bool PiloteWord::SansNom() {
  const std::string nom = word_.NomComplet();
  return nom.empty() || Majuscules(nom.substr(0, 8)) == "DOCUMENT";
}

void PiloteWord::NouveauDocument() {
  try {
    if (!word_.Connecter()) return;
    word_.AjouterDocument();
    word_.Montrer();
  } catch (const ErreurAutomation&) {
  }
}

void PiloteWord::OuvrirDocument(const std::string& chemin) {
  try {
    if (!word_.Connecter()) return;
    word_.OuvrirDocument(CheminReel(chemin));
    word_.Montrer();
  } catch (const ErreurAutomation&) {
  }
}

void PiloteWord::SauvegarderDocument(bool sousAutreNom, bool confirmer) {
  try {
    if (!word_.Connecter() || !DocumentOuvert("Erreur : sauvegarde impossible.")) return;
    if (!SansNom() && !sousAutreNom) return word_.Enregistrer();
    SauvegarderSous(contexte_, 0, kEditeurWord, "", confirmer ? -1 : 0);
  } catch (const ErreurAutomation&) {
  }
}

void PiloteWord::FermerDocument(int16_t reponse) {
  try {
    if (!word_.Connecter() || !DocumentOuvert("Erreur : sauvegarde impossible.")) return;
    if (reponse == kFermerDemander) {
      const Reponse r = contexte_.messages.PoserQuestion(
          "Fermeture du document",
          "Voulez-vous enregistrer les changements apportés à :\n" + word_.NomComplet() + " ?",
          Boutons::OuiNonAnnuler, Icone::Information, 0);
      reponse = r == Reponse::Oui ? kFermerEnregistrer : r == Reponse::Non ? kFermerSansEnregistrer : 2;
    }
    if (reponse == kFermerEnregistrer) {
      if (SansNom()) SauvegarderSous(contexte_, -1, kEditeurWord, "", 0);
      else word_.Fermer(true);
    } else if (reponse == kFermerSansEnregistrer) {
      word_.Fermer(false);
    } else {
      return;
    }
    if (word_.NombreDocuments() == 0) word_.Quitter();
  } catch (const ErreurAutomation&) {
  }
}

void PiloteWord::SautParagraphe(int nombre) {
  for (int i = 0; i < nombre; ++i) word_.TaperParagraphe();
}

void PiloteWord::InsererTexte(const std::string& texte, const FormatInsertion& format, int16_t modeInsertion) {
  try {
    if (!word_.Connecter()) return;
    if (word_.NombreDocuments() == 0) {
      contexte_.messages.AfficherMessage(kAppelant, "Erreur : insertion impossible.", kAucunDocument, "", "");
      return;
    }
    if (modeInsertion == 1) SautParagraphe();
    const AutomationWord::Police avant = word_.LirePolice();
    AutomationWord::Police police = avant;
    if (format.gras) police.gras = *format.gras;
    if (format.italique) police.italique = *format.italique;
    if (format.couleur) police.couleur = *format.couleur;
    if (!format.police.empty()) police.nom = format.police;
    if (format.taille != 0) police.taille = format.taille;
    word_.EcrirePolice(police);
    word_.TaperTexte(texte);
    word_.EcrirePolice(avant);
    word_.Activer();
  } catch (const ErreurAutomation&) {
  }
}

std::string PiloteWord::LireSelection() {
  try {
    return word_.TexteSelection();
  } catch (const ErreurAutomation&) {
    return {};
  }
}

bool PiloteWord::Enregistrer(ContexteSauvegarde& c, int16_t fermer, const std::string& chemin, int16_t confirmer) {
  const std::string extension = ExtensionDe(chemin);
  if (extension == "LWP") {
    RefuserFormatLwp(c.messages);
    return false;
  }
  if (fermer == -1) {
    if (extension == "RTF") return word_.FermerEnRtf(chemin), true;
    word_.EnregistrerSous(chemin, kFormatDocument);
    word_.Fermer(false);
    return true;
  }
  if (extension == "RTF") return word_.EnregistrerSous(chemin, kFormatRtf), true;
  if (!ConfirmerFormat(c.messages, fermer, confirmer, false)) return false;
  word_.EnregistrerSous(chemin, kFormatDocument);
  return true;
}

}  // namespace norvane
