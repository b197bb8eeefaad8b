// GENERER, METTREAJOUR and EXPLIQUER: the headless jobs on documents.
#include "app/VerbesDocuments.h"

#include <iostream>

#include "app/EditeurLigneCommande.h"
#include "app/Travail.h"
#include "frame/Encodage.h"
#include "study/DossierGeneral.h"
#include "template/Generateur.h"
#include "template/Interpreteur.h"

namespace norvane {
namespace {

// Help boxes go to standard output, where the user asked for them; every
// other message keeps to the console port.
class AideSurSortie : public PortMessages {
 public:
  explicit AideSurSortie(PortMessages& autre) : autre_(autre) {}
  void AfficherMessage(const std::string& appelant, const std::string& titre, const std::string& texte,
                       const std::string& conseil, const std::string& style) override {
    if (style != "Aide") return autre_.AfficherMessage(appelant, titre, texte, conseil, style);
    std::cout << titre << "\n" << texte << "\n" << conseil << "\n\n";
  }
  Reponse PoserQuestion(const std::string& titre, const std::string& texte, Boutons boutons, Icone icone,
                        int boutonParDefaut) override {
    return autre_.PoserQuestion(titre, texte, boutons, icone, boutonParDefaut);
  }

 private:
  PortMessages& autre_;
};

int Usage(const char* syntaxe) {
  std::cerr << "Usage : norvane " << syntaxe << "\n";
  return 2;
}

}  // namespace

int VerbeGenerer(Application& application) {
  if (application.Param(2).empty() || application.Param(3).empty()) {
    return Usage("GENERER <modèle> <résultat> [<dossier .TVL>]");
  }
  if (!PlacerDossiers(application, application.Param(4))) return 1;
  return GenererDocument(application, application.Param(2), application.Param(3));
}

int VerbeMettreAJour(Application& application) {
  if (application.Param(2).empty()) return Usage("METTREAJOUR <document> [<dossier .TVL>]");
  if (!PlacerDossiers(application, application.Param(3))) return 1;
  const std::string& document = application.Param(2);
  LierEditeurPour(application, document, application.options.ouvrir);
  Travail travail(application);
  const ResultatDocument r =
      CreerDocument(travail.generation(), document, document,
                    {.miseAJour = true, .sansOuvrir = !application.options.ouvrir, .demanderRemplacement = true});
  if (!r.ecrit || !GarderRtfSousSonNom(document)) return 1;
  std::cout << r.nbChampsMisAJour << " champs mis à jour !\n";
  return 0;
}

int VerbeExpliquer(Application& application) {
  if (application.Param(2).empty()) return Usage("EXPLIQUER <texte contenant des codes> [<dossier .TVL>]");
  if (!PlacerDossiers(application, application.Param(3))) return 1;
  AideSurSortie aide(application.messages);
  Travail travail(application, &aide);
  Generation& g = travail.generation();
  ChargerInfoDossier(g.session);
  std::string texte = Utf8VersCp1252(application.Param(2));
  InterpreterPortion(g, texte, true);
  return 0;
}

}  // namespace norvane
