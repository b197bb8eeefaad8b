// Writers of the profile files (.ini) of a dossier and of an installation:
// ModAniLib.ini (free animal activities) and donnees.INI (values of INI:
// codes). Windows-1252 texts, CR LF line ends.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace norvane::construction {

using CleIni = std::pair<std::string, std::string>;
struct SectionIni {
  std::string nom;
  std::vector<CleIni> cles;
};

// "[section]" then "key=value" lines, sections in the given order.
std::string TexteIni(const std::vector<SectionIni>& sections);
void EcrireIni(const std::string& chemin, const std::vector<SectionIni>& sections);

// A module of ModAniLib.ini: section "MOD" + numero with ACTIF and Nom.
struct ActiviteLibre {
  int numero = 1;
  bool actif = true;
  std::string nom;
};
// [GLOBAL] NumLastMod (the largest number, or `numLastMod` when given), then
// one section a module.
std::vector<SectionIni> SectionsModAniLib(const std::vector<ActiviteLibre>& activites, int numLastMod = -1);
void EcrireModAniLib(const std::string& chemin, const std::vector<ActiviteLibre>& activites, int numLastMod = -1);
// Series file of module n: "AL" + n on two digits + "AL.don".
std::string NomFichierActivite(int numero);

}  // namespace norvane::construction
