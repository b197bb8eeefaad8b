#include "frame/GardeEcriture.h"

#include <sys/stat.h>

#include <filesystem>

#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

// The path as the system resolves it: existing components with their real
// names, links followed, "." and ".." gone, made absolute.
fs::path Resolu(const std::string& chemin) {
  std::error_code erreur;
  fs::path reel = fs::weakly_canonical(fs::absolute(CheminReel(chemin), erreur), erreur);
  return erreur ? fs::path(CheminReel(chemin)).lexically_normal() : reel;
}

bool MemeFichier(const std::string& a, const std::string& b) {
  struct stat sa {}, sb {};
  const std::string ra = Resolu(a).string(), rb = Resolu(b).string();
  if (::stat(ra.c_str(), &sa) == 0 && ::stat(rb.c_str(), &sb) == 0) {
    return sa.st_dev == sb.st_dev && sa.st_ino == sb.st_ino;
  }
  return EgalSansCasse(ra, rb);
}

// The ".TVL" folder among the folders that hold the path, if any.
std::optional<std::string> DossierTvl(const fs::path& resolu) {
  for (const fs::path& composant : resolu.parent_path()) {
    if (FinitPar(composant.string(), ".tvl", true)) return composant.string();
  }
  return std::nullopt;
}

bool Dans(const fs::path& resolu, const std::string& dossier) {
  const std::string d = Resolu(dossier).string();
  const std::string r = resolu.string();
  return !d.empty() && d != "/" && r.size() > d.size() && CommencePar(r, d, true) && r[d.size()] == '/';
}

std::string Guillemets(const std::string& texte) { return "\"" + texte + "\""; }

}  // namespace

std::optional<std::string> RefusEcriture(const DemandeEcriture& demande) {
  const std::string debut = "Le document résultat " + Guillemets(demande.cible);
  const fs::path resolu = Resolu(demande.cible);
  for (const std::string& lu : demande.lus) {
    if (!EstBlanc(lu) && MemeFichier(demande.cible, lu)) {
      return debut + " est le modèle de document lui-même : Norvane ne l'écrit pas.";
    }
  }
  if (auto tvl = DossierTvl(resolu)) {
    return debut + " se trouve dans le dossier d'étude " + Guillemets(*tvl) +
           " : Norvane n'écrit jamais dans un dossier d'étude.";
  }
  for (const std::string& dossier : demande.dossiers) {
    if (!EstBlanc(dossier) && Dans(resolu, dossier)) {
      return debut + " se trouve dans le dossier d'étude " + Guillemets(dossier) +
             " : Norvane n'écrit jamais dans un dossier d'étude.";
    }
  }
  for (std::string_view magasin : kNomsMagasins) {
    if (EgalSansCasse(resolu.filename().string(), magasin) ||
        EgalSansCasse(fs::path(demande.cible).filename().string(), magasin)) {
      return debut + " porte le nom d'un fichier de paramètres de Norvane (" + Guillemets(std::string(magasin)) +
             ") : Norvane ne l'écrit pas.";
    }
  }
  if (DossierExiste(demande.cible)) return debut + " est un répertoire.";
  return std::nullopt;
}

}  // namespace norvane
