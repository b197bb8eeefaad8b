#include "frame/RechercheEditeur.h"

#include <dirent.h>
#include <sys/stat.h>

#include <cstdlib>
#include <deque>
#include <optional>
#include <set>
#include <utility>

#include "frame/Editeur.h"
#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

struct Sortie {
  std::vector<std::string> sousDossiers;
  std::optional<std::string> trouve;
  std::size_t rang = 0;  // index in the list of names of what was found
};

bool EstDossier(const std::string& chemin, unsigned char type) {
  if (type == DT_DIR) return true;
  if (type != DT_LNK && type != DT_UNKNOWN) return false;
  struct stat st {};
  return ::stat(chemin.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

// One listing of `dossier` (ending with "/"): its sub-folders, and the best
// file among `noms`. An unreadable folder gives nothing.
Sortie Explorer(const std::string& dossier, const std::vector<std::string>& noms) {
  Sortie sortie;
  DIR* rep = ::opendir(dossier.c_str());
  if (rep == nullptr) return sortie;
  while (dirent* e = ::readdir(rep)) {
    const std::string nom = e->d_name;
    if (nom == "." || nom == "..") continue;
    if (EstDossier(dossier + nom, e->d_type)) {
      sortie.sousDossiers.push_back(dossier + nom + "/");
      continue;
    }
    for (std::size_t i = 0; i < noms.size() && (!sortie.trouve || i < sortie.rang); ++i) {
      if (EgalSansCasse(nom, noms[i])) {
        sortie.trouve = nom;
        sortie.rang = i;
      }
    }
  }
  ::closedir(rep);
  return sortie;
}

// True the first time a folder is met (by device and inode).
bool PremiereVisite(const std::string& dossier, std::set<std::pair<dev_t, ino_t>>& vus) {
  struct stat st {};
  if (::stat(dossier.c_str(), &st) != 0) return false;
  return vus.insert({st.st_dev, st.st_ino}).second;
}

}  // namespace

std::vector<std::string> DossiersDepartRecherche() {
  std::vector<std::string> departs;
  auto ajouter = [&](const std::string& dossier) {
    const std::string normal = AjouterAntislash(dossier);
    if (normal.empty()) return;
    for (const std::string& d : departs) {
      if (d == normal) return;
    }
    departs.push_back(normal);
  };
  const char* path = std::getenv("PATH");
  const std::string chemins = path ? path : "";
  std::size_t debut = 0;
  for (std::size_t fin; (fin = chemins.find(':', debut)) != std::string::npos; debut = fin + 1) {
    ajouter(chemins.substr(debut, fin - debut));
  }
  ajouter(chemins.substr(debut));
  for (const char* dossier : {"/usr/lib", "/opt", "/usr/local"}) ajouter(dossier);
  if (const char* maison = std::getenv("HOME")) ajouter(maison);
  return departs;
}

std::string ChercherEditeur(const std::string& nomFichier, PortProgression& progression, PortMessages& messages,
                            const std::vector<std::string>& departs) {
  return ChercherEditeur(std::vector<std::string>{nomFichier}, progression, messages, departs);
}

std::string ChercherEditeur(const std::vector<std::string>& noms, PortProgression& progression,
                            PortMessages& messages, const std::vector<std::string>& departs) {
  const std::string nom = noms.empty() ? std::string() : noms.front();
  int jauge = 10;
  progression.DefinirTexte("Recherche de " + nom + " sur votre PC");
  progression.DefinirPourcentage(jauge);
  std::deque<std::string> file;
  for (const std::string& depart : departs) file.push_back(AjouterAntislash(depart));
  std::set<std::pair<dev_t, ino_t>> vus;
  std::string resultat;
  while (!file.empty() && resultat.empty()) {
    if (progression.ArretDemande()) {
      messages.PoserQuestion(kTitreChoixEditeur, "Recherche de " + nom + " annulée.", Boutons::Ok, Icone::Aucune, 0);
      break;
    }
    const std::string dossier = std::move(file.front());
    file.pop_front();
    if (!PremiereVisite(dossier, vus)) continue;
    if (jauge < 90) progression.DefinirPourcentage(jauge += 5);
    Sortie sortie = Explorer(dossier, noms);
    for (std::string& sous : sortie.sousDossiers) file.push_back(std::move(sous));
    if (sortie.trouve) resultat = dossier + *sortie.trouve;
  }
  progression.DefinirPourcentage(100);
  progression.DefinirTexte("");
  return resultat;
}

const std::string& EditeursTrouves::Chemin(int option) const {
  return option == 0 ? CheminWinword : option == 1 ? CheminWordpro : CheminSoffice;
}

EditeursTrouves DetecterEditeurs(PortProgression& progression, PortMessages& messages,
                                 const std::vector<std::string>& departs) {
  EditeursTrouves trouves;
  trouves.CheminWinword = Trim(ChercherEditeur("winword.exe", progression, messages, departs));
  trouves.CheminWordpro = Trim(ChercherEditeur("wordpro.exe", progression, messages, departs));
  trouves.CheminSoffice =
      Trim(ChercherEditeur({"soffice", "libreoffice", "soffice.exe"}, progression, messages, departs));
  return trouves;
}

EtatChoixEditeur EtatFenetreChoix(const EditeursTrouves& trouves, const Options& options) {
  EtatChoixEditeur etat;
  etat.cheminAffiche = Trim(options.CheminEditeur);
  for (int i = 0; i < 3; ++i) {
    const auto k = static_cast<std::size_t>(i);
    etat.actif[k] = !trouves.Chemin(i).empty();
    etat.coche[k] = etat.actif[k] && trouves.Chemin(i) == etat.cheminAffiche;
  }
  etat.optimisationActive = etat.actif[2];
  etat.optimisationCochee = etat.optimisationActive && options.OptimisationOOo == 1;
  return etat;
}

std::array<bool, 3> OptionsPourChemin(const EditeursTrouves& trouves, const std::string& chemin) {
  std::array<bool, 3> coche{};
  for (int i = 0; i < 3; ++i) {
    coche[static_cast<std::size_t>(i)] = !trouves.Chemin(i).empty() && AjouterAntislash(trouves.Chemin(i)) == AjouterAntislash(chemin);
  }
  return coche;
}

}  // namespace norvane
