#include "template/Editeurs.h"

#include "frame/Editeur.h"
#include "template/Generateur.h"

namespace norvane {

int IndexEditeur(const Options& options) {
  const std::string nom = NomEditeur(options);
  if (nom == "winword.exe") return kEditeurWord;
  if (nom == "wordpro.exe") return kEditeurWordPro;
  if (EstDriverOpenOffice(nom)) return kEditeurOpenOffice;
  return 0;
}

void SignalerAucunEditeur(PortMessages& messages, const std::string& conseil) {
  messages.AfficherMessage("CreationDoc", kTitreErreurDetectee,
                           "Aucun traitement de texte n'est actuellement lié à Norvane !", conseil, "");
}

void OuvrirDocument(Generation& g, const std::string& chemin) {
  const int editeur = IndexEditeur(g.session.options);
  if (editeur == 0) {
    SignalerAucunEditeur(g.messages,
                         "Sélectionnez un traitement de texte dans \"PROPRIETES\" puis cliquez à nouveau sur "
                         "\"DOCUMENT\" -> \"OUVRIR\".");
    return;
  }
  if (g.editeur) g.editeur->OuvrirDocument(editeur, chemin);
}

bool SauvegarderParEditeur(Generation& g, const std::string& source, const std::string& chemin,
                           const std::string& conseil) {
  const int editeur = IndexEditeur(g.session.options);
  if (editeur == 0) {
    SignalerAucunEditeur(g.messages, conseil);
    return false;
  }
  return g.editeur && g.editeur->SauvegarderSous(true, editeur, source, chemin);
}

}  // namespace norvane
