// INI: codes, values of the file donnees.INI of the program's folder.
// "INI:Cle" reads key Cle of section "Général"; "INI:Sect:Cle" key Cle of
// section Sect; "INI:a:b:c" key c of section a (the section ends at the first
// ":", the key starts behind the last one).
#include "template/DonneesIni.h"

#include "frame/Encodage.h"
#include "frame/ResolutionChemins.h"
#include "frame/clsINI.h"
#include "template/Directives.h"

namespace norvane {
namespace {

constexpr std::size_t kDebutSection = 4;  // behind "INI:"

}  // namespace

std::string LireDonneeIni(Generation& generation, std::string& code) {
  if (code.size() < kDebutSection) return {};
  std::string section = Utf8VersCp1252("Général");
  std::string cle = code.substr(kDebutSection);
  const auto premier = code.find(':', kDebutSection);
  if (premier != std::string::npos) {
    section = code.substr(kDebutSection, premier - kDebutSection);
    cle = code.substr(code.rfind(':') + 1);
  }
  // Read once per generation: a template of many INI: codes parses the file once.
  const std::string chemin = generation.session.RepNorvane + "donnees.INI";
  const ProfilIni* profil = generation.etat.Fichiers.Profil(chemin);
  if (profil == nullptr && !ResoudreChemin(chemin)) {
    generation.messages.PoserQuestion("Norvane",
                                      "Attention ! Le fichier \"donnees.INI\" n'existe pas dans le répertoire de "
                                      "Wintervol\\Norvane\\ ! Données non récupérable !",
                                      Boutons::Ok, Icone::Exclamation, 0);
    return {};
  }
  if (profil == nullptr) return {};
  clsINI ini;
  return ini.GetKeyFromSection(*profil, cle, section);
}

}  // namespace norvane
