#!/usr/bin/env bash
# Runs the end-to-end suites (tests/java/simtest) through a bridge into the
# simulated array: each test class in a JVM of its own, with -Xcheck:jni, on a
# fresh database in a temporary folder of its own (PERNIX_SIM_DB).  Fails when
# a test fails or any JVM (the children the tests start included) reports JNI
# misuse.
# usage: run_sim.sh --java=<launcher> --tool=<pernix-sim> [--only=<group>]
#                   <classpath> <bridge.so> <simulator libpernix.so> <test class>...
#   --java  the JVM to run; the children the tests start use the same one
#   --tool  the pernix-sim the tests use to step the clock, add fault rules and
#           seed databases (any architecture's: the database file is the same)
#   --only  run only the tests marked with that group (simtest.Smoke: "smoke")
set -u
java=java tool= only=
while [ $# -gt 0 ]; do
  case "$1" in
    --java=*) java=${1#--java=} ;;
    --tool=*) tool=${1#--tool=} ;;
    --only=*) only=${1#--only=} ;;
    *) break ;;
  esac
  shift
done
if [ $# -lt 4 ]; then
  echo "run_sim: usage: run_sim.sh --java=J --tool=T [--only=G] CLASSPATH BRIDGE SIMLIB CLASS..." >&2
  exit 2
fi
cp=$1 bridge=$2 simlib=$3
shift 3

if ! command -v "$java" >/dev/null; then
  echo "run_sim: no JVM at '$java'"
  exit 1
fi
for f in "$bridge" "$simlib" "$tool"; do
  [ -f "$f" ] || { echo "run_sim: '$f' not built (run the build command first)"; exit 1; }
done
[ "$(basename "$bridge")" = libdiskarrayjni.so ] ||
  { echo "run_sim: the bridge must be named libdiskarrayjni.so (System.loadLibrary finds it by name)"; exit 1; }

# A 32-bit JVM on a machine that runs i386 programs only under emulation
# cannot start processes through its spawn helper (an i386 program the
# kernel cannot run): it forks them itself.
jvm_opts=()
if [ "$(od -An -tx1 -j4 -N1 "$bridge" | tr -d ' ')" = 01 ] && ! /lib/ld-linux.so.2 --version >/dev/null 2>&1; then
  jvm_opts+=(-Djdk.lang.Process.launchMechanism=VFORK)
fi

libdir=$(cd "$(dirname "$bridge")" && pwd)
# Absolute paths: the JVMs run in folders of their own.
abs_cp=()
IFS=: read -r -a entries <<<"$cp"
for e in "${entries[@]}"; do
  case "$e" in /*|'') abs_cp+=("$e") ;; *) abs_cp+=("$PWD/$e") ;; esac
done
cp=$(IFS=:; echo "${abs_cp[*]}")
case "$tool" in /*) ;; */*) tool=$PWD/$tool ;; esac
simdir=$(cd "$(dirname "$simlib")" && pwd)
log=$(mktemp)
work=$(mktemp -d)
trap 'rm -rf "$log" "$work"' EXIT
# The test folders are world-readable: a test that needs a process without
# root's rights (a read-only database) runs one as nobody.
chmod 755 "$work"

# The suites expect the default array: options of the simulator set in this
# environment (PERNIX_SIM_DRIVES, a config file, fault rules ...) are dropped.
unset_sim=()
for v in $(compgen -e); do
  case "$v" in PERNIX_SIM_*) unset_sim+=(-u "$v") ;; esac
done

start=$(date +%s.%N)
rc=0 passed=0 failed=0 skipped=0
for class in "$@"; do
  dir=$(mktemp -d "$work/db.XXXXXX")
  chmod 755 "$dir"
  # A frozen clock: time moves only when a test steps it, so what a test
  # expects after a step does not depend on how fast this machine runs.
  # Each class runs in its own folder: a file a test names by a relative path
  # (or a hostile argument that happens to be one) lands there.
  (cd "$dir" && exec env ${unset_sim[@]+"${unset_sim[@]}"} PERNIX_SIM_DB="$dir/array.db" PERNIX_SIM_CLOCK=frozen \
    LD_LIBRARY_PATH="$simdir${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
    "$java" -Xcheck:jni -ea ${jvm_opts[@]+"${jvm_opts[@]}"} -Djava.library.path="$libdir" \
    -Dsim.java="$(command -v "$java")" -Dsim.tool="$tool" -Dsim.dir="$dir" -Dsim.only="$only" \
    -XX:ErrorFile="${TMPDIR:-/tmp}/kx_hs_err_%p.log" -cp "$cp" simtest.Runner "$class") 2>&1 | tee "$log"
  r=${PIPESTATUS[0]}
  if grep -qE 'WARNING in native method|FATAL ERROR|WARNING: JNI|^Warning: ' "$log"; then
    echo "run_sim: $class: the JVM reported JNI misuse (see above)"
    r=1
  fi
  line=$(grep -E '^simtest: [0-9]+ passed' "$log" | tail -1)
  if [ -z "$line" ]; then
    echo "run_sim: $class did not report its results"
    r=1
  else
    read -r _ p _ f _ s _ <<<"$line"
    passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
  fi
  [ "$r" = 0 ] || rc=1
  rm -rf "$dir"
done
end=$(date +%s.%N)
echo "run_sim: $passed passed, $failed failed, $skipped skipped in" \
  "$(awk -v a="$start" -v b="$end" 'BEGIN { printf "%.1f s", b - a }')"
exit "$rc"
