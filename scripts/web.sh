#!/usr/bin/env bash
# Builds the browser's page and serves it until it is interrupted; says where.
#
# usage: scripts/web.sh [--sample-video | VIDEO] [PORT]
#   --sample-video   on a street surveillance clip of the distribution, which is fetched once
#   VIDEO            on your own clip; anything that ffmpeg reads
# Without a video the page shows a street of its own. Port 8765 when none is given.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
work=$root/build/demo
site=$root/build/web/site
clip=$work/clip.webm
clip_seconds=20
port=8765
video=
speaker=web
# shellcheck source=scripts/show.sh
source "$root/scripts/show.sh"

read_arguments() {
    while (($# > 0)); do
        case $1 in
            --sample-video) video=sample ;;
            -h | --help)
                sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//;p}' "${BASH_SOURCE[0]}"
                exit 0
                ;;
            -*) die "unknown option '$1'; see --help" ;;
            *[!0-9]*) video=$1 ;;
            *) port=$1 ;;
        esac
        shift
    done
}

convert_video() {
    if [[ $clip -nt $video && $(<"$clip.source") == "$video" ]]; then return 0; fi
    say "converting $clip_seconds seconds of $video"
    ffmpeg -nostdin -v error -y -i "$video" -t "$clip_seconds" -an \
        -c:v libvpx -b:v 2M -deadline realtime -cpu-used 4 "$clip" ||
        die "ffmpeg cannot read $video"
    printf '%s' "$video" >"$clip.source"
}

read_arguments "$@"
mkdir -p "$work"
"$root/scripts/setup.sh" web
if [[ -n $video ]]; then "$root/scripts/setup.sh" demo; fi
"$root/scripts/build-web.sh"
if [[ $video == sample ]]; then fetch_sample_video; fi
if [[ -n $video ]]; then
    convert_video
    cp "$clip" "$site/clip.webm"
    printf '{ "clip": "clip.webm", "rules": null }\n' >"$site/start.json"
fi
say "control and C ends it"
exec node "$root/web/tools/serve.mjs" "$site" "$port"
