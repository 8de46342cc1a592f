# What the scripts that show the library share; sourced by them. They set `root`, `work`, a folder for what is left over,
# and `speaker`, who stands in front of each line.
# shellcheck disable=SC2154 # those three

say() { printf '%s: %s\n' "$speaker" "$*"; }

die() {
    say "$*" >&2
    exit 1
}

# From here on programs show their windows on a virtual display, until the script ends.
start_display() {
    local number=$work/display
    : >"$number"
    Xvfb -displayfd 3 -screen 0 1400x1000x24 -nolisten tcp 3>"$number" 2>"$work/xvfb.log" &
    server=$!
    trap stop_display EXIT
    for _ in $(seq 100); do
        [[ -s $number ]] && break
        sleep 0.1
    done
    [[ -s $number ]] || die "Xvfb does not start: $work/xvfb.log"
    DISPLAY=:$(<"$number")
    export DISPLAY
}

# Wine's own processes use the display a little longer than the programs do and would complain.
stop_display() {
    WINEPREFIX=$root/build/wine-prefix timeout 10 wineserver --wait || true
    kill "$server" 2>/dev/null || true
}

windows_path() { printf 'Z:%s' "$(realpath "$1")"; }

# Takes a clip out of the distribution's package and leaves its path in `video`.
fetch_sample_video() {
    video=$work/vtest.avi
    [[ -s $video ]] && return 0
    say "      fetching the clip (package opencv-doc, about 100 MB)"
    local folder
    folder=$(mktemp -d "$work/fetch.XXXXXX")
    (cd "$folder" && apt-get -o APT::Sandbox::User=root download opencv-doc) || die "the package opencv-doc cannot be fetched"
    dpkg-deb --fsys-tarfile "$folder"/opencv-doc_*.deb | tar -xO --wildcards '*/vtest.avi' >"$video.part" ||
        {
            # In some releases the file is compressed inside the package.
            dpkg-deb --fsys-tarfile "$folder"/opencv-doc_*.deb | tar -xO --wildcards '*/vtest.avi.gz' | gunzip >"$video.part"
        }
    mv "$video.part" "$video"
    rm -rf "$folder"
}
