// Whole rewrite of a file (the stores Editeur.svg, tableaux.txt, graph.txt,
// profiles): the new bytes go to a temporary file in the same folder, synced,
// then renamed over the old file, so that a failure or a kill at any step
// leaves the old file or the new one, never a mix. A temporary file left by
// a process killed mid-way is removed by the next successful rewrite.
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <string_view>

#include "frame/AppelsFichier.h"
#include "frame/EcritureAtomique.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr std::size_t kLongueurSuffixe = 6;  // the "XXXXXX" of mkstemp

std::string DossierParent(const std::string& chemin) {
  const std::size_t barre = chemin.find_last_of('/');
  if (barre == std::string::npos) return ".";
  return barre == 0 ? "/" : chemin.substr(0, barre);
}

bool EcrireTout(const AppelsFichier& appels, int fd, std::string_view contenu) {
  while (!contenu.empty()) {
    const ssize_t n = appels.ecrire(fd, contenu.data(), contenu.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    contenu.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

// Removes the temporary files ".<name>.XXXXXX" of earlier rewrites of the
// same file that a killed process left behind.
void RetirerTemporairesAnciens(const std::string& dossier, const std::string& nom) {
  const std::string prefixe = "." + nom + ".";
  DIR* rep = ::opendir(dossier.c_str());
  if (rep == nullptr) return;
  while (dirent* e = ::readdir(rep)) {
    const std::string_view entree = e->d_name;
    if (entree.size() == prefixe.size() + kLongueurSuffixe && CommencePar(entree, prefixe)) {
      ::unlink(JoindreChemin(dossier, entree).c_str());
    }
  }
  ::closedir(rep);
}

}  // namespace

AppelsFichier AppelsFichierSysteme() {
  return {.creerTemporaire = ::mkstemp,
          .ecrire = ::write,
          .permissions = ::fchmod,
          .synchroniser = ::fsync,
          .fermer = ::close,
          .renommer = ::rename};
}

AppelsFichier& AppelsFichierCourants() {
  static AppelsFichier appels = AppelsFichierSysteme();
  return appels;
}

bool EcrireFichierAtomique(const std::string& chemin, std::string_view contenu) {
  const AppelsFichier& appels = AppelsFichierCourants();
  const std::string cible = CheminReel(chemin);
  if (cible.empty() || cible.back() == '/') return false;
  const std::string dossier = DossierParent(cible);
  const std::string nom = cible.substr(cible.find_last_of('/') + 1);
  std::string temporaire = JoindreChemin(dossier, "." + nom + "." + std::string(kLongueurSuffixe, 'X'));
  const int fd = appels.creerTemporaire(temporaire.data());
  if (fd < 0) return false;
  struct stat ancien {};
  const mode_t mode = ::stat(cible.c_str(), &ancien) == 0 ? (ancien.st_mode & 07777) : 0644;
  bool ok = EcrireTout(appels, fd, contenu) && appels.permissions(fd, mode) == 0 && appels.synchroniser(fd) == 0;
  ok = appels.fermer(fd) == 0 && ok;
  ok = ok && appels.renommer(temporaire.c_str(), cible.c_str()) == 0;
  if (!ok) {
    ::unlink(temporaire.c_str());
    return false;
  }
  RetirerTemporairesAnciens(dossier, nom);
  return true;
}

}  // namespace norvane
