#!/usr/bin/env bash
# Builds the browser's module and the native library, runs all tests of the module in a headless browser and ends with
# one line that counts them. What cannot be built counts as one failure.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
out=$root/build/web
cd "$root"

passed=0
failed=0

say() { printf 'test-web: %s\n' "$*"; }

# Runs a check as one test.
check() {
    local name=$1
    shift
    if "$@"; then
        say "passed  $name"
        passed=$((passed + 1))
    else
        say "FAILED  $name"
        failed=$((failed + 1))
    fi
}

build_native_library() {
    cmake --preset native >/dev/null && cmake --build --preset native -j2 --target rulecanvas >/dev/null
}

finish() {
    printf '%d passed, %d failed\n' "$passed" "$failed"
    ((failed == 0 && passed > 0))
    exit
}

scripts/setup.sh web
if ! scripts/build-web.sh; then
    say "the module could not be built: its tests did not run"
    failed=1
    finish
fi
say "building the native library to compare with"
if ! build_native_library; then
    say "the native library could not be built: the tests did not run"
    failed=1
    finish
fi

check "the packed size of the module" node web/tools/size.mjs "$out/dist"
check "the API reference is that of the declarations" node web/tools/api-reference.mjs --check

status=0
node web/test/run.mjs | tee "$out/test.log" || status=$?
counts=$(sed -nE 's/^([0-9]+) passed, ([0-9]+) failed$/\1 \2/p' "$out/test.log")
read -r browser_passed browser_failed <<<"$counts" || true
passed=$((passed + ${browser_passed:-0}))
failed=$((failed + ${browser_failed:-0}))
if ((status != 0 && ${browser_failed:-0} == 0)); then
    say "the browser's tests ended early"
    failed=$((failed + 1))
fi
finish
