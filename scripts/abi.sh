#!/usr/bin/env bash
# Compares the binary interface of the shared library (names, sizes, positions of
# fields, tables of virtual functions, numbers of enumerators) with the one that is
# kept in tests/abi, and fails at any difference, additions included. With --update
# it keeps the present one; read what the comparison says before. For x86-64 Linux
# and gcc. Installs what it needs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

kept=tests/abi/touchstone2.x86_64-linux.abi
library=build/abi/src/libtouchstone2.so

case "${1-}" in
    "" | --update) ;;
    *)
        echo "usage: scripts/abi.sh [--update]" >&2
        exit 2
        ;;
esac
if [ "$(uname -sm)" != "Linux x86_64" ]; then
    echo "abi: the interface is kept for Linux on x86_64 only" >&2
    exit 2
fi

# With debugging information, which is where sizes and positions stand; without
# this folder's name in it.
scripts/setup.sh abi
cmake -S . -B build/abi -G Ninja -DCMAKE_CXX_COMPILER=g++ -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS="-O1 -g -ffile-prefix-map=$PWD=." \
    -DTOUCHSTONE2_TESTS=OFF -DTOUCHSTONE2_TOOLS=OFF -DTOUCHSTONE2_BINDING=OFF \
    -DTOUCHSTONE2_EXAMPLES=OFF -DTOUCHSTONE2_INSTALL=OFF >/dev/null
cmake --build build/abi --target touchstone2

found=build/abi/found.abi
abidw --exported-interfaces-only --drop-private-types --headers-dir include \
    --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed --no-parameter-names \
    --drop-undefined-syms --type-id-style hash --out-file "$found" "$library"

if [ "${1-}" = --update ]; then
    cp "$found" "$kept"
    echo "abi: kept as $kept"
    exit 0
fi
abidiff --leaf-changes-only --redundant --harmless "$kept" "$found"
echo "abi: as kept in $kept"
