#!/usr/bin/env bash
# The main job: installs what the build needs, builds the library and the
# simulated array, then runs the sample session against the simulator.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh
bash scripts/sample.sh
