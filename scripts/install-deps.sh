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
  doxygen nsis
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
  $sudo_cmd apt-get update -qq
  $sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

# The mingw compilers must use the posix thread model (std::thread, std::mutex).
for t in x86_64-w64-mingw32 i686-w64-mingw32; do
  for tool in gcc g++; do
    if [ -x "/usr/bin/$t-$tool-posix" ] && ! "$t-$tool" -v 2>&1 | grep -q 'Thread model: posix'; then
      update-alternatives --set "$t-$tool" "/usr/bin/$t-$tool-posix" >/dev/null 2>&1 || true
    fi
  done
done
