#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Opens a form with every widget in the real Designer, on a display of its own, and drags a widget
# from the box to the form with the mouse of that display. Pictures of the screen stay in
# BUILD_DIR/designer-test/.
#
# usage: designer.sh BUILD_DIR PLUGIN FORM
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/../.." && pwd)
work=$(cd "$1" && pwd)/designer-test
plugin=$2
form=$3
# All but the form itself.
count=$(($(grep -c '<widget ' "$form") - 1))

fail()
{
    echo "designer: $*" >&2
    [[ ! -s $work/designer.log ]] || tail -n 20 "$work/designer.log" >&2
    exit 1
}

# shellcheck source-path=SCRIPTDIR source=started.sh
. "$source_dir/tests/integration/started.sh"

rm -rf "$work"
mkdir -p "$work/plugins/designer" "$work/home"
chmod 700 "$work/home"
ln -s "$plugin" "$work/plugins/designer/"
# shellcheck disable=SC2046 # words
g++ -std=c++17 -O0 -fPIC -shared "$source_dir/tests/integration/designer_probe.cpp" \
    -o "$work/probe.so" $(pkg-config --cflags --libs Qt5Designer)

mkfifo "$work/display" "$work/said"
Xvfb -displayfd 3 -screen 0 1900x1100x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
started+=($!)
read -r display <"$work/display" || fail "no display: $(cat "$work/xvfb.log")"
export DISPLAY=:$display

# A home of its own: neither settings nor plugins of whoever runs this.
env HOME="$work/home" XDG_CONFIG_HOME="$work/home" XDG_RUNTIME_DIR="$work/home" LC_ALL=C.UTF-8 \
    QT_QPA_PLATFORM=xcb QT_PLUGIN_PATH="$work/plugins" LD_PRELOAD="$work/probe.so" \
    PROBE_FOLDER="$work" PROBE_COUNT="$count" PROBE_SPACE=695,840 \
    timeout 120 "$(pkg-config --variable=host_bins Qt5Core)/designer" "$form" \
    >"$work/said" 2>"$work/designer.log" &
started+=($!)

end=nothing
while read -r word rest; do
    echo "$word $rest"
    end=$word
    [[ $word == drag ]] || continue
    # Down on the widget in the box, some way, there, and up: each step is a real event.
    read -r x y to_x to_y <<<"$rest"
    xdotool mousemove "$x" "$y" sleep 0.3 mousedown 1 sleep 0.3
    for part in 1 2 3 4 5 6 7 8; do
        xdotool mousemove $((x + (to_x - x) * part / 8)) $((y + (to_y - y) * part / 8)) sleep 0.1
    done
    xdotool mousemove $((to_x + 2)) "$to_y" sleep 0.3 mouseup 1
done <"$work/said"
[[ $end == "done" ]] || fail "Designer's last word: $end"

# What Designer would save has the widget, with the size and the texts that a new one begins with.
python3 - "$work/saved.ui" <<'PYTHON' || fail "the saved form"
import sys
import xml.etree.ElementTree as tree

form = tree.parse(sys.argv[1])
dropped = form.find(".//widget[@name='spIconButton']")
assert dropped is not None and dropped.get("class") == "SpIconButton", "the widget is not there"
assert dropped.findtext("property[@name='displayText']/string") == "Button", "it has no caption"
assert dropped.findtext("property[@name='geometry']/rect/width") == "120", "it has another size"
PYTHON
