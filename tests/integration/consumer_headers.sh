#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Compiles each installed header by itself, as the first and only thing in a source: under the least
# standard and the newest, with GCC and with Clang.
#
# usage: consumer_headers.sh BUILD_DIR
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
build=$(cd "$1" && pwd)
work=$build/consumer_headers
stage=$work/moved/prefix
# shellcheck source=tests/integration/consumertools.sh
source "$source_dir/tests/integration/consumertools.sh"

install_build "$build" development
mapfile -t names < <(find "$headers" -name '*.h' -printf '%f\n' | sort)
((${#names[@]} > 30)) || fail "only ${#names[@]} headers are installed"
read -ra qt < <(pkg-config --cflags Qt5Widgets | sed 's/-I/-isystem /g')
for compiler in g++ clang++; do
    for standard in 11 20; do
        printf '%s\0' "${names[@]}" | xargs -0 -P "$(nproc)" -I '{}' \
            bash -c 'echo "#include <$0>" | "$@" || { echo "$0 does not compile: $1 $2" >&2; exit 1; }' \
            '{}' "$compiler" "-std=c++$standard" -Wall -Wextra -Werror -fPIC -fsyntax-only \
            "-I$headers" "${qt[@]}" -x c++ - || fail "$compiler, C++$standard"
        echo "$compiler, C++$standard: ${#names[@]} headers"
    done
done
