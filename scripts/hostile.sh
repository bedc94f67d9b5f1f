#!/usr/bin/env bash
# The hostile runs at length.  kxtest.HostileLibrary calls every native while
# the test double answers each call with seeded random output bytes and result
# codes, with plain, filled or hostile Java arguments (kxtest.HostileInputs),
# for `seeds` seeds from `first` (default 1000 from 1), and fails on a crash, a
# JNI warning, a leaked or overrun block, a result array not at its table's
# capacity, a string longer than its C field, or an exception other than the
# expected codes.  A failure names its native and seed; replay one with
# KX_HOSTILE_SEED=<seed> KX_HOSTILE_NATIVE=<native>.  The test command runs
# seeds 1-40 (the `hostile` leg), 41-60 (`hostile-asan`) and 61-80
# (`hostile-pages`).
#
# usage: hostile.sh [seeds [first]]   after the build command (bash scripts/build.sh)
#   KX_HOSTILE_BUILD  the x86-64 test build to load (default build/host); with
#                     KX_HOSTILE_ASAN=1 its AddressSanitizer build (<build>/asan)
#   KX_HOSTILE_PAGES  1: the test double's seam in page mode (KX_SEAM_PAGES=1):
#                     every block ends at an inaccessible page and released
#                     blocks are inaccessible, so a read past a block or after
#                     its release crashes the JVM where it happens
#   KX_HOSTILE_SIM    1: simtest.HostileSimulator instead: the hostile arguments
#                     through the x86-64 bridge into the simulator, each seed
#                     over every native (the sim-hostile leg runs seeds 1-6);
#                     replay with `hostile.sh 1 <seed>` and KX_HOSTILE_NATIVE
set -euo pipefail
cd "$(dirname "$0")/.."
seeds=${1:-1000} first=${2:-1}
[[ $seeds =~ ^[0-9]+$ && $first =~ ^-?[0-9]+$ ]] || { echo "hostile: usage: hostile.sh [seeds [first]]" >&2; exit 2; }
build=${KX_HOSTILE_BUILD:-build/host}
[ -d "$build" ] || { echo "hostile: $build is missing: run bash scripts/build.sh first" >&2; exit 1; }
build=$(cd "$build" && pwd)  # the JVM loads libraries by absolute path
name=$(sed -n 's/^KX_LIBRARY_NAME:STRING=//p' "$build/CMakeCache.txt" 2>/dev/null || true)
junit=/usr/share/java/junit4.jar
hamcrest=/usr/share/java/hamcrest-core.jar
[ -e "$hamcrest" ] || hamcrest=/usr/share/java/hamcrest.jar
props="-Dkx.hostile.seeds=$seeds -Dkx.hostile.first=$first"
[ -n "${KX_HOSTILE_SEED:-}" ] && props="$props -Dkx.hostile.seed=$KX_HOSTILE_SEED"
[ -n "${KX_HOSTILE_NATIVE:-}" ] && props="$props -Dkx.hostile.native=$KX_HOSTILE_NATIVE"

if [ "${KX_HOSTILE_SIM:-0}" = 1 ]; then
  bridge=$build/plain/lib${name:-diskarrayjni}.so
  for f in "$bridge" "$build/sim/libpernix.so" "$build/sim/pernix-sim" "$build/test-classes/simtest.stamp" \
           "$build/catalogue.txt"; do
    [ -e "$f" ] || { echo "hostile: $f is missing: run bash scripts/build.sh first" >&2; exit 1; }
  done
  export JAVA_TOOL_OPTIONS="$props -Dkx.catalogue=$build/catalogue.txt${JAVA_TOOL_OPTIONS:+ $JAVA_TOOL_OPTIONS}"
  exec bash tests/run_sim.sh --java=java --tool="$build/sim/pernix-sim" \
    "$build/test-classes/simtest:$junit:$hamcrest" "$bridge" "$build/sim/libpernix.so" simtest.HostileSimulator
fi

libs=$build sanitize=()
if [ "${KX_HOSTILE_ASAN:-0}" = 1 ]; then
  libs=$build/asan sanitize=(--sanitize=address,undefined)
fi
bridge=$libs/lib${name:-diskarrayjni}.so
fake=$libs/fake/libpernix.so
classes=$build/test-classes
for f in "$bridge" "$fake" "$classes/base.stamp"; do
  [ -e "$f" ] || { echo "hostile: $f is missing: run bash scripts/build.sh first" >&2; exit 1; }
done
export JAVA_TOOL_OPTIONS="$props${JAVA_TOOL_OPTIONS:+ $JAVA_TOOL_OPTIONS}"
if [ "${KX_HOSTILE_PAGES:-0}" = 1 ]; then
  export KX_SEAM_PAGES=1
fi
exec bash tests/run_jvm.sh ${sanitize[@]+"${sanitize[@]}"} "$classes/base:$junit:$hamcrest:$classes/exception" \
  "$bridge" "$fake" kxtest.HostileLibrary
