#!/usr/bin/env bash
# Prepares a Debian or Ubuntu machine for this project, as root or through sudo. What is there already is left alone;
# when nothing is missing the script says nothing and returns at once.
#
# usage: scripts/setup.sh [GROUP...]
#   build   compilers for the three targets, CMake, JsonCpp and its source for the cross builds
#   test    GoogleTest, Python for the samples of the documents, what the examples draw with, and Wine for 32 and 64 bit
#           with prefixes of the project's own
#   fuzz    the run-time libraries of clang's sanitizers and fuzzer
#   bench   Google Benchmark, and Python for the report
#   lint    clang-format and clang-tidy
#   demo    a virtual display, a video converter and the fonts of the demonstrations
#   editor  a mouse and a keyboard for the virtual display, and pictures of it
#   web     emscripten, a browser, Python and the packages of web/package.json
# Without a group: build and test.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build
log=$build/setup.log
jsoncpp=$build/deps/jsoncpp-src
wine_prefixes=("" 64) # what run-wine.sh and the names of the prefixes add for each
step=0
steps=0

packages=()
want_jsoncpp=false
want_wine=false
want_npm=false

select_group() {
    case $1 in
        build)
            packages+=(cmake ninja-build g++ clang lld llvm dpkg-dev libjsoncpp-dev
                       g++-mingw-w64-i686-posix binutils-mingw-w64-i686
                       g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64)
            want_jsoncpp=true
            ;;
        test)
            packages+=(googletest libgtest-dev wine wine32:i386 wine64 pkgconf libcairo2-dev python3 python3-pil)
            want_wine=true
            ;;
        fuzz) packages+=(clang llvm libclang-rt-dev) ;;
        bench) packages+=(libbenchmark-dev python3) ;;
        lint) packages+=(clang-format clang-tidy) ;;
        demo) packages+=(xvfb xauth ffmpeg python3 fonts-liberation) ;;
        editor) packages+=(xvfb xdotool imagemagick fonts-liberation) ;;
        web)
            packages+=(cmake ninja-build g++ dpkg-dev libjsoncpp-dev emscripten chromium fonts-liberation python3)
            command -v node >/dev/null || packages+=(nodejs)
            command -v npm >/dev/null || packages+=(npm)
            want_jsoncpp=true
            want_npm=true
            ;;
        *) die "unknown group '$1'; known are build, test, fuzz, bench, lint, demo, editor and web" ;;
    esac
}

say() { printf 'setup: %s\n' "$*"; }

begin() {
    step=$((step + 1))
    say "[$step/$steps] $*"
}

die() {
    printf 'setup: %s\n' "$*" >&2
    exit 1
}

die_with_log() {
    if [[ -s $log ]]; then
        printf 'setup: last lines of %s:\n' "$log" >&2
        tail -n 15 "$log" >&2
    fi
    die "$*"
}

missing_packages() {
    # shellcheck disable=SC2016 # dpkg-query fills the format in
    local installed package name architecture format='${Package} ${Architecture} ${db:Status-Abbrev}\n'
    installed=$(dpkg-query -W -f="$format" "${packages[@]}" 2>/dev/null) || true
    for package in "${packages[@]}"; do
        name=${package%%:*}
        architecture='[a-z0-9-]+'
        [[ $package == *:* ]] && architecture=${package#*:}
        grep -qE "^${name//+/\\+} $architecture ii" <<<"$installed" || printf '%s\n' "$package"
    done
}

jsoncpp_ready() { [[ -f $jsoncpp/CMakeLists.txt ]]; }

wine_prefix() { printf '%s/wine-prefix%s' "$build" "${1:+-$1}"; }

wine_ready() {
    local bits
    for bits in "${wine_prefixes[@]}"; do
        [[ -f $(wine_prefix "$bits")/.complete ]] || return 1
    done
}

# The list that npm keeps of what it installed is younger than the list of what is wanted.
npm_ready() { [[ $root/web/node_modules/.package-lock.json -nt $root/web/package.json ]]; }

as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

apt_as_root() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=600 "$@" >>"$log" 2>&1
}

# Writes into folder $1 an apt configuration of our own with the distribution's suites as the system knows them, as
# entries of type $2 (deb or deb-src), and sets apt_options to use it. With $3 = no-security the security suite is left
# out.
write_apt_configuration() {
    local folder=$1 type=$2 security=${3:-} VERSION_CODENAME='' ID='' keyring signed_by='' uri suite component
    # shellcheck source=/dev/null
    . /etc/os-release
    keyring=/usr/share/keyrings/$ID-archive-keyring.gpg
    if [[ -f $keyring ]]; then signed_by="[signed-by=$keyring] "; fi
    mkdir -p "$folder/sources" "$folder/lists/partial" "$folder/cache/archives/partial"
    apt-get indextargets --format "\$(REPO_URI) \$(RELEASE) \$(COMPONENT)" 'Created-By: Packages' | sort -u |
        while read -r uri suite component; do
            [[ $component == main || $component == universe ]] || continue
            [[ $suite == "$VERSION_CODENAME" || $suite == "$VERSION_CODENAME-updates" ||
               ( $suite == "$VERSION_CODENAME-security" && $security != no-security ) ]] || continue
            printf '%s %s%s %s %s\n' "$type" "$signed_by" "$uri" "$suite" "$component"
        done >"$folder/sources/distribution.list"
    apt_options=(-o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$folder/sources"
                 -o "Dir::State::Lists=$folder/lists" -o "Dir::Cache=$folder/cache" -o APT::Sandbox::User=root)
    [[ -s $folder/sources/distribution.list ]]
}

