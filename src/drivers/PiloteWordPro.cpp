#include "drivers/PiloteWordPro.h"

#include "frame/ResolutionChemins.h"

namespace norvane {
namespace {

constexpr char kAppelant[] = "PiloteWordPro";
constexpr char kAucunDocument[] = "Aucun document n'est actuellement ouvert dans WordPro.";
constexpr char kInsertionImpossible[] = "Erreur : insertion impossible.";
// Tells Word Pro to answer its own boxes during a save.
constexpr int kReponsesAutomatiques = 0x81F;

}  // namespace

// The reference, once set, is kept: a Word Pro closed by the user leaves it dead.
bool PiloteWordPro::Connecter() {
  if (wp_.EstCree()) return true;
  try {
    wp_.Creer();
    return true;
  } catch (const ErreurAutomation&) {
    contexte_.messages.AfficherMessage(kAppelant, "Problème de liaison entre Norvane et Word Pro",
                                       "Impossible de lancer Word Pro.", "", "");
    return false;
  }
}

bool PiloteWordPro::DocumentActif(const char* titre) {
  if (wp_.ADocumentActif()) return true;
  contexte_.messages.AfficherMessage(kAppelant, titre, kAucunDocument, "", "");
  return false;
}

void PiloteWordPro::NouveauDocument() {
  try {
    if (!Connecter()) return;
    wp_.NouveauDocument();
    wp_.Montrer();
  } catch (const ErreurAutomation&) {
  }
}

void PiloteWordPro::OuvrirDocument(const std::string& chemin) {
  try {
    if (!Connecter()) return;
    wp_.OuvrirDocument(CheminReel(chemin));
    wp_.Montrer();
  } catch (const ErreurAutomation& e) {
    contexte_.messages.AfficherMessage(kAppelant, "Erreur de Lotus Word Pro",
                                       "Erreur de Lotus Word Pro lors de l'ouverture d'un document existant :",
                                       e.what(), "");
  }
}

void PiloteWordPro::SauvegarderDocument(bool sousAutreNom, bool confirmer) {
  try {
    if (!Connecter() || !DocumentActif("Erreur : sauvegarde impossible.")) return;
    if (wp_.NomComplet().empty() || sousAutreNom) {
      SauvegarderSous(contexte_, 0, kEditeurWordPro, "", confirmer ? -1 : 0);
    } else {
      wp_.Enregistrer();
    }
  } catch (const ErreurAutomation&) {
  }
}

void PiloteWordPro::FermerDocument(int16_t) {
  try {
    if (!Connecter() || !DocumentActif("Erreur : sauvegarde impossible.")) return;
    const Reponse r =
        contexte_.messages.PoserQuestion("Fermeture du document",
                                         "Voulez-vous enregistrer les changements apportés au document ?",
                                         Boutons::OuiNonAnnuler, Icone::Information, 0);
    if (r == Reponse::Oui) {
      if (wp_.NomComplet().empty()) SauvegarderSous(contexte_, -1, kEditeurWordPro, "", 0);
      else wp_.Fermer(true);
    } else if (r == Reponse::Non) {
      wp_.Fermer(false);
    } else {
      return;
    }
    if (!wp_.ADocumentActif()) wp_.Quitter();
  } catch (const ErreurAutomation&) {
  }
}

void PiloteWordPro::InsererTexte(const std::string& texte, const FormatInsertion&, int16_t modeInsertion) {
  try {
    const char* raison = !wp_.EstCree()         ? "Lotus Word Pro n'est pas ouvert."
                         : !wp_.ADocumentActif() ? kAucunDocument
                         : !wp_.ATexte()         ? "Insertion dans le document courant impossible."
                                                 : nullptr;
    if (raison) {
      contexte_.messages.AfficherMessage(kAppelant, kInsertionImpossible, raison, "", "");
      return;
    }
    wp_.InsererTexte(texte, modeInsertion);
    wp_.Montrer();
  } catch (const ErreurAutomation&) {
  }
}

std::string PiloteWordPro::LireSelection() {
  try {
    return wp_.CopierSelection();
  } catch (const ErreurAutomation&) {
    return {};
  }
}

bool PiloteWordPro::Enregistrer(ContexteSauvegarde& c, int16_t fermer, const std::string& chemin,
                                int16_t confirmer) {
  wp_.RepondreBoites(kReponsesAutomatiques);
  const std::size_t separateur = chemin.find_last_of("/\\");
  const std::string nom = chemin.substr(separateur + 1);
  const std::string repertoire = chemin.substr(0, separateur);
  const std::string extension = ExtensionDe(chemin);
  const std::string filtre = extension == "RTF"   ? "Rich Text Format"
                             : extension == "DOC" ? "MS Word 97"
                                                  : "Lotus Word Pro";
  if (fermer == -1) {
    wp_.FermerSous(nom, repertoire, filtre);
    return true;
  }
  if (extension != "RTF" && extension != "DOC" && !ConfirmerFormat(c.messages, fermer, confirmer, true)) return false;
  wp_.EnregistrerSous(nom, repertoire, filtre);
  return true;
}

}  // namespace norvane
