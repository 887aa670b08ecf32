#!/usr/bin/env bash
# Every benchmark, each printing its table with its peer measured in the same run:
# the Windows ones under wine (private Xvfb and prefix), the native ones directly.
# Optional argument: a name filter (e.g. "requests").
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${TESSARIN_BUILD:-$root/build}
filter=${1:-}

bash "$root/scripts/install-deps.sh"
bash "$root/bench/mesh/install-peers.sh"  # the mesh benchmark's peers, not needed by the tests
# Release trees of their own: the test trees keep their configuration.
cmake -S "$root" -B "$build/bench-win64" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTESSARIN_TESTS=OFF \
  -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-x86_64-w64-mingw32.cmake" >/dev/null
cmake --build "$build/bench-win64"
cmake -S "$root" -B "$build/bench-native" -G Ninja -DCMAKE_BUILD_TYPE=Release -DTESSARIN_TESTS=OFF >/dev/null
cmake --build "$build/bench-native"

shopt -s nullglob
for bench in "$build"/bench-native/bin/bench_*; do
  [[ "$(basename "$bench")" == *"$filter"* ]] || continue
  echo "== $(basename "$bench") (native)"
  (cd "$build/bench-native/bin" && "$bench")
done

source "$root/scripts/wine-session.sh"
trap wine_session_stop EXIT
wine_session_start "$build/bench-wine"
for bench in "$build"/bench-win64/bin/bench_*.exe; do
  [[ "$(basename "$bench")" == *"$filter"* ]] || continue
  echo "== $(basename "$bench") (wine)"
  (cd "$build/bench-win64/bin" && "$WINE64" "$(basename "$bench")")
done
