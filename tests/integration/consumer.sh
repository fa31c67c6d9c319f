#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# What a customer does with PanelKit: installs a build, looks at what came, builds the smallest
# application against it with CMake and with pkg-config, runs both and touches their button.
#
# usage: consumer.sh BUILD_DIR [CXX]
#
# shellcheck disable=SC2046 # what pkg-config prints is meant to be split into words
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "$1" && pwd)
export CXX=${2:-g++}
hello=$source_dir/examples/hello
work=$build/consumer
stage=$work/stage

fail()
{
    echo "consumer: $*" >&2
    exit 1
}

install_build()
{
    rm -rf "$work"
    mkdir -p "$work"
    cmake --install "$build" --prefix "$stage" >"$work/install.log"
    libdir=$(dirname "$(find "$stage" -name libpanelkit.so)")
    headers=$stage/include/panelkit
    library=$libdir/libpanelkit.so
    export PKG_CONFIG_PATH=$libdir/pkgconfig
}

check_library_names()
{
    [[ $(readlink "$library") == libpanelkit.so.1 ]] || fail "libpanelkit.so leads elsewhere"
    [[ $(readlink "$library.1") == libpanelkit.so.1.0.0 ]] || fail "libpanelkit.so.1 leads elsewhere"
    [[ -f $library.1.0.0 && ! -L $library.1.0.0 ]] || fail "libpanelkit.so.1.0.0 is no file"
    readelf -d "$library" | grep 'SONAME.*\[libpanelkit\.so\.1\]' >/dev/null || fail "the SONAME is another"
}

# Every listed class has a header with its own name, and a source that includes nothing but that
# header compiles.
check_headers()
{
    local class classes
    [[ -f $headers/panelkitglobal.h ]] || fail "panelkitglobal.h is not installed"
    mapfile -t classes < <(sed -n 's/^ *ROW(\([A-Za-z]*\),.*/\1/p' "$build/generated/panelkitclasses.h" | sort -u)
    ((${#classes[@]} > 0)) || fail "no class is listed"
    for class in "${classes[@]}"; do
        [[ -f $headers/$class ]] || fail "the header $class is not installed"
        echo "#include <$class>" | "$CXX" -std=c++17 -fPIC -fsyntax-only -x c++ - \
            $(pkg-config --cflags panelkit) || fail "the header $class does not stand alone"
        grep -qE "class PANELKIT_EXPORT $class\b" "$headers"/*.h || fail "no header declares $class"
    done
    [[ ! -e $headers/detail ]] || fail "private headers are installed"
}

# Exported is what the installed headers export, what every linker adds, and, where the compiler did
# not inline them, weak copies of inline functions of Qt and of the standard library.
check_exported_symbols()
{
    local names symbols strays
    names=$(grep -hoE '(class|struct) PANELKIT_EXPORT \w+|PANELKIT_EXPORT \w[^(;]*\(' "$headers"/*.h \
        | grep -oE '\w+\(?$' | tr -d '(' | sort -u | paste -sd'|')
    symbols=$(nm -DC --defined-only "$library" | cut -d' ' -f2-)
    grep -F ' SpIconButton::SpIconButton(' <<<"$symbols" >/dev/null || fail "nothing is exported"
    strays=$(grep -vE '^. (__bss_start|_edata|_end)$' <<<"$symbols" \
        | grep -vE "^. ((vtable|typeinfo|typeinfo name|guard variable) for |(non-)?virtual thunk to )?($names)(::|\(|\$)" \
        | grep -vE '^[VWu] ([^(]* )?(std::|Q[A-Z]|q[A-Z])' || true)
    [[ -z $strays ]] || fail "exported, but in no public header:"$'\n'"$strays"
}

check_undefined_symbols()
{
    local report
    report=$(ldd -r "$library" 2>&1)
    ! grep -E 'undefined symbol|not found' <<<"$report" || fail "the library is incomplete"
}

build_with_cmake()
{
    cmake -G Ninja -S "$hello" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$stage" >"$work/cmake.log"
    cmake --build "$work/cmake" >>"$work/cmake.log"
}

build_with_pkg_config()
{
    mkdir -p "$work/pkg-config"
    "$CXX" -std=c++17 -fPIC -Wall -Wextra -Werror "$hello/main.cpp" -o "$work/pkg-config/hello" \
        $(pkg-config --cflags --libs panelkit)
}

build_probe()
{
    "$CXX" -std=c++17 -fPIC -shared "$source_dir/tests/integration/consumer_probe.cpp" \
        -o "$work/probe.so" $(pkg-config --cflags --libs Qt5Widgets)
}

# A touched application says so, and runs with the library of the stage.
check_hello()
{
    local program=$1 output
    ldd "$program" | grep -F "$libdir/libpanelkit.so.1" >/dev/null \
        || fail "$program runs with another library"
    output=$(timeout 60 env QT_QPA_PLATFORM=offscreen LD_PRELOAD="$work/probe.so" "$program" 2>"$work/hello.log") \
        || fail "$program ended with $?: $(cat "$work/hello.log")"
    [[ $output == "clicked hello" ]] || fail "$program said '$output'"
}

install_build
check_library_names
check_headers
check_exported_symbols
check_undefined_symbols
build_with_cmake
build_with_pkg_config
build_probe
check_hello "$work/cmake/hello"
LD_LIBRARY_PATH=$libdir check_hello "$work/pkg-config/hello"
