#!/usr/bin/env bash
# Checks the layout of all sources with clang-format, and the library and the tools with clang-tidy.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
scripts/setup.sh build lint

printf 'lint: [1/2] layout\n'
git ls-files -z '*.h' '*.hpp' '*.cpp' | xargs -0 clang-format --dry-run --Werror

printf 'lint: [2/2] clang-tidy\n'
cmake --preset native >/dev/null
git ls-files -z 'src/*.cpp' 'tools/*.cpp' ':!*_windows.cpp' |
    xargs -0 -n 4 -P 2 clang-tidy -p build/native --quiet --extra-arg=-Wno-unknown-warning-option
printf 'lint: clean\n'
