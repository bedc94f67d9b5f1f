#!/usr/bin/env bash
# Builds the Debian package of the i386 product, checks it (architecture,
# dependencies, lintian errors, the library where Debian's Java policy puts it,
# byte for byte the built product), installs it into a scratch root and runs
# the given suites in the 32-bit JVM against the installed library and the
# test double.
# usage: check_package.sh <product build dir> <scratch dir> <32-bit java> <i386 fake libpernix.so>
#                         <classpath> <test class>...
set -u
product=$1 scratch=$2 java=$3 fake=$4 cp=$5
shift 5
fail=0
bad() { echo "package: $*"; fail=1; }

[ -f "$product/CPackConfig.cmake" ] || { echo "package: $product is not configured (run the build command first)"; exit 1; }
for tool in cpack dpkg-deb lintian; do
  command -v "$tool" >/dev/null || { echo "package: $tool missing (bash scripts/deps.sh installs it)"; exit 1; }
done
rm -rf "$scratch"
mkdir -p "$scratch"
cpack --config "$product/CPackConfig.cmake" -B "$scratch/out" > "$scratch/cpack.log" 2>&1 ||
  { cat "$scratch/cpack.log"; echo "package: cpack failed"; exit 1; }
debs=("$scratch"/out/*.deb)
[ ${#debs[@]} = 1 ] && [ -f "${debs[0]}" ] || { echo "package: expected one .deb, got: ${debs[*]}"; exit 1; }
deb=${debs[0]}
echo "package: $(basename "$deb")"
dpkg-deb -I "$deb" | sed -n 's/^ \(Package\|Architecture\|Depends\|Version\):/package:   \1:/p'

[ "$(dpkg-deb -f "$deb" Architecture)" = i386 ] || bad "architecture is not i386"
depends=$(dpkg-deb -f "$deb" Depends)
echo "$depends" | grep -qE '(^|, )libc6( |,|$)' || bad "Depends lacks libc6: '$depends'"
echo "$depends" | grep -qE 'libstdc\+\+|libgcc' && bad "Depends names the C++ runtime: '$depends'"

# Errors fail; warnings and notes are shown (the README explains the ones kept).
lintian --fail-on error --display-info "$deb" 2>&1 | grep -v 'running with root privileges' | sed 's/^/package: lintian: /'
[ "${PIPESTATUS[0]}" = 0 ] || bad "lintian reports errors"

root=$scratch/root
dpkg -x "$deb" "$root"
lib=$(find "$root" -name '*.so' -type f)
[ "$(echo "$lib" | grep -c .)" = 1 ] || { echo "package: expected one library, found: $lib"; exit 1; }
case "${lib#"$root"}" in
  /usr/lib/i386-linux-gnu/jni/*) ;;
  *) bad "library installed at ${lib#"$root"}, not in /usr/lib/i386-linux-gnu/jni" ;;
esac
built=$product/$(basename "$lib")
cmp -s "$lib" "$built" || bad "installed library differs from $built"
[ -f "$root/usr/share/doc/$(dpkg-deb -f "$deb" Package)/copyright" ] || bad "no copyright file"

# The 32-bit JVM must find the library on its default library path, as the
# application does (System.loadLibrary).
[ -n "$java" ] && command -v "$java" >/dev/null || { echo "package: no 32-bit JVM at '$java'"; exit 1; }
# (-XshowSettings prints a path property one entry a line.)
libpath=$("$java" -XshowSettings:properties -version 2>&1 |
  awk '/^ *java.library.path = /{on=1; print $3; next} on && /^ +[^ =]+$/{print $1; next} {on=0}' |
  paste -sd:)
echo ":$libpath:" | grep -q ":$(dirname "${lib#"$root"}"):" ||
  bad "$(dirname "${lib#"$root"}") is not on the 32-bit JVM's java.library.path ($libpath)"

"$(dirname "$0")/run_jvm.sh" --java="$java" --seam=no "$cp" "$lib" "$fake" "$@" || fail=1
[ "$fail" = 0 ] && echo "package: installed, loaded and called from $root"
exit "$fail"
