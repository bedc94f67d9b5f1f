#!/usr/bin/env bash
# Runs JUnit test classes in a JVM with -Xcheck:jni against the bridge and the
# test double (the core probe library and the flush shim sit beside the
# double; the shim is preloaded to count the bridge's flushes of stdout).  Fails
# when a test fails or the JVM reports any JNI misuse.
# usage: run_jvm.sh [--java=<launcher>] [--seam=yes|no] <classpath> <bridge.so> <fake libpernix.so> <test class>...
#   --java  the JVM to run (default: java on the PATH); the i386 legs pass the 32-bit one
#   --seam  whether the bridge has the test allocation seam (default yes).  Checked
#           against the library; with "no" (the shipped library) the tests that
#           fail allocations are skipped, everything else runs.
set -u
java=java seam=yes
while [ $# -gt 0 ]; do
  case "$1" in
    --java=*) java=${1#--java=} ;;
    --seam=*) seam=${1#--seam=} ;;
    *) break ;;
  esac
  shift
done
cp=$1 bridge=$2 fake=$3
shift 3

if ! command -v "$java" >/dev/null; then
  echo "run_jvm: no JVM at '$java' (bash scripts/build.sh sets up the 32-bit one in build/jre-i386)"
  exit 1
fi
for f in "$bridge" "$fake"; do
  [ -f "$f" ] || { echo "run_jvm: $f not built (run the build command first)"; exit 1; }
done
has_seam=no
nm -D --undefined-only "$bridge" | grep -q ' pernix_seam_alloc$' && has_seam=yes
if [ "$has_seam" != "$seam" ]; then
  echo "run_jvm: expected seam=$seam but $bridge has seam=$has_seam"
  exit 1
fi
seam_prop=true
[ "$seam" = no ] && seam_prop=false

log=$(mktemp)
trap 'rm -f "$log"' EXIT
here=$(cd "$(dirname "$0")" && pwd)
frames=$(printf '%s:' "$here"/frames/*.tsv)
preload=${LD_PRELOAD:-} preload32=
shim="$(dirname "$fake")/libkxflush.so"
if [ -e "$shim" ]; then
  # An i386 shim goes to the 32-bit VM through its launcher (KX_PRELOAD32).
  if [ "$(od -An -tx1 -j4 -N1 "$shim" | tr -d ' ')" = 01 ]; then
    preload32=$shim
  else
    preload="$shim${preload:+:$preload}"
  fi
fi
LD_LIBRARY_PATH="$(dirname "$fake")${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
  LD_PRELOAD="$preload" KX_PRELOAD32="$preload32" KX_FLUSH_FROM="$bridge" \
  "$java" -Xcheck:jni -ea -Dkx.library="$bridge" -Dkx.fake="$fake" -Dkx.seam="$seam_prop" \
  -Dkx.frames="$frames" -Dkx.tests="$here" -Dkx.probe="$(dirname "$fake")/libkxprobe.so" \
  -XX:ErrorFile="${TMPDIR:-/tmp}/kx_hs_err_%p.log" -cp "$cp" kxtest.Runner "$@" 2>&1 | tee "$log"
rc=${PIPESTATUS[0]}
if grep -qE 'WARNING in native method|FATAL ERROR|WARNING: JNI|^Warning: ' "$log"; then
  echo "run_jvm: the JVM reported JNI misuse (see above)"
  rc=1
fi
exit "$rc"
