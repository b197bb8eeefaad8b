#include "tables/EditionLignes.h"

#include <algorithm>
#include <array>
#include <string>

#include "frame/Encodage.h"
#include "tables/FormulesTableau.h"

namespace norvane {

namespace {

constexpr char kAppelant[] = "GestTableau";

// What moves when lines move: the nine cells and the definition.
struct TextesLigne {
  std::array<CelluleTableau, kColonnesMax> cellules;
  CelluleTableau definition;
};

LigneTableau& Ligne(ModeleTableau& modele, int numero) { return modele.Lignes[static_cast<std::size_t>(numero - 1)]; }

TextesLigne Textes(const LigneTableau& ligne) { return {ligne.Cellules, ligne.Definition}; }

void PoserTextes(LigneTableau& ligne, const TextesLigne& textes) {
  ligne.Cellules = textes.cellules;
  ligne.Definition = textes.definition;
}

bool Existe(const ModeleTableau& modele, int ligne) { return ligne >= 1 && ligne <= modele.NbLignes; }

// Removal with or without renumbering (a move renumbers once, on insertion).
bool Retirer(ModeleTableau& modele, int ligne, bool renumeroter, PortMessages& messages) {
  if (modele.NbLignes < 1 || !Existe(modele, ligne)) {
    messages.AfficherMessage(kAppelant, "Suppression impossible.", "Plus de ligne à supprimer !", "", "");
    return false;
  }
  for (int l = ligne; l < modele.NbLignes; ++l) {
    PoserTextes(Ligne(modele, l), Textes(Ligne(modele, l + 1)));
    if (renumeroter) RenumeroterFormule(modele, ligne, l, true, messages);
  }
  --modele.NbLignes;
  return true;
}

// After a move: an LGn formula no longer names what it named.
void EffacerFormulesLG(ModeleTableau& modele, PortMessages& messages) {
  for (int l = 1; l <= modele.NbLignes; ++l) {
    std::string& definition = Ligne(modele, l).Definition.Texte;
    if (!definition.starts_with("total")) continue;
    std::size_t position = 0;
    bool lgn = false;
    while (!lgn && (position = definition.find("LG", position)) != std::string::npos) {
      position += 2;
      lgn = position >= definition.size() || definition[position] != '(';
    }
    if (!lgn) continue;
    const std::string formule = Cp1252VersUtf8(definition.substr(std::min<std::size_t>(7, definition.size())));
    definition.clear();
    messages.AfficherMessage(kAppelant, "Edition des tableaux",
                             "Du fait de la re-numérotation des lignes, la formule de la ligne de total n°" +
                                 std::to_string(l) +
                                 " est à ré-écrire.\nMerci de noter la formule suivante et la re-saisir avec une "
                                 "numérotation correcte des LGn :\n" + formule,
                             "", "");
  }
}

}  // namespace

bool InsererLigne(ModeleTableau& modele, int apres, PortMessages& messages, const DefautsCellule& defauts) {
  if (modele.NbLignes >= kLignesMax) {
    messages.AfficherMessage(kAppelant, "Edition - Insertion des Tableaux",
                             "Ajout impossible : les tableaux sont limités à " + std::to_string(kLignesMax) +
                                 " maxi !",
                             "", "");
    return false;
  }
  if (apres < 0 || apres > modele.NbLignes) return false;
  for (int l = modele.NbLignes; l >= apres + 1; --l) PoserTextes(Ligne(modele, l + 1), Textes(Ligne(modele, l)));
  ++modele.NbLignes;
  for (int l = apres + 2; l <= modele.NbLignes; ++l) RenumeroterFormule(modele, apres, l, false, messages);
  Ligne(modele, apres + 1) = NouvelleLigne(defauts);
  return true;
}

bool SupprimerLigne(ModeleTableau& modele, int ligne, PortMessages& messages) {
  return Retirer(modele, ligne, true, messages);
}

bool DeplacerLigne(ModeleTableau& modele, int ligne, int cible, bool avant, PortMessages& messages,
                   const DefautsCellule& defauts) {
  if (!Existe(modele, ligne) || !Existe(modele, cible)) return false;
  if (ligne == cible) {
    messages.AfficherMessage(kAppelant, "Déplacement impossible",
                             "Déplacer la ligne " + std::to_string(ligne) + " elle-même ?! impossible !", "", "");
    return false;
  }
  if ((avant && cible == ligne + 1) || (!avant && cible == ligne - 1)) {
    messages.AfficherMessage(kAppelant, "Edition des tableaux", "Ce choix n'entraîne pas de déplacement !",
                             "Validation annulée : choix impossible.", "");
    return false;
  }
  const TextesLigne textes = Textes(Ligne(modele, ligne));
  Retirer(modele, ligne, false, messages);
  const int cibleApres = cible > ligne ? cible - 1 : cible;
  const int apres = avant ? cibleApres - 1 : cibleApres;
  InsererLigne(modele, apres, messages, defauts);
  PoserTextes(Ligne(modele, apres + 1), textes);
  EffacerFormulesLG(modele, messages);
  return true;
}

bool DupliquerLigne(ModeleTableau& modele, int ligne) {
  if (!Existe(modele, ligne) || modele.NbLignes >= kLignesMax) return false;
  const LigneTableau& source = Ligne(modele, ligne);
  LigneTableau& copie = Ligne(modele, modele.NbLignes + 1);
  PoserTextes(copie, Textes(source));
  copie.Hauteur = source.Hauteur;
  copie.Marge = source.Marge;
  ++modele.NbLignes;
  return true;
}

}  // namespace norvane
