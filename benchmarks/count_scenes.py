# SPDX-License-Identifier: Apache-2.0
"""Counts the instructions of panelkit-scenes: the median frame of each scene. They are no multiple
of a copy of the screen, which takes few instructions and waits for the memory.

usage: count_scenes.py VALGRIND PANELKIT_SCENES [COUNTS JSON]

COUNTS is what the plugin of qemu has counted of the same scenes on 64-bit Arm. With it, both stand
side by side, and are written to the file JSON.
"""

import json
import os
import pathlib
import statistics
import sys
import tempfile

from count import named_dumps, run


def counted_here(valgrind, program):
    with tempfile.TemporaryDirectory() as folder:
        dumps = pathlib.Path(folder) / "dumps"
        run([valgrind, "--tool=callgrind", "--quiet", "--instr-atstart=no", "--combine-dumps=yes",
             f"--callgrind-out-file={dumps}", program, "--count"],
            env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "QT_HASH_SEED": "0",
                 "QT_NO_GLIB": "1"})
        return frames_of(named_dumps(dumps))


def counted_by_plugin(path):
    rows = (line.rpartition(" ") for line in path.read_text().splitlines())
    return frames_of((name, int(count)) for name, _, count in rows)


def frames_of(counts):
    """The instructions of each frame, by scene."""
    frames = {}
    for scene, count in counts:
        frames.setdefault(scene, []).append(count)
    return frames


def comparison(arm, here):
    """The medians of the scenes on Arm and on this machine, which play the same frames."""
    numbers = [{scene: len(frames) for scene, frames in of.items()} for of in (arm, here)]
    if numbers[0] != numbers[1]:
        sys.exit(f"other frames on Arm than here: {numbers[0]}, {numbers[1]}")
    return [{"scene": scene, "frames": len(frames), "arm": statistics.median(frames),
             "here": statistics.median(here[scene])} for scene, frames in arm.items()]


def main():
    here = counted_here(*sys.argv[1:3])
    if not here:
        sys.exit("nothing was counted")
    if len(sys.argv) == 3:
        print("| scene | frames | instructions a frame |\n|---|--:|--:|")
        for scene, frames in here.items():
            print(f"| {scene} | {len(frames)} | {statistics.median(frames):.0f} |")
        return
    counts, table = map(pathlib.Path, sys.argv[3:])
    rows = comparison(counted_by_plugin(counts), here)
    table.write_text(json.dumps(rows, indent=1))
    print("| scene | frames | instructions a frame on Arm | here | Arm / here |")
    print("|---|--:|--:|--:|--:|")
    for row in rows:
        print(f"| {row['scene']} | {row['frames']} | {row['arm']:.0f} | {row['here']:.0f} "
              f"| {row['arm'] / row['here']:.2f} |")


if __name__ == "__main__":
    main()
