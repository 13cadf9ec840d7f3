#!/usr/bin/env bash
# Makes the site of the documentation, build/docs/site/index.html. Installs what that
# needs. A public name without a comment, a broken link or a page that nothing leads to
# is an error.
#
#   docs.sh [TOOL]   TOOL is the program that tells of its commands; without it one
#                    is built
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh docs
build=$PWD/build/docs
tool=${1-}
if [ -z "$tool" ]; then
    cmake -S . -B build/docs/tool -G Ninja -DTOUCHSTONE2_TESTS=OFF -DTOUCHSTONE2_EXAMPLES=OFF
    cmake --build build/docs/tool --target touchstone2_tool
    tool=$build/tool/tools/touchstone2/touchstone2
fi

version=$("$tool" --version)
mkdir -p "$build/api"
(
    cat docs/site/Doxyfile
    echo "OUTPUT_DIRECTORY = $build/api"
) | doxygen -

python3 scripts/docs_pages.py \
    --tool "$tool" --xml "$build/api/xml" "$build/pages"
rm -rf "$build/site"
TOUCHSTONE2_VERSION=${version##* } TOUCHSTONE2_API_XML=$build/api/xml \
    sphinx-build -q -W --keep-going -j auto -d "$build/cache" "$build/pages" "$build/site"
echo "docs: $build/site/index.html"
