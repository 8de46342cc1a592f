#!/usr/bin/env bash
# Runs a Windows program in the project's own Wine prefix, whatever the caller's Wine settings are.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
export WINEPREFIX=$root/build/wine-prefix
export WINEARCH=win32
export WINEDEBUG=-all
# No offers to install Mono or Gecko, no menu entries on the developer's desktop.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
exec wine "$@"
