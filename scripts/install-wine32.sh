#!/usr/bin/env bash
# Installs 32-bit Wine (wine32:i386) beside wine64 on Debian 12, with the 32-bit Mesa
# OpenGL libraries, so that the i686 build of Tessarin20b.dll and its tests can run.
# Called by install-deps.sh; safe to run again: when everything is in place it only
# checks and exits. Exit status 0 means the 32-bit loader and GL are usable.
#
# Multiarch needs each "Multi-Arch: same" library at one version in both architectures,
# and apt only ever chooses between a package's installed version and its candidate.
# When the amd64 and i386 candidates differ (a security update whose i386 index did not
# download, a point release the amd64 side has not had yet), apt gives up on wine32 or
# removes the amd64 library, and wine64 with it. So the script pins each such library,
# its i386 twin and the packages built beside it to the newest version that exists for
# both architectures (a file in apt's preferences.d); apt then upgrades or downgrades
# the amd64 side to that version. The pins are worked out afresh on every run from the
# package indexes and from what apt would do, so they follow the archive as it moves,
# and only those that the install needs are kept. Nothing is ever removed: the install
# runs with --no-remove.
set -euo pipefail
export LC_ALL=C

# What the 32-bit test runs need; without the i386 Mesa drivers a 32-bit GL program fails
# with "ChoosePixelFormat failed".
targets=(wine32:i386 libgl1-mesa-dri:i386 libglx-mesa0:i386 libgl1:i386 libglu1-mesa:i386)
# The 64-bit side, which must stay installed.
keep=(wine wine64 libwine:amd64)
wine32_loader=/usr/lib/wine/wine
wine64_loader=/usr/lib/wine/wine64
max_rounds=40

apt_opts=(-o DPkg::Lock::Timeout=600)
declare -A pinned=()   # package name -> version, for amd64 (or all) and i386 alike
declare -A pin_root=() # package name -> the library whose pin brought it in
pinfile=""
sim_out=""

die() { echo "install-wine32: $*" >&2; exit 1; }
note() { echo "install-wine32: $*"; }

installed() {  # installed PKG[:ARCH]: true when dpkg has it fully installed
  dpkg-query -W -f='${Status}\n' "$1" 2>/dev/null | grep '^install ok installed$' >/dev/null
}

all_installed() {
  local p
  for p in "${targets[@]}" "${keep[@]}"; do installed "$p" || return 1; done
  "$wine32_loader" --version >/dev/null 2>&1 && "$wine64_loader" --version >/dev/null 2>&1
}

# For each PKG:ARCH argument, one line "NAME ARCH INSTALLED CANDIDATE V1,V2,..." from one
# apt-cache call, the versions being those the package indexes hold; "-" for none.
policy_table() {
  [ "$#" -gt 0 ] || return 0
  apt-cache policy "$@" 2>/dev/null | awk '
    function flush() {
      if (name != "") print name, arch, (inst == "" ? "-" : inst), (cand == "" ? "-" : cand), (vers == "" ? "-" : vers)
      name = ""
    }
    /^[^ ].*:$/ {
      flush(); name = substr($0, 1, length($0) - 1); arch = "native"
      if (match(name, /:[a-z0-9]+$/)) { arch = substr(name, RSTART + 1); name = substr(name, 1, RSTART - 1) }
      inst = ""; cand = ""; vers = ""; v = ""; next
    }
    $1 == "Installed:" { inst = ($2 == "(none)" ? "" : $2); next }
    $1 == "Candidate:" { cand = ($2 == "(none)" ? "" : $2); next }
    /^ (\*\*\*|   ) [^ ]+ -?[0-9]+$/ { v = $(NF - 1); next }
    /^        -?[0-9]+ / {
      if (v != "" && $2 != "/var/lib/dpkg/status" && index("," vers ",", "," v ",") == 0) vers = vers (vers == "" ? "" : ",") v
      next
    }
    END { flush() }' || true
}

# The highest Debian version among the arguments.
max_version() {
  local best="" v
  for v in "$@"; do
    if [ -z "$best" ] || dpkg --compare-versions "$v" gt "$best"; then best=$v; fi
  done
  echo "$best"
}

write_pins() {
  local p tmp
  tmp=$(mktemp)
  {
    echo "# Written by install-wine32.sh: libraries held at a version that exists for both"
    echo "# amd64 and i386, so that wine32 installs beside wine64."
    for p in $(printf '%s\n' "${!pinned[@]}" | sort); do
      printf 'Package: %s %s:i386\nPin: version %s\nPin-Priority: 1001\n\n' "$p" "$p" "${pinned[$p]}"
    done
  } > "$tmp"
  install -m 0644 "$tmp" "$pinfile"
  rm -f "$tmp"
}

