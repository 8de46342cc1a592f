#!/usr/bin/env bash
# Shows the sample editor and the kit's example at work on a virtual display: all scripts, a monkey, and a real mouse and
# keyboard. Ends with "N passed, M failed", which counts the expectations of the scripts; a script that stops counts as one
# failure. Pictures and logs are left below build/editor-test.
#
# usage: scripts/test-editor.sh [--events N]
#   --events N   how long the monkey plays (2000 events)
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
programs=$root/build/windows-x86
work=$root/build/editor-test
scripts=$root/examples/rule_editor/scripts
events=2000
lanes=3
passed=0
failed=0
speaker=editor
# shellcheck source=scripts/show.sh
source "$root/scripts/show.sh"

rule_editor() { timeout 1200 "$root/scripts/run-wine.sh" "$programs/rule_editor.exe" "$@" 2>&1 | tr -d '\r'; }

fail() {
    failed=$((failed + 1))
    say "      failed: $*"
}

# Plays the scripts whose place in the list $2... is $1 or whole rounds of all lanes later. What each said is left beside its
# pictures.
play_lane() {
    local place=$1 script folder
    shift
    for ((; place < $#; place += lanes)); do
        script=${*:place+1:1}
        folder=$work/$(basename "$script" .rules)
        mkdir -p "$folder"
        rule_editor --script "$(windows_path "$script")" --snapshot "$(windows_path "$folder")" >"$folder/answer" ||
            printf 'it ended badly\n' >>"$folder/answer"
    done
}

# Scripts mostly wait for what they show: several are played at a time.
play_scripts() {
    local list=("$scripts"/*.rules "$scripts"/*/*.rules) lane players=() script answer
    say "[2/4] ${#list[@]} scripts, $lanes at a time"
    for ((lane = 0; lane < lanes; ++lane)); do
        play_lane "$lane" "${list[@]}" &
        players+=($!)
    done
    wait "${players[@]}"
    for script in "${list[@]}"; do
        answer=$(<"$work/$(basename "$script" .rules)/answer")
        if [[ $answer =~ ([0-9]+)\ expectations\ held$ ]]; then
            passed=$((passed + BASH_REMATCH[1]))
        else
            fail "$script: $answer"
        fi
    done
}

play_monkey() {
    local folder=$work/monkey answer
    say "[3/4] a monkey, $events events"
    mkdir -p "$folder"
    if answer=$(rule_editor --monkey 1 --events "$events" --snapshot "$(windows_path "$folder")"); then
        passed=$((passed + 1))
        say "      $answer"
    else
        fail "$answer"
    fi
}

use_mouse_and_keyboard() {
    local answer
    say "[4/4] mouse and keyboard"
    answer=$("$root/scripts/drive-editor.sh" "$work/by-hand") || true
    if [[ $answer =~ ([0-9]+)\ passed,\ ([0-9]+)\ failed ]]; then
        passed=$((passed + BASH_REMATCH[1]))
        failed=$((failed + BASH_REMATCH[2]))
        grep failed: <<<"$answer" || true
    else
        fail "the steps by hand stopped: $answer"
    fi
}

if [[ ${1:-} == --events ]]; then events=${2:?}; fi
say "[1/4] building"
"$root/scripts/setup.sh" build test demo editor
(cd "$root" && cmake --preset windows-x86 >/dev/null &&
    cmake --build --preset windows-x86 -j2 --target rule_editor kit_window >"$root/build/editor-build.log") ||
    die "building failed: $root/build/editor-build.log"
rm -rf "$work"
mkdir -p "$work"
start_display
play_scripts
play_monkey
use_mouse_and_keyboard
printf '%d passed, %d failed\n' "$passed" "$failed"
((failed == 0))
