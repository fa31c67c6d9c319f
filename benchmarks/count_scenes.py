# SPDX-License-Identifier: Apache-2.0
"""Counts the instructions of panelkit-scenes: the median frame of each scene. They are no multiple
of a copy of the screen, which takes few instructions and waits for the memory.

usage: count_scenes.py VALGRIND PANELKIT_SCENES
"""

import os
import pathlib
import statistics
import sys
import tempfile

from count import named_dumps, run


def main():
    valgrind, program = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        dumps = pathlib.Path(folder) / "dumps"
        run([valgrind, "--tool=callgrind", "--quiet", "--instr-atstart=no", "--combine-dumps=yes",
             f"--callgrind-out-file={dumps}", program],
            env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "QT_HASH_SEED": "0"})
        counts = {}
        for name, total in named_dumps(dumps):
            counts.setdefault(name, []).append(total)
    print("| scene | frames | instructions a frame |\n|---|--:|--:|")
    for name, frames in counts.items():
        scene, _, what = name.rpartition("/")
        if what == "frame" and scene:
            print(f"| {scene} | {len(frames)} | {statistics.median(frames):.0f} |")


if __name__ == "__main__":
    main()
