#include "frame/Resultat.h"

namespace norvane {

std::string ErreurLecture::Position() const {
  std::string position;
  auto ajouter = [&](const std::string& partie) { position += (position.empty() ? "" : ", ") + partie; };
  if (!fichier.empty()) ajouter("fichier " + fichier);
  if (enregistrement > 0) ajouter("enregistrement " + std::to_string(enregistrement));
  if (!champ.empty()) ajouter("champ " + champ);
  ajouter("octet " + std::to_string(octet));
  if (ligne > 0) ajouter("ligne " + std::to_string(ligne));
  return position;
}

}  // namespace norvane
