#!/usr/bin/env bash
# Builds the native library and its benchmarks, measures on one core, prints a table of ratios to the bare work, and
# writes docs/benchmarks.md and docs/pictures/speed.svg. Takes some minutes.
#
# usage: scripts/bench.sh [--core N] [--from RESULT.json]
#   --core N   the core to measure on; the last one without it
#   --from     only the table and the documents, from an earlier run's result
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
result=build/native/bench.json
core=$(($(nproc) - 1))
measure=true

usage() { sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//;p}' "${BASH_SOURCE[0]}"; }

while (($# > 0)); do
    case $1 in
        --core)
            core=$2
            shift
            ;;
        --from)
            result=$2
            measure=false
            shift
            ;;
        -h | --help)
            usage
            exit 0
            ;;
        *)
            printf "bench: unknown option '%s'; see --help\n" "$1" >&2
            exit 1
            ;;
    esac
    shift
done

if $measure; then
    printf 'bench: [1/3] building\n'
    scripts/setup.sh build bench
    cmake --preset native >build/native-configure.log
    cmake --build --preset native --target rulecanvas_bench
    printf 'bench: [2/3] measuring on core %d\n' "$core"
    taskset -c "$core" build/native/rulecanvas_bench --benchmark_min_time=0.05 --benchmark_repetitions=5 \
        --benchmark_enable_random_interleaving=true --benchmark_out="$result" --benchmark_out_format=json \
        >build/native/bench.log
fi
printf 'bench: [3/3] the table\n'
exec scripts/bench_report.py "$result"
