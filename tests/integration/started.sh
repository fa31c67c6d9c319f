# shellcheck shell=bash
# SPDX-License-Identifier: Apache-2.0
# Ends with the script that sources it what stands in `started` by then: processes by their ids.
started=()
stop()
{
    local process
    for process in "${started[@]}"; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
}
trap stop EXIT