# Pins the other installed packages built from the same source at the same version as
# NAME to VERSION too, where that version exists for them: they often depend on each
# other's exact version.
pin_siblings() {
  local name=$1 version=$2 src ver p arch pver args=() n a inst cand vers
  read -r src ver < <(dpkg-query -W -f='${source:Package} ${Version}\n' "$name:amd64" 2>/dev/null) || true
  [ -n "${src:-}" ] || return 0
  while read -r p arch pver; do
    [ "$p" = "$name" ] || [ "$pver" != "$ver" ] || [ -n "${pinned[$p]:-}" ] || args+=("$p:$arch")
  done < <(dpkg-query -W -f='${source:Package} ${binary:Package} ${Architecture} ${Version} ${Status}\n' 2>/dev/null \
           | awk -v s="$src" '$1 == s && $NF == "installed" {sub(/:.*/, "", $2); print $2, $3, $4}' | sort -u)
  while read -r n a inst cand vers; do
    [ -z "${pinned[$n]:-}" ] && [[ ",$vers," == *",$version,"* ]] || continue
    pinned[$n]=$version; pin_root[$n]=$name
    note "pin $n $version (built beside $name)"
  done < <(policy_table "${args[@]}")
}

# Pins each of the package NAMEs (architecture suffixes are dropped) whose installed amd64
# package and i386 twin have different candidates. Returns 0 when it added a pin.
pin_mismatches() {
  local names=() args=() common=() n a inst cand vers added=1 want
  local -A i64=() c64=() v64=() c32=() v32=()
  mapfile -t names < <(printf '%s\n' "$@" | sed 's/:.*//' | grep . | sort -u)
  [ "${#names[@]}" -gt 0 ] || return 1
  for n in "${names[@]}"; do args+=("$n:amd64" "$n:i386"); done
  while read -r n a inst cand vers; do
    case $a in
      native|amd64) i64[$n]=$inst; c64[$n]=$cand; v64[$n]=$vers ;;
      i386) c32[$n]=$cand; v32[$n]=$vers ;;
    esac
  done < <(policy_table "${args[@]}")
  for n in "${names[@]}"; do
    [ -z "${pinned[$n]:-}" ] && [ "${i64[$n]:--}" != - ] && [ "${c32[$n]:--}" != - ] || continue
    [ "${c64[$n]}" != "${c32[$n]}" ] || continue
    mapfile -t common < <(comm -12 <(tr ',' '\n' <<<"${v64[$n]}" | sort) <(tr ',' '\n' <<<"${v32[$n]}" | sort) | grep -vx -- -)
    want=$(max_version "${common[@]}")
    if [ -z "$want" ]; then
      note "no version of $n exists for both amd64 and i386"
      continue
    fi
    pinned[$n]=$want; pin_root[$n]=$n; added=0
    note "pin $n $want (amd64: installed ${i64[$n]}, candidate ${c64[$n]}; i386 candidate ${c32[$n]})"
    pin_siblings "$n" "$want"
  done
  return $added
}

# Package names that apt's "unmet dependencies" report mentions.
unmet_names() {
  grep -oE '^ [a-z0-9][a-z0-9+.-]*(:[a-z0-9]+)? :|(Depends|Breaks|Conflicts): [a-z0-9][a-z0-9+.-]*(:[a-z0-9]+)?' \
    | sed -E 's/^ //; s/ :$//; s/^[A-Za-z-]+: //' | sort -u || true
}

# Every i386 package the targets could pull in.
dependency_closure() {
  apt-cache depends --recurse --no-recommends --no-suggests --no-conflicts --no-breaks \
    --no-replaces --no-enhances "${targets[@]}" 2>/dev/null | grep -E '^[a-z0-9].*:i386$' | sort -u || true
}

simulate() {
  local rc=0
  write_pins
  sim_out=$(apt-get -s install --no-install-recommends "${targets[@]}" "${keep[@]}" 2>&1) || rc=$?
  if grep -E '^E: (Unable to locate package|Package .* has no installation candidate)' <<<"$sim_out" >&2; then
    die "a package that wine32 needs is missing from the package indexes"
  fi
  [ "$rc" -eq 0 ] && ! grep '^Remv ' <<<"$sim_out" >/dev/null
}

