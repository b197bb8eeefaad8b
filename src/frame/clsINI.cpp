// clsINI over ProfilIni. The behaviour of the profile functions it once rested
// on is kept where callers can see it: results pass through a buffer of
// 32,767 characters, a value is cut at its second "=", sorting is an exchange
// sort without regard to case, SaveKey answers false.
#include "frame/clsINI.h"

#include "frame/EcritureAtomique.h"
#include "frame/OutilsFichiers.h"
#include "frame/ProfilIni.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr std::size_t kTampon = 32767;

// The argument trimmed, or the property when the argument is blank.
std::string Ou(const std::string& argument, const std::string& propriete) {
  return EstBlanc(argument) ? propriete : Trim(argument);
}

// What the profile functions leave in a buffer of kTampon characters: each
// entry followed by a null, then a final null; what does not fit is cut.
std::vector<std::string> DansTampon(std::vector<std::string> entrees) {
  std::size_t place = kTampon - 1;
  std::vector<std::string> retenues;
  for (std::string& entree : entrees) {
    if (place < 2) break;
    if (entree.size() + 1 > place) entree.resize(place - 1);
    place -= entree.size() + 1;
    retenues.push_back(std::move(entree));
  }
  return retenues;
}

void TriEchange(std::vector<std::string>& v) {
  for (std::size_t i = 0; i + 1 < v.size(); ++i) {
    for (std::size_t j = i + 1; j < v.size(); ++j) {
      if (Majuscules(v[i]) > Majuscules(v[j])) std::swap(v[i], v[j]);
    }
  }
}

bool EstCommentaire(std::string_view ligne) {
  const std::size_t i = ligne.find_first_not_of(" \t");
  return i != std::string_view::npos && ligne[i] == ';';
}

// "key=value" cut on every "=": the first part and the second only.
clsINI::Paire EnPaire(const std::string& ligne) {
  const std::size_t egal = ligne.find('=');
  if (egal == std::string::npos) return {ligne, ""};
  const std::size_t suivant = ligne.find('=', egal + 1);
  return {ligne.substr(0, egal), ligne.substr(egal + 1, suivant == std::string::npos ? suivant : suivant - egal - 1)};
}

}  // namespace

void clsINI::Filename(const std::string& valeur) { filename_ = Trim(valeur); }

bool clsINI::CheckIniFile(const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  return !f.empty() && FichierExiste(f) == 1;
}

std::optional<std::vector<std::string>> clsINI::GetAllSectionsFromInifile(const std::string& filename,
                                                                          bool sort) const {
  const std::string f = Ou(filename, filename_);
  if (!CheckIniFile(f)) return std::nullopt;
  std::vector<std::string> noms = DansTampon(ProfilIni::Lire(f).NomsSections());
  if (sort) TriEchange(noms);
  std::vector<std::string> sections;
  for (std::string& nom : noms) {
    if (!EstBlanc(nom)) sections.push_back(std::move(nom));
  }
  return sections;
}

bool clsINI::CheckSection(const std::string& section, const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  return CheckIniFile(f) && SectionPresente(ProfilIni::Lire(f), Ou(section, Section));
}

// The section is among the names the profile functions would list.
bool clsINI::SectionPresente(const ProfilIni& profil, const std::string& section) {
  if (section.empty()) return false;
  for (const std::string& nom : DansTampon(profil.NomsSections())) {
    if (!EstBlanc(nom) && Majuscules(nom) == Majuscules(section)) return true;
  }
  return false;
}

std::optional<std::vector<clsINI::Paire>> clsINI::GetAllKeysFromSection(const std::string& section,
                                                                        const std::string& filename,
                                                                        bool withComments, bool sort) const {
  const std::string f = Ou(filename, filename_);
  if (!CheckIniFile(f)) return std::nullopt;
  return PairesDuProfil(ProfilIni::Lire(f), section, withComments, sort);
}

std::optional<std::vector<clsINI::Paire>> clsINI::PairesDuProfil(const ProfilIni& profil, const std::string& section,
                                                                 bool withComments, bool sort) const {
  const std::string s = Ou(section, Section);
  if (!SectionPresente(profil, s)) return std::nullopt;
  std::vector<std::string> lignes = DansTampon(profil.EntreesSection(s).value_or(std::vector<std::string>()));
  if (sort) TriEchange(lignes);
  std::vector<Paire> paires;
  for (const std::string& ligne : lignes) {
    if (EstBlanc(ligne) || (!withComments && EstCommentaire(ligne))) continue;
    paires.push_back(EnPaire(ligne));
  }
  return paires;
}

bool clsINI::CheckKey(const std::string& key, const std::string& section, const std::string& filename) const {
  const std::string k = Majuscules(Ou(key, Key));
  auto paires = GetAllKeysFromSection(section, filename);
  if (!paires || k.empty()) return false;
  for (const Paire& paire : *paires) {
    if (Majuscules(paire.first) == k) return true;
  }
  return false;
}

std::string clsINI::GetKeyFromSection(const std::string& key, const std::string& section,
                                      const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  if (!CheckIniFile(f)) return {};
  return GetKeyFromSection(ProfilIni::Lire(f), key, section);
}

std::string clsINI::GetKeyFromSection(const ProfilIni& profil, const std::string& key,
                                      const std::string& section) const {
  const std::string k = Majuscules(Ou(key, Key));
  auto paires = PairesDuProfil(profil, section, false, false);
  if (!paires) return {};
  for (const Paire& paire : *paires) {
    if (Majuscules(paire.first) == k) return paire.second;
  }
  return {};
}

void clsINI::DeleteIniFile(const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  if (CheckIniFile(f)) SupprimeFichier(f);
}

void clsINI::CreateIniFile(const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  if (f.empty()) return;
  EcrireFichierAtomique(f, "");
  FlushInifile(f);
}

void clsINI::CreateSection(const std::string& section, const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  const std::string s = Ou(section, Section);
  if (f.empty() || s.empty() || CheckSection(s, f)) return;
  ProfilIni profil = ProfilIni::Lire(f);
  profil.AjouterSection(s);
  profil.Ecrire(f);
  FlushInifile(f);
}

void clsINI::DeleteAllSectionFromInifile(const std::string& filename) const {
  // Only flushes the cache of the file, as it always has: nothing is deleted.
  const std::string f = Ou(filename, filename_);
  if (CheckIniFile(f)) FlushInifile(f);
}

void clsINI::DeleteSectionFromInifile(const std::string& section, const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  if (!CheckSection(section, f)) return;
  ProfilIni profil = ProfilIni::Lire(f);
  profil.SupprimerSection(Ou(section, Section));
  profil.Ecrire(f);
}

void clsINI::DeleteKeyFromSection(const std::string& key, const std::string& section,
                                  const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  if (!CheckKey(key, section, f)) return;
  ProfilIni profil = ProfilIni::Lire(f);
  profil.SupprimerCle(Ou(section, Section), Ou(key, Key));
  profil.Ecrire(f);
}

bool clsINI::SaveKey(const std::string& value, const std::string& key, const std::string& section,
                     const std::string& filename) const {
  const std::string f = Ou(filename, filename_);
  const std::string s = Ou(section, Section);
  const std::string k = Ou(key, Key);
  if (f.empty() || s.empty() || k.empty()) return false;
  ProfilIni profil = ProfilIni::Lire(f);
  profil.EcrireCle(s, k, value);
  profil.Ecrire(f);
  FlushInifile(f);
  return false;
}

void clsINI::FlushInifile(const std::string&) const {
  // Files are read and written whole at each call: there is no cache to flush.
}

}  // namespace norvane
