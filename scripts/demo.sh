#!/usr/bin/env bash
# The demo: installs what is missing, builds the DLL and the demo application and runs
# it. Without a display it runs headless in a private Xvfb, prints the frame rate and
# writes a screenshot (BMP, and PNG where ImageMagick is installed) to build/demo.*.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${TESSARIN_BUILD:-$root/build}

bash "$root/scripts/install-deps.sh"
cmake -S "$root" -B "$build/demo" -G Ninja -DTESSARIN_TESTS=OFF -DTESSARIN_BENCH=OFF \
  -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-x86_64-w64-mingw32.cmake" >/dev/null
cmake --build "$build/demo" --target tessarin_demo

source "$root/scripts/wine-session.sh"
trap wine_session_stop EXIT
headless=1
[ -n "${DISPLAY:-}" ] && headless=0 && export TESSARIN_USE_DISPLAY=1
wine_session_start "$build"
cd "$build/demo/bin"
if [ "$headless" = 1 ]; then
  "$WINE64" tessarin_demo.exe --screenshot demo.bmp
  cp demo.bmp "$build/demo.bmp"
  if convert -version 2>/dev/null | grep -q ImageMagick; then
    convert "$build/demo.bmp" "$build/demo.png" && echo "screenshot: $build/demo.png"
  fi
  echo "screenshot: $build/demo.bmp"
else
  "$WINE64" tessarin_demo.exe
fi
