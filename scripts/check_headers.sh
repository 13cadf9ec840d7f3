#!/usr/bin/env bash
# Every public header compiles alone, twice in one file, without a warning, as
# C++17 and as C++20, with each of g++ and clang++ that is installed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../include"

compilers=()
for compiler in g++ clang++; do
    if command -v "$compiler" >/dev/null; then
        compilers+=("$compiler")
    fi
done
if [ "${#compilers[@]}" -eq 0 ]; then
    echo "public headers: neither g++ nor clang++ is installed" >&2
    exit 1
fi

# Arguments: compiler, standard, header.
compile_alone() {
    printf '#include <%s>\n#include <%s>\n' "$3" "$3" |
        "$1" "-std=$2" -I . -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror \
            -fsyntax-only -x c++ - || {
        echo "FAILED: $3 as $2 with $1" >&2
        return 1
    }
}
export -f compile_alone

mapfile -t headers < <(find touchstone2 -type f -name '*.h' | sort)
if [ "${#headers[@]}" -eq 0 ]; then
    echo "public headers: found none" >&2
    exit 1
fi

for compiler in "${compilers[@]}"; do
    for standard in c++17 c++20; do
        printf "$compiler\0$standard\0%s\0" "${headers[@]}"
    done
done | xargs -0 -n 3 -P "$(nproc)" bash -c 'compile_alone "$@"' bash

echo "public headers: ${#headers[@]}, compilers: ${compilers[*]}"
