#!/usr/bin/env bash
# Builds both configurations and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh "$@"
ctest --test-dir build/host --output-on-failure
