// INI <template> <result> [ouvrir] [remplacer]: a document made without a
// dossier, so that only INI: codes and the like yield values.
#include "app/VerbeIni.h"

#include "app/EditeurLigneCommande.h"
#include "app/Travail.h"
#include "frame/LigneCommande.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "template/Generateur.h"

namespace norvane {

int VerbeIni(Application& application) {
  const std::string modele = RemplacerBlancs(application.Param(2), "#esp#");
  const std::string resultat = RemplacerBlancs(application.Param(3), "#esp#");
  const bool ouvrir = Minuscules(application.Param(4)) == "ouvrir" || application.options.ouvrir;
  const bool remplacer = Minuscules(application.Param(5)) == "remplacer" || application.options.remplacer;
  application.session.RepDossier[0].clear();
  application.session.NomDossier[0].clear();
  // A template that is not there ends the job quietly, as the parent product expects.
  if (Trim(modele).empty() || !ResoudreChemin(modele)) return 0;
  LierEditeurPour(application, resultat, ouvrir);
  Travail travail(application);
  const ResultatDocument r =
      CreerDocument(travail.generation(), modele, resultat,
                    {.miseAJour = false, .sansOuvrir = !ouvrir, .demanderRemplacement = !remplacer});
  if (r.ecrit && !GarderRtfSousSonNom(resultat)) return 1;
  return r.ecrit || r.abandonne ? 0 : 1;
}

}  // namespace norvane
