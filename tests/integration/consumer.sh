#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# What a customer does with PanelKit: installs a build, looks at what came, builds the smallest
# application against it with CMake, with pkg-config and with qmake, runs each and touches its button.
#
# usage: consumer.sh BUILD_DIR [CXX]
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "$1" && pwd)
export CXX=${2:-g++}
work=$build/consumer
stage=$work/moved/prefix
# shellcheck source=tests/integration/consumertools.sh
source "$source_dir/tests/integration/consumertools.sh"

# The version that CMake knows is the only one there is.
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
major=${version%%.*}

check_library_names()
{
    local library=$libdir/libpanelkit.so
    [[ $(readlink "$library") == libpanelkit.so.$major ]] || fail "libpanelkit.so leads elsewhere"
    [[ $(readlink "$library.$major") == libpanelkit.so.$version ]] \
        || fail "libpanelkit.so.$major leads elsewhere"
    [[ -f $library.$version && ! -L $library.$version ]] || fail "libpanelkit.so.$version is no file"
    readelf -d "$library" | grep "SONAME.*\[libpanelkit\.so\.$major\]" >/dev/null \
        || fail "the SONAME is another"
}

# Every listed class has a header with its own name, which leads to the one that declares it.
check_header_names()
{
    local class classes
    [[ -f $headers/panelkitglobal.h ]] || fail "panelkitglobal.h is not installed"
    mapfile -t classes < <(sed -n 's/^ *ROW(\([A-Za-z]*\),.*/\1/p' "$build/generated/panelkitclasses.h" | sort -u)
    ((${#classes[@]} > 0)) || fail "no class is listed"
    for class in "${classes[@]}"; do
        [[ -f $headers/$class ]] || fail "the header $class is not installed"
        grep -qE "class PANELKIT_EXPORT $class\b" \
            "$headers/$(sed -n 's/^#include "\(.*\)"$/\1/p' "$headers/$class")" \
            || fail "the header $class does not declare it"
    done
    [[ ! -e $headers/detail ]] || fail "private headers are installed"
}

# All of them together, under the least standard and the newest. That each stands alone follows from
# where the library's own sources include it: first. consumer_headers.sh compiles each by itself, which
# takes a minute or more.
check_standards()
{
    local standard name
    for name in "$headers"/*.h; do
        name=$(basename "$name" .h)
        [[ $name == panelkitglobal ]] \
            || [[ $(grep -m1 '^#include' "$source_dir/src/$name.cpp") == "#include \"$name.h\"" ]] \
            || fail "$name.cpp does not include its header first"
    done
    for standard in 11 20; do
        # shellcheck disable=SC2046 # words
        find "$headers" -name '*.h' -printf '#include <%f>\n' | sort \
            | "$CXX" "-std=c++$standard" -Wall -Wextra -Werror -fPIC -fsyntax-only -x c++ - \
                -I"$headers" $(pkg-config --cflags Qt5Widgets | sed 's/-I/-isystem /g') \
            || fail "the headers do not compile as C++$standard"
    done
}

# Exported is what the installed headers export, what every linker adds, and, where the compiler did
# not inline them, weak copies of inline functions of Qt and of the standard library.
check_exported_symbols()
{
    local names symbols strays
    names=$(grep -hoE '(class|struct) PANELKIT_EXPORT \w+|PANELKIT_EXPORT \w[^(;]*\(' "$headers"/*.h \
        | grep -oE '\w+\(?$' | tr -d '(' | sort -u | paste -sd'|')
    symbols=$(nm -DC --defined-only "$libdir/libpanelkit.so" | cut -d' ' -f2-)
    grep -F ' SpIconButton::SpIconButton(' <<<"$symbols" >/dev/null || fail "nothing is exported"
    strays=$(grep -vE '^. (__bss_start|_edata|_end)$' <<<"$symbols" \
        | grep -vE "^. ((vtable|typeinfo|typeinfo name|guard variable) for |(non-)?virtual thunk to )?($names)(::|\(|\$)" \
        | grep -vE '^[VWu] ([^(]* )?(std::|Q[A-Z]|q[A-Z])' || true)
    [[ -z $strays ]] || fail "exported, but in no public header:"$'\n'"$strays"
}

check_undefined_symbols()
{
    local report
    report=$(ldd -r "$libdir/libpanelkit.so" 2>&1)
    ! grep -E 'undefined symbol|not found' <<<"$report" || fail "the library is incomplete"
}

# The three descriptions say the same version, and none of them where it was installed.
check_descriptions()
{
    local said
    said=$(pkg-config --modversion panelkit)
    [[ $said == "$version" ]] || fail "pkg-config says version $said"
    grep -qx "QT.panelkit.VERSION = $version" "$QMAKEMODULES/qt_lib_panelkit.pri" \
        || fail "qmake's module has another version"
    cmake -S "$source_dir/tests/integration/consumer_versions" -B "$work/versions" \
        -DCMAKE_PREFIX_PATH="$stage" -DVERSION="$version" >"$work/versions.log" 2>&1 \
        || fail "CMake's package: $(cat "$work/versions.log")"
    ! grep -rlF -e "$work/installed" -e "$build" "$libdir/cmake" "$libdir/pkgconfig" "$libdir/qt5/mkspecs" \
        || fail "these know where they were installed"
}

check_uses_installed()
{
    ldd "$1" | grep -F "$libdir/libpanelkit.so.$major" >/dev/null || fail "$1 runs with another library"
}

components=(runtime development)
[[ ! -d $build/designer ]] || components+=(designer)
install_build "$build" "${components[@]}"
check_library_names
check_header_names
check_standards
check_exported_symbols
check_undefined_symbols
check_descriptions
build_probe
build_with_cmake
check_uses_installed "$work/cmake/hello"
check_hello "$work/cmake/hello"
build_with_pkg_config
build_with_qmake
export LD_LIBRARY_PATH=$libdir
for way in pkg-config qmake; do
    check_uses_installed "$work/$way/hello"
    check_hello "$work/$way/hello"
done
