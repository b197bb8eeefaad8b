// Fuzz target of the profile (.ini) reader and writer: any bytes parse, every
// lookup and edit runs without fault, and the text written back reads as the
// same lines. The class around it runs on a file of the same bytes.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "frame/EcritureAtomique.h"
#include "frame/ProfilIni.h"
#include "frame/clsINI.h"

namespace {

using namespace norvane;

const std::string& FichierDeTravail() {
  static const std::string chemin = "/tmp/fuzz_ini_" + std::to_string(::getpid()) + ".ini";
  return chemin;
}

void ExercerProfil(std::string_view texte) {
  ProfilIni profil = ProfilIni::DepuisTexte(texte);
  const std::string ecrit = profil.Texte();
  if (ProfilIni::DepuisTexte(ecrit).Texte() != ecrit) std::abort();
  for (const std::string& section : profil.NomsSections()) {
    auto entrees = profil.EntreesSection(section);
    if (!entrees) std::abort();
    for (const std::string& entree : *entrees) {
      profil.EcrireCle(section, entree.substr(0, entree.find('=')), "v");
      break;
    }
  }
  profil.EcrireCle("fuzz", "cle", "valeur");
  auto entrees = profil.EntreesSection("FUZZ");
  if (!entrees || entrees->empty()) std::abort();
  profil.SupprimerCle("fuzz", "cle");
  profil.SupprimerSection("fuzz");
}

void ExercerClasse(std::string_view texte) {
  if (!EcrireFichierAtomique(FichierDeTravail(), texte)) return;
  clsINI ini;
  ini.Filename(FichierDeTravail());
  if (auto sections = ini.GetAllSectionsFromInifile({}, true)) {
    for (const std::string& section : *sections) {
      auto paires = ini.GetAllKeysFromSection(section, {}, true, true);
      if (paires && !paires->empty()) ini.GetKeyFromSection(paires->front().first, section);
    }
  }
  ini.SaveKey("1", "NumLastMod", "GLOBAL");
  ini.DeleteSectionFromInifile("GLOBAL");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view texte(reinterpret_cast<const char*>(data), size);
  ExercerProfil(texte);
  // The class goes through the disk, whose synced writes are slow: one input in eight.
  if (size % 8 == 0) ExercerClasse(texte);
  return 0;
}
