# SPDX-License-Identifier: Apache-2.0
"""Changes the library's sources in one small way after another, and looks whether a test notices.

usage: tools/mutants [--count N] [--seed N] [--again] [class or file...]

Takes N changes (1000) at random of those of the named classes and files of src/, or of all, and runs
the unit tests that belong to the changed file. What no test notices is printed; all of them stand in
build/mutants/report.txt. With --again, those that no test noticed the last time.
"""

import argparse
import collections
import concurrent.futures
import os
import pathlib
import random
import re
import sys

import render
import sites
import workshop

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = ROOT / "build" / "mutants"
REPORT = FOLDER / "report.txt"
EXPLAINED = pathlib.Path(__file__).with_name("explained.txt")
LEAST_SHARE = 0.95  # of the changes that should be noticed
NOT_NOTICED, NOTICED, IMPOSSIBLE = "SURVIVED", "noticed", "does not compile"


def line_of(shop, site, result):
    """What the report says of a site."""
    return f"{result:16} {site.describe(shop.source(site.path))}"


def explanations():
    """Why no test can notice a change: by the file and its line, and by what is changed there."""
    text = re.sub(r"^#.*\n", "", EXPLAINED.read_text(encoding="utf-8"), flags=re.MULTILINE)
    blocks = [block.split("\n") for block in text.strip().split("\n\n")]
    return {(place, change.strip()): why.strip() for place, change, why in filter(any, blocks)}


def unnoticed(shop, found):
    """Those that the last report says no test noticed."""
    lines = set(REPORT.read_text(encoding="utf-8").splitlines())
    return sorted(site for site in found if line_of(shop, site, NOT_NOTICED) in lines)


def chosen_sites(shop, arguments):
    """The sites to try, numbered from 1."""
    wanted = {name.lower() for name in arguments.names}
    sources = [str(path.relative_to(ROOT)) for path in sorted((ROOT / "src").rglob("*.cpp"))]
    if wanted:
        known = {path.stem for path in (ROOT / "src").rglob("*.*")}
        if wanted - known:
            sys.exit(f"nothing in src/ is called {', '.join(sorted(wanted - known))}")
    found = [site for site in sites.find(sources, shop.tree, shop.arguments)
             if not wanted or pathlib.Path(site.path).stem in wanted]
    if arguments.again:
        sample = unnoticed(shop, found)
    else:
        sample = sorted(random.Random(arguments.seed).sample(
            found, min(arguments.count, len(found))))
    print(f"{len(sample)} of {len(found)} possible changes")
    return list(enumerate(sample, 1))


def by_file(numbered):
    files = collections.defaultdict(list)
    for number, site in numbered:
        files[site.path].append((number, site))
    return files


def write_choices(shop, numbered):
    """Builds with all changes to choose from; those that need to be compiled alone."""
    shop.write("mutant.h", render.CHOICE)
    include = f'#include "{shop.tree / "mutant.h"}"\n'
    alone, kept = [], {}
    for path, pairs in by_file(numbered).items():
        kept[path], crossing = render.without_crossings(pairs)
        alone += crossing
    while True:
        for path, pairs in kept.items():
            shop.write(path, include + render.with_choices(shop.source(path), pairs))
        errors = shop.compile("tests/all")
        if errors is None:
            return alone
        refused = refused_numbers(shop, errors) or in_headers(kept)
        if not refused:
            sys.exit(f"does not build: {sorted(errors)[:5]}")
        for path, pairs in kept.items():
            alone += [pair for pair in pairs if pair[0] in refused]
            kept[path] = [pair for pair in pairs if pair[0] not in refused]


def refused_numbers(shop, errors):
    """The changes that stand nearest to the places of the errors, in the same file."""
    numbers = set()
    for path, line in errors:
        lines = (shop.tree / path).read_text(encoding="latin-1").split("\n")
        found = {index: re.findall(r"panelkitMutant\((\d+)\)", text)
                 for index, text in enumerate(lines, 1) if "panelkitMutant(" in text}
        if found:
            nearest = min(found, key=lambda index: (abs(index - line), index > line))
            numbers.update(map(int, found[nearest]))
    return numbers


def in_headers(kept):
    """The changes that may be wrong where nothing is changed: in a default argument's caller."""
    return {number for path, pairs in kept.items() if path.endswith(".h") for number, _ in pairs}


def is_noticed(shop, number, path):
    return any(not shop.passes(test, number) for test in shop.tests_of(path))


def try_alone(shop, number, site):
    """Builds with this change alone."""
    shop.write(site.path, render.with_one(shop.source(site.path), site))
    try:
        if shop.compile("panelkit", *shop.tests_of(site.path)) is not None:
            return IMPOSSIBLE
        return NOTICED if is_noticed(shop, number, site.path) else NOT_NOTICED
    finally:
        shop.write(site.path, shop.source(site.path))


def check_unchanged(shop, numbered):
    """Measures the tests, which have to pass without a change."""
    tests = sorted({test for path in by_file(numbered) for test in shop.tests_of(path)})
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for test, passes in zip(tests, pool.map(lambda test: shop.passes(test, 0), tests)):
            if not passes:
                sys.exit(f"{test} fails without a change")


def try_all(shop, numbered):
    """What became of each change, by its number; prints what no test notices, as it is found."""
    alone = write_choices(shop, numbered)
    check_unchanged(shop, numbered)
    results = {}
    together = [pair for pair in numbered if pair not in alone]

    def keep(number, site, result):
        results[number] = result
        if result == NOT_NOTICED:
            print(line_of(shop, site, result), flush=True)
        if len(results) % 100 == 0:
            print(f"{len(results)} of {len(numbered)} tried", flush=True)

    def attempt(pair):
        return *pair, NOTICED if is_noticed(shop, pair[0], pair[1].path) else NOT_NOTICED

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for tried in concurrent.futures.as_completed(
                [pool.submit(attempt, pair) for pair in together]):
            keep(*tried.result())
    for path in by_file(numbered):
        shop.write(path, shop.source(path))
    for number, site in alone:
        keep(number, site, try_alone(shop, number, site))
    return results


def report(shop, numbered, results):
    """Prints and writes what became of them; whether enough were noticed."""
    known = explanations()
    lines, explained = [], 0
    for number, site in numbered:
        source = shop.source(site.path)
        line = line_of(shop, site, results[number])
        why = known.get((site.place(source), site.change(source)))
        if results[number] == NOT_NOTICED and why:
            line += f" // {why}"
            explained += 1
        lines.append(line)
    counts = collections.Counter(results.values())
    tried = counts[NOTICED] + counts[NOT_NOTICED]
    share = f"{100 * counts[NOTICED] / max(tried, 1):.1f} %"
    summary = (f"{counts[NOTICED]} of {tried} changes noticed ({share}), of the others {explained} "
               f"explained; {counts[IMPOSSIBLE]} more do not compile")
    REPORT.write_text("\n".join([*lines, summary, ""]), encoding="utf-8")
    print(summary)
    return counts[NOTICED] >= tried * LEAST_SHARE


def main():
    parser = argparse.ArgumentParser(prog="tools/mutants")
    parser.add_argument("names", nargs="*")
    parser.add_argument("--count", type=int, default=1000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--again", action="store_true")
    arguments = parser.parse_args()
    FOLDER.mkdir(parents=True, exist_ok=True)
    shop = workshop.Workshop(ROOT, FOLDER)
    numbered = chosen_sites(shop, arguments)
    if not report(shop, numbered, try_all(shop, numbered)):
        sys.exit(f"fewer than {LEAST_SHARE:.0%}")


if __name__ == "__main__":
    main()
