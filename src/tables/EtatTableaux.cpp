#include "tables/EtatTableaux.h"

#include "frame/Texte.h"

namespace norvane {
namespace {

bool DansLesBornes(int ligne, int annee) {
  return ligne >= 1 && ligne <= kLignesMax && annee >= 0 && annee < kColonnesValeursMax;
}

}  // namespace

float EtatTableaux::Valeur(int ligne, int annee) const {
  if (!DansLesBornes(ligne, annee)) return 0.0f;
  return ValeursLignes[static_cast<std::size_t>(annee)][static_cast<std::size_t>(ligne)];
}

void EtatTableaux::Stocker(int ligne, int annee, float valeur) {
  if (!DansLesBornes(ligne, annee)) return;
  ValeursLignes[static_cast<std::size_t>(annee)][static_cast<std::size_t>(ligne)] = valeur;
}

std::string EtatTableaux::Texte(int ligne) const {
  if (ModeleEnCours == nullptr || ligne < 1 || ligne > static_cast<int>(ModeleEnCours->Lignes.size())) return {};
  const LigneTableau& l = ModeleEnCours->Lignes[static_cast<std::size_t>(ligne - 1)];
  for (std::size_t k = 0; k < 3; ++k) {
    if (!EstBlanc(l.Cellules[k].Texte)) return l.Cellules[k].Texte;
  }
  return {};
}

bool EtatTableaux::DebuteAnneeUn() const {
  return ModeleEnCours == nullptr || ModeleEnCours->MultiDossier == 1 || ModeleEnCours->ModeAnnees != 1;
}

}  // namespace norvane
