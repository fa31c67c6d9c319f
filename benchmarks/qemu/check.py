# SPDX-License-Identifier: Apache-2.0
"""Looks whether the plugin of qemu counts right: loops of a known length, nothing behind a mark,
and nothing of another thread.

usage: check.py PLUGIN GUEST QEMU...
"""

import pathlib
import subprocess
import sys
import tempfile

TURNS = 1_000_000
MARK = 200  # instructions that setting marks may take
THREAD = 200_000  # that making a thread may take

# Names in their order, the least and the most of the instructions.
EXPECTED = {
    "once": (2 * TURNS, 2 * TURNS + MARK),
    "a name that fills the whole room that a mark has": (4 * TURNS, 4 * TURNS + MARK),
    "in another thread": (1, THREAD),
}


def main():
    plugin, guest, *qemu = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        counts = pathlib.Path(folder) / "counts"
        subprocess.run([*qemu, "-plugin", f"{plugin},to={counts}", guest, str(TURNS)], check=True)
        lines = counts.read_text().splitlines()
    print("\n".join(lines))
    found = [(name, int(count)) for name, _, count in (line.rpartition(" ") for line in lines)]
    if [name for name, _ in found] != list(EXPECTED):
        sys.exit("other names than expected")
    for name, count in found:
        least, most = EXPECTED[name]
        if not least <= count <= most:
            sys.exit(f"{name}: {count} instructions, not {least} to {most}")


if __name__ == "__main__":
    main()
