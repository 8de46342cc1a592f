#!/usr/bin/env bash
# Uses the sample editor and the kit's example window as a person would: with the mouse and the keyboard of the display that
# DISPLAY names, where nothing else may run. Leaves pictures in the folder $1 and ends with "N passed, M failed".
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
programs=$root/build/windows-x86
pictures=$1
passed=0
failed=0
program=

check() {
    local what=$1
    shift
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'drive:     failed: %s\n' "$what"
        picture "failure-$failed"
    fi
}

windows_path() { printf 'Z:%s' "$(realpath -m "$1")" | sed 's:/:\\:g'; }
picture() { import -window root "$pictures/$1.png"; }

# A desktop of its own gives the windows frames and the keyboard, which no window manager does here.
start() {
    "$root/scripts/run-wine.sh" explorer "/desktop=rulecanvas,1280x860" "$(windows_path "$programs/$1")" "${@:2}" \
        >"$pictures/${1%.exe}.log" 2>&1 &
    program=$!
}

running() { kill -0 "$program" 2>/dev/null; }
wait_for() {
    for _ in $(seq 60); do
        "$@" && return 0
        sleep 0.25
    done
    return 1
}
ended() { ! running; }
holds() { grep -q -- "$2" "$1" 2>/dev/null; }
lacks() { [[ -e $1 ]] && ! grep -q -- "$2" "$1"; }

# Wine asks the display for the pointer now and then only, so a person's pace is kept.
at() { xdotool mousemove "$1" "$2"; sleep 0.08; }
click() { at "$1" "$2"; xdotool click "${3:-1}"; sleep 0.15; }
drag() {
    at "$1" "$2"
    xdotool mousedown 1
    at $((($1 + $3) / 2)) $((($2 + $4) / 2))
    at "$3" "$4"
    xdotool mouseup 1
    sleep 0.15
}
key() { xdotool key "$@"; sleep 0.3; }
write() { xdotool type --delay 30 "$1"; sleep 0.2; }

source "$root/scripts/drive-editor-steps.sh"

mkdir -p "$pictures"
use_kit_window
use_editor
printf '%d passed, %d failed\n' "$passed" "$failed"
((failed == 0))
