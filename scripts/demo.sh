#!/usr/bin/env bash
# Builds rulecanvas.dll and the sample host and shows them: in a window when there is a display, else on a virtual one,
# where scripts draw with the mouse and write pictures.
#
# usage: scripts/demo.sh [--headless] [--sample-video | VIDEO]
#   --headless       play the scripts also when there is a display
#   --sample-video   on a street surveillance clip of the distribution, which is fetched once
#   VIDEO            on your own clip or picture; anything that ffmpeg reads
# Without a video the sample host shows a street of its own.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
programs=$root/build/windows-x86
work=$root/build/demo
scripts=$root/examples/rule_editor/scripts
# A clip is used uncompressed, about 0.7 MB a frame: a stretch of it is enough.
clip_seconds=20

video=
sample_video=false
headless=false
speaker=demo
# shellcheck source=scripts/show.sh
source "$root/scripts/show.sh"

usage() { sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//;p}' "${BASH_SOURCE[0]}"; }

read_arguments() {
    while (($# > 0)); do
        case $1 in
            --headless) headless=true ;;
            --sample-video) sample_video=true ;;
            -h | --help)
                usage
                exit 0
                ;;
            -*) die "unknown option '$1'; see --help" ;;
            *) video=$1 ;;
        esac
        shift
    done
    [[ -z $video || -r $video ]] || die "cannot read '$video'"
    [[ -n ${DISPLAY:-} ]] || headless=true
}

build() {
    say "[1/3] preparing the machine (at once when everything is installed)"
    "$root/scripts/setup.sh" build test demo
    say "[2/3] building; the first time takes a few minutes"
    (cd "$root" && cmake --preset windows-x86 >"$work/configure.log") || die "configuring failed: $work/configure.log"
    (cd "$root" && NINJA_STATUS='demo:       [%f/%t] ' cmake --build --preset windows-x86 --target rule_editor)
}

# Turns anything but what the sample host reads itself into YUV4MPEG2.
convert_video() {
    case $video in
        *.y4m | *.png | *.jpg | *.jpeg) return 0 ;;
    esac
    local converted
    converted=$work/$(basename "${video%.*}").y4m
    if [[ ! $converted -nt $video ]]; then
        say "      decoding $clip_seconds seconds of $video"
        ffmpeg -nostdin -v error -stats -y -i "$video" -t "$clip_seconds" -pix_fmt yuv420p "$converted" ||
            die "ffmpeg cannot read $video"
    fi
    video=$converted
}

rule_editor() {
    local arguments=("$@")
    [[ -z $video ]] || arguments+=("$(windows_path "$video")")
    "$root/scripts/run-wine.sh" "$programs/rule_editor.exe" "${arguments[@]}"
}

play_scripts() {
    local list=("$scripts"/on_video/*.rules) script name done=0 failed=0
    [[ -n $video ]] || list=("$scripts"/*.rules "$scripts"/editor/*.rules "${list[@]}")
    for script in "${list[@]}"; do
        name=$(basename "$script" .rules)
        done=$((done + 1))
        say "      [$done/${#list[@]}] $name"
        rm -rf "${work:?}/$name"
        mkdir -p "$work/$name"
        rule_editor --script "$(windows_path "$script")" --snapshot "$(windows_path "$work/$name")" || {
            failed=$((failed + 1))
            say "      $name failed; the window as it was: $work/$name/failure.png"
        }
    done
    say "pictures and logs of ${#list[@]} scripts are in:"
    for script in "${list[@]}"; do
        say "  $work/$(basename "$script" .rules)"
    done
    ((failed == 0)) || die "$failed of ${#list[@]} scripts failed"
}

read_arguments "$@"
mkdir -p "$work"
build
if $sample_video; then fetch_sample_video; fi
[[ -z $video ]] || convert_video
if $headless; then
    say "[3/3] drawing on a virtual display"
    start_display
    play_scripts
else
    say "[3/3] the window opens now; close it to end"
    rule_editor
fi
