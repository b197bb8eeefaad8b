#include "drivers/EditeurGenerateur.h"

#include <fstream>

#include "template/Editeurs.h"

namespace norvane {

bool ContientRtf(const std::string& chemin) {
  std::ifstream fichier(chemin, std::ios::binary);
  char tete[5] = {};
  return fichier.read(tete, 5) && std::string(tete, 5) == "{\\rtf";
}

bool OuvrirPourUtilisateur(PortMessages& messages, Pilote& pilote, const std::string& chemin) {
  try {
    pilote.OuvrirDocument(chemin);
    return true;
  } catch (const ErreurAutomation& e) {
    messages.AfficherMessage("Norvane", "Erreur : ouverture impossible.",
                             "Le document \"" + chemin + "\" n'a pas pu être ouvert par le traitement de texte.",
                             std::string("Description technique de l'erreur : ") + e.what(), "");
    return false;
  }
}

bool Convertir(ContexteSauvegarde& caches, int editeur, const std::string& source, const std::string& chemin) {
  Pilote* pilote = caches.pilote ? caches.pilote(editeur) : nullptr;
  if (pilote == nullptr) return false;
  if (!OuvrirPourUtilisateur(caches.messages, *pilote, source)) return false;
  const bool ecrit = SauvegarderSous(caches, -1, editeur, chemin, 0);
  if (!ecrit) pilote->FermerSansEnregistrer();
  return ecrit;
}

void EditeurGenerateur::OuvrirDocument(int editeur, const std::string& chemin) {
  Pilote* pilote = visibles_.DeCode(editeur);
  if (pilote == nullptr) {
    SignalerAucunEditeur(messages_,
                         "Sélectionnez un traitement de texte dans \"PROPRIETES\" puis cliquez à nouveau sur "
                         "\"DOCUMENT\" -> \"OUVRIR\".");
    return;
  }
  OuvrirPourUtilisateur(messages_, *pilote, chemin);
}

// A file that is already in its format (a .doc written by an earlier
// conversion) is left as it is.
bool EditeurGenerateur::SauvegarderSous(bool fermer, int editeur, const std::string& source,
                                        const std::string& chemin) {
  if (caches_.pilote == nullptr || caches_.pilote(editeur) == nullptr) {
    SignalerAucunEditeur(messages_, kConseilCreerDoc);
    return false;
  }
  if (source == chemin && !ContientRtf(source)) return true;
  if (!Convertir(caches_, editeur, source, chemin)) return false;
  if (!fermer) OuvrirDocument(editeur, chemin);
  return true;
}

}  // namespace norvane
