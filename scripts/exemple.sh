#!/usr/bin/env bash
# Sets up, builds, and generates the example documents from the bundled
# example installation, with the PDE Cerfa report of each example dossier.
# The documents land in build/exemple-documents/.
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
# The whole PDE Cerfa report of each dossier, from the stock templates, as
# RTF and as PDF through LibreOffice; the individual farm's report without
# the two empty company sheets.
for dossier in "$arbre"/Dossier/*.TVL; do
  for extension in rtf pdf; do
    "$norvane" PDE "$dossier" "$sortie/PDECerfa-$(basename "$dossier" .TVL).$extension" --remplacer --reponse=non
  done
done
echo "Documents créés dans $sortie :"
ls -1 "$sortie"
