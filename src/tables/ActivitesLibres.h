// ModAniLib.ini, the free animal activities of a dossier:
//
//   [GLOBAL]  NumLastMod=<number of the last module>
//   [MOD<n>]  ACTIF=1 when module n is active; Nom=<name of the module>
//
// Module n keeps its figures in "AL" + n on two digits + "AL.don".
#pragma once

#include <string>
#include <vector>

#include "frame/ProfilIni.h"

namespace norvane {

// Module numbers above this are not read: their files could not be named
// on two digits.
inline constexpr int kModulesActivitesMax = 99;

struct ModuleActivite {
  int numero = 0;
  bool actif = false;
  std::string nom;  // trimmed, Windows-1252
};

// Modules 1 to NumLastMod (at most 99), active or not; none when the
// profile has no usable NumLastMod.
std::vector<ModuleActivite> LireModulesActivites(const ProfilIni& profil);

// "AL03AL.don" for module 3, "AL12AL.don" for 12.
std::string FichierActivite(int numero);
// The number on two digits: "03".
std::string NumeroDeuxChiffres(int numero);

}  // namespace norvane
