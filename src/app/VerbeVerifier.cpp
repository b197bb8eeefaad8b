// VERIFIER <modèle.tvm> [<dossier .TVL>] [--format=json]: every code of a
// template placed, explained and checked, without generating anything.
#include "app/VerbeVerifier.h"

#include <iostream>

#include "app/Travail.h"
#include "frame/ResolutionChemins.h"
#include "verification/Rapport.h"
#include "verification/VerificationModele.h"

namespace norvane {

// Exit status: 0 no error (warnings alone leave it 0), 1 errors, 2 the
// template cannot be read.
int VerbeVerifier(Application& application) {
  const std::string& modele = application.Param(2);
  const std::string& format = application.options.format;
  if (modele.empty() || (!format.empty() && format != "json")) {
    std::cerr << "Usage : norvane VERIFIER <modèle.tvm> [<dossier .TVL>] [--format=json]\n";
    return 2;
  }
  const auto contenu = LireFichier(modele);
  if (!contenu) {
    std::cerr << "Le modèle de document \"" << modele << "\" est introuvable ou illisible.\n";
    return 2;
  }
  const bool avecDossier = !application.Param(3).empty();
  if (!avecDossier) {
    // Syntax only: the dossier the settings remember is not read.
    application.session.RepDossier[0].clear();
    application.session.NomDossier[0].clear();
  }
  if (!PlacerDossiers(application, application.Param(3))) return 2;
  const EntitesCourantes aucuneEntite;
  const std::vector<CodeVerifie> codes = VerifierModele(application.session, aucuneEntite, *contenu);
  std::cout << (format == "json" ? RapportJson(codes, avecDossier) : RapportTexte(modele, codes, avecDossier));
  return Nombre(codes, Statut::Erreur) == 0 ? 0 : 1;
}

}  // namespace norvane
