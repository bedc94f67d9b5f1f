#!/usr/bin/env bash
# Unpacks Debian's 32-bit OpenJDK 17 runtime into <dir> (the i386 and amd64
# runtime packages cannot be installed side by side) and writes <dir>/java, the
# launcher the i386 test legs use.  Cached: a second run downloads nothing.
# usage: jre-i386.sh <dir>        (needs the packages scripts/deps.sh installs)
set -euo pipefail
dir=$(realpath -m "$1")
pkg=openjdk-17-jre-headless:i386
home=$dir/root/usr/lib/jvm/java-17-openjdk-i386
launcher=$dir/java

if [ ! -x "$home/bin/java" ]; then
  rm -rf "$dir"
  mkdir -p "$dir/download"
  chmod 755 "$dir" "$dir/download"
  echo "jre-i386: fetching $pkg"
  fetch() { (cd "$dir/download" && apt-get download -q -o APT::Sandbox::User=root "$pkg"); }
  # An index older than the archive names a file no longer there: refresh it once.
  if ! fetch && ! { echo "jre-i386: refreshing the package indexes";
                    $([ "$(id -u)" -ne 0 ] && echo sudo) apt-get update -qq || true; fetch; }; then
    echo "jre-i386: cannot download $pkg: is the i386 architecture enabled and its index fetched?" \
         "(bash scripts/deps.sh does both)" >&2
    exit 1
  fi
  dpkg -x "$dir"/download/*.deb "$dir/root"
  rm -rf "$dir/download"
  # The package's configuration links point into /etc; point them into the
  # unpacked tree instead, where their targets are.
  (cd "$dir/root" && find . -type l -lname '/*' -print0 | while IFS= read -r -d '' link; do
     target=$(readlink "$link")
     if [ -e ".$target" ]; then
       ln -sfn "$(realpath -m --relative-to="$(dirname "$link")" ".$target")" "$link"
     fi
   done)
fi
[ -x "$home/bin/java" ] || { echo "jre-i386: $home/bin/java missing after unpacking $pkg" >&2; exit 1; }

# Run i386 programs directly when the kernel can, else through qemu-i386.
# HotSpot's compilers do not survive user-mode emulation (it crashes in code
# relocation), so the emulated VM interprets.
if /lib/ld-linux.so.2 --version >/dev/null 2>&1; then
  runner=() vmopts=()
elif command -v qemu-i386 >/dev/null; then
  runner=("$(command -v qemu-i386)") vmopts=(-Xint)
else
  echo "jre-i386: this kernel does not run i386 programs and qemu-i386 is missing" \
       "(bash scripts/deps.sh installs qemu-user)" >&2
  exit 1
fi

# The libraries a headless VM loads must all resolve to i386 libraries.
unresolved=$(cd "$home" && for f in bin/java lib/libjli.so lib/server/libjvm.so lib/libjava.so \
    lib/libjimage.so lib/libzip.so lib/libnio.so lib/libnet.so lib/libverify.so; do
  LD_LIBRARY_PATH=lib:lib/server "${runner[@]}" /lib/ld-linux.so.2 --list "$f" 2>&1 |
    sed -n "s|^[[:space:]]*\([^ ]*\) => not found|$f needs \1|p"
done)
if [ -n "$unresolved" ]; then
  echo "jre-i386: i386 libraries missing (install their :i386 packages):" >&2
  echo "$unresolved" >&2
  exit 1
fi

{
  echo '#!/bin/sh'
  echo "# The 32-bit OpenJDK 17 of the i386 test legs (written by scripts/jre-i386.sh)."
  # Objects to preload into the VM come as KX_PRELOAD32: given as LD_PRELOAD
  # they would be offered to this 64-bit shell (and the emulator) first.
  if [ ${#runner[@]} -gt 0 ]; then
    echo "exec ${runner[*]} \${KX_PRELOAD32:+-E LD_PRELOAD=\"\$KX_PRELOAD32\"} \"$home/bin/java\" ${vmopts[*]} \"\$@\""
  else
    echo '[ -n "${KX_PRELOAD32:-}" ] && export LD_PRELOAD="$KX_PRELOAD32"'
    echo "exec \"$home/bin/java\" \"\$@\""
  fi
} > "$launcher.tmp"
chmod +x "$launcher.tmp"
mv "$launcher.tmp" "$launcher"
settings=$("$launcher" -XshowSettings:properties -version 2>&1) &&
  grep -q 'sun.arch.data.model = 32' <<<"$settings" ||
  { echo "jre-i386: $launcher does not start a 32-bit VM:" >&2; echo "$settings" >&2; exit 1; }
echo "jre-i386: $launcher ($(sed -n 's/^ *java.runtime.version = //p' <<<"$settings")," \
     "${runner[*]:-native}${vmopts[*]:+ ${vmopts[*]}})"
