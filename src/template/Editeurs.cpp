#include "template/Editeurs.h"

#include "frame/Editeur.h"
#include "template/Generateur.h"

namespace norvane {
namespace {

constexpr char kAucunEditeur[] = "Aucun traitement de texte n'est actuellement lié à Norvane !";

}  // namespace

int IndexEditeur(const Options& options) {
  const std::string nom = NomEditeur(options);
  if (nom == "winword.exe") return kEditeurWord;
  if (nom == "wordpro.exe") return kEditeurWordPro;
  if (EstDriverOpenOffice(nom)) return kEditeurOpenOffice;
  return 0;
}

void OuvrirDocument(Generation& g, const std::string& chemin) {
  const int editeur = IndexEditeur(g.session.options);
  if (editeur == 0) {
    g.messages.AfficherMessage("CreationDoc", kTitreErreurDetectee, kAucunEditeur,
                               "Sélectionnez un traitement de texte dans \"PROPRIETES\" puis cliquez à nouveau sur "
                               "\"DOCUMENT\" -> \"OUVRIR\".",
                               "");
    return;
  }
  if (g.editeur) g.editeur->OuvrirDocument(editeur, chemin);
}

void SauvegarderParEditeur(Generation& g, const std::string& chemin, const std::string& conseil) {
  const int editeur = IndexEditeur(g.session.options);
  if (editeur == 0) {
    g.messages.AfficherMessage("CreationDoc", kTitreErreurDetectee, kAucunEditeur, conseil, "");
    return;
  }
  if (g.editeur) g.editeur->SauvegarderSous(false, editeur, chemin);
}

}  // namespace norvane
