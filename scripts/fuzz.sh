#!/usr/bin/env bash
# Builds the fuzz targets and runs them, one after the other. What they find lies
# in build/fuzz/findings afterwards, and the script fails; a finding moves to
# fuzz/regressions together with the fix.
#
#   fuzz.sh [SECONDS] [TARGET...]   so long each (default: 300); goes on from the
#                                   inputs of earlier runs in build/fuzz/corpus
#   fuzz.sh --short [TARGET...]     a fixed number of runs from the seeds alone,
#                                   for continuous integration
#
# The targets are row_paths, read, round_trip, comments, copier.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

seconds=300
short=no
case "${1-}" in
    --short)
        short=yes
        shift
        ;;
    [0-9]*)
        seconds=$1
        shift
        ;;
esac
targets=("$@")
if [ "${#targets[@]}" -eq 0 ]; then
    targets=(row_paths read round_trip comments copier)
fi

# About equally long each, some seconds.
short_runs() {
    case "$1" in
        row_paths) echo 20000 ;;
        read) echo 50000 ;;
        comments) echo 10000 ;;
        *) echo 30000 ;;
    esac
}

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -- --quiet
mkdir -p build/fuzz/findings

failed=()
for target in "${targets[@]}"; do
    printf '\n==== fuzz_%s ====\n' "$target"
    options=(-dict=fuzz/touchstone.dict -artifact_prefix="build/fuzz/findings/${target}-"
        -timeout=20 -rss_limit_mb=2500 -print_final_stats=1)
    if [ "$short" = yes ]; then
        corpus=build/fuzz/short_corpus/$target
        rm -rf "$corpus" # the same runs every time
        options+=(-runs="$(short_runs "$target")" -seed=1 -max_len=1000)
    else
        corpus=build/fuzz/corpus/$target
        options+=(-max_total_time="$seconds" -max_len=3000 -reload=0)
    fi
    mkdir -p "$corpus"
    # The first folder takes what is found to reach new code.
    "build/fuzz/fuzz/fuzz_$target" "${options[@]}" "$corpus" fuzz/seeds fuzz/regressions \
        2>&1 | grep -v -e '^#[0-9]*[[:space:]]*\(NEW\|REDUCE\|RELOAD\|pulse\)' ||
        failed+=("$target")
done

if [ "${#failed[@]}" -ne 0 ]; then
    echo "fuzz: findings of ${failed[*]}, see build/fuzz/findings" >&2
    exit 1
fi
