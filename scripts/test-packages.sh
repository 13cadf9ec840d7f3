#!/usr/bin/env bash
# Installs the Debian packages of build/package (see scripts/package.sh) into a system of
# its own, uses them there from CMake, through pkg-config and by running the tool, removes
# them and looks for what is left. Needs root; mounts nothing.
#
# The system is made of the packages of this machine's own release, from where this
# machine has them, once: build/package-test/base.tar. Remove it to have it made anew.
# TOUCHSTONE2_PACKAGE_TEST names another folder than build/package-test.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

if [ "$(id -u)" -ne 0 ]; then
    echo "test-packages: run this as root" >&2
    exit 2
fi
packages=$PWD/build/package
if ! compgen -G "$packages/*.deb" >/dev/null; then
    scripts/package.sh
fi
scripts/setup.sh package

place=${TOUCHSTONE2_PACKAGE_TEST:-$PWD/build/package-test}
mkdir -p "$place"
base=$place/base.tar
root=$place/root
trap 'rm -rf "$root"' EXIT
rm -rf "$root"

# One option of mmdebstrap for each setting that apt has here for getting files.
apt_settings() {
    apt-config dump | grep -E '^Acquire::[^ ]+ ".+";$' | sed 's/^/--aptopt=/'
}

make_base() {
    local release sources=() settings=() mode=root
    # Where mounting is forbidden, packages are set up from outside.
    unshare --mount true 2>/dev/null || mode=chrootless
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    # Other makers' packages are not wanted, which a line with this release's name tells apart.
    mapfile -t sources < <(grep -slE "^Suites:.*\<$release\>|^deb .*\<$release\>" \
        /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources)
    mapfile -t settings < <(apt_settings)
    mmdebstrap --quiet --variant=minbase --mode=$mode --include=g++,cmake,make,pkg-config \
        "${settings[@]}" "$release" "$place/part.tar" "${sources[@]}" </dev/null
    mv "$place/part.tar" "$base"
}

inside() { chroot "$root" env -i PATH=/usr/bin:/usr/sbin:/bin:/sbin LC_ALL=C.UTF-8 HOME=/root "$@"; }

fail() {
    echo "test-packages: $1" >&2
    exit 1
}

expect() {
    local what=$1 wanted=$2 found
    shift 2
    found=$(inside "$@") || fail "$what: failed, having printed: $found"
    [ "$found" = "$wanted" ] || fail "$what: expected '$wanted', got '$found'"
    echo "$what: $found"
}

# All files but those that are dpkg's own notes and what programs may remember.
list_files() {
    (cd "$root" && find . \( -path ./var/lib/dpkg -o -path ./var/log -o -path ./var/cache \
        -o -path ./work \) -prune -o -print | sort)
}

if [ ! -e "$base" ]; then
    make_base
fi
mkdir "$root"
tar -x -f "$base" -C "$root" --exclude './dev/*'
# No device is needed but this one, and a file can take its place.
: >"$root/dev/null"
chmod 666 "$root/dev/null"

list_files >"$place/before"
mkdir "$root/work"
cp -r tests/install/consumer tests/install/two_ports.s2p "$packages"/*.deb "$root/work"

inside sh -c 'dpkg --install /work/*.deb' >"$place/install.log" 2>&1 ||
    fail "cannot be installed: $(cat "$place/install.log")"

inside sh -c 'cmake -S /work/consumer -B /work/build && cmake --build /work/build' >/dev/null
expect "find_package" 2 /work/build/consumer /work/two_ports.s2p
# The options of pkg-config are several words.
inside sh -c 'g++ -std=c++17 /work/consumer/main.cpp -o /work/by_pkg_config \
    $(pkg-config --cflags --libs touchstone2)'
expect "pkg-config" 2 /work/by_pkg_config /work/two_ports.s2p

expect "check" "/work/two_ports.s2p: valid" \
    sh -c 'touchstone2 check /work/two_ports.s2p | head -n 1'
expect "convert" "[Version] 2.0" sh -c 'touchstone2 convert /work/two_ports.s2p --to v2 -o - |
    grep -F "[Version]"'
for file in man/man1/touchstone2.1.gz man/man1/touchstone2-check.1.gz \
    bash-completion/completions/touchstone2 zsh/vendor-completions/_touchstone2 \
    fish/vendor_completions.d/touchstone2.fish; do
    [ -s "$root/usr/share/$file" ] || fail "no /usr/share/$file"
done

mapfile -t names < <(for package in "$packages"/*.deb; do dpkg-deb --field "$package" Package; done)
inside dpkg --purge "${names[@]}" >"$place/remove.log" 2>&1 ||
    fail "cannot be removed: $(cat "$place/remove.log")"
list_files >"$place/after"
diff "$place/before" "$place/after" || fail "files are left (>) or missing (<)"
echo "test-packages: ${#names[@]} packages installed, used and removed in $SECONDS s"
