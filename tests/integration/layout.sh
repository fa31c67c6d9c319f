#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Compiles the library once more with debug information, which says how each class is laid out, and
# compares that with the layouts that were promised.
#
# usage: layout.sh BUILD_DIR
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "$1" && pwd)/layout
command=${2:-layout}

if [[ $(uname -m) != x86_64 ]]; then
    echo "layout: the layouts were recorded on x86_64; this is $(uname -m)"
    exit 77
fi
mkdir -p "$build"
cmake -G Ninja -S "$source_dir" -B "$build" -DPANELKIT_DESIGNER=OFF -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_FLAGS_DEBUG="-g -O0" -DCMAKE_CXX_COMPILER=g++ >"$build/build.log"
cmake --build "$build" --target panelkit >>"$build/build.log" || {
    tail -n 20 "$build/build.log" >&2
    exit 1
}
"$source_dir/tools/interface" "$command" "$build/src/libpanelkit.so"
