#!/usr/bin/env bash
# Runs a Windows program in the project's own Wine prefix, whatever the caller's Wine settings are.
#
# usage: scripts/run-wine.sh [--64] PROGRAM [ARGUMENT...]
#   --64   in the prefix of 64-bit Windows, which runs programs of both kinds
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export WINEPREFIX=$root/build/wine-prefix
export WINEARCH=win32
if [[ ${1:-} == --64 ]]; then
    shift
    export WINEPREFIX=$root/build/wine-prefix-64
    export WINEARCH=win64
fi
export WINEDEBUG=-all
# No offers to install Mono or Gecko, no menu entries on the developer's desktop.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
exec wine "$@"
