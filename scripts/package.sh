#!/usr/bin/env bash
# Builds the library for 32-bit and 64-bit Windows and packs both into one zip file.
#
# usage: scripts/package.sh [FOLDER]
#   FOLDER   where the file goes; build/package without it
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$(realpath -m "${1:-$root/build/package}")
presets=(windows-x86 windows-x64)
cd "$root"

say() { printf 'package: %s\n' "$*"; }

scripts/setup.sh build

projects=
for preset in "${presets[@]}"; do
    say "building $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" -j2 --target rulecanvas_installed
    projects+="$root/build/$preset;rulecanvas;ALL;/;"
done

version=$(sed -n 's/^#define RULECANVAS_VERSION "\(.*\)"/\1/p' include/rulecanvas/version.h)
name=rulecanvas-$version-windows
say "packing $name.zip"
mkdir -p "$folder"
cpack --config "build/${presets[0]}/CPackConfig.cmake" -G ZIP -B "$folder" \
    -D CPACK_PACKAGE_FILE_NAME="$name" -D CPACK_INSTALL_CMAKE_PROJECTS="${projects%;}" >"$folder/cpack.log" 2>&1 ||
    {
        cat "$folder/cpack.log" >&2
        exit 1
    }
rm -rf "$folder/_CPack_Packages"
say "$folder/$name.zip"
