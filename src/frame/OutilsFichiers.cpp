// The small file and text routines of OutilsFichiers. Every path goes through
// the resolver (ResolutionChemins.cpp), so names are matched without regard to
// case as on the systems the installations come from.
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <filesystem>

#include "frame/Texte.h"

namespace norvane {
namespace {

std::string AvecBarres(std::string_view chemin) {
  std::string r(chemin);
  std::replace(r.begin(), r.end(), '\\', '/');
  return r;
}

bool StatReel(const std::string& chemin, struct stat& st) {
  auto reel = ResoudreChemin(chemin);
  return reel && ::stat(reel->c_str(), &st) == 0;
}

bool ContientJoker(std::string_view motif) { return motif.find_first_of("*?") != std::string_view::npos; }

// Case-insensitive match of a name against a pattern of "*" and "?", with a
// single back-track point so that no pattern can make it slow.
bool CorrespondMotif(std::string_view nom, std::string_view motif) {
  if (motif == "*.*") motif = "*";
  std::size_t n = 0, m = 0, etoile = std::string_view::npos, reprise = 0;
  while (n < nom.size()) {
    if (m < motif.size() && (motif[m] == '?' || MinusculeCp1252(motif[m]) == MinusculeCp1252(nom[n]))) {
      ++n;
      ++m;
    } else if (m < motif.size() && motif[m] == '*') {
      etoile = m++;
      reprise = n;
    } else if (etoile != std::string_view::npos) {
      m = etoile + 1;
      n = ++reprise;
    } else {
      return false;
    }
  }
  while (m < motif.size() && motif[m] == '*') ++m;
  return m == motif.size();
}

// True when a folder listing finds an entry matching `motif`: files always,
// folders only when `dossiers` is set.
bool ListingTrouve(const std::string& dossier, std::string_view motif, bool dossiers) {
  const std::string reel = dossier.empty() ? std::string(".") : CheminReel(dossier);
  DIR* rep = ::opendir(reel.c_str());
  if (rep == nullptr) return false;
  bool trouve = false;
  while (dirent* e = ::readdir(rep)) {
    std::string_view nom = e->d_name;
    if (nom == "." || nom == ".." || !CorrespondMotif(nom, motif)) continue;
    struct stat st {};
    if (::stat(JoindreChemin(reel, nom).c_str(), &st) != 0) continue;
    if (!S_ISDIR(st.st_mode) || dossiers) {
      trouve = true;
      break;
    }
  }
  ::closedir(rep);
  return trouve;
}

bool EstLettreLecteur(std::string_view chemin) {
  return chemin.size() >= 2 && chemin[1] == ':' &&
         ((chemin[0] >= 'A' && chemin[0] <= 'Z') || (chemin[0] >= 'a' && chemin[0] <= 'z'));
}

bool NonReserve(unsigned char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
         c == '_' || c == '~' || c == '/';
}

}  // namespace

std::string AjouterAntislash(std::string_view chemin) {
  std::string t = Trim(chemin);
  if (t.empty() || t.back() == '/' || t.back() == '\\') return t;
  return t + '/';
}

void SupprimeFichier(const std::string& chemin) {
  const std::string reel = CheminReel(chemin);
  ::chmod(reel.c_str(), S_IRUSR | S_IWUSR);
  ::unlink(reel.c_str());
}

int32_t TailleFichier(const std::string& chemin) {
  struct stat st {};
  if (!StatReel(chemin, st) || S_ISDIR(st.st_mode)) return 0;
  return static_cast<int32_t>(std::min<off_t>(st.st_size, INT32_MAX));
}

int16_t FichierExiste(const std::string& chemin, int attributs) {
  const bool dossiers = (attributs & 16) != 0;
  const std::string n = AvecBarres(chemin);
  if (EstBlanc(n)) return 0;
  const std::size_t barre = n.find_last_of('/');
  const std::string motif = n.substr(barre == std::string::npos ? 0 : barre + 1);
  if (ContientJoker(motif)) {
    return ListingTrouve(barre == std::string::npos ? std::string() : n.substr(0, barre + 1), motif, dossiers) ? 1
                                                                                                             : 0;
  }
  struct stat st {};
  if (!StatReel(n, st)) return 0;
  return !S_ISDIR(st.st_mode) || dossiers ? 1 : 0;
}

bool DossierExiste(const std::string& chemin) {
  struct stat st {};
  return StatReel(chemin, st) && S_ISDIR(st.st_mode);
}

void CreeDossier(const std::string& chemin) { ::mkdir(CheminReel(chemin).c_str(), 0777); }

void CreeArborescence(const std::string& chemin) {
  const std::string n = AvecBarres(chemin);
  for (std::size_t pos = n.find('/'); pos != std::string::npos; pos = n.find('/', pos + 1)) {
    const std::string prefixe = n.substr(0, pos + 1);
    if (!DossierExiste(prefixe)) CreeDossier(prefixe);
  }
}

std::string CheminVersUrl(const std::string& chemin) {
  if (EstLettreLecteur(chemin)) {
    std::string r = RemplacerTout(AvecBarres(chemin), ":", "|");
    return "file:///" + RemplacerTout(r, " ", "%20");
  }
  std::string absolu = AvecBarres(chemin);
  if (absolu.empty() || absolu[0] != '/') {
    std::error_code ec;
    absolu = AjouterAntislash(std::filesystem::current_path(ec).string()) + absolu;
  }
  static const char kHex[] = "0123456789ABCDEF";
  std::string url = "file://";
  for (const char octet : absolu) {
    const auto c = static_cast<unsigned char>(octet);
    if (NonReserve(c)) {
      url += static_cast<char>(c);
    } else {
      url += '%';
      url += kHex[c >> 4];
      url += kHex[c & 15];
    }
  }
  return url;
}

std::string RemplaceTexte(std::string_view texte, std::string_view cherche, std::string_view remplace) {
  return RemplacerTout(texte, cherche, remplace, true);
}

}  // namespace norvane
