#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Does what docs/from-packages.md says, command by command, in a root that holds Debian and the
# built packages alone. What the screen showed stays in BUILD_DIR/transcript-test/. Wants the
# packages, which packages.sh makes.
#
# usage: transcript.sh BUILD_DIR
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
work=$(cd "$1" && pwd)/transcript-test
debs=$source_dir/build/packages/packages

fail()
{
    echo "transcript: $*" >&2
    exit 1
}

rm -rf "$work"
mkdir -p "$work/share"
cp "$debs"/*.deb "$work/share" || fail "there are no packages"
"$source_dir/tests/integration/transcript.py" "$source_dir/docs/from-packages.md" \
    "$work/share/commands"
cp "$source_dir"/tests/integration/{transcript_root,started}.sh "$work/share"
# shellcheck disable=SC2016 # $1 is the root, which mmdebstrap tells the hooks
mmdebstrap --quiet --variant=apt \
    --aptopt='APT::Install-Recommends "false"' \
    --customize-hook="copy-in $work/share /" \
    --customize-hook='chroot "$1" bash /share/transcript_root.sh' \
    --customize-hook="sync-out /share/screens $work" \
    bookworm /dev/null || fail "in a root of their own"
