#include "construction/FichiersIni.h"

#include <algorithm>
#include <cstdio>

#include "construction/EnregistrementFixe.h"

namespace norvane::construction {

std::string TexteIni(const std::vector<SectionIni>& sections) {
  std::string texte;
  for (const SectionIni& section : sections) {
    texte += "[" + section.nom + "]\r\n";
    for (const auto& [cle, valeur] : section.cles) texte += cle + "=" + valeur + "\r\n";
  }
  return texte;
}

void EcrireIni(const std::string& chemin, const std::vector<SectionIni>& sections) {
  EcrireOctets(chemin, TexteIni(sections));
}

std::vector<SectionIni> SectionsModAniLib(const std::vector<ActiviteLibre>& activites, int numLastMod) {
  if (numLastMod < 0) {
    numLastMod = 0;
    for (const ActiviteLibre& activite : activites) numLastMod = std::max(numLastMod, activite.numero);
  }
  std::vector<SectionIni> sections{{"GLOBAL", {{"NumLastMod", std::to_string(numLastMod)}}}};
  for (const ActiviteLibre& activite : activites) {
    sections.push_back(
        {"MOD" + std::to_string(activite.numero), {{"ACTIF", activite.actif ? "1" : "0"}, {"Nom", activite.nom}}});
  }
  return sections;
}

void EcrireModAniLib(const std::string& chemin, const std::vector<ActiviteLibre>& activites, int numLastMod) {
  EcrireIni(chemin, SectionsModAniLib(activites, numLastMod));
}

std::string NomFichierActivite(int numero) {
  char nom[32];
  std::snprintf(nom, sizeof nom, "AL%02dAL.don", numero);
  return nom;
}

}  // namespace norvane::construction
