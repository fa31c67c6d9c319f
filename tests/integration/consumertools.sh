# shellcheck shell=bash
# SPDX-License-Identifier: Apache-2.0
# What the tests of installed trees share. Whoever sources it has set:
#   source_dir  the sources          work  a folder of the test's own
#   stage       the installed tree   CXX   the compiler
#
# shellcheck disable=SC2046 # what pkg-config prints is meant to be split into words
# shellcheck disable=SC2154 # set by whoever sources this
# shellcheck disable=SC2034 # read by whoever sources this

hello=$source_dir/examples/hello

fail()
{
    echo "$(basename "$0" .sh): $*" >&2
    exit 1
}

# Installs a build and moves the tree away from where it was installed: nothing in it may know its
# own place. usage: install_build BUILD COMPONENT...
install_build()
{
    local build=$1 component
    shift
    rm -rf "$work"
    mkdir -p "$work"
    for component in "$@"; do
        cmake --install "$build" --prefix "$work/installed" --component "$component" \
            >>"$work/install.log"
    done
    mkdir -p "$(dirname "$stage")"
    mv "$work/installed" "$stage"
    libdir=$(dirname "$(find "$stage" -name pkgconfig)")
    headers=$stage/include/panelkit
    export PKG_CONFIG_PATH=$libdir/pkgconfig
    export QMAKEMODULES=$libdir/qt5/mkspecs/modules
}

build_with_cmake()
{
    {
        cmake -G Ninja -S "$hello" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$stage" &&
            cmake --build "$work/cmake"
    } >"$work/cmake.log" 2>&1 || fail "CMake: $(tail -n 20 "$work/cmake.log")"
}

build_with_pkg_config()
{
    mkdir -p "$work/pkg-config"
    "$CXX" -std=c++11 -fPIC -Wall -Wextra -Werror "$hello/main.cpp" -o "$work/pkg-config/hello" \
        $(pkg-config --cflags --libs panelkit)
}

build_with_qmake()
{
    mkdir -p "$work/qmake"
    (cd "$work/qmake" && QT_SELECT=qt5 qmake "$hello/hello.pro" QMAKE_CXX="$CXX" &&
        make) >"$work/qmake.log" 2>&1 || fail "qmake: $(tail -n 20 "$work/qmake.log")"
}

build_probe()
{
    "$CXX" -std=c++17 -fPIC -shared "$source_dir/tests/integration/consumer_probe.cpp" \
        -o "$work/probe.so" $(pkg-config --cflags --libs Qt5Widgets)
}

# A touched application says so.
check_hello()
{
    local program=$1 output
    output=$(timeout 60 env QT_QPA_PLATFORM=offscreen LD_PRELOAD="$work/probe.so" "$program" 2>"$work/hello.log") \
        || fail "$program ended with $?: $(cat "$work/hello.log")"
    [[ $output == "clicked hello" ]] || fail "$program said '$output'"
}
