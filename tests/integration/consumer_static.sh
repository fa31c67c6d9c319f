#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the library as an archive, installs it, and builds and runs the smallest application
# against it with CMake, with pkg-config and with qmake: none of them needs a shared PanelKit.
#
# usage: consumer_static.sh BUILD_DIR [CXX]
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
export CXX=${2:-g++}
build=$(cd "$1" && pwd)/static
work=$build/consumer
stage=$work/moved/prefix
# shellcheck source=tests/integration/consumertools.sh
source "$source_dir/tests/integration/consumertools.sh"

mkdir -p "$build"
cmake -G Ninja -S "$source_dir" -B "$build" -DBUILD_SHARED_LIBS=OFF >"$build/build.log" 2>&1 \
    && cmake --build "$build" >>"$build/build.log" 2>&1 || fail "$(tail -n 20 "$build/build.log")"
install_build "$build" development
[[ -f $libdir/libpanelkit.a ]] || fail "no archive is installed"
[[ -z $(find "$stage" -name '*.so*') ]] || fail "a shared library is installed with the archive"

build_probe
build_with_cmake
build_with_pkg_config
build_with_qmake
for way in cmake pkg-config qmake; do
    ! ldd "$work/$way/hello" | grep -F libpanelkit || fail "$way: hello wants a shared PanelKit"
    check_hello "$work/$way/hello"
done
