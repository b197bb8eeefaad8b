#include "frame/ProfilIni.h"

#include "frame/EcritureAtomique.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr std::string_view kEspaces = " \t\r\n\v\f";

std::string_view Rogner(std::string_view texte) {
  const std::size_t debut = texte.find_first_not_of(kEspaces);
  if (debut == std::string_view::npos) return {};
  return texte.substr(debut, texte.find_last_not_of(kEspaces) - debut + 1);
}

// Name of the section a "[name]" line opens; std::nullopt for any other line.
// The name runs to the last "]" of the line, or to its end when there is none.
std::optional<std::string_view> NomSection(std::string_view ligne) {
  const std::string_view t = Rogner(ligne);
  if (t.empty() || t[0] != '[') return std::nullopt;
  const std::size_t fin = t.find_last_of(']');
  return Rogner(t.substr(1, fin == std::string_view::npos || fin == 0 ? std::string_view::npos : fin - 1));
}

std::string_view NomCle(std::string_view ligne) { return Rogner(ligne.substr(0, ligne.find('='))); }

}  // namespace

ProfilIni ProfilIni::DepuisTexte(std::string_view texte) {
  ProfilIni profil;
  std::size_t debut = 0;
  while (debut < texte.size()) {
    std::size_t fin = texte.find('\n', debut);
    if (fin == std::string_view::npos) fin = texte.size();
    std::string_view ligne = texte.substr(debut, fin - debut);
    if (!ligne.empty() && ligne.back() == '\r') ligne.remove_suffix(1);
    profil.lignes_.emplace_back(ligne);
    debut = fin + 1;
  }
  return profil;
}

ProfilIni ProfilIni::Lire(const std::string& chemin) {
  return DepuisTexte(LireFichier(chemin).value_or(std::string()));
}

std::string ProfilIni::Texte() const {
  std::string texte;
  for (const std::string& ligne : lignes_) texte += ligne + "\r\n";
  return texte;
}

bool ProfilIni::Ecrire(const std::string& chemin) const { return EcrireFichierAtomique(chemin, Texte()); }

std::vector<std::string> ProfilIni::NomsSections() const {
  std::vector<std::string> noms;
  for (const std::string& ligne : lignes_) {
    if (auto nom = NomSection(ligne)) noms.emplace_back(*nom);
  }
  return noms;
}

std::optional<ProfilIni::Plage> ProfilIni::TrouverSection(std::string_view section) const {
  const std::string_view voulu = Rogner(section);
  for (std::size_t i = 0; i < lignes_.size(); ++i) {
    auto nom = NomSection(lignes_[i]);
    if (!nom || !EgalSansCasse(*nom, voulu)) continue;
    std::size_t fin = i + 1;
    while (fin < lignes_.size() && !NomSection(lignes_[fin])) ++fin;
    return Plage{i, fin};
  }
  return std::nullopt;
}

std::optional<std::size_t> ProfilIni::TrouverCle(const Plage& plage, std::string_view cle) const {
  const std::string_view voulue = Rogner(cle);
  for (std::size_t i = plage.entete + 1; i < plage.fin; ++i) {
    if (!Rogner(lignes_[i]).empty() && EgalSansCasse(NomCle(lignes_[i]), voulue)) return i;
  }
  return std::nullopt;
}

std::optional<std::vector<std::string>> ProfilIni::EntreesSection(std::string_view section) const {
  auto plage = TrouverSection(section);
  if (!plage) return std::nullopt;
  std::vector<std::string> entrees;
  for (std::size_t i = plage->entete + 1; i < plage->fin; ++i) {
    const std::string_view ligne = Rogner(lignes_[i]);
    if (ligne.empty()) continue;
    const std::size_t egal = ligne.find('=');
    if (egal == std::string_view::npos) {
      entrees.emplace_back(ligne);
    } else {
      entrees.push_back(std::string(NomCle(ligne)) + "=" + std::string(Rogner(ligne.substr(egal + 1))));
    }
  }
  return entrees;
}

void ProfilIni::EcrireCle(std::string_view section, std::string_view cle, std::string_view valeur) {
  auto plage = TrouverSection(section);
  if (!plage) {
    AjouterSection(section);
    lignes_.push_back(std::string(Rogner(cle)) + "=" + std::string(valeur));
    return;
  }
  if (auto i = TrouverCle(*plage, cle)) {
    lignes_[*i] = std::string(NomCle(lignes_[*i])) + "=" + std::string(valeur);
    return;
  }
  std::size_t apres = plage->fin;
  while (apres > plage->entete + 1 && Rogner(lignes_[apres - 1]).empty()) --apres;
  lignes_.insert(lignes_.begin() + static_cast<std::ptrdiff_t>(apres),
                 std::string(Rogner(cle)) + "=" + std::string(valeur));
}

void ProfilIni::SupprimerCle(std::string_view section, std::string_view cle) {
  auto plage = TrouverSection(section);
  if (!plage) return;
  if (auto i = TrouverCle(*plage, cle)) lignes_.erase(lignes_.begin() + static_cast<std::ptrdiff_t>(*i));
}

void ProfilIni::SupprimerSection(std::string_view section) {
  auto plage = TrouverSection(section);
  if (!plage) return;
  lignes_.erase(lignes_.begin() + static_cast<std::ptrdiff_t>(plage->entete),
                lignes_.begin() + static_cast<std::ptrdiff_t>(plage->fin));
}

void ProfilIni::AjouterSection(std::string_view section) {
  lignes_.push_back("[" + std::string(section) + "]");
}

}  // namespace norvane
