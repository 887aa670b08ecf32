#!/usr/bin/env bash
# Installs, from Debian's packages, everything the build, the tests and the demo need.
# Safe to run again: it only installs what is missing.
set -euo pipefail

packages=(
  cmake ninja-build make
  g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix binutils-mingw-w64-x86-64
  wine wine64 xvfb xauth x11-utils
  libgl1-mesa-dri libglx-mesa0 libglu1-mesa
  googletest
  imagemagick netpbm libgif-dev giflib-tools
  clang libclang-rt-14-dev
  doxygen nsis pkgconf
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done

if [ "${#missing[@]}" -gt 0 ]; then
  echo "installing: ${missing[*]}"
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  export DEBIAN_FRONTEND=noninteractive
  # With the i386 architecture added, one i386 index often fails its size check and
  # apt-get update exits 100; the indexes it did fetch are enough, and the install
  # below says so if they are not.
  $sudo_cmd apt-get update -qq || echo "apt-get update reported errors; going on with the indexes it has"
  $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' \
    || { echo "install-deps: $p could not be installed" >&2; exit 1; }
done

# The mingw compilers must use the posix thread model (std::thread, std::mutex).
for t in x86_64-w64-mingw32 i686-w64-mingw32; do
  for tool in gcc g++; do
    if [ -x "/usr/bin/$t-$tool-posix" ] && ! "$t-$tool" -v 2>&1 | grep -q 'Thread model: posix'; then
      update-alternatives --set "$t-$tool" "/usr/bin/$t-$tool-posix" >/dev/null 2>&1 || true
    fi
  done
done

# 32-bit Wine and 32-bit Mesa for the i686 test stage. Its failure does not stop the
# x86-64 suite: scripts/test.sh then says loudly that the i686 stage did not run.
if [ "${TESSARIN_SKIP_WINE32:-0}" != 1 ]; then
  if ! bash "$(dirname "$0")/install-wine32.sh"; then
    echo "install-deps: WARNING: 32-bit Wine could not be installed; the i686 tests cannot run" >&2
  fi
fi
