#!/usr/bin/env bash
# Installs, from the packages of the Debian (12 or later) this runs on, what is
# needed. As root or with sudo; safe to run again.
#
#   setup.sh build   to build and use the library and the tool
#   setup.sh check   that, and all that the tests and checks need
#   setup.sh bench   that of build, and what the benchmarks need
#   setup.sh libcxx  that of build, and what the tests with clang and libc++ need
#   setup.sh abi     that of build, and what compares binary interfaces
#   setup.sh windows that of build, and what builds and runs all for 64-bit Windows
set -euo pipefail

packages=(
    bash coreutils findutils
    g++ cmake ninja-build pkg-config
    libcli11-dev nlohmann-json3-dev # for the command-line tool
)
case "${1:-check}" in
    build) ;;
    check)
        packages+=(
            clang libclang-rt-dev       # the other compiler, with its sanitizers
            googletest                  # sources; every build compiles its own
            clang-format clang-tidy gcovr
            git python3 util-linux
            libbenchmark-dev valgrind   # counts instructions
        )
        ;;
    bench)
        packages+=(libbenchmark-dev python3)
        ;;
    libcxx)
        packages+=(clang libc++-dev libc++abi-dev googletest git python3)
        ;;
    abi)
        packages+=(abigail-tools)
        ;;
    windows)
        packages+=(
            g++-mingw-w64-x86-64-posix # the variant that has std::thread
            wine wine64
            googletest git python3
        )
        ;;
    *)
        echo "setup: what is '$1'? See the head of this script." >&2
        exit 2
        ;;
esac

installed() {
    local status
    status=$(dpkg-query -W -f='${Status}' "$1" 2>/dev/null) || return 1
    [ "$status" = "install ok installed" ]
}

missing=()
for package in "${packages[@]}"; do
    installed "$package" || missing+=("$package")
done
if [ "${#missing[@]}" -eq 0 ]; then
    echo "setup: everything is there"
    exit 0
fi

echo "setup: installing ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "setup: run this as root, or install sudo" >&2
        exit 1
    fi
    as_root=(sudo)
fi
apt_get() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y "$@"
}
apt_get update
apt_get install --no-install-recommends "${missing[@]}"
