#include "tables/ActivitesLibres.h"

#include <algorithm>

#include "frame/clsINI.h"
#include "frame/Texte.h"

namespace norvane {

std::vector<ModuleActivite> LireModulesActivites(const ProfilIni& profil) {
  const clsINI ini;
  const int dernier = std::min(EntierDe(Trim(ini.GetKeyFromSection(profil, "NumLastMod", "GLOBAL"))),
                               kModulesActivitesMax);
  std::vector<ModuleActivite> modules;
  for (int n = 1; n <= dernier; ++n) {
    const std::string section = "MOD" + std::to_string(n);
    ModuleActivite module;
    module.numero = n;
    module.actif = Trim(ini.GetKeyFromSection(profil, "ACTIF", section)) == "1";
    module.nom = Trim(ini.GetKeyFromSection(profil, "Nom", section));
    modules.push_back(std::move(module));
  }
  return modules;
}

std::string NumeroDeuxChiffres(int numero) {
  const std::string chiffres = std::to_string(numero);
  return chiffres.size() < 2 ? "0" + chiffres : chiffres;
}

std::string FichierActivite(int numero) { return "AL" + NumeroDeuxChiffres(numero) + "AL.don"; }

}  // namespace norvane
