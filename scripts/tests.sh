#!/usr/bin/env bash
# Sets up, builds and runs every test: the normal build, then the build
# under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
racine="$(cd "$(dirname "$0")/.." && pwd)"
"$racine/scripts/dependances.sh"
"$racine/scripts/construire.sh" build -DNORVANE_TESTS=ON
ctest --test-dir "$racine/build" --output-on-failure -j"$(nproc)"
"$racine/scripts/construire.sh" build-sanitizers -DCMAKE_BUILD_TYPE=Debug -DNORVANE_SANITIZE=ON -DNORVANE_BENCH=OFF
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir "$racine/build-sanitizers" --output-on-failure -j"$(nproc)"
