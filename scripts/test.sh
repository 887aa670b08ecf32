#!/usr/bin/env bash
# The whole test suite: installs what is missing, builds the 64-bit DLL with its tests,
# compiles the 32-bit DLL, builds the native cores, then runs every test (the Windows
# ones under wine in a private Xvfb display).
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${TESSARIN_BUILD:-$root/build}
start=$(date +%s)

bash "$root/scripts/install-deps.sh"

cmake -S "$root" -B "$build/win64" -G Ninja \
  -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-x86_64-w64-mingw32.cmake" >/dev/null
cmake --build "$build/win64"
cmake -S "$root" -B "$build/win32" -G Ninja -DTESSARIN_BENCH=OFF \
  -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-i686-w64-mingw32.cmake" >/dev/null
cmake --build "$build/win32"
# Native cores and their tests run under AddressSanitizer and UBSan.
cmake -S "$root" -B "$build/native" -G Ninja -DTESSARIN_BENCH=OFF \
  -DCMAKE_CXX_FLAGS="-fsanitize=address,undefined -fno-omit-frame-pointer" \
  -DCMAKE_EXE_LINKER_FLAGS="-fsanitize=address,undefined" >/dev/null
cmake --build "$build/native"

source "$root/scripts/wine-session.sh"
trap wine_session_stop EXIT
wine_session_start "$build"

status=0
ctest --test-dir "$build/native" --output-on-failure || status=1
bash "$root/scripts/fuzz-short.sh" "$build" || status=1
ctest --test-dir "$build/win64" --output-on-failure -j1 || status=1
echo "suite time: $(( $(date +%s) - start )) s"
exit $status