install_packages() {
    local missing=("$@") scratch apt_options
    if [[ " ${missing[*]} " == *:i386* ]] && ! dpkg --print-foreign-architectures | grep -qx i386; then
        as_root dpkg --add-architecture i386
    fi

    begin "installing ${#missing[@]} packages: ${missing[*]}"
    # One unreadable index does not matter as long as the packages can be had without it.
    apt_as_root update || say "      some package lists could not be read; going on with the others"
    apt_as_root install --no-install-recommends "${missing[@]}" && return

    # The security suite's index for the second architecture is at times older than its release file, and no consistent
    # set of packages exists then; the other suites are consistent among themselves.
    mapfile -t missing < <(missing_packages)
    say "      that did not work; once more for ${#missing[@]} packages, without the security suite"
    scratch=$(mktemp -d)
    # shellcheck disable=SC2064 # the folder is known now and is out of scope at exit
    trap "as_root rm -rf '$scratch'" EXIT
    write_apt_configuration "$scratch" deb no-security ||
        die_with_log "cannot install: ${missing[*]} (apt knows no sources of this distribution)"
    apt_as_root "${apt_options[@]}" update || true
    apt_as_root "${apt_options[@]}" install --no-install-recommends "${missing[@]}" || true
}

fetch_jsoncpp() {
    local apt=$build/deps/apt apt_options
    begin "fetching the JsonCpp source package for the cross build"
    rm -rf "$build/deps/jsoncpp-fetch" "$jsoncpp"
    mkdir -p "$build/deps/jsoncpp-fetch"
    write_apt_configuration "$apt" deb-src ||
        die "the JsonCpp source is missing: apt knows no sources of this distribution"
    apt-get -q "${apt_options[@]}" update >>"$log" 2>&1 ||
        say "      some source lists could not be read; going on with the others"
    (cd "$build/deps/jsoncpp-fetch" && apt-get -q "${apt_options[@]}" source libjsoncpp) >>"$log" 2>&1 ||
        die_with_log "the JsonCpp source is missing: 'apt-get source libjsoncpp' failed"
    mv "$build"/deps/jsoncpp-fetch/libjsoncpp-*/ "$jsoncpp"
    rm -rf "$build/deps/jsoncpp-fetch" "$apt"
    jsoncpp_ready || die_with_log "the JsonCpp source is missing: the source package holds no CMakeLists.txt"
}

create_wine_prefixes() {
    local bits prefix
    begin "creating Wine prefixes for 32 and 64 bit (about 20 seconds each)"
    for bits in "${wine_prefixes[@]}"; do
        prefix=$(wine_prefix "$bits")
        [[ ! -f $prefix/.complete ]] || continue
        rm -rf "$prefix"
        "$root/scripts/run-wine.sh" ${bits:+"--$bits"} wineboot --init </dev/null >>"$log" 2>&1 ||
            die_with_log "the Wine prefix is missing: wineboot failed in $prefix"
        # wineboot returns while its server still writes the registry.
        WINEPREFIX=$prefix wineserver --wait
        touch "$prefix/.complete"
    done
}

install_npm_packages() {
    begin "installing the packages of web/package.json"
    (cd "$root/web" && npm install --no-audit --no-fund) >>"$log" 2>&1 ||
        die_with_log "the packages of web/package.json are missing: npm install failed"
    touch "$root/web/node_modules/.package-lock.json"
}

count_steps() {
    steps=0
    mapfile -t missing < <(missing_packages)
    if ((${#missing[@]} > 0)); then steps=$((steps + 1)); fi
    if $want_jsoncpp && ! jsoncpp_ready; then steps=$((steps + 1)); fi
    if $want_wine && ! wine_ready; then steps=$((steps + 1)); fi
    if $want_npm && ! npm_ready; then steps=$((steps + 1)); fi
}

(($# > 0)) || set -- build test
for group in "$@"; do
    select_group "$group"
done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    die "this needs Debian or Ubuntu: dpkg and apt-get are missing. Install by other means: ${packages[*]}"
fi

count_steps
((steps > 0)) || exit 0

mkdir -p "$build"
# Two scripts started side by side would fetch into the same folders.
exec 9>"$build/setup.lock"
flock 9
count_steps
((steps > 0)) || exit 0
: >"$log"

if ((${#missing[@]} > 0)); then
    ((EUID == 0)) || command -v sudo >/dev/null ||
        die "neither root nor sudo: these packages are missing: ${missing[*]}"
    install_packages "${missing[@]}"
    mapfile -t missing < <(missing_packages)
    ((${#missing[@]} == 0)) || die_with_log "these packages are missing and could not be installed: ${missing[*]}"
fi
if $want_jsoncpp && ! jsoncpp_ready; then fetch_jsoncpp; fi
if $want_wine && ! wine_ready; then create_wine_prefixes; fi
if $want_npm && ! npm_ready; then install_npm_packages; fi
say "done"
