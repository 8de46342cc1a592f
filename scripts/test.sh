#!/usr/bin/env bash
# Builds the library natively with sanitizers and for Windows, runs both test suites (the latter under Wine), uses the sample
# editor on a virtual display, and ends with one line that counts the test cases of all. A suite that cannot be built or runs
# no case counts as one failure.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

presets=(native-asan windows-x86)
steps=$((2 * ${#presets[@]} + 2))
step=0
total_passed=0
total_failed=0

begin() {
    step=$((step + 1))
    printf 'test: [%d/%d] %s\n' "$step" "$steps" "$*"
}

# Counts the cases in the verbose output of ctest and shows how far it is. A test of ctest that runs a whole GoogleTest
# program counts with each case inside it; a program that ends badly is a failure even when none of its cases failed.
read -r -d '' count_cases <<'AWK' || true
/^[0-9]+: .*\[==========\] Running / { split($1, id, ":"); has_cases[id[1]] = 1 }
/^[0-9]+: .*\[       OK \] .*\([0-9]+ ms\)\r?$/ { split($1, id, ":"); passed[id[1]]++ }
/^[0-9]+: .*\[  FAILED  \] .*\([0-9]+ ms\)\r?$/ { split($1, id, ":"); failed[id[1]]++ }
/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: / {
    split($1, place, "/")
    match($0, /#[0-9]+/)
    test = substr($0, RSTART + 1, RLENGTH - 1)
    all_passed += passed[test]
    all_failed += failed[test]
    if ($0 ~ /   Passed  /) {
        if (!has_cases[test]) all_passed++
    } else if ($0 !~ /\*\*\*Skipped/) {
        if (!failed[test]) all_failed++
        print "test:       failed: " $0 > "/dev/stderr"
    }
    tenth = int(10 * place[1] / place[2])
    if (tenth > shown) {
        shown = tenth
        printf "test:       %d of %d\n", place[1], place[2] > "/dev/stderr"
    }
}
END { print all_passed + 0, all_failed + 0 }
AWK

# Shows what the failed tests of log $1 said.
show_failures() {
    local id results='^ *[0-9]+\/[0-9]+ Test +#[0-9]+: '
    for id in $(sed -nE "/$results/{/   Passed  |\*\*\*Skipped/!s/^[^#]*#([0-9]+):.*/\1/p}" "$1" | head -n 20); do
        grep -E "^$id: " "$1" | tail -n 60 >&2 || true
    done
}

build_preset() {
    begin "building $1"
    cmake --preset "$1" >/dev/null && cmake --build --preset "$1" -j2
}

run_tests() {
    local preset=$1 log=build/$1/test.log status=0 counts passed failed

    begin "running the tests of $preset"
    counts=$(ctest --preset "$preset" -V -j2 2>&1 | tee "$log" | awk "$count_cases") || status=$?
    read -r passed failed <<<"$counts"
    if ((passed + failed == 0)); then
        printf 'test:       no test ran in %s\n' "$preset"
        failed=1
    elif ((status != 0 && failed == 0)); then
        printf 'test:       ctest failed in %s\n' "$preset"
        failed=1
    fi
    printf 'test:       %s: %d passed, %d failed\n' "$preset" "$passed" "$failed"
    if ((failed > 0)); then
        show_failures "$log"
        printf 'test:       the whole output is in %s\n' "$log"
    fi
    total_passed=$((total_passed + passed))
    total_failed=$((total_failed + failed))
}

run_editor() {
    local answer
    begin "using the sample editor"
    answer=$(scripts/test-editor.sh 2>&1 | tee build/editor-test.log | tail -n 1) || true
    if [[ $answer =~ ^([0-9]+)\ passed,\ ([0-9]+)\ failed$ ]]; then
        total_passed=$((total_passed + BASH_REMATCH[1]))
        total_failed=$((total_failed + BASH_REMATCH[2]))
    else
        total_failed=$((total_failed + 1))
    fi
    printf 'test:       %s\n' "$answer"
    grep 'failed: ' build/editor-test.log >&2 || true
}

begin "checking the machine"
scripts/setup.sh build test

for preset in "${presets[@]}"; do
    if build_preset "$preset"; then
        run_tests "$preset"
    else
        printf 'test:       %s could not be built: its tests did not run\n' "$preset"
        step=$((step + 1))
        total_failed=$((total_failed + 1))
    fi
done

run_editor

printf '%d passed, %d failed\n' "$total_passed" "$total_failed"
((total_failed == 0))
