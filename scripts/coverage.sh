#!/usr/bin/env bash
# Measures which branches of src/ the tests take, and lists those that none takes.
#
# usage: scripts/coverage.sh [PERCENT]
# Fails when less than PERCENT (95) of the branches are taken. A branch that tests a macro or stands in a template is
# counted once for each place of use.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
wanted=${1:-95}
build=build/coverage
profiles=$build/profiles

say() { printf 'coverage: %s\n' "$*"; }

scripts/setup.sh build test fuzz
say "[1/3] building"
cmake --preset coverage >/dev/null
cmake --build --preset coverage -j2

say "[2/3] running the tests"
rm -rf "$profiles"
mkdir -p "$profiles"
ctest --preset coverage -j2 >"$build/test.log" || { tail -n 30 "$build/test.log"; exit 1; }

say "[3/3] counting"
llvm-profdata merge -sparse "$profiles"/*.profraw -o "$build/merged.profdata"
llvm-cov export -format=lcov -instr-profile "$build/merged.profdata" \
    "$build/librulecanvas.so" -object "$build/class_tests" -object "$build/cost_tests" -object "$build/torture" \
    -ignore-filename-regex "^$root/(tests|include|build|fuzz)/|^/usr/" >"$build/branches.lcov"

# Lists each line with a branch that is never taken, and ends with the sums.
awk -F '[:,]' -v root="$root/" -v wanted="$wanted" '
    $1 == "SF" { file = substr($0, 4); sub(root, "", file) }
    $1 == "BRDA" {
        all++
        if ($5 == "-" || $5 == 0) missed[file ":" $2]++
        else taken++
    }
    END {
        for (place in missed) print "  " place " (" missed[place] ")" | "sort -t : -k 1,1 -k 2n"
        close("sort -t : -k 1,1 -k 2n")
        percent = all ? 100 * taken / all : 0
        printf "coverage: %d of %d branches of src/, %.1f %%\n", taken, all, percent
        exit percent < wanted
    }' "$build/branches.lcov"
