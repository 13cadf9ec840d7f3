#!/usr/bin/env bash
# Runs the tests and prints which share of the lines of src they execute, per file
# and in total. Fails below the limit.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

limit=98 # per cent of all lines

cmake --preset coverage
cmake --build --preset coverage
# Counts add up from run to run; start from nothing.
find build/coverage -name '*.gcda' -delete
ctest --preset coverage -j "$(nproc)"
gcovr --root . --filter 'src/' --object-directory build/coverage \
    --fail-under-line "$limit" build/coverage
