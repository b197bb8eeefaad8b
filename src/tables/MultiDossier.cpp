#include "tables/MultiDossier.h"

#include <algorithm>

#include "frame/Encodage.h"
#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "tables/EtatTableaux.h"
#include "tables/ModeleTableau.h"
#include "template/Generation.h"

namespace norvane {
namespace {

constexpr int kDossiersComparesMax = 9;

// What is wrong with each chosen dossier that cannot be read, one line each;
// empty when all can.
std::string DossiersIntrouvables(const std::vector<DossierCompare>& dossiers) {
  std::string manquants;
  for (std::size_t k = 0; k < dossiers.size(); ++k) {
    const std::string numero = "- dossier n°" + std::to_string(k + 1);
    const DossierCompare& d = dossiers[k];
    if (EstBlanc(d.nom)) {
      manquants += numero + " : aucun dossier choisi\n";
      continue;
    }
    const std::string chemin = AjouterAntislash(d.repertoire) + AjouterAntislash(d.nom);
    if (!DossierExiste(chemin)) manquants += numero + " : " + Cp1252VersUtf8(chemin) + " est introuvable\n";
  }
  return manquants;
}

void DireTableauOmis(Generation& generation, int nombre, const std::string& detail) {
  generation.messages.AfficherMessage(
      "GestTableau", kTitreChoixDossiers,
      "Le tableau compare " + std::to_string(nombre) +
          " dossiers, mais tous ne sont pas disponibles :\n" + detail +
          "Le tableau n'est pas placé dans le document ; la création du document continue.",
      "Choisissez les dossiers à comparer (en ligne de commande : --comparer=<dossier .TVL>, une fois par "
      "dossier, dans l'ordre des colonnes).",
      "");
}

}  // namespace

std::optional<std::vector<DossierCompare>> ChoixDossiersParSlots::ChoisirDossiers(const std::string&,
                                                                                  const std::string&, int nombre) {
  std::vector<DossierCompare> dossiers;
  for (int k = 1; k <= std::min(nombre, kDossiersComparesMax); ++k) {
    dossiers.push_back({session_.RepDossier[static_cast<std::size_t>(k)], session_.NomDossier[static_cast<std::size_t>(k)]});
  }
  return dossiers;
}

bool PreparerMultiDossier(Generation& generation, EtatTableaux& etat, PortChoixDossiers& choix,
                          ModeleTableau& modele) {
  if (etat.NbDossiersChoisis > 0 && etat.NbDossiersChoisis == modele.NbDossiers) return true;
  const int demande = std::clamp<int>(modele.NbDossiers, 1, kDossiersComparesMax);
  std::optional<std::vector<DossierCompare>> choisis = choix.ChoisirDossiers(kTitreChoixDossiers, kEnteteChoixDossiers, demande);
  if (!choisis || choisis->empty()) {
    DireTableauOmis(generation, demande, "- aucun dossier n'a été choisi\n");
    return false;
  }
  if (choisis->size() > kDossiersComparesMax) choisis->resize(kDossiersComparesMax);
  const auto nombre = static_cast<int16_t>(choisis->size());
  if (const std::string manquants = DossiersIntrouvables(*choisis); !manquants.empty()) {
    etat.NbDossiersChoisis = 0;
    DireTableauOmis(generation, nombre, manquants);
    return false;
  }
  Session& session = generation.session;
  etat.CheminsDossiers[0] = session.RepDossier[0];
  etat.NomsDossiers[0] = session.NomDossier[0];
  for (std::size_t k = 1; k <= choisis->size(); ++k) {
    session.RepDossier[k] = etat.CheminsDossiers[k] = (*choisis)[k - 1].repertoire;
    session.NomDossier[k] = etat.NomsDossiers[k] = (*choisis)[k - 1].nom;
  }
  etat.NbDossiersChoisis = nombre;
  modele.NbDossiers = nombre;
  return true;
}

}  // namespace norvane
