#!/usr/bin/env bash
# A short pass of every fuzz target over its corpus in the repository (regression
# check, not a search): builds the targets with clang and AddressSanitizer.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build}/fuzz
CC=clang CXX=clang++ cmake -S "$root" -B "$build" -G Ninja -DTESSARIN_FUZZ=ON -DTESSARIN_TESTS=OFF -DTESSARIN_BENCH=OFF >/dev/null
cmake --build "$build"
shopt -s nullglob
for target in "$build"/bin/fuzz_*; do
  name=$(basename "$target")
  corpus="$root/fuzz/corpus/${name#fuzz_}"
  [ -d "$corpus" ] || continue
  echo "fuzz regression pass: $name"
  "$target" -runs=0 "$corpus" >/dev/null 2>&1 || { echo "$name failed on its corpus"; exit 1; }
  scratch=$(mktemp -d)  # new inputs go here, never into the repository's corpus
  "$target" -max_total_time=15 -seed=1 -artifact_prefix="$build/" "$scratch" "$corpus" >/dev/null 2>&1 || { echo "$name found a crash"; exit 1; }
  rm -rf "$scratch"
done
