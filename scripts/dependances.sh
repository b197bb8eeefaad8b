#!/usr/bin/env bash
# Installs the Debian packages that building, testing and running Norvane need.
set -euo pipefail
paquets=(
  build-essential cmake pkg-config clang libclang-rt-dev
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  nlohmann-json3-dev
  libreoffice-writer-nogui libreoffice-dev poppler-utils fonts-dejavu-core fonts-liberation2
  qt6-base-dev libdeflate-dev
)
manquants=()
for p in "${paquets[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || manquants+=("$p")
done
if [ ${#manquants[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${manquants[@]}"
fi
