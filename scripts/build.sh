#!/usr/bin/env bash
# Builds the bridge: the i386 product (build/i386) and the x86-64 test build
# (build/host, which also builds the i386 test build in build/host/i386), and
# unpacks the 32-bit JVM the i386 tests run in (build/jre-i386).  Extra
# arguments go to both CMake configurations, e.g. -DKX_LIBRARY_NAME=myname.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
bash scripts/jre-i386.sh build/jre-i386
jobs=$(nproc)
cmake -S . -B build/i386 -DCMAKE_TOOLCHAIN_FILE=cmake/i386-linux.cmake -DCMAKE_BUILD_TYPE=Release "$@"
cmake --build build/i386 -j"$jobs"
cmake -S . -B build/host -DKX_BUILD_TESTS=ON -DKX_PRODUCT_DIR="$PWD/build/i386" \
      -DKX_JAVA_I386="$PWD/build/jre-i386/java" "$@"
cmake --build build/host -j"$jobs"
echo "build: product $(ls build/i386/lib*.so)"
