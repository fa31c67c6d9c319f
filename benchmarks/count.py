# SPDX-License-Identifier: Apache-2.0
"""Counts the instructions of panelkit-bench's rows, and holds the rows to their limits.

Prints the table of the rows, by instructions a step. Fails where a row exceeds a limit that it
declares, or takes 5 % more than the count on record. From run to run a count differs by up to
1.4 %, by where memory happens to lie; a ratio to the blit by up to 2.0 %. With another vector
unit, both differ by more than twice (a picture's copy takes 2.8 times the instructions without
AVX2). So the counts themselves are recorded, with what they depend on besides, and are compared
with nothing else.
"""

import argparse
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

TOLERANCE = 1.05  # of the count on record


def parsed_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--record", action="store_true", help="records the counts")
    parser.add_argument("--json", help="file to which the table is written")
    parser.add_argument("valgrind")
    parser.add_argument("program")
    parser.add_argument("kept", type=pathlib.Path, help="file of the counts on record")
    parser.add_argument("names", nargs="?", default="", help="regular expression: only these rows")
    return parser.parse_args()


def run(arguments, **how):
    """The standard output of a command."""
    result = subprocess.run(arguments, stdout=subprocess.PIPE, text=True, check=False, **how)
    if result.returncode != 0:
        sys.exit(f"{arguments[0]} failed with {result.returncode}")
    return result.stdout


def counted(options, environment, folder):
    """What the program says of the rows, and the instructions a step of each thing in them."""
    dumps = folder / "dumps"
    said = json.loads(run(
        [options.valgrind, "--tool=callgrind", "--quiet", "--instr-atstart=no",
         "--combine-dumps=yes", f"--callgrind-out-file={dumps}", options.program,
         f"--instructions={options.names}"], env=environment))
    return said, {name: round(total / said["steps"][name]) for name, total in named_dumps(dumps)}


def named_dumps(dumps):
    """The name and the instructions of each dump that a program has asked for."""
    for part in re.split(r"^part: ", dumps.read_text(), flags=re.MULTILINE):
        name = re.search(r"^desc: Trigger: Client Request: (.+)$", part, re.MULTILINE)
        if name:
            yield name[1], int(re.search(r"^totals: (\d+)$", part, re.MULTILINE)[1])


def above_limits(comparisons, counts):
    for comparison in comparisons:
        limit = comparison.get("limit")
        ratio = counts[comparison["ours"]] / counts[comparison["against"]]
        if limit is not None and ratio > limit:
            row, _, rival = comparison["against"].rpartition("/")
            yield f"{row} takes {ratio:.3f} times the instructions of {rival}, more than {limit}"


def read_record(path):
    """What the counts on record depend on, and the counts."""
    if not path.exists():
        return "", {}
    place, *lines = path.read_text().splitlines()
    rows = (line.rpartition(" ") for line in lines)
    return place.removeprefix("# "), {row: int(count) for row, _, count in rows}


def differing(ours, kept, is_whole):
    """What is worse than on record, or not on it; and what is better."""
    worse = [f"{row} is not on record" for row in ours if row not in kept]
    better = []
    for row, count in kept.items():
        if row not in ours:
            worse += [f"{row} is on record, but is no row"] if is_whole else []
        elif ours[row] > count * TOLERANCE:
            worse.append(f"{row} takes {ours[row]} instructions, {ours[row] / count:.3f} times the "
                         f"{count} on record")
        elif ours[row] * TOLERANCE < count:
            better.append(f"{row} takes {ours[row]} instructions, {ours[row] / count:.3f} times "
                          f"the {count} on record")
    return worse, better


def record(path, place, counts):
    lines = [f"{row} {count}\n" for row, count in sorted(counts.items())]
    path.write_text("".join([f"# {place}\n", *lines]))


def main():
    options = parsed_arguments()
    if options.record and options.names:
        sys.exit("only all rows are recorded: a small step takes up to a fifth less where some of "
                 "the rows before it are left out")
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "QT_HASH_SEED": "0"}
    with tempfile.TemporaryDirectory() as name:
        said, counts = counted(options, environment, pathlib.Path(name))
        if not counts:
            sys.exit("nothing was counted")
        table = pathlib.Path(name) / "counts.json"
        table.write_text(json.dumps(counts))
        json_option = [f"--json={options.json}"] if options.json else []
        print(run([options.program, f"--counts={table}", *json_option], env=environment))

    wrong = list(above_limits(said["comparisons"], counts))
    ours = {name.removesuffix("/ours"): n for name, n in counts.items() if name.endswith("/ours")}
    place, kept = read_record(options.kept)
    if options.record:
        record(options.kept, said["place"], ours)
    elif place != said["place"]:
        print(f"Not compared with the counts on record: they are of {place}, not {said['place']}.")
    else:
        worse, better = differing(ours, kept, not options.names)
        wrong += worse
        if not options.names:
            print("".join(f"{line}: ./bench count --record\n" for line in better), end="")
    if wrong:
        sys.exit("\n".join(wrong))


if __name__ == "__main__":
    main()
