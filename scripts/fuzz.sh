#!/usr/bin/env bash
# Builds the fuzz targets with clang and runs every target declared in
# fuzz/CMakeLists.txt for a bounded time, two at a time, from the seeds made
# by the study-file builder and the inputs kept in fuzz/corpus/<target>/.
# Prints the executions of each target; fails on any crash, leak, timeout
# or out-of-memory, leaving the input in <build>/artefacts/<target>/.
#   NORVANE_FUZZ_SECONDES  seconds per target (45)
#   NORVANE_FUZZ_BUILD     build folder (build-fuzz)
#   NORVANE_FUZZ_CIBLES    targets to run, separated by blanks (all)
set -euo pipefail
racine="$(cd "$(dirname "$0")/.." && pwd)"
build="$racine/${NORVANE_FUZZ_BUILD:-build-fuzz}"
secondes="${NORVANE_FUZZ_SECONDES:-45}"
paralleles="$(nproc)"
if [ -n "${NORVANE_FUZZ_CIBLES:-}" ]; then
  read -r -a cibles <<<"$NORVANE_FUZZ_CIBLES"
else
  mapfile -t cibles < <(sed -n 's/^norvane_fuzz(\([A-Za-z0-9_]*\).*/\1/p' "$racine/fuzz/CMakeLists.txt")
fi

cmake -S "$racine" -B "$build" -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DNORVANE_FUZZ=ON -DNORVANE_TESTS=OFF -DNORVANE_BENCH=OFF >/dev/null
cmake --build "$build" -j"$paralleles" --target fuzz_graines "${cibles[@]}"

corpus="$build/corpus"
rm -rf "$corpus" "$build/artefacts"
"$build/fuzz/fuzz_graines" "$corpus"

# Runs one target; its log ends with libFuzzer's final statistics.
lancer() {
  local cible="$1"
  local artefacts="$build/artefacts/$cible"
  mkdir -p "$corpus/$cible" "$artefacts"
  local options=(-max_total_time="$secondes" -timeout=10 -rss_limit_mb=512 -max_len=16384
    -print_final_stats=1 -artifact_prefix="$artefacts/")
  local dictionnaire
  dictionnaire="$(sed -n "s/^norvane_fuzz($cible DICT \([A-Za-z0-9_]*\).*/\1/p" "$racine/fuzz/CMakeLists.txt")"
  [ -n "$dictionnaire" ] && options+=(-dict="$racine/fuzz/dictionnaires/$dictionnaire.dict")
  local dossiers=("$corpus/$cible")
  [ -d "$racine/fuzz/corpus/$cible" ] && dossiers+=("$racine/fuzz/corpus/$cible")
  # A small quarantine keeps the sanitizer's own memory well inside the RSS limit.
  if ASAN_OPTIONS=detect_leaks=1:quarantine_size_mb=32 UBSAN_OPTIONS=print_stacktrace=1 \
    "$build/fuzz/$cible" "${options[@]}" "${dossiers[@]}" >"$artefacts/journal.txt" 2>&1; then
    echo ok >"$artefacts/statut"
  else
    echo ECHEC >"$artefacts/statut"
  fi
}

for cible in "${cibles[@]}"; do
  while [ "$(jobs -rp | wc -l)" -ge "$paralleles" ]; do wait -n || true; done
  lancer "$cible" &
done
wait

echecs=0
printf '%-26s %14s  %s\n' "cible" "exécutions" "résultat"
for cible in "${cibles[@]}"; do
  artefacts="$build/artefacts/$cible"
  executions="$(sed -n 's/^stat::number_of_executed_units: *//p' "$artefacts/journal.txt" | tail -1)"
  statut="$(cat "$artefacts/statut" 2>/dev/null || echo ECHEC)"
  printf '%-26s %14s  %s\n' "$cible" "${executions:-?}" "$statut"
  if [ "$statut" != ok ]; then
    echecs=$((echecs + 1))
    grep -E "ERROR|SUMMARY|Test unit written|==[0-9]+==" "$artefacts/journal.txt" | head -20 || true
  fi
done
if [ "$echecs" -gt 0 ]; then
  echo "Fuzzing : $echecs cible(s) en échec ; entrées dans $build/artefacts/."
  exit 1
fi
