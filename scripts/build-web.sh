#!/usr/bin/env bash
# Builds the browser's module (index.js with its declarations and the .wasm file) into build/web/dist, and the
# demonstration page with it into build/web/site.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
out=$root/build/web
cd "$root"

# emscripten's optimiser looks for its parser among node's packages.
export NODE_PATH=$root/web/node_modules
binaries=$root/web/node_modules/.bin

say() { printf 'build-web: %s\n' "$*"; }

mkdir -p "$out"
say "[1/3] the core, by emscripten; the first time takes a minute"
{
    emcmake cmake -S web -B "$out/core" -G Ninja -DCMAKE_BUILD_TYPE=Release &&
        cmake --build "$out/core" -j2
} >"$out/core.log" 2>&1 || {
    tail -n 40 "$out/core.log" >&2
    exit 1
}

say "[2/3] the module"
rm -rf "$out/js" "$out/dist" "$out/site"
mkdir -p "$out/dist" "$out/site"
"$binaries/tsc" -p web --outDir "$out/js" --declarationDir "$out/dist"
cp "$out/core/rulecanvas_core.js" "$out/js/"
cp "$out/core/rulecanvas_core.wasm" web/src/rulecanvas_core.d.ts "$out/dist/"
"$binaries/esbuild" "$out/js/index.js" --bundle --minify --format=esm --target=es2022 --log-level=warning \
    --outfile="$out/dist/index.js"

say "[3/3] the page"
"$binaries/tsc" -p web/page
cp web/page/*.html web/page/*.css web/page/*.rules.json "$out/site/"
printf '{ "clip": null, "rules": "street.rules.json" }\n' >"$out/site/start.json"
cp -r "$out/dist" "$out/site/rulecanvas"
