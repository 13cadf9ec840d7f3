#!/usr/bin/env bash
# Counts the instructions per byte that reading and writing take and compares them
# with bench/instructions.txt: a tenth more is an error. Unlike times, the counts
# are the same in every run.
#
#   check_instructions.sh [--update]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake -S . -B build/count -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=g++ \
    -DTOUCHSTONE2_BENCH=ON -DTOUCHSTONE2_TESTS=OFF -DTOUCHSTONE2_TOOLS=OFF \
    -DTOUCHSTONE2_BINDING=OFF -DTOUCHSTONE2_EXAMPLES=OFF >/dev/null
cmake --build build/count --target touchstone2_bench
baseline=$PWD/bench/instructions.txt
cd build/count/bench

# read|write INPUT; prints them and the instructions per byte.
count() {
    local bytes instructions
    bytes=$(./touchstone2_bench --count "$1" "$2")
    instructions=$(valgrind --tool=callgrind --callgrind-out-file=/dev/null \
        --toggle-collect='*run_counted*' ./touchstone2_bench --count "$1" "$2" 2>&1 |
        sed -n 's/^.*Collected : //p')
    python3 -c "print('$1', '$2', f'{$instructions / $bytes:.3f}')"
}

counts=$(
    for input in a d; do count read "$input"; done
    for input in a e; do count write "$input"; done
)
if [ "${1:-}" = "--update" ]; then
    printf '%s\n' "$counts" >"$baseline"
fi
python3 - "$baseline" <<PYTHON
import sys

found = dict(line.rsplit(" ", 1) for line in """$counts""".splitlines())
worse = False
for line in open(sys.argv[1], encoding="ascii"):
    name, kept = line.rsplit(" ", 1)
    ratio = float(found[name]) / float(kept)
    print(f"{name}: {found[name]} instructions per byte, {ratio:.3f} of what is kept")
    worse = worse or ratio > 1.1
sys.exit(1 if worse else 0)
PYTHON
