#!/usr/bin/env bash
# A short, deterministic pass of every fuzz target: its corpus in the repository, then a
# fixed number of mutations from a fixed seed, so that a red run can be replayed exactly.
# Builds the targets with clang and AddressSanitizer; picks up every fuzz_<name> target
# whose corpus is fuzz/corpus/<name>.
#   FUZZ_RUNS  inputs run per target, the corpus first (default 20000)
#   FUZZ_SEED  libFuzzer's seed (default 1)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build}/fuzz
runs=${FUZZ_RUNS:-20000}
seed=${FUZZ_SEED:-1}
CC=clang CXX=clang++ cmake -S "$root" -B "$build" -G Ninja -DTESSARIN_FUZZ=ON -DTESSARIN_TESTS=OFF -DTESSARIN_BENCH=OFF >/dev/null
cmake --build "$build"
# Determinism: no corpus reload on a timer, and no address-space randomisation, since
# the fuzzer learns from compared values and some of those are addresses.
fixed=()
if setarch "$(uname -m)" -R true 2>/dev/null; then
  fixed=(setarch "$(uname -m)" -R)
else
  echo "warning: setarch -R is not available here; a replay may take another path"
fi
shopt -s nullglob
status=0
for target in "$build"/bin/fuzz_*; do
  name=$(basename "$target")
  corpus="$root/fuzz/corpus/${name#fuzz_}"
  if [ ! -d "$corpus" ]; then
    echo "$name: no corpus at fuzz/corpus/${name#fuzz_}"
    status=1
    continue
  fi
  scratch=$(mktemp -d)  # new inputs go here, never into the repository's corpus
  artifacts="$build/artifacts/$name/"
  rm -rf "$artifacts" && mkdir -p "$artifacts"
  # No time limit: the same runs and seed over the same corpus do the same work.
  command=("${fixed[@]}" "$target" -runs="$runs" -seed="$seed" -reload=0 -artifact_prefix="$artifacts" "$scratch" "$corpus")
  echo "fuzz pass: $name ($(ls "$corpus" | wc -l) corpus files, $runs runs, seed $seed)"
  if ! "${command[@]}" >"$build/$name.log" 2>&1; then
    status=1
    echo "$name FAILED; last lines of $build/$name.log:"
    tail -n 20 "$build/$name.log"
    echo "replay the pass:   FUZZ_RUNS=$runs FUZZ_SEED=$seed bash scripts/fuzz-short.sh ${1:-}"
    echo "   or directly:    ${command[*]/$scratch/\$(mktemp -d)}"
    for crash in "$artifacts"*; do echo "replay the input:  $target $crash"; done
  fi
  rm -rf "$scratch"
done
exit $status
