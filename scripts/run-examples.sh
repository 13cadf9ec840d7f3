#!/usr/bin/env bash
# Builds the command-line tool and shows what it does with the example files.
# Installs what that needs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh build
cmake -S . -B build/run -G Ninja -DTOUCHSTONE2_TESTS=OFF -DTOUCHSTONE2_EXAMPLES=OFF
cmake --build build/run
touchstone2=build/run/tools/touchstone2/touchstone2

# Prints a command and runs it; its exit code must be the expected one.
show() {
    local expected=$1 code=0
    shift
    printf '\n$ %s\n' "$*"
    "${@/#touchstone2/$touchstone2}" || code=$?
    if [ "$code" -ne "$expected" ]; then
        echo "exit code $code instead of $expected" >&2
        exit 1
    fi
}

show 0 touchstone2 check examples/good
show 1 touchstone2 check examples/broken
show 0 touchstone2 info examples/good/amplifier.s2p
show 0 touchstone2 ports examples/good/coupler.s4p
show 0 touchstone2 ports examples/good/coupler.s4p --set 2=out -o build/run/named.s4p --force
show 0 touchstone2 ports build/run/named.s4p
show 0 touchstone2 subset examples/good/coupler.s4p --ports 1=in,3=out -o -
show 0 touchstone2 convert examples/good/connector.s4p --to v1 -o build/run/full.s4p --force
show 0 touchstone2 info build/run/full.s4p
printf '\nTo try the tool yourself, in this shell:\n\n  export PATH="%s:$PATH"\n' \
    "$PWD/${touchstone2%/*}"
