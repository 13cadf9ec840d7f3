#!/usr/bin/env bash
# Makes the site of the documentation, build/docs/site/index.html. Installs what that
# needs. A public name without a comment, a broken link or a page that nothing leads to
# is an error.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh docs
cmake -S . -B build/docs/tool -G Ninja -DTOUCHSTONE2_TESTS=OFF -DTOUCHSTONE2_EXAMPLES=OFF
cmake --build build/docs/tool --target touchstone2_tool

build=$PWD/build/docs
version=$("$build/tool/tools/touchstone2/touchstone2" --version)
mkdir -p "$build/api"
(
    cat docs/site/Doxyfile
    echo "OUTPUT_DIRECTORY = $build/api"
) | doxygen -

python3 scripts/docs_pages.py \
    --tool "$build/tool/tools/touchstone2/touchstone2" --xml "$build/api/xml" "$build/pages"
rm -rf "$build/site"
TOUCHSTONE2_VERSION=${version##* } TOUCHSTONE2_API_XML=$build/api/xml \
    sphinx-build -q -W --keep-going -j auto -d "$build/cache" "$build/pages" "$build/site"
echo "docs: $build/site/index.html"
