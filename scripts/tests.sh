#!/usr/bin/env bash
# Sets up, builds (warnings as errors) and runs every test: the normal build, then the build
# under AddressSanitizer and UndefinedBehaviorSanitizer, then every fuzz
# target for a bounded time (scripts/fuzz.sh, NORVANE_FUZZ_SECONDES each).
set -euo pipefail
racine="$(cd "$(dirname "$0")/.." && pwd)"
"$racine/scripts/dependances.sh"
"$racine/scripts/construire.sh" build -DNORVANE_TESTS=ON -DCMAKE_COMPILE_WARNING_AS_ERROR=ON
ctest --test-dir "$racine/build" --output-on-failure -j"$(nproc)"
"$racine/scripts/construire.sh" build-sanitizers -DCMAKE_COMPILE_WARNING_AS_ERROR=ON -DCMAKE_BUILD_TYPE=Debug -DNORVANE_SANITIZE=ON -DNORVANE_BENCH=OFF
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 LSAN_OPTIONS="suppressions=$racine/tests/lsan.supp:print_suppressions=0" \
  ctest --test-dir "$racine/build-sanitizers" --output-on-failure -j"$(nproc)"
# Each fuzz target runs 20 s in CI, which keeps the whole run well under 30 minutes.
NORVANE_FUZZ_SECONDES="${NORVANE_FUZZ_SECONDES:-20}" "$racine/scripts/fuzz.sh"
