#!/usr/bin/env bash
# Runs JUnit test classes in a JVM with -Xcheck:jni against the bridge and the
# test double (the core probe library and the flush shim sit beside the
# double; the shim is preloaded to count the bridge's flushes of stdout).  Fails
# when a test fails, the JVM reports any JNI misuse or a sanitizer reports a
# fault.
# usage: run_jvm.sh [--java=<launcher>] [--seam=yes|no] [--sanitize=<list>]
#                   <classpath> <bridge.so> <fake libpernix.so> <test class>...
#   --java  the JVM to run (default: java on the PATH); the i386 legs pass the 32-bit one
#   --seam  whether the bridge has the test allocation seam (default yes).  Checked
#           against the library; with "no" (the shipped library) the tests that
#           fail allocations are skipped, everything else runs.
#   --sanitize  the sanitizers the bridge and the double are built with, as
#           -fsanitize= took them: none (default), undefined or
#           address,undefined.  Checked against the runtimes the bridge needs.
#           The ASan runtime is preloaded into the JVM (after the flush shim,
#           whose fflush must come first) with the options a JVM needs.  A
#           sanitized 32-bit leg runs only where the machine runs i386 programs
#           itself; under emulation (where the 32-bit JVM interprets, and a leg
#           takes minutes) it exits 77 (skipped), saying so, unless
#           KX_SANITIZE_EMULATED=1.
set -u
java=java seam=yes sanitize=none
while [ $# -gt 0 ]; do
  case "$1" in
    --java=*) java=${1#--java=} ;;
    --seam=*) seam=${1#--seam=} ;;
    --sanitize=*) sanitize=${1#--sanitize=} ;;
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
# The JVM loads libraries by absolute path only.
bridge=$(cd "$(dirname "$bridge")" && pwd)/$(basename "$bridge")
fake=$(cd "$(dirname "$fake")" && pwd)/$(basename "$fake")
has_seam=no
nm -D --undefined-only "$bridge" | grep -q ' pernix_seam_alloc$' && has_seam=yes
if [ "$has_seam" != "$seam" ]; then
  echo "run_jvm: expected seam=$seam but $bridge has seam=$has_seam"
  exit 1
fi
seam_prop=true
[ "$seam" = no ] && seam_prop=false
needed=$(readelf -d "$bridge")
has_sanitize=
[[ $needed == *'[libasan.so.'* ]] && has_sanitize=address
[[ $needed == *'[libubsan.so.'* ]] && has_sanitize=${has_sanitize:+$has_sanitize,}undefined
has_sanitize=${has_sanitize:-none}
if [ "$has_sanitize" != "$sanitize" ]; then
  echo "run_jvm: expected sanitize=$sanitize but $bridge has sanitize=$has_sanitize"
  exit 1
fi
elf32=no
[ "$(od -An -tx1 -j4 -N1 "$bridge" | tr -d ' ')" = 01 ] && elf32=yes
if [ "$sanitize" != none ] && [ "$elf32" = yes ] && [ "${KX_SANITIZE_EMULATED:-0}" != 1 ] &&
   ! /lib/ld-linux.so.2 --version >/dev/null 2>&1; then
  echo "run_jvm: SKIPPED: this machine runs i386 programs only under emulation;" \
       "the sanitized 32-bit leg runs where it runs them itself (or with KX_SANITIZE_EMULATED=1)"
  exit 77
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
here=$(cd "$(dirname "$0")" && pwd)
frames=$(printf '%s:' "$here"/frames/*.tsv)
# Objects preloaded into the VM, in order.  An i386 VM takes them through its
# launcher (KX_PRELOAD32): given as LD_PRELOAD they would be offered to the
# 64-bit launcher script (and the emulator) first.
pre=()
shim="$(dirname "$fake")/libkxflush.so"
[ -e "$shim" ] && pre+=("$shim")
san_env=()
if [ "$sanitize" != none ]; then
  san_env=("UBSAN_OPTIONS=print_stacktrace=1${UBSAN_OPTIONS:+:$UBSAN_OPTIONS}")
fi
if [[ $sanitize == *address* ]]; then
  asan=$(ldd "$bridge" | sed -n 's|^[[:space:]]*libasan\.so\.[0-9]* => \(/[^ ]*\).*|\1|p')
  [ -f "$asan" ] || { echo "run_jvm: the ASan runtime $bridge needs is not found (ldd)"; exit 1; }
  # After the shim: libasan intercepts fflush too, and the shim's must be the
  # one the bridge reaches (so ASan is not first: verify_asan_link_order=0).
  # The JVM takes SIGSEGV for its own null checks and safepoints (so ASan
  # leaves that signal alone), keeps memory to the end (no leak check), and
  # probes how much it may allocate.
  pre+=("$asan")
  san_env+=("ASAN_OPTIONS=handle_segv=0:allow_user_segv_handler=1:detect_leaks=0:allocator_may_return_null=1:verify_asan_link_order=0${ASAN_OPTIONS:+:$ASAN_OPTIONS}")
fi
preload=${LD_PRELOAD:-} preload32=
if [ ${#pre[@]} -gt 0 ]; then
  list=$(IFS=:; echo "${pre[*]}")
  if [ "$elf32" = yes ]; then
    preload32=$list
  else
    preload="$list${preload:+:$preload}"
  fi
fi
# The record catalogue the hostile-input tests read: the test build's (the
# sanitized builds sit inside it and have none of their own).
fakedir=$(dirname "$fake")
catalogue=$fakedir/../catalogue.txt
[ -f "$catalogue" ] || catalogue=$fakedir/../../catalogue.txt
env ${san_env[@]+"${san_env[@]}"} LD_LIBRARY_PATH="$(dirname "$fake")${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}" \
  LD_PRELOAD="$preload" KX_PRELOAD32="$preload32" KX_FLUSH_FROM="$bridge" \
  "$java" -Xcheck:jni -ea -Dkx.library="$bridge" -Dkx.fake="$fake" -Dkx.seam="$seam_prop" \
  -Dkx.frames="$frames" -Dkx.tests="$here" -Dkx.probe="$fakedir/libkxprobe.so" -Dkx.catalogue="$catalogue" \
  -XX:ErrorFile="${TMPDIR:-/tmp}/kx_hs_err_%p.log" -cp "$cp" kxtest.Runner "$@" 2>&1 | tee "$log"
rc=${PIPESTATUS[0]}
if grep -qE 'WARNING in native method|FATAL ERROR|WARNING: JNI|^Warning: ' "$log"; then
  echo "run_jvm: the JVM reported JNI misuse (see above)"
  rc=1
fi
if grep -qE 'ERROR: (Address|Leak)Sanitizer|runtime error:|SUMMARY: [A-Za-z]+Sanitizer' "$log"; then
  echo "run_jvm: a sanitizer reported a fault (see above)"
  rc=1
fi
exit "$rc"
