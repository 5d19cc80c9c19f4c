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
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    mapfile -t targets < "$build/fuzz/targets.txt"
fi
mkdir -p "$build/findings"

seeds_of() {
    case "$1" in
        fuzz_exports) echo fuzz/corpus/exports ;;
        fuzz_document|fuzz_tolerant) echo fuzz/corpus/documents ;;
        fuzz_script) echo fuzz/corpus/scripts ;;
        *) echo fuzz/corpus/records ;;
    esac
}

for target in "${targets[@]}"; do
    program="$build/fuzz/$target"
    # The record targets are one program, told the record by the environment.
    case "$target" in
        fuzz_read_*)
            program="$build/fuzz/fuzz_records"
            export ITUNITECHNIK_FUZZ_RECORD="${target#fuzz_read_}"
            ;;
    esac
    seeds="$(seeds_of "$target")"
    case "$target" in
        fuzz_exports) dict=() ;;
        fuzz_script) dict=(-dict=fuzz/script.dict) ;;
        *) dict=(-dict=fuzz/tags.dict) ;;
    esac
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
