#include "tables/ModeleTableau.h"

namespace norvane {

std::string PoliceParDefaut(const DefautsCellule& defauts) {
  const int16_t taille = defauts.Taille == 0 ? int16_t{10} : defauts.Taille;
  const std::string alignement = defauts.Alignement.empty() ? std::string("l") : defauts.Alignement;
  return "5006;" + std::to_string(taille) + ";1;0;0;0;0;0;" + alignement;
}

LigneTableau NouvelleLigne(const DefautsCellule& defauts) {
  LigneTableau ligne;
  const std::string police = PoliceParDefaut(defauts);
  for (CelluleTableau& cellule : ligne.Cellules) cellule.Police = police;
  ligne.Definition.Police = police;
  return ligne;
}

ModeleTableau NouveauModele(const DefautsCellule& defauts) {
  ModeleTableau modele;
  if (PoliceParDefaut(defauts) != kPoliceParDefaut) modele.Lignes.assign(kLignesMax, NouvelleLigne(defauts));
  return modele;
}

}  // namespace norvane
