#include "app/Travail.h"

#include <iostream>

#include "app/EditeurLigneCommande.h"
#include "cerfa/ChoixPDE.h"
#include "frame/LigneCommande.h"
#include "graphs/render/Fabriques.h"
#include "study/DossierGeneral.h"
#include "study/Series.h"
#include "template/Generateur.h"

namespace norvane {

void PlacerDossier(Session& session, int slot, const std::string& argument) {
  SessionCadre decoupe;
  DecouperArgumentDossier(argument, decoupe);
  session.RepDossier[static_cast<std::size_t>(slot)] = decoupe.RepDossier[0];
  session.NomDossier[static_cast<std::size_t>(slot)] = decoupe.NomDossier[0];
}

namespace {

// A dossier named on the command line that cannot be used (missing, a file,
// unreadable) is refused, rather than turned into a blank document; an empty
// or short general record still generates, with a word of warning.
bool DossierAccepte(Application& application, int slot) {
  const auto probleme = ExaminerDossier(DossierDuSlot(application.session, slot));
  if (!probleme) return true;
  if (!probleme->Bloquant()) {
    std::cerr << "Norvane : " << probleme->Texte() << "\n";
    return true;
  }
  application.messages.AfficherMessage("Norvane", kTitreErreurDetectee, probleme->Texte(),
                                       "Vérifiez le chemin du dossier donné sur la ligne de commande.", "");
  return false;
}

}  // namespace

bool PlacerDossiers(Application& application, const std::string& dossier) {
  if (!dossier.empty()) {
    PlacerDossier(application.session, 0, dossier);
    if (!DossierAccepte(application, 0)) return false;
  }
  const auto& autres = application.options.comparer;
  if (autres.size() > 9) {
    std::cerr << "Norvane : neuf dossiers à comparer au plus (--comparer).\n";
    return false;
  }
  for (std::size_t n = 0; n < autres.size(); ++n) {
    PlacerDossier(application.session, static_cast<int>(n + 1), autres[n]);
    if (!DossierAccepte(application, static_cast<int>(n + 1))) return false;
  }
  return true;
}

Travail::Travail(Application& application, PortMessages* messages)
    : editeur_(std::make_unique<EditeurLigneCommande>(application.session.options, application.messages)),
      generation_(application.session, messages ? *messages : application.messages, application.progression,
                  aucuneEntite_),
      choixDossiers_(application.session),
      tableaux_(choixDossiers_, &producteurs_),
      dessin_(CreerDessinGraphique(application.session.RepModelGraph)),
      graphiques_(dessin_.get()),
      images_(CreerPortImages()) {
  generation_.editeur = editeur_.get();
  generation_.tableaux = &tableaux_;
  generation_.graphiques = &graphiques_;
  generation_.images = images_.get();
  if (application.options.annees) generation_.AnneesCerfa = NombreAnneesPDE(*application.options.annees);
}

Travail::~Travail() = default;

int GenererDocument(Application& application, const std::string& modele, const std::string& resultat,
                    std::optional<int16_t> anneesCerfa) {
  LierEditeurPour(application, resultat, application.options.ouvrir);
  Travail travail(application);
  if (anneesCerfa) travail.generation().AnneesCerfa = anneesCerfa;
  const ResultatDocument r = CreerDocument(travail.generation(), modele, resultat,
                                           {.miseAJour = false,
                                            .sansOuvrir = !application.options.ouvrir,
                                            .demanderRemplacement = !application.options.remplacer});
  if (!r.ecrit || !GarderRtfSousSonNom(resultat)) return 1;
  std::cout << "Document créé : " << resultat << " (" << r.nbCodes << " codes)\n";
  return 0;
}

}  // namespace norvane
