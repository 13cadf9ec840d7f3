#!/usr/bin/env bash
# Makes all packages from what is committed, in build/package, and installs what
# that needs:
#
#   touchstone2-VERSION-source.tar.gz   the tracked files
#   touchstone2-VERSION-Linux.tar.gz    library, headers and tool, for any prefix
#   three Debian packages               the library, its development files, the tool
#
#   package.sh [--test]
#
# Everything is built from the source archive, which so is seen to be complete. With
# --test its tests are built and run, too.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

tests=OFF
case "${1-}" in
    "") ;;
    --test) tests=ON ;;
    *)
        echo "usage: scripts/package.sh [--test]" >&2
        exit 2
        ;;
esac

scripts/setup.sh package
if [ "$tests" = ON ]; then
    scripts/setup.sh check
fi
if [ -n "$(git status --porcelain)" ]; then
    echo "package: what is not committed is not packed" >&2
fi

# Changelogs have the commit's date.
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH

place=$PWD/build/package
work=$place/work
rm -rf "$place"
mkdir -p "$work/source"

commit=$(git rev-parse HEAD)
git archive --format=tar "$commit" | tar -x -C "$work/source"
# The public header is where the version stands.
version=$(sed -n 's/^#define TOUCHSTONE2_VERSION_\(MAJOR\|MINOR\|PATCH\) \([0-9]\+\)$/\2/p' \
    "$work/source/include/touchstone2/version.h" | paste -sd .)
git archive --format=tar --prefix="touchstone2-$version/" "$commit" |
    gzip -9n >"$place/touchstone2-$version-source.tar.gz"

# Debian's flags, without debugging information; the library has to be found at its place.
export DEB_BUILD_MAINT_OPTIONS="hardening=+bindnow"
export DEB_CXXFLAGS_MAINT_STRIP="-g"
flags="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)"

# configure_and_build OPTION...: again in the same folder, when only places differ.
configure_and_build() {
    cmake -S "$work/source" -B "$work/build" -G Ninja \
        -DCMAKE_CXX_COMPILER=g++ -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_FLAGS="$flags -ffile-prefix-map=$work=." \
        -DCMAKE_SHARED_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" \
        -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" \
        -DTOUCHSTONE2_TESTS="$tests" -DTOUCHSTONE2_BINDING=OFF -DTOUCHSTONE2_EXAMPLES="$tests" \
        "$@"
    cmake --build "$work/build"
}
# pack KIND: without cpack's own reports but when it fails.
pack() {
    (cd "$work/build" && cpack -B "$work/$1") >"$work/$1.log" 2>&1 || {
        cat "$work/$1.log" >&2
        return 1
    }
}

configure_and_build -DTOUCHSTONE2_DEBIAN=OFF -DCMAKE_SKIP_INSTALL_RPATH=OFF \
    -DCMAKE_INSTALL_PREFIX=/usr/local -DCMAKE_INSTALL_LIBDIR=lib \
    -DTOUCHSTONE2_ZSH_COMPLETIONS=share/zsh/site-functions
if [ "$tests" = ON ]; then
    ctest --test-dir "$work/build" --output-on-failure -j "$(nproc)"
fi
pack archive
cp "$work"/archive/*.tar.gz "$place"

configure_and_build -DTOUCHSTONE2_DEBIAN=ON -DCMAKE_SKIP_INSTALL_RPATH=ON \
    -DCMAKE_INSTALL_PREFIX=/usr \
    -DCMAKE_INSTALL_LIBDIR="lib/$(dpkg-architecture -q DEB_HOST_MULTIARCH)" \
    -DTOUCHSTONE2_ZSH_COMPLETIONS=share/zsh/vendor-completions
pack debian
cp "$work"/debian/*.deb "$place"

# Not meant for Debian's own archive: there is no report to close and no public address.
not_wanted=initial-upload-closes-no-bugs,bogus-mail-host,bogus-mail-host-in-debian-changelog
lintian --allow-root --fail-on error,warning --suppress-tags "$not_wanted" \
    --tag-display-limit 0 "$place"/*.deb

echo "packages:"
(cd "$place" && ls -- *.tar.gz *.deb)
