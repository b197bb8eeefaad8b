// The folder tree of the model store, as a plain tree model that a window
// shows as it stands. Folders and sub-folders have no existence of their
// own: they are the DossierTableau and SousDossierTableau of the models that
// use them. Texts and keys are UTF-8 (they are shown, never stored).
//
//   node        key                                image          text
//   root        "Racine"                           "RepWinTervol" "Tableaux enregistrés"
//   folder      <folder>#Doss                      "Doss"         the folder, trimmed
//   sub-folder  <sub-folder>#ssDoss#<folder key>   "ssDoss"       the sub-folder, trimmed
//   model       "tab" + its 1-based index          "tab1", or "tab2" for a multi-dossier model
//   no model    "tab0"                             "Vide"         "Aucun enregistrement"
//
// Folders come in order of first use, not alphabetically; a model node
// hangs from its sub-folder when it has one, else from its folder.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "study/Catalogues.h"
#include "tables/ModeleTableau.h"

namespace norvane {

inline constexpr char kCleRacine[] = "Racine";
inline constexpr char kCleAucunModele[] = "tab0";

class ArbreTableaux {
 public:
  void Vider();
  // Adds a node at the end; a parent must exist before its children.
  void Ajouter(std::string cle, std::string texte, std::string image, std::string cleParent);
  std::size_t Nombre() const { return noeuds_.size(); }
  const std::vector<NoeudArbre>& Noeuds() const { return noeuds_; }
  // The node of that key, null when there is none.
  const NoeudArbre* Trouver(std::string_view cle) const;
  // Children of a node, in the order they were added.
  std::vector<const NoeudArbre*> Enfants(std::string_view cleParent) const;
  // Depth of a node: 0 for the root.
  int Profondeur(const NoeudArbre& noeud) const;

  // Selection and expansion, as a tree control keeps them. Selecting a key
  // that is not in the tree clears the selection.
  void Selectionner(std::string_view cle);
  const NoeudArbre* Selection() const;
  void Deployer(std::string_view cle);
  bool EstDeploye(std::string_view cle) const;

 private:
  std::vector<NoeudArbre> noeuds_;
  std::string selection_;
  std::vector<std::string> deployes_;
};

// Rebuilds the tree from the list. An empty name becomes "Nouveau tableau"
// and an empty or blank folder "Divers", in the list too. The root is
// expanded; nothing is selected.
void ConstruireArbre(ArbreTableaux& arbre, std::vector<ModeleTableau>& modeles);

// After a rebuild, a selection comes back by what it named, never by a
// remembered key (keys of models change when one is deleted): the model of
// that 1-based index when there is one, else the folder of that text (UTF-8,
// trimmed), else the second node of the tree.
void RestaurerSelection(ArbreTableaux& arbre, int indiceModele, std::string_view dossier);

// Key of a model node: "tab" + 1-based index.
std::string CleModele(int indice);
// 1-based index of a model node's key, 0 for any other node.
int IndiceDeCle(std::string_view cle);

bool EstDossier(const NoeudArbre& noeud);       // image "Doss" or "ssDoss", any case
bool EstSousDossier(const NoeudArbre& noeud);   // image "ssDoss", any case

// What the editor shows for the selected node: the hint for a folder or for
// the empty store, empty for a model (the model itself is shown).
std::string IndicationSelection(const NoeudArbre& noeud);

}  // namespace norvane
