#!/usr/bin/env bash
# Installs, from the packages of the Debian (12 or later) this runs on, what is
# needed. As root or with sudo; safe to run again.
#
#   setup.sh [PART...]
#
#   build    to build and use the library and the tool; belongs to every part
#   check    what the tests and checks need; without any PART it is this one
#   bench    what the benchmarks need
#   libcxx   what the tests with clang and libc++ need
#   windows  what builds for 64-bit Windows and runs the tests under wine
#   abi      what compares binary interfaces
#   docs     what makes the site of the documentation
#   package  what makes and looks at packages
set -euo pipefail

packages=(
    bash coreutils findutils
    g++ cmake ninja-build pkg-config
    libcli11-dev nlohmann-json3-dev # for the command-line tool
)
tests=(
    googletest # sources; every build compiles its own
    git python3 util-linux
    python3-jsonschema # validates the tool's JSON
    vim # whose list of errors the documentation promises to work
    mandoc zsh fish # read the manual and the completions
)
add_part() {
    case $1 in
        build) ;;
        check)
            packages+=(
                "${tests[@]}"
                clang libclang-rt-dev # the other compiler, with its sanitizers
                clang-format clang-tidy gcovr
                libbenchmark-dev valgrind # counts instructions
            )
            ;;
        bench) packages+=(libbenchmark-dev python3) ;;
        libcxx) packages+=("${tests[@]}" clang libc++-dev libc++abi-dev) ;;
        windows)
            packages+=(
                "${tests[@]}"
                g++-mingw-w64-x86-64-posix # the variant that has std::thread
                wine wine64
            )
            ;;
        abi) packages+=(abigail-tools) ;;
        docs)
            packages+=(
                doxygen graphviz python3
                python3-sphinx python3-myst-parser python3-breathe furo
            )
            ;;
        package) packages+=(dpkg-dev git gzip lintian mmdebstrap util-linux) ;;
        *)
            echo "setup: what is '$1'? See the head of this script." >&2
            exit 2
            ;;
    esac
}
for part in "${@:-check}"; do
    add_part "$part"
done

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
