#!/usr/bin/env bash
# Makes tests/data/nodes_scene.ppm, the golden picture of the node screenshot test:
# builds the 64-bit tests, then runs the screenshot test under wine with
# TESSARIN_WRITE_GOLDEN naming the file to write. Look at the result before committing.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=${TESSARIN_BUILD:-$root/build}
cmake -S "$root" -B "$build/win64" -G Ninja \
  -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-x86_64-w64-mingw32.cmake" >/dev/null
ninja -C "$build/win64" -j2 math_screenshot_test
source "$root/scripts/wine-session.sh"
trap wine_session_stop EXIT
wine_session_start "$build"
cd "$build/win64/bin"
TESSARIN_WRITE_GOLDEN="$root/tests/data/nodes_scene.ppm" \
  "$WINE64" ./math_screenshot_test.exe --gtest_filter=NodesScreenshot.MatchesTheGoldenPicture
echo "wrote $root/tests/data/nodes_scene.ppm"
