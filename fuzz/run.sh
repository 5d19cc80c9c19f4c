#!/usr/bin/env bash
# Builds the fuzz targets (the `fuzz` preset), replays the seed corpora through
# every target, then fuzzes each target for the given seconds.
#
#   fuzz/run.sh               replay only
#   fuzz/run.sh 5             replay, then five seconds per target (CI)
#   fuzz/run.sh 600           ten minutes per target
#   fuzz/run.sh 600 fuzz_exports fuzz_read_rodstock    only these targets
#
# New inputs go to build-fuzz/corpus/<target>, which later runs start from;
# the seeds in fuzz/corpus stay as they are. A finding stops the script with
# the crashing input in build-fuzz/findings/.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds="${1:-0}"
shift || true
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz >/dev/null

build=build-fuzz
# What each target runs, as the build wrote it: name, program, record, seeds,
# dictionary ("-" where there is none).
declare -A program_of record_of seeds_of dict_of
all=()
while read -r name program record seeds dict; do
    all+=("$name")
    program_of[$name]="$program"
    record_of[$name]="$record"
    seeds_of[$name]="$seeds"
    dict_of[$name]="$dict"
done < "$build/fuzz/targets.txt"
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=("${all[@]}")
fi
mkdir -p "$build/findings"

for target in "${targets[@]}"; do
    if [ -z "${program_of[$target]+set}" ]; then
        echo "$target: no such fuzz target"
        exit 2
    fi
    program="$build/fuzz/${program_of[$target]}"
    if [ "${record_of[$target]}" != - ]; then
        export ITUNITECHNIK_FUZZ_RECORD="${record_of[$target]}"
    fi
    seeds="fuzz/corpus/${seeds_of[$target]}"
    dict=()
    if [ "${dict_of[$target]}" != - ]; then
        dict=(-dict="fuzz/${dict_of[$target]}")
    fi
    # Regression: every seed once.
    "$program" -runs=0 "$seeds" >"$build/findings/$target.replay.log" 2>&1 \
        || { cat "$build/findings/$target.replay.log"; echo "$target: a seed fails"; exit 1; }
    if [ "$seconds" -gt 0 ]; then
        corpus="$build/corpus/$target"
        mkdir -p "$corpus"
        if ! "$program" "${dict[@]}" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
                -artifact_prefix="$build/findings/$target-" -print_final_stats=1 \
                "$corpus" "$seeds" >"$build/findings/$target.log" 2>&1; then
            tail -n 60 "$build/findings/$target.log"
            echo "$target: finding, see $build/findings/"
            exit 1
        fi
        runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$build/findings/$target.log" | grep -o '[0-9]*$' || echo "?")
        echo "$target: ${seconds} s, $runs runs, no finding"
    else
        echo "$target: seeds replayed"
    fi
done
