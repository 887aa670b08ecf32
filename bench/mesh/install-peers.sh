#!/usr/bin/env bash
# Installs the peers of the mesh benchmark, OpenSceneGraph and Coin3D, from Debian's
# packages where they are missing. The benchmark only: the test suite needs neither.
set -euo pipefail
packages=(libopenscenegraph-dev libcoin-dev)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ "${#missing[@]}" -eq 0 ] && exit 0
echo "installing the mesh benchmark's peers: ${missing[*]}"
sudo_cmd=""
[ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo_cmd apt-get update -qq
$sudo_cmd apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
