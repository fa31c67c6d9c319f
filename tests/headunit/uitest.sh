#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# usage: uitest.sh <panelkit-headunit> [unittest's arguments]: the UI tests, on a display and with
# buses of their own.
set -euo pipefail

runtime=$(mktemp -d)
trap 'rm -rf "$runtime"' EXIT
export XDG_RUNTIME_DIR=$runtime QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
unset AT_SPI_BUS_ADDRESS DISPLAY
# The bus begins on the display: whoever moves the pointer there is started by the bus.
xvfb-run --auto-servernum --server-args="-screen 0 1024x600x24" \
    dbus-run-session -- /usr/bin/python3 -W ignore::DeprecationWarning \
    "$(dirname "$0")/uitest.py" "$@"
