#!/usr/bin/env bash
# Everything that guards main: the library natively with sanitizers and for 32-bit and 64-bit Windows (under Wine, and with
# them the tests of the package for users), the sample editor on a virtual display, and the checks of the sources. Ends with
# one line that counts the test cases of all. A step that cannot be built or runs no case counts as one failure.
#
# usage: scripts/test.sh [STEP...]
# Without a step: all of them, in the order of the table below.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# A name, and a command. A command whose last line is "N passed, N failed" counts with that, any other one as one case.
steps=(
    "native-asan:test_preset native-asan"
    "native-tsan:test_preset native-tsan"
    "windows-x86:test_preset windows-x86"
    "windows-x64:test_preset windows-x64"
    "editor:scripts/test-editor.sh"
    "web:scripts/test-web.sh"
    "lint:scripts/lint.sh"
)
total_passed=0
total_failed=0

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

# Keeps the Wine server of preset $1 busy until `release_wine`: a server that ends with the last program of one test can take
# the first program of the next one with it.
hold_wine() {
    local bits=()
    [[ $1 == windows-* ]] || return 0
    if [[ $1 == *-x64 ]]; then bits=(--64); fi
    exec {wine_holder}> >(exec scripts/run-wine.sh "${bits[@]}" cmd >/dev/null 2>&1) # which waits for words
    scripts/run-wine.sh "${bits[@]}" cmd /c exit </dev/null >/dev/null 2>&1 || true
}

# Ends whatever still runs in the prefix of preset $1.
release_wine() {
    local prefix=$root/build/wine-prefix
    [[ $1 == windows-* ]] || return 0
    if [[ $1 == *-x64 ]]; then prefix+=-64; fi
    WINEPREFIX=$prefix wineserver --kill </dev/null >/dev/null 2>&1 || true
    WINEPREFIX=$prefix wineserver --wait </dev/null >/dev/null 2>&1 || true
    exec {wine_holder}>&-
}

# Builds a preset and runs its tests.
test_preset() {
    local preset=$1 log=build/$1/test.log status=0 counts passed failed

    if ! cmake --preset "$preset" >/dev/null || ! cmake --build --preset "$preset" -j2; then
        printf 'test:       %s could not be built: its tests did not run\n' "$preset"
        return 1
    fi
    hold_wine "$preset"
    counts=$(ctest --preset "$preset" -V -j2 2>&1 | tee "$log" | awk "$count_cases") || status=$?
    release_wine "$preset"
    read -r passed failed <<<"$counts"
    if ((passed + failed == 0)); then
        printf 'test:       no test ran in %s\n' "$preset"
        failed=1
    elif ((status != 0 && failed == 0)); then
        printf 'test:       ctest failed in %s\n' "$preset"
        failed=1
    fi
    if ((failed > 0)); then
        show_failures "$log"
        printf 'test:       the whole output is in %s\n' "$log"
    fi
    printf '%d passed, %d failed\n' "$passed" "$failed"
    ((failed == 0))
}

# Runs the command of a step and adds what it counted.
run_step() {
    local name=$1 log=build/test-$1.log passed=0 failed=0 status=0 started=$SECONDS
    shift
    "$@" 2>&1 | tee "$log" || status=$?
    if [[ $(tail -n 1 "$log") =~ ^([0-9]+)\ passed,\ ([0-9]+)\ failed$ ]]; then
        passed=${BASH_REMATCH[1]}
        failed=${BASH_REMATCH[2]}
    elif ((status == 0)); then
        passed=1
    fi
    if ((status != 0 && failed == 0)); then failed=1; fi
    printf 'test:       %s: %d passed, %d failed, %d seconds\n' "$name" "$passed" "$failed" $((SECONDS - started))
    total_passed=$((total_passed + passed))
    total_failed=$((total_failed + failed))
}

# The steps with the given names, or all.
chosen=()
for step in "${steps[@]}"; do
    if (($# == 0)) || [[ " $* " == *" ${step%%:*} "* ]]; then chosen+=("$step"); fi
done
if ((${#chosen[@]} == 0)); then
    printf 'test: no such step; there are: %s\n' "${steps[*]%%:*}" >&2
    exit 1
fi

printf 'test: checking the machine\n'
mkdir -p build
scripts/setup.sh build test
for ((number = 0; number < ${#chosen[@]}; ++number)); do
    name=${chosen[number]%%:*}
    printf 'test: [%d/%d] %s\n' $((number + 1)) ${#chosen[@]} "$name"
    # shellcheck disable=SC2086 # the words of the command
    run_step "$name" ${chosen[number]#*:}
done

printf '%d passed, %d failed\n' "$total_passed" "$total_failed"
((total_failed == 0))
