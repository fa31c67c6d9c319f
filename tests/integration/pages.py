#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Looks whether each class has its page, and the page its parts: heading and label, what the class is
for, a picture of its looks, a moving one where it moves, a program that uses it, a table with each of
its signals. (That of its properties is for tst_documentation.)

usage: pages.py DOCS INTERFACE
"""

import pathlib
import re
import struct
import sys

# What moves by itself or under a finger.
MOVING = set("""MArcList MArcScrollBar MCircularDial MGifPlay MHorSlider MKARVOSlider MOnOffButton
    MProgressBar MRadioMovePoint MRadioSlider MVScrollLabel SpHomeIcon SpLoadingRound SpRollingText
    SpSetupSlider SpTableList""".split())
# Their looks are seen in another class.
SHOWN_IN = {"styleDelegate": "sptablelist"}
# They stand on the page of the tuner that they are parts of.
PARTS = {"ScaleBkg", "MovePoint", "FmMovePoint"}
# Signals of the base class that the page lists, for where they come in the order.
INHERITED = {"MArcScrollBar": {"sliderPressed", "valueChanged", "sliderMoved", "sliderReleased"}}

LARGEST_FILM = 150 * 1024  # bytes
FEWEST_FRAMES = 10
NARROWEST_STRIP = 400  # px

BEGINNING = r"""# {name} \{{#{label}\}}

(?P<purpose>[^\n#!`|<].*?)

!\[[^]]+\]\(\.\./pictures/{strip}\.png\)

(?:!\[[^]]+\]\(\.\./pictures/(?P<film>moving/{label}\.webp)\)

)?```cpp
[^`]*\#include <{name}>
[^`]*int main[^`]*```
"""


def signals_of(text):
    """The names in the first columns of the tables of signals."""
    tables = re.findall(r"\| signal \| when \|\n\|---\|---\|\n((?:\|.*\n)+)", text)
    cells = [row.split("|")[1] for table in tables for row in table.splitlines()]
    return {name for cell in cells for name in re.findall(r"`(\w+)", cell)}


def faults_of(name, docs, interface):
    """What the page of a class lacks."""
    path = docs / "classes" / (name.lower() + ".md")
    if not path.is_file():
        yield "no page"
        return
    text = path.read_text(encoding="utf-8")
    strip = SHOWN_IN.get(name, name.lower())
    page = re.match(BEGINNING.format(name=name, label=name.lower(), strip=strip), text, re.DOTALL)
    if not page:
        yield "does not begin with heading, purpose, picture and program"
        return
    header = (docs / "pictures" / (strip + ".png")).read_bytes()[:24]
    if struct.unpack(">I", header[16:20])[0] < NARROWEST_STRIP:
        yield "a picture of one look at most"
    if bool(page["film"]) != (name in MOVING):
        yield "moves and has no moving picture" if name in MOVING else "has a moving picture"
    elif page["film"]:
        film = (docs / "pictures" / page["film"]).read_bytes()
        if film[:4] != b"RIFF" or film.count(b"ANMF") < FEWEST_FRAMES:
            yield "a moving picture that does not move"
        if len(film) > LARGEST_FILM:
            yield f"a moving picture of {len(film)} bytes"
    signals = set(re.findall(r"^public signal (\w+)", interface, re.MULTILINE))
    listed = signals_of(text) - INHERITED.get(name, set())
    for signal in sorted(signals ^ listed):
        yield f"the signal {signal} " + ("is not listed" if signal in signals else "does not exist")


def main():
    docs, interfaces = map(pathlib.Path, sys.argv[1:3])
    faults, pages = [], 0
    for path in sorted(interfaces.glob("*.txt")):
        interface = path.read_text(encoding="utf-8")
        name = re.match(r"class (\w+)", interface)[1]
        if name not in PARTS:
            pages += 1
            faults += [f"{name}: {fault}" for fault in faults_of(name, docs, interface)]
    print("\n".join(faults) or f"{pages} pages have all their parts")
    sys.exit(1 if faults or not pages else 0)


if __name__ == "__main__":
    main()
