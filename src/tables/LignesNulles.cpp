#include "tables/LignesNulles.h"

#include <algorithm>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "tables/GenerationTableau.h"
#include "template/Cellules.h"

namespace norvane {
namespace {

bool ValeursToutesNulles(const EtatTableaux& etat, int nombre) {
  for (int c = 0; c <= std::min(nombre, kColonnesValeursMax - 1); ++c) {
    if (etat.Valeur(etat.LigneCourante, c) != 0.0f) return false;
  }
  return true;
}

// The line's name in the question: its first label that is not blank.
std::string NomDeLaLigne(ContexteTableau& contexte) {
  const LigneTableau& ligne = contexte.LigneEnCours();
  std::string texte;
  for (std::size_t k = 0; k < 3 && EstBlanc(texte); ++k) texte = ligne.Cellules[k].Texte;
  InterpreterCellule(contexte.generation, texte);
  return RemplacerTout(texte, "_", " ");
}

bool AfficherQuandMeme(ContexteTableau& contexte, const DefinitionLue& definition) {
  const std::string question = "La ligne " + definition.sorte.substr(0, 5) + " '" +
                               Cp1252VersUtf8(NomDeLaLigne(contexte)) +
                               "' d'un tableau ne contient que des valeurs nulles. \n"
                               "Souhaitez-vous l'afficher dans le document ?";
  return contexte.generation.messages.PoserQuestion("Demande de confirmation", question, Boutons::OuiNon,
                                                    Icone::Question, 0) == Reponse::Oui;
}

}  // namespace

void AppliquerOptionZeros(ContexteTableau& contexte, const DefinitionLue& definition, int nombre,
                          std::string& cellules) {
  const AffichageZeros option = OptionZeros(definition.affichage);
  if (ValeursToutesNulles(contexte.etat(), nombre)) {
    if (option == AffichageZeros::Masquer ||
        (option == AffichageZeros::Demander && !AfficherQuandMeme(contexte, definition))) {
      cellules = kValeursNulles;
      return;
    }
  }
  if (option == AffichageZeros::Jamais) cellules = kValeursNulles;
}

}  // namespace norvane
