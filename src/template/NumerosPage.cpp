// Page numbers numPage2 / numPage2bis: "\v0 2-<n>", "\v0 2bis-<n>", with one
// counter for both through the generation.
#include "template/NumerosPage.h"

namespace norvane {

std::string NumeroPage(Generation& generation, const std::string& code) {
  auto& compteur = generation.etat.NumPageCompteur;
  compteur = static_cast<int16_t>(compteur + 1);
  return "\\v0 " + code.substr(7) + "-" + std::to_string(compteur);
}

}  // namespace norvane
