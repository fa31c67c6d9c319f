#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Makes the source tarball and the Debian packages, and makes the packages again from the tarball:
# both have to be the same. lintian has nothing to say about them. In a root of its own, thrown away
# afterwards, they are installed with all they need and nothing else, used, and removed without a
# trace. Needs to be root there, which mmdebstrap sees to, and Debian's mirror.
#
# usage: packages.sh BUILD_DIR
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
work=$(cd "$1" && pwd)/packages-test
packages=(libpanelkit1 libpanelkit-dev panelkit-designer panelkit-examples panelkit-doc)

fail()
{
    echo "packages: $*" >&2
    exit 1
}

# The second build takes what the first compiled, but for what depends on its place.
export CCACHE_BASEDIR=$source_dir CCACHE_NOHASHDIR=1
SOURCE_DATE_EPOCH=$(date -d "$(sed -n 's/^ -- .*>  //p' "$source_dir/packaging/debian/changelog")" +%s)
export SOURCE_DATE_EPOCH

# usage: make_packages SOURCE_DIR
make_packages()
{
    local log=$work/build.log
    (cd "$1" && rm -rf build/packages/docs/html build/packages/packages && cmake --preset packages && cmake --build --preset packages \
        && cd build/packages && cpack) >"$log" 2>&1 \
        || fail "$(tail -n 30 "$log")"
}

# usage: unpack DIRECTORY_OF_DEBS OUT
unpack()
{
    local package
    for package in "${packages[@]}"; do
        mkdir -p "$2/$package"
        dpkg-deb -R "$1/$package"_*.deb "$2/$package"
    done
}

rm -rf "$work"
mkdir -p "$work"

make_packages "$source_dir"
(cd "$source_dir/build/packages" && cpack --config CPackSourceConfig.cmake) >"$work/source.log" 2>&1 \
    || fail "$(tail -n 30 "$work/source.log")"
debs=$source_dir/build/packages/packages
tarball=$(find "$debs" -maxdepth 1 -name 'panelkit-*.tar.gz')
[[ -n $tarball ]] || fail "there is no tarball"
for package in "${packages[@]}"; do
    [[ -f $(find "$debs" -maxdepth 1 -name "${package}_*.deb") ]] || fail "there is no $package"
done
[[ $(find "$debs" -maxdepth 1 -name '*.deb' | wc -l) == "${#packages[@]}" ]] || fail "there are other packages"

tar -C "$work" -xzf "$tarball"
unpacked=$work/$(basename "$tarball" .tar.gz)
[[ ! -e $unpacked/build && ! -e $unpacked/.git ]] || fail "the tarball holds more than sources"
make_packages "$unpacked"
unpack "$debs" "$work/tree"
unpack "$unpacked/build/packages/packages" "$work/tarball"
diff -r --no-dereference "$work/tree" "$work/tarball" || fail "the tarball builds something else"
echo "the tarball and the tree build the same ${#packages[@]} packages"

root_flag=()
[[ $(id -u) != 0 ]] || root_flag=(--allow-root)
lintian "${root_flag[@]}" --fail-on error,warning --tag-display-limit 0 "$debs"/*.deb \
    || fail "lintian has something to say"
echo "lintian says nothing"

# The root holds Debian alone. What happens in it is packages_root.sh.
mkdir -p "$work/share"
cp "$debs"/*.deb "$source_dir/tests/integration/consumer_probe.cpp" \
    "$source_dir/tests/integration/packages_root.sh" "$work/share"
mmdebstrap --quiet --variant=apt \
    --aptopt='APT::Install-Recommends "false"' \
    --customize-hook="copy-in $work/share /" \
    --customize-hook='chroot "$1" bash /share/packages_root.sh' \
    bookworm /dev/null || fail "in a root of their own"
