#!/usr/bin/env bash
# Sets up, builds, and generates the example documents from the bundled
# example installation. The documents land in build/exemple-documents/.
set -euo pipefail
racine="$(cd "$(dirname "$0")/.." && pwd)"
"$racine/scripts/dependances.sh"
"$racine/scripts/construire.sh" build -DNORVANE_TESTS=OFF
arbre="$racine/build/installation"
sortie="$racine/build/exemple-documents"
mkdir -p "$sortie"
norvane="$arbre/Norvane/norvane"
"$norvane" --version
# Tables that compare dossiers read them from slots 1 to 9: every example
# dossier, in the order of their names.
comparer=()
for dossier in "$arbre"/Dossier/*.TVL; do comparer+=("--comparer=$dossier"); done
for modele in "$arbre"/Norvane/ModlDocs/*.tvm; do
  nom="$(basename "$modele" .tvm)"
  for dossier in "$arbre"/Dossier/*.TVL; do
    cible="$sortie/${nom}-$(basename "$dossier" .TVL).rtf"
    "$norvane" GENERER "$modele" "$cible" "$dossier" "${comparer[@]}" --remplacer --reponse=oui
  done
done
echo "Documents créés dans $sortie :"
ls -1 "$sortie"