# Drops the pins of libraries whose i386 twin the install leaves out, with the packages
# they brought in, as long as apt still manages without them.
prune_pins() {
  local -A before=() before_root=()
  local p r
  for p in "${!pinned[@]}"; do before[$p]=${pinned[$p]}; before_root[$p]=${pin_root[$p]}; done
  for p in "${!before[@]}"; do
    r=${before_root[$p]}
    grep -E "^Inst $r:i386 " <<<"$sim_out" >/dev/null || installed "$r:i386" || { unset "pinned[$p]"; unset "pin_root[$p]"; }
  done
  [ "${#pinned[@]}" -ne "${#before[@]}" ] || return 0
  simulate && return 0
  for p in "${!before[@]}"; do pinned[$p]=${before[$p]}; pin_root[$p]=${before_root[$p]}; done
  simulate || die "apt no longer agrees with the pins it accepted"
}

# Adds pins until apt can install the targets without removing anything.
resolve_pins() {
  local names=() removed
  pinned=(); pin_root=()
  write_pins
  mapfile -t names < <(dependency_closure)
  pin_mismatches "${names[@]}" || true
  for _ in $(seq 1 "$max_rounds"); do
    if simulate; then prune_pins; return 0; fi
    removed=$(grep '^Remv ' <<<"$sim_out" | awk '{print $2}' || true)
    mapfile -t names < <(printf '%s\n' "$removed"; unmet_names <<<"$sim_out")
    if ! pin_mismatches "${names[@]}"; then
      echo "$sim_out" | grep -E '^(Remv |E: | [a-z0-9])' >&2 || echo "$sim_out" | tail -n 30 >&2
      [ -z "$removed" ] || die "apt would remove: $(tr '\n' ' ' <<<"$removed"); no version pin avoids it"
      die "apt cannot install ${targets[*]}; no version pin resolves it (see above)"
    fi
  done
  die "no consistent set of versions after $max_rounds rounds of pinning"
}

main() {
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null 2>&1 || die "must run as root (no sudo found)"
    exec sudo -E -- "$0" "$@"
  fi
  command -v apt-get >/dev/null 2>&1 || die "needs apt-get (Debian)"
  [ "$(dpkg --print-architecture)" = amd64 ] || die "expects an amd64 system, not $(dpkg --print-architecture)"
  export DEBIAN_FRONTEND=noninteractive

  if all_installed; then
    note "already installed: $("$wine32_loader" --version) (32-bit) beside wine64"
    exit 0
  fi

  dpkg --print-foreign-architectures | grep -x i386 >/dev/null || { note "adding the i386 architecture"; dpkg --add-architecture i386; }

  # An index that fails to download (the i386 security index is the usual one) is not
  # fatal: the pins below work around versions that only it would have had.
  local upd rc=0
  upd=$(apt-get "${apt_opts[@]}" update 2>&1) || rc=$?
  if [ "$rc" -ne 0 ]; then
    note "apt-get update reported errors; going on with the indexes it has:"
    grep -E '^(E|W|Err):' <<<"$upd" | sed 's/^/  /' | head -n 10
  fi
  apt-cache policy wine32:i386 2>/dev/null | grep 'Candidate: [^(]' >/dev/null \
    || die "no i386 package index offers wine32 (is the i386 architecture reachable?)"

  local prefdir=""
  eval "$(apt-config shell prefdir Dir::Etc::PreferencesParts/d)"
  [ -n "$prefdir" ] && [ -d "$prefdir" ] || die "cannot find apt's preferences directory"
  pinfile=${prefdir%/}/wine32-multiarch
  trap '[ "${done_ok:-0}" = 1 ] || rm -f "$pinfile"' EXIT
  resolve_pins
  if [ "${#pinned[@]}" -eq 0 ]; then rm -f "$pinfile"; else note "${#pinned[@]} pins kept in $pinfile"; fi

  local downgrades
  downgrades=$(grep -A 100 'DOWNGRADED' <<<"$sim_out" | sed -n '2,/^[A-Z0-9]/p' | grep '^ ' | tr -s ' \n' ' ' || true)
  [ -z "$downgrades" ] || note "apt will downgrade:$downgrades"
  apt-get "${apt_opts[@]}" install -y --no-install-recommends --no-remove --allow-downgrades \
    -o Dpkg::Options::=--force-confdef -o Dpkg::Options::=--force-confold \
    "${targets[@]}" "${keep[@]}" || die "apt-get install failed"
  done_ok=1

  local p
  for p in "${targets[@]}" "${keep[@]}"; do installed "$p" || die "$p is not installed after the install"; done
  "$wine32_loader" --version >/dev/null 2>&1 || die "the 32-bit loader $wine32_loader does not run"
  "$wine64_loader" --version >/dev/null 2>&1 || die "the 64-bit loader $wine64_loader no longer runs"
  note "ok: $("$wine32_loader" --version) (32-bit) beside wine64"
}

[ "${BASH_SOURCE[0]}" != "$0" ] || main "$@"
