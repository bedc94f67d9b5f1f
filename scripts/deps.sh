#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the package need, when
# missing: the amd64 toolchain and JDK, the i386 runtime libraries a 32-bit
# OpenJDK needs (the i386 architecture is enabled for them), and, on a kernel
# that cannot run i386 programs itself, the user-mode emulator that runs them.
set -euo pipefail

sudo_cmd=""
[ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
apt_install() {
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "$@"
}

packages=(cmake make g++ g++-multilib openjdk-17-jdk-headless junit4 file binutils
          dpkg-dev lintian python3
          libc6:i386 zlib1g:i386 libgcc-s1:i386 libstdc++6:i386)

installed() {
  dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'
}

# apt-get update fails as a whole when one source's index cannot be had (a
# mirror in sync, a source without i386), while the others are fine: go on,
# and judge by whether the packages we need have a candidate.
updated=0
update_once() {
  [ "$updated" = 1 ] && return 0
  updated=1
  if ! $sudo_cmd apt-get update -qq; then
    echo "deps: apt-get update reported a failed index (see above); going on with the indexes it has"
  fi
}

require_candidates() {
  local p unavailable=()
  for p in "$@"; do
    apt-cache policy "$p" 2>/dev/null | grep -qE '^ +Candidate: [^(]' || unavailable+=("$p")
  done
  if [ ${#unavailable[@]} -gt 0 ]; then
    echo "deps: no package source offers ${unavailable[*]} (check /etc/apt/sources.list*)" >&2
    exit 1
  fi
}

if ! dpkg --print-foreign-architectures | grep -qx i386; then
  echo "deps: enabling the i386 architecture"
  $sudo_cmd dpkg --add-architecture i386
  updated=0
  update_once
fi

missing=()
for p in "${packages[@]}"; do installed "$p" || missing+=("$p"); done
if [ ${#missing[@]} -gt 0 ]; then
  echo "deps: installing ${missing[*]}"
  update_once
  require_candidates "${missing[@]}"
  apt_install "${missing[@]}"
fi

# A kernel without 32-bit support (some virtual machines) runs i386 programs
# only through qemu's user-mode emulator.
if ! /lib/ld-linux.so.2 --version >/dev/null 2>&1 && ! installed qemu-user; then
  echo "deps: this kernel does not run i386 programs; installing qemu-user"
  update_once
  require_candidates qemu-user
  apt_install qemu-user
fi
