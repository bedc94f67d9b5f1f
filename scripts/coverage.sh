#!/usr/bin/env bash
# Line and branch coverage of the bridge by the x86-64 JVM legs (`jvm` and
# `jvm-<variant>`): a separate test build compiled with gcov instrumentation
# (--coverage -O0) in build/coverage, the legs run against it, and gcovr's
# summary per folder and per file, with the lines no test executes.
#
# Only the bridge's own objects are counted: the probe library compiles core/
# too, for the tests of the helpers, and what it alone executes would hide
# code no native needs.
#
# usage: coverage.sh [--no-deps]
#   KX_COVERAGE_DIR  the build folder (default build/coverage)
#   KX_COVERAGE_JOBS parallel compiles and legs (default: the number of cores)
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
[ "${1:-}" = --no-deps ] || bash scripts/deps.sh
dir=${KX_COVERAGE_DIR:-build/coverage}
jobs=${KX_COVERAGE_JOBS:-$(nproc)}
command -v gcovr >/dev/null || { echo "coverage: gcovr is missing (bash scripts/deps.sh installs it)" >&2; exit 1; }

# GCC's instrumentation; without optimisation every line and branch of the
# source is one gcov can count.
cmake -S . -B "$dir" -DKX_BUILD_TESTS=ON -DKX_BUILD_SIM=OFF -DCMAKE_BUILD_TYPE=Debug \
      -DCMAKE_CXX_FLAGS="--coverage -O0" -DCMAKE_C_FLAGS="--coverage -O0" \
      -DCMAKE_SHARED_LINKER_FLAGS=--coverage >/dev/null
# The x86-64 test build only: the i386 and sanitized builds are not needed here.
cmake --build "$dir" -j"$jobs" --target bridge pernix kxflush kxprobe kx_test_classes kx_catalogue_txt

objects="$dir/CMakeFiles/kx_objects.dir"
find "$dir" -name '*.gcda' -delete
# The x86-64 legs: `jvm` and one per variant; the other legs need other builds.
legs=$(cd "$dir" && ctest -N | sed -n 's/^ *Test *#[0-9]*: \(jvm[^ ]*\)$/\1/p' |
       grep -Ev '^jvm-(i386|product-i386|asan|ubsan-i386)(-|$)' | paste -sd'|')
[ -n "$legs" ] || { echo "coverage: no x86-64 legs registered in $dir" >&2; exit 1; }
status=0
(cd "$dir" && ctest -j"$jobs" --output-on-failure -R "^($legs)\$") || status=$?
[ "$status" = 0 ] || echo "coverage: some legs failed (above); the figures below count what ran"

bridge_dirs=()
for d in core session raid host account perf firmware replication; do bridge_dirs+=(--filter "$root/$d/"); done
# --exclude-throw-branches: the bridge neither throws nor catches C++
# exceptions; the edge gcov counts after every call that might throw is the
# compiler's, no test the source makes.  --exclude-unreachable-branches:
# branches gcov finds on lines without code of their own (a closing brace).
# Branches the source makes and no caller can take are marked in the source
# instead, each with its reason (GCOVR_EXCL_BR_LINE and the like).
report() {
  gcovr -r "$root" "${bridge_dirs[@]}" --exclude-unreachable-branches --exclude-throw-branches "$@" "$objects"
}
echo
echo "== coverage per folder (lines, branches)"
# gcovr's own per-file table, summed by folder.
report --json-summary "$dir/coverage.json" >/dev/null
python3 - "$dir/coverage.json" <<'EOF'
import json, sys, collections
s = json.load(open(sys.argv[1]))
by = collections.OrderedDict()
for f in sorted(s["files"], key=lambda f: f["filename"]):
    d = f["filename"].split("/")[0]
    t = by.setdefault(d, [0, 0, 0, 0])
    t[0] += f["line_covered"]; t[1] += f["line_total"]
    t[2] += f["branch_covered"]; t[3] += f["branch_total"]
def pct(a, b):
    return "%6.1f%%" % (100.0 * a / b) if b else "     - "
print("%-14s %15s %7s %17s %7s" % ("folder", "lines", "", "branches", ""))
tot = [0, 0, 0, 0]
for d, t in by.items():
    print("%-14s %7d/%-7d %s %8d/%-8d %s" % (d + "/", t[0], t[1], pct(t[0], t[1]), t[2], t[3], pct(t[2], t[3])))
    tot = [a + b for a, b in zip(tot, t)]
print("%-14s %7d/%-7d %s %8d/%-8d %s" % ("all", tot[0], tot[1], pct(tot[0], tot[1]), tot[2], tot[3], pct(tot[2], tot[3])))
EOF
echo
echo "== lines no test executes (file: lines)"
report --txt "$dir/coverage.txt" >/dev/null
# gcovr's text report lists, per file, the lines it missed in its last column.
awk 'NR > 6 && NF >= 5 && $1 !~ /^-+$/ && $1 != "TOTAL" {
       miss = ""; for (i = 5; i <= NF; i++) miss = miss (miss ? " " : "") $i
       if (miss != "") print "  " $1 ": " miss }' "$dir/coverage.txt"
echo
echo "coverage: per-file report $dir/coverage.txt; annotated sources: gcovr --html-details (see the script)"
exit "$status"
