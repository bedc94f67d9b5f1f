#!/usr/bin/env bash
# Runs the sample session (examples/SampleSession.java) against the simulated
# array: in the 32-bit JVM with the shipped i386 library where this machine
# runs i386 programs, else in the x86-64 JVM with the x86-64 build of the same
# sources.  Needs the build (bash scripts/build.sh).
# usage: sample.sh [--i386|--x86-64] [--fresh] [-- ARGS for the sample]
#   --fresh  starts from a new default array (the database is reset first)
#   The database is PERNIX_SIM_DB, by default the simulator's own under
#   ~/.local/state/pernix-sim, so a second run shows what the first left.
#   KX_JVM_OPTS adds options to the JVM (the tests add -Xcheck:jni).
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD
arch=auto fresh=no
while [ $# -gt 0 ]; do
  case "$1" in
    --i386) arch=i386 ;;
    --x86-64) arch=x86-64 ;;
    --fresh) fresh=yes ;;
    --) shift; break ;;
    *) echo "sample: usage: sample.sh [--i386|--x86-64] [--fresh] [-- ARGS]" >&2; exit 2 ;;
  esac
  shift
done
if [ "$arch" = auto ]; then
  if /lib/ld-linux.so.2 --version >/dev/null 2>&1; then arch=i386; else arch=x86-64; fi
fi
if [ "$arch" = i386 ]; then
  java=$top/build/jre-i386/java libdir=$top/build/i386 simdir=$top/build/i386/sim
  what="32-bit JVM, the shipped i386 library"
else
  java=$(command -v java) libdir=$top/build/host/plain simdir=$top/build/host/sim
  what="x86-64 JVM, the x86-64 build of the library"
  /lib/ld-linux.so.2 --version >/dev/null 2>&1 ||
    what="$what (this machine runs i386 programs only under emulation)"
fi
classes=$top/build/host/examples-classes
for f in "$java" "$libdir/libdiskarrayjni.so" "$simdir/libpernix.so" "$classes"; do
  [ -e "$f" ] || { echo "sample: $f is missing: run bash scripts/build.sh first" >&2; exit 1; }
done
echo "sample: $what ($libdir/libdiskarrayjni.so) over the simulated array ($simdir/libpernix.so)"
if [ "$fresh" = yes ]; then
  "$top/build/host/sim/pernix-sim" reset --yes >/dev/null
fi
export PERNIX_SIM_TOOL="${PERNIX_SIM_TOOL:-$top/build/host/sim/pernix-sim}"  # stands in for hosts and time
LD_LIBRARY_PATH="$simdir${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
  exec "$java" ${KX_JVM_OPTS:-} -Djava.library.path="$libdir" -cp "$classes" SampleSession "$@"
