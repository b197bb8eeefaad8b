#include "frame/BoutonsBoite.h"

#include <algorithm>

namespace norvane {

std::vector<Reponse> ReponsesPossibles(Boutons boutons) {
  switch (boutons) {
    case Boutons::OuiNon:
      return {Reponse::Oui, Reponse::Non};
    case Boutons::OuiNonAnnuler:
      return {Reponse::Oui, Reponse::Non, Reponse::Annuler};
    case Boutons::Ok:
      break;
  }
  return {Reponse::Ok};
}

Reponse ReponseParDefaut(Boutons boutons, int boutonParDefaut) {
  const std::vector<Reponse> possibles = ReponsesPossibles(boutons);
  if (boutonParDefaut < 0 || static_cast<std::size_t>(boutonParDefaut) >= possibles.size()) return possibles[0];
  return possibles[static_cast<std::size_t>(boutonParDefaut)];
}

bool EstReponsePossible(Boutons boutons, Reponse reponse) {
  const std::vector<Reponse> possibles = ReponsesPossibles(boutons);
  return std::find(possibles.begin(), possibles.end(), reponse) != possibles.end();
}

}  // namespace norvane
