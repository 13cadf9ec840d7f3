#!/usr/bin/env bash
# Installs a build into a temporary prefix, moves it, and uses it as strangers do:
# from CMake, through pkg-config, and by running the tool.
#
#   run.sh <build directory> <configuration>
#
# From the environment: CMAKE, GENERATOR, CXX, CXXFLAGS, VERSION, LIBDIR (below the prefix)
# and TOOL (below the prefix; empty when the build has none).
set -euo pipefail

build_dir=$1
config=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
sample="$here/two_ports.s2p"
expected=2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

expect_ports() {
    local who=$1 printed
    shift
    if ! printed=$("$@"); then
        echo "$who: the program failed, having printed: $printed" >&2
        exit 1
    fi
    if [ "$printed" != "$expected" ]; then
        echo "$who: expected $expected ports, got: $printed" >&2
        exit 1
    fi
    echo "$who: $printed ports"
}

# The prefix is moved after the installation: nothing may remember where it was.
"$CMAKE" --install "$build_dir" --config "$config" --prefix "$work/first" >"$work/install.log" || {
    cat "$work/install.log" >&2
    exit 1
}
prefix="$work/prefix"
mv "$work/first" "$prefix"

echo "== find_package"
"$CMAKE" -S "$here/consumer" -B "$work/build" -G "$GENERATOR" \
    -DCMAKE_BUILD_TYPE="$config" -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_PREFIX_PATH="$prefix"
"$CMAKE" --build "$work/build" --config "$config"
consumer="$work/build/consumer"
[ -x "$consumer" ] || consumer="$work/build/$config/consumer"
expect_ports "find_package" "$consumer" "$sample"

echo "== pkg-config"
export PKG_CONFIG_PATH="$prefix/$LIBDIR/pkgconfig"
pkg-config --exists --print-errors "touchstone2 = $VERSION"
# Split on blanks on purpose: these are several options. CMake takes CXXFLAGS by itself.
read -r -a flags <<<"${CXXFLAGS-} $(pkg-config --cflags --libs touchstone2)"
"$CXX" -std=c++17 "$here/consumer/main.cpp" "${flags[@]}" \
    "-Wl,-rpath,$(pkg-config --variable=libdir touchstone2)" -o "$work/by_pkg_config"
expect_ports "pkg-config" "$work/by_pkg_config" "$sample"

if [ -n "$TOOL" ]; then
    echo "== tool"
    printed=$("$prefix/$TOOL" --version)
    case $printed in
        *"$VERSION"*) echo "tool: $printed" ;;
        *)
            echo "tool: expected version $VERSION, got: $printed" >&2
            exit 1
            ;;
    esac
fi
