// The one resolver of paths, and the whole-file reads and writes built on it.
// Dossiers and installations come from systems whose file names ignore case,
// and their names may be held in Windows-1252 while the disk holds UTF-8: a
// component that is not found as written is looked up in its folder by a
// comparison that ignores both.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <sstream>
#include <vector>

#include "frame/Encodage.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

bool Existe(const std::string& chemin) {
  struct stat st {};
  return ::stat(chemin.empty() ? "." : chemin.c_str(), &st) == 0;
}

bool NomsEquivalents(std::string_view a, std::string_view b) {
  return EgalSansCasse(Utf8VersCp1252(a), Utf8VersCp1252(b));
}

// Real name of `nom` inside `dossier`, std::nullopt when no entry matches.
std::optional<std::string> EntreeDe(const std::string& dossier, const std::string& nom) {
  if (Existe(JoindreChemin(dossier, nom))) return nom;
  DIR* rep = ::opendir(dossier.empty() ? "." : dossier.c_str());
  if (rep == nullptr) return std::nullopt;
  std::optional<std::string> trouve;
  while (dirent* e = ::readdir(rep)) {
    if (NomsEquivalents(e->d_name, nom)) {
      trouve = e->d_name;
      break;
    }
  }
  ::closedir(rep);
  return trouve;
}

std::vector<std::string> Composants(const std::string& chemin) {
  std::vector<std::string> parts;
  std::size_t debut = 0;
  for (std::size_t i = 0; i <= chemin.size(); ++i) {
    if (i < chemin.size() && chemin[i] != '/') continue;
    if (i > debut) parts.push_back(chemin.substr(debut, i - debut));
    debut = i + 1;
  }
  return parts;
}

struct Resolution {
  std::string chemin;
  bool complete = true;
};

Resolution Resoudre(const std::string& brut) {
  std::string n = brut;
  std::replace(n.begin(), n.end(), '\\', '/');
  Resolution r;
  if (n.empty()) {
    r.complete = false;
    return r;
  }
  // The usual case: the path exists as written, and one look at the disk does.
  if (Existe(n)) {
    r.chemin = n;
    return r;
  }
  if (n[0] == '/') r.chemin = "/";
  for (const std::string& composant : Composants(n)) {
    std::optional<std::string> reel;
    if (r.complete) reel = EntreeDe(r.chemin, composant);
    r.complete = r.complete && reel.has_value();
    r.chemin = JoindreChemin(r.chemin, reel ? *reel : composant);
  }
  if (n.back() == '/' && r.chemin.back() != '/') r.chemin += '/';
  return r;
}

}  // namespace

std::string JoindreChemin(std::string_view dossier, std::string_view nom) {
  std::string r(dossier);
  if (!r.empty() && r.back() != '/') r += '/';
  return r + std::string(nom);
}

std::optional<std::string> ResoudreChemin(const std::string& chemin) {
  Resolution r = Resoudre(chemin);
  if (!r.complete || !Existe(r.chemin)) return std::nullopt;
  return r.chemin;
}

std::string CheminReel(const std::string& chemin) { return Resoudre(chemin).chemin; }

std::optional<std::string> LireFichier(const std::string& chemin) {
  auto reel = ResoudreChemin(chemin);
  struct stat st {};
  if (!reel || ::stat(reel->c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return std::nullopt;
  std::ifstream flux(*reel, std::ios::binary);
  if (!flux) return std::nullopt;
  std::ostringstream contenu;
  contenu << flux.rdbuf();
  if (flux.bad()) return std::nullopt;
  return contenu.str();
}

std::optional<std::string> LireFichier(const std::string& chemin, std::size_t limite) {
  auto reel = ResoudreChemin(chemin);
  struct stat st {};
  if (!reel || ::stat(reel->c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return std::nullopt;
  std::ifstream flux(*reel, std::ios::binary);
  if (!flux) return std::nullopt;
  std::string contenu(std::min<std::size_t>(limite, static_cast<std::size_t>(st.st_size)), '\0');
  flux.read(contenu.data(), static_cast<std::streamsize>(contenu.size()));
  if (flux.bad()) return std::nullopt;
  contenu.resize(static_cast<std::size_t>(flux.gcount()));
  return contenu;
}

std::optional<uint64_t> TailleFichierReguliere(const std::string& chemin) {
  auto reel = ResoudreChemin(chemin);
  struct stat st {};
  if (!reel || ::stat(reel->c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return std::nullopt;
  return static_cast<uint64_t>(st.st_size);
}

uint64_t FinDonneesReelles(const std::string& cheminReel, uint64_t taille) {
  const int fd = ::open(cheminReel.c_str(), O_RDONLY);
  if (fd < 0) return taille;
  uint64_t fin = 0;
  off_t position = 0;
  while (static_cast<uint64_t>(position) < taille) {
    const off_t donnees = ::lseek(fd, position, SEEK_DATA);
    if (donnees < 0) {
      if (errno != ENXIO) fin = taille;  // no hole support: all of it is data
      break;
    }
    const off_t trou = ::lseek(fd, donnees, SEEK_HOLE);
    if (trou < 0) {
      fin = taille;
      break;
    }
    fin = static_cast<uint64_t>(trou);
    position = trou;
  }
  ::close(fd);
  return std::min(fin, taille);
}

}  // namespace norvane
