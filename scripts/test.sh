#!/usr/bin/env bash
# Builds both configurations and runs every test: the suites in the x86-64 JVM,
# in the 32-bit JVM against the i386 test build and against the shipped
# library, the checks of the product and of its Debian package.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh "$@"
ctest --test-dir build/host --output-on-failure -j"$(nproc)"
