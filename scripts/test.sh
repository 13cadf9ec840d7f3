#!/usr/bin/env bash
# Everything that must hold before a change goes in; continuous integration runs
# this and nothing else. Stops at the first step that fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

current="start"
finish() {
    local code=$?
    if [ "$code" -eq 0 ]; then
        printf '\nall steps passed in %d s\n' "$SECONDS"
    else
        printf '\nFAILED: %s (exit code %d, after %d s)\n' "$current" "$code" "$SECONDS" >&2
    fi
}
trap finish EXIT

step() {
    current=$1
    shift
    printf '\n==== %s ====\n' "$current"
    "$@"
}

# Builds one preset and runs its tests.
check_preset() {
    cmake --preset "$1"
    cmake --build --preset "$1"
    ctest --preset "$1" -j "$(nproc)"
}

# Only the tests that have threads.
check_threads() {
    cmake --preset tsan
    cmake --build --preset tsan --target touchstone2_robustness_tests
    ctest --preset tsan -R '^Threads' --no-tests=error
}

# No "|| ...", "if" or "&&" around a step: bash would then ignore failures inside.
step "setup" scripts/setup.sh check libcxx windows abi docs
step "format" scripts/format.sh --check
step "layers" python3 scripts/check_layers.py
step "gcc, release" check_preset release
step "clang with libc++" check_preset libcxx
step "windows, under wine" scripts/test-windows.sh
step "gcc, address and undefined behaviour sanitizers" check_preset asan
step "threads, thread sanitizer" check_threads
step "fuzz targets, a fixed number of runs" scripts/fuzz.sh --short
step "clang-tidy" scripts/tidy.sh
step "instructions per byte" scripts/check_instructions.sh
step "binary interface" scripts/abi.sh
step "site of the documentation" scripts/docs.sh build/release/tools/touchstone2/touchstone2
