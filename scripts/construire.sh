#!/usr/bin/env bash
# Configures and builds one build folder: construire.sh <folder> [cmake options...]
set -euo pipefail
racine="$(cd "$(dirname "$0")/.." && pwd)"
dossier="$1"; shift
cmake -S "$racine" -B "$racine/$dossier" -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
cmake --build "$racine/$dossier" -j"$(nproc)"
