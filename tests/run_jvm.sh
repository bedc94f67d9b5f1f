#!/usr/bin/env bash
# Runs JUnit test classes in a JVM with -Xcheck:jni against the bridge and the
# test double (the core probe library and the flush shim sit beside the
# double; the shim is preloaded to count the bridge's flushes of stdout).  Fails
# when a test fails or the JVM reports any JNI misuse.
# usage: run_jvm.sh <classpath> <bridge.so> <fake libpernix.so> <test class>...
set -u
cp=$1 bridge=$2 fake=$3
shift 3
log=$(mktemp)
trap 'rm -f "$log"' EXIT
here=$(cd "$(dirname "$0")" && pwd)
preload=${LD_PRELOAD:-}
shim="$(dirname "$fake")/libkxflush.so"
[ -e "$shim" ] && preload="$shim${preload:+:$preload}"
LD_LIBRARY_PATH="$(dirname "$fake")${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
  LD_PRELOAD="$preload" KX_FLUSH_FROM="$bridge" \
  java -Xcheck:jni -ea -Dkx.library="$bridge" -Dkx.fake="$fake" -Dkx.frames="$here/frames" \
  -Dkx.probe="$(dirname "$fake")/libkxprobe.so" -cp "$cp" \
  org.junit.runner.JUnitCore "$@" 2>&1 | tee "$log"
rc=${PIPESTATUS[0]}
if grep -qE 'WARNING in native method|FATAL ERROR|WARNING: JNI|Warning: JNI' "$log"; then
  echo "run_jvm: the JVM reported JNI misuse (see above)"
  rc=1
fi
exit "$rc"
