#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the package need, when
# missing: the amd64 toolchain and JDK, the i386 runtime and development
# libraries (the i386 architecture is enabled for them), and, on a kernel that
# cannot run i386 programs itself, the user-mode emulator that runs them.
# The i386 simulator links the i386 runtime libraries of SQLite and libsodium
# by path and takes their headers from the amd64 development packages: the
# i386 development packages would pull in libc6-dev:i386, which cannot be
# installed whenever the amd64 and i386 indexes of a mirror disagree.
#
# usage: deps.sh            install what is missing (as root, or through sudo)
#        deps.sh --check    change nothing: resolve every package the install
#                           would need (installed, or with an install
#                           candidate, dependencies included) and the 32-bit
#                           JRE's download; exit 1 naming what cannot be had
# KX_DEPS_EXTRA="pkg ..." adds packages to the list (used by the tests of --check).
set -euo pipefail

mode=install
case "${1:-}" in
  --check) mode=check ;;
  "") ;;
  *) echo "deps: usage: deps.sh [--check]" >&2; exit 2 ;;
esac

sudo_cmd=""
[ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"

packages=(cmake make g++ g++-multilib openjdk-17-jdk-headless junit4 file binutils
          dpkg-dev lintian python3 libsqlite3-dev libsodium-dev gcovr
          libc6:i386 zlib1g:i386 libgcc-s1:i386 libstdc++6:i386
          libsqlite3-0:i386 libsodium23:i386)
# shellcheck disable=SC2206
[ -n "${KX_DEPS_EXTRA:-}" ] && packages+=(${KX_DEPS_EXTRA})
jre_i386=openjdk-17-jre-headless:i386

fail() { echo "deps: $1 failed: $2" >&2; exit 1; }

# Every test below captures a command's output first and matches it after: a
# pipe into `grep -q` under pipefail fails whenever grep stops reading early.
installed() {
  local status
  status=$(dpkg-query -W -f='${Status}' "$1" 2>/dev/null) || return 1
  [ "$status" = "install ok installed" ]
}
i386_enabled() {
  local archs
  archs=$(dpkg --print-foreign-architectures)
  [[ $'\n'"$archs"$'\n' == *$'\n'i386$'\n'* ]]
}
runs_i386() { /lib/ld-linux.so.2 --version >/dev/null 2>&1; }

# apt-get update fails as a whole when one source's index cannot be had (a
# mirror in sync, a source without i386), while the others are fine: go on,
# and let the resolution below judge whether what we need can be had.
updated=0
update_once() {
  [ "$updated" = 1 ] && return 0
  updated=1
  if ! $sudo_cmd apt-get update -qq; then
    echo "deps: apt-get update reported a failed index (see above); going on with the indexes it has"
  fi
}

# Resolves packages as `apt-get install` would, installing nothing; on failure
# prints apt's own lines, which name the package ("Unable to locate package
# X", "Package X has no installation candidate", unmet dependencies).
resolve() {
  local out
  if ! out=$(apt-get install -s -q --no-install-recommends "$@" 2>&1); then
    echo "deps: these packages cannot be installed:" >&2
    grep -E '^(E:|W:| )' <<<"$out" | sed 's/^/  /' >&2 || printf '%s\n' "$out" >&2
    return 1
  fi
}

wanted=("${packages[@]}")
runs_i386 || wanted+=(qemu-user)

if [ "$mode" = check ]; then
  if ! i386_enabled; then
    # Without the architecture apt knows no :i386 package; the install enables it.
    echo "deps: the i386 architecture is not enabled yet (the install enables it);" \
         "checking the amd64 packages only"
    amd64=()
    for p in "${wanted[@]}"; do [[ $p == *:i386 ]] || amd64+=("$p"); done
    wanted=("${amd64[@]}")
  fi
  resolve "${wanted[@]}" || fail "resolving the packages" "see above"
  if i386_enabled; then
    out=$(apt-get download --print-uris -q "$jre_i386" 2>&1) ||
      { printf '%s\n' "$out" >&2; fail "resolving the 32-bit JRE" "no download for $jre_i386"; }
  fi
  missing=()
  for p in "${wanted[@]}"; do installed "$p" || missing+=("$p"); done
  echo "deps: check passed: ${#wanted[@]} packages resolve" \
       "(${#missing[@]} to install${missing[*]:+: ${missing[*]}})"
  exit 0
fi

if ! i386_enabled; then
  echo "deps: enabling the i386 architecture"
  $sudo_cmd dpkg --add-architecture i386 || fail "enabling the i386 architecture" "dpkg --add-architecture"
  updated=0
  update_once
fi

missing=()
for p in "${wanted[@]}"; do installed "$p" || missing+=("$p"); done
if [ ${#missing[@]} -gt 0 ]; then
  echo "deps: installing ${missing[*]}"
  update_once
  resolve "${missing[@]}" || fail "resolving the packages" "see above"
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" || fail "installing the packages" "apt-get install ${missing[*]}"
  still=()
  for p in "${missing[@]}"; do installed "$p" || still+=("$p"); done
  [ ${#still[@]} -eq 0 ] || fail "installing the packages" "not installed afterwards: ${still[*]}"
fi
