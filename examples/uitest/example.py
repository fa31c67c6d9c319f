#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A walk through a running head unit: see README.md. usage: example.py [picture.png]"""

import sys

from uitest import Screen

screen = Screen("PanelKit head unit")

screen.find("soundTile").press()
bass = screen.find("bass")
print(f"The bass is at {bass.value:g} of {bass.range[0]:g} to {bass.range[1]:g}.")
bass.value = 3
print(f"The bass is at {bass.value:g}.")

screen.find("homeKey").press()
screen.find("phoneTile").press()
for row in screen.find("list", role="list").rows():
    print(f"{row.name}")

if len(sys.argv) > 1:
    screen.picture(sys.argv[1])
screen.find("homeKey").press()
