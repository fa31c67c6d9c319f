#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Runs as root in a fresh Debian: the commands in /share/commands, in one shell, as a reader would
# give them. A program that they leave in the background has to show a window; Designer has to have
# the plugin, and the program is touched with the mouse of the display.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
XDG_RUNTIME_DIR=$(mktemp -d)
export XDG_RUNTIME_DIR
readonly patience=120 # s
readonly radio_button=(90 120) # px, its middle in the window
mkdir -p /share/screens
cd /share

fail()
{
    echo "transcript, block $block: $*" >&2
    tail -n 20 "/share/$block.out" "/share/$block.log" >&2
    exit 1
}

# shellcheck source-path=SCRIPTDIR source=started.sh
. /share/started.sh

# Waits until a command succeeds.
await()
{
    local end=$((SECONDS + patience))
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < end)) || return 1
        sleep 0.2
    done
}

ends_with_what_it_says()
{
    local said
    said=$(<"/share/commands/$block.says")
    [[ $(tail -n "$(wc -l <"/share/commands/$block.says")" "/share/$block.out") == "$said" ]]
}

# A display, and a hand. They come after the first block, which installs what the page needs.
start_display()
{
    apt-get install --yes xvfb xdotool scrot fonts-dejavu-core >/share/display.log 2>&1
    mkfifo /share/display
    Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>/share/display 2>/share/xvfb.log &
    started+=($!)
    read -r DISPLAY </share/display || fail "no display"
    export DISPLAY=:$DISPLAY
}

# What the block has left in the background, by its process.
use()
{
    started+=("$1")
    await xdotool search --onlyvisible --pid "$1" || fail "no window"
    if [[ $(readlink "/proc/$1/exe") == */designer ]]; then
        await grep -q libpanelkitdesigner "/proc/$1/maps" || fail "Designer does not have the plugin"
        sleep 2 # until all of it is painted, for the picture
    else
        xdotool mousemove --window "$(xdotool search --onlyvisible --pid "$1" | tail -n 1)" \
            "${radio_button[@]}" click 1
        await ends_with_what_it_says || fail "the touch was to write what the page says"
    fi
    scrot "/share/screens/$block.png"
    kill "$1"
    wait "$1" || true
}

for commands in /share/commands/*.sh; do
    block=$(basename "$commands" .sh)
    # shellcheck source=/dev/null
    source "$commands" >"/share/$block.out" 2>"/share/$block.log" || fail "a command fails"
    [[ ${#started[@]} -gt 0 ]] || start_display
    if [[ $(tail -n 1 "$commands") == *'&' ]]; then
        use $!
    elif [[ -f /share/commands/$block.says ]]; then
        ends_with_what_it_says || fail "writes something else than the page says"
    fi
done
echo "$((10#$block)) blocks of commands do what the page says"
