#!/usr/bin/env bash
# Builds library, tool, script module, tests and examples for 64-bit Windows with
# the cross compiler, and runs the tests under wine. Installs what it needs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh windows
cmake --preset mingw
cmake --build --preset mingw

wine=$PWD/build/mingw/wine
trap 'scripts/wine.sh "$wine" --stop' EXIT
scripts/wine.sh "$wine" --stop
scripts/wine.sh "$wine" --start
ctest --preset mingw -j "$(nproc)"
