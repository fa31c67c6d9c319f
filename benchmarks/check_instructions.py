# SPDX-License-Identifier: Apache-2.0
"""Holds the rows of panelkit-bench to their limits by counting instructions.

usage: check_instructions.py VALGRIND PANELKIT_BENCH [REGEX]

Prints every comparison and fails when one exceeds the limit that its row declares.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile


def run_counted(valgrind, program, names, folder):
    """Runs the rows of these names under Callgrind; their comparisons, and the instructions of each
    dump."""
    dumps = pathlib.Path(folder) / "dumps"
    run = subprocess.run(
        [valgrind, "--tool=callgrind", "--quiet", "--instr-atstart=no", "--combine-dumps=yes",
         f"--callgrind-out-file={dumps}", program, f"--instructions={names}"],
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen", "QT_HASH_SEED": "0"},
        stdout=subprocess.PIPE, check=False)
    if run.returncode != 0:
        sys.exit(f"{program} failed with {run.returncode}")
    return json.loads(run.stdout), read_counts(dumps.read_text())


def read_counts(dumps):
    """The instructions of each named dump in a file of combined dumps."""
    counts = {}
    for part in re.split(r"^part: ", dumps, flags=re.MULTILINE):
        name = re.search(r"^desc: Trigger: Client Request: (.+)$", part, re.MULTILINE)
        if name:
            counts[name[1]] = int(re.search(r"^totals: (\d+)$", part, re.MULTILINE)[1])
    return counts


def report(comparisons, counts):
    """Prints a table of the comparisons; those that exceed their limits."""
    exceeded = []
    print("| ours | against | instructions | of the other | ratio | limit |")
    print("|---|---|--:|--:|--:|--:|")
    for comparison in comparisons:
        ours, other = counts[comparison["ours"]], counts[comparison["against"]]
        ratio, limit = ours / other, comparison.get("limit")
        row, _, rival = comparison["against"].rpartition("/")
        print(f"| {row} | {rival} | {ours} | {other} | {ratio:.3f} | {limit or '-'} |")
        if limit is not None and ratio > limit:
            exceeded.append(f"{row} takes {ratio:.3f} times the instructions of {rival}, "
                            f"more than {limit}")
    return exceeded


def main():
    valgrind, program, names = (sys.argv[1:] + [""])[:3]
    with tempfile.TemporaryDirectory() as folder:
        comparisons, counts = run_counted(valgrind, program, names, folder)
    if not comparisons:
        sys.exit("nothing was compared")
    exceeded = report(comparisons, counts)
    if exceeded:
        sys.exit("\n".join(exceeded))


if __name__ == "__main__":
    main()
