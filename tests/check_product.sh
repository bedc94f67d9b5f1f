#!/usr/bin/env bash
# Checks the shipped i386 library: architecture, exported symbols (exactly the
# natives the Java declaration has), needed libraries and no run path.
# usage: check_product.sh <lib.so> <generated JNI header>
set -u
lib=$1 header=$2
fail=0
bad() { echo "product: $*"; fail=1; }

[ -f "$lib" ] || { echo "product: $lib not built (run the build command first)"; exit 1; }
file -L "$lib" | grep -q 'ELF 32-bit LSB shared object, Intel 80386' || bad "not an i386 shared object: $(file -L "$lib")"
file -L "$lib" | grep -q ', stripped' || bad "not stripped: $(file -L "$lib")"

expected=$(grep -oE 'Java_orvane_str_diskarray_DiskArrayUtilityJNI_[A-Za-z0-9_]+' "$header" | sort -u)
exported=$(nm -D --defined-only "$lib" | awk '{print $3}' | sort -u)
if [ "$expected" != "$exported" ]; then
  bad "exports differ from the Java declaration:"
  diff <(echo "$expected") <(echo "$exported") | sed 's/^/  /'
fi

needed=$(readelf -d "$lib" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | sort)
echo "$needed" | grep -qx 'libpernix.so' || bad "libpernix.so is not needed"
for n in $needed; do
  case "$n" in libpernix.so|libc.so.6|libm.so.6|libdl.so.2|libpthread.so.0|ld-linux.so.2) ;;
    *) bad "unexpected NEEDED $n" ;;
  esac
done
readelf -d "$lib" | grep -qE '\((RPATH|RUNPATH)\)' && bad "has a run path"
nm -D --undefined-only "$lib" | grep -qE 'GLIBCXX|CXXABI|GCC_' && bad "needs the shared C++ runtime"

count=$(echo "$exported" | grep -c . )
if [ "$fail" = 0 ]; then
  echo "product: $lib is i386, exports the $count natives, needs only: $(echo $needed)"
fi
exit "$fail"
