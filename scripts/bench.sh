#!/usr/bin/env bash
# Builds the benchmarks and prints the table of docs/performance.md: the library
# beside loops that do the conversions and nothing else. Every measurement is a
# process of its own, the ways are interleaved, the figures are medians.
#
#   bench.sh [ROUNDS] [INPUT...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh bench
cmake -S . -B build/bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DTOUCHSTONE2_BENCH=ON \
    -DTOUCHSTONE2_TESTS=OFF -DTOUCHSTONE2_TOOLS=OFF -DTOUCHSTONE2_BINDING=OFF \
    -DTOUCHSTONE2_EXAMPLES=OFF >/dev/null
cmake --build build/bench >/dev/null
python3 scripts/bench_table.py build/bench/bench/touchstone2_bench "$@"
