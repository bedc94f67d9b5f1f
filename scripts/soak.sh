#!/usr/bin/env bash
# The load test at length: kxtest.Soak calls every native from several Java
# threads at once against the x86-64 test build and the test double, for
# `seconds` (default 60), and fails when a thread gets a result it did not
# expect, when the resident size, the malloc heap, the seam's live blocks or
# the JNI global references grow from the first tenth of the run to the last
# (the lowest sample of each: the JIT's compiler arenas come and go), or when
# more JNI local references are in flight than the calls can hold.  The
# test command runs it for 10 seconds after 5 of warm-up (the `soak` leg).
#
# usage: soak.sh [seconds]     after the build command (bash scripts/build.sh)
#   KX_SOAK_THREADS  calling threads (default 4)
#   KX_SOAK_BUILD    the x86-64 test build to load (default build/host)
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
[[ $seconds =~ ^[0-9]+$ ]] && [ "$seconds" -gt 0 ] || { echo "soak: usage: soak.sh [seconds]" >&2; exit 2; }
build=${KX_SOAK_BUILD:-build/host}
name=$(sed -n 's/^KX_LIBRARY_NAME:STRING=//p' "$build/CMakeCache.txt" 2>/dev/null || true)
bridge=$build/lib${name:-diskarrayjni}.so
fake=$build/fake/libpernix.so
classes=$build/test-classes
for f in "$bridge" "$fake" "$classes/base.stamp"; do
  [ -e "$f" ] || { echo "soak: $f is missing: run bash scripts/build.sh first" >&2; exit 1; }
done
junit=/usr/share/java/junit4.jar
hamcrest=/usr/share/java/hamcrest-core.jar
[ -e "$hamcrest" ] || hamcrest=/usr/share/java/hamcrest.jar
# A fixed, pre-touched heap: the resident size then follows native memory,
# not the collector's sizing of the heap.
export KX_SOAK_SECONDS=$seconds
export JAVA_TOOL_OPTIONS="-Xms256m -Xmx256m -XX:+AlwaysPreTouch${JAVA_TOOL_OPTIONS:+ $JAVA_TOOL_OPTIONS}"
exec bash tests/run_jvm.sh "$classes/base:$junit:$hamcrest:$classes/exception" "$bridge" "$fake" kxtest.Soak
