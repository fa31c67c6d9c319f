#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Runs as root in a fresh Debian with the packages in /share: installs, uses and removes them.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
cd /share

fail()
{
    echo "packages: $*" >&2
    exit 1
}

install()
{
    apt-get install --yes "$@" >install.log 2>&1 || fail "$(tail -n 20 install.log)"
}

# Says "clicked hello" when its button is touched.
check_hello()
{
    local said
    said=$(LD_PRELOAD=/share/probe.so timeout 60 "$1")
    [[ $said == "clicked hello" ]] || fail "$1 said '$said'"
}

# What is left of them anywhere, this folder and what dpkg logs aside.
traces()
{
    find / -xdev \( -path /proc -o -path /sys -o -path /share -o -path /var/log \) -prune \
        -o -iname '*panelkit*' -print
}

[[ -z $(traces) ]] || fail "the root is not fresh"

# The library and the applications alone, without anything to build with.
install ./libpanelkit1_*.deb ./panelkit-examples_*.deb
[[ ! -e /usr/bin/c++ && ! -d /usr/include/panelkit ]] || fail "the library brings along too much"
panelkit-catalogue --list >pages.txt || fail "the catalogue does not start"
[[ $(wc -l <pages.txt) -gt 30 ]] || fail "the catalogue has $(wc -l <pages.txt) pages"
panelkit-headunit --help >/dev/null || fail "the head unit does not start"
[[ -f /usr/share/panelkit-headunit/click.wav ]] || fail "the head unit has no sounds"
tr -d '\0' </usr/bin/panelkit-headunit | grep -aF panelkit-headunit/click.wav >/dev/null \
    || fail "the head unit looks for its sounds elsewhere"

# Everything, and a compiler.
install ./*.deb g++ make cmake pkg-config libfontconfig1
for package in *.deb; do
    dpkg --verify "$(dpkg-deb --field "$package" Package)"
done
cp -r /usr/share/doc/panelkit-examples/examples/hello hello
[[ ! -e hello/CMakeLists.txt.gz ]] || fail "the example is compressed"
# shellcheck disable=SC2046 # words
g++ -std=c++17 -fPIC -shared consumer_probe.cpp -o probe.so $(pkg-config --cflags --libs Qt5Widgets)
# shellcheck disable=SC2046 # words
g++ -fPIC hello/main.cpp -o hello-pkg-config $(pkg-config --cflags --libs panelkit)
check_hello ./hello-pkg-config
cmake -S hello -B hello-cmake >cmake.log && cmake --build hello-cmake >>cmake.log \
    || fail "$(cat cmake.log)"
check_hello hello-cmake/hello
mkdir hello-qmake
(cd hello-qmake && QT_SELECT=qt5 qmake ../hello/hello.pro && make) >qmake.log 2>&1 || fail "$(cat qmake.log)"
check_hello hello-qmake/hello
[[ -f $(qmake -qt=qt5 -query QT_INSTALL_PLUGINS)/designer/libpanelkitdesigner.so ]] \
    || fail "Designer does not look where the plugin is"
ldd "$(qmake -qt=qt5 -query QT_INSTALL_PLUGINS)/designer/libpanelkitdesigner.so" | grep 'not found' \
    && fail "the plugin lacks a library"
[[ -f /usr/share/doc/panelkit-doc/html/index.html ]] || fail "there is no start page"

# In any order, and nothing is left.
dpkg --purge panelkit-doc panelkit-designer panelkit-examples libpanelkit-dev libpanelkit1 \
    >remove.log 2>&1 || fail "$(cat remove.log)"
left=$(traces)
[[ -z $left ]] || fail "left behind:"$'\n'"$left"
! ldconfig -p | grep panelkit || fail "the linker still knows the library"
echo "installed, used with CMake, pkg-config and qmake, and removed without a trace"
