#!/usr/bin/env bash
# Runs clang-tidy over the library and the tool. Takes the compiler commands of
# the preset "clang", which it configures; nothing has to be built.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset clang >/dev/null

# Only what that build compiles: the other systems' files are not in its list.
list_files() {
    python3 - "$PWD" build/clang/compile_commands.json <<'PYTHON'
import json
import pathlib
import sys

root = pathlib.Path(sys.argv[1]).resolve()
wanted = (root / "src", root / "tools")
with open(sys.argv[2], encoding="utf-8") as commands:
    entries = json.load(commands)
files = {(pathlib.Path(e["directory"]) / e["file"]).resolve() for e in entries}
for file in sorted(files):
    if any(folder in file.parents for folder in wanted):
        print(file, end="\0")
PYTHON
}

files=()
while IFS= read -r -d '' file; do
    files+=("$file")
done < <(list_files)
if [ "${#files[@]}" -eq 0 ]; then
    echo "tidy: found no files" >&2
    exit 1
fi

# One file; without the count of findings in other people's headers.
tidy() {
    set -o pipefail
    clang-tidy -p build/clang --quiet "$1" 2>&1 | sed '/^[0-9]* warnings\{0,1\} generated\.$/d'
}
export -f tidy
printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'tidy "$1"' bash
echo "tidy: ${#files[@]} files"
