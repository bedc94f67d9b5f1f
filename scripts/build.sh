#!/usr/bin/env bash
# Builds the bridge: the i386 product (build/i386) and the x86-64 test build
# (build/host).  Extra arguments go to both CMake configurations, e.g.
# -DKX_LIBRARY_NAME=myname.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
jobs=$(nproc)
cmake -S . -B build/i386 -DCMAKE_TOOLCHAIN_FILE=cmake/i386-linux.cmake -DCMAKE_BUILD_TYPE=Release "$@"
cmake --build build/i386 -j"$jobs"
cmake -S . -B build/host -DKX_BUILD_TESTS=ON -DKX_PRODUCT_DIR="$PWD/build/i386" "$@"
cmake --build build/host -j"$jobs"
echo "build: product $(ls build/i386/lib*.so | grep -v pernix)"
