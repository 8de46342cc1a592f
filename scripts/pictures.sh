#!/usr/bin/env bash
# Renews every picture of docs/: builds the sample host, plays its scripts on a virtual display and takes the pictures out
# of their screenshots.
#
# usage: scripts/pictures.sh [NAME...]
#   NAME   a script of examples/rule_editor/scripts/reference; without one everything is renewed
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
work=$root/build/pictures
scripts=$root/examples/rule_editor/scripts
pictures=$root/docs/pictures
reference=$root/docs/reference/pictures

# The part of the view that a picture of the reference shows, three times side by side: width:height:left:top.
part=(300 200 320 170)

speaker=pictures
# shellcheck source=scripts/show.sh
source "$root/scripts/show.sh"

build() {
    "$root/scripts/setup.sh" build test demo
    (cd "$root" && cmake --preset windows-x86 >/dev/null && cmake --build --preset windows-x86 --target rule_editor -j2)
}

# Plays the script $1; its screenshots are then in the folder of the same name.
play() {
    local folder=$work/$1
    rm -rf "$folder"
    mkdir -p "$folder"
    "$root/scripts/run-wine.sh" "$root/build/windows-x86/rule_editor.exe" \
        --script "$(windows_path "$scripts/$1.rules")" --snapshot "$(windows_path "$folder")"
}

width_of() { ffprobe -v error -show_entries stream=width -of csv=p=0 "$1"; }

# With few colours a picture is a third as large and looks the same.
write_small() {
    local target=$1 filter=$2
    shift 2
    ffmpeg -nostdin -v error -y "$@" -filter_complex \
        "$filter,split[a][b];[a]palettegen=max_colors=128:reserve_transparent=0[p];[b][p]paletteuse=dither=none" "$target"
}

# The part "width height left top" of the view in a screenshot.
crop() { printf 'crop=%d:%d:%d:%d' "$1" "$2" $(($3 + view_left)) $(($4 + view_top)); }

three_stages() {
    local name=$1 folder=$work/reference/$1 piece
    piece=$(crop "${part[@]}")
    play "reference/$name"
    write_small "$reference/$name.png" \
        "[0]${piece},pad=iw+6:ih:0:0:white[l];[1]${piece},pad=iw+6:ih:0:0:white[m];[2]${piece}[r];[l][m][r]hstack=3" \
        -i "$folder/1.png" -i "$folder/2.png" -i "$folder/3.png"
}

draw_reference() {
    local name
    for name in "$@"; do
        say "      $name"
        three_stages "$name"
    done
}

draw_guide() {
    local script
    for script in gallery rectangle on_video/arrows on_video/tripwires; do
        say "      $script"
        play "$script"
    done
    write_small "$pictures/gallery.png" "[0]copy" -i "$work/gallery/5-loaded.png"
    write_small "$pictures/rectangle.png" "[0]copy" -i "$work/rectangle/5-resized.png"
    write_small "$pictures/arrows.png" "[0]$(crop 700 380 0 0)" -i "$work/on_video/arrows/10-two-points.png"
    write_small "$pictures/tripwires.png" "[0]$(crop 660 400 0 0)" -i "$work/on_video/tripwires/15-twelve-tripwires.png"
}

reference_scripts() {
    local script
    for script in "$scripts"/reference/*.rules; do
        [[ $script == */view.rules ]] || basename "$script" .rules
    done
}

draw() {
    local screenshot=$work/reference/view/1.png names
    say "[2/2] drawing"
    play reference/view
    read -r view_left view_top < <("$root/scripts/locate_view.py" "$screenshot" "$(width_of "$screenshot")")
    if (($# > 0)); then
        draw_reference "$@"
    else
        mapfile -t names < <(reference_scripts)
        draw_reference "${names[@]}"
        draw_guide
    fi
    # Wine's own processes use the display a little longer than the programs do and would complain.
    WINEPREFIX=$root/build/wine-prefix timeout 10 wineserver --wait || true
}

if [[ ${1:-} == --on-display ]]; then
    shift
    draw "$@"
else
    mkdir -p "$work" "$reference"
    say "[1/2] building the sample host"
    build
    exec xvfb-run -a -s '-screen 0 1400x1000x24 -nolisten tcp' "${BASH_SOURCE[0]}" --on-display "$@"
fi
