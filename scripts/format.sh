#!/usr/bin/env bash
# Formats all C++ files in place. With --check it changes nothing, shows what it
# would change and fails if there is anything.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

case "${1-}" in
    "") options=(-i) ;;
    --check) options=(--dry-run --Werror) ;;
    *)
        echo "usage: scripts/format.sh [--check]" >&2
        exit 2
        ;;
esac

# What git tracks or would take; without a repository, what lies in the tree.
list_files() {
    if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
        git ls-files -z --cached --others --exclude-standard -- '*.h' '*.cpp'
    else
        find . -path ./build -prune -o -type f \( -name '*.h' -o -name '*.cpp' \) -print0
    fi
}

files=()
while IFS= read -r -d '' file; do
    if [ -e "$file" ]; then # tracked, but deleted here
        files+=("$file")
    fi
done < <(list_files)

if [ "${#files[@]}" -eq 0 ]; then
    echo "format: found no files" >&2
    exit 1
fi
clang-format --style=file "${options[@]}" "${files[@]}"
echo "format: ${#files[@]} files"
