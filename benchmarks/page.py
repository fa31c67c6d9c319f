# SPDX-License-Identifier: Apache-2.0
"""Puts what was counted and measured into the guide: a plot, and tables between marks in the page.

usage: page.py COUNTS_JSON SCENES_JSON ARM_JSON PAGE PLOT
"""

import json
import math
import pathlib
import re
import sys

LINE = 22  # px, of a class
TOP = 64
LABELS = 200
PANEL = 330
GAP = 60
WIDTH = LABELS + 2 * PANEL + GAP + 20
AT_REST, IN_MOTION, INK, FAINT = "#1f5fa8", "#d9630a", "#202428", "#c8ccd2"


class Class:
    """What was counted of one class."""

    def __init__(self, rows):
        looks = {row["state"]: row for row in rows if row["kind"] != "work"}
        self.rest = [row for row in looks.values() if row["kind"] == "at rest"]
        self.motion = [row for row in looks.values() if row["kind"] == "in motion"]
        self.making = next(row["ratio_peer"] for row in rows if row["state"] == "construction")
        closest = {}  # of each look: the peer that costs least
        for row in rows:
            if row["kind"] != "work" and row["peer"]:
                best = closest.get(row["state"])
                if best is None or row["peer_cost"] < best["peer_cost"]:
                    closest[row["state"]] = row
        self.beside = list(closest.values())

    def ratios(self, rows, name):
        return [row[name] for row in rows if row[name] is not None]


def classes_of(counts):
    rows = {}
    for row in counts["rows"]:
        rows.setdefault(row["class"], []).append(row)
    return {name: Class(of) for name, of in rows.items()
            if any(row["state"] == "construction" for row in of)}


class Panel:
    """A logarithmic axis with dots above it."""

    def __init__(self, left, ratios):
        self.left = left
        self.low = math.floor(math.log10(min(ratios)) * 2) / 2
        self.high = math.ceil(math.log10(max(ratios)) * 2) / 2

    def x(self, ratio):
        return self.left + PANEL * (math.log10(ratio) - self.low) / (self.high - self.low)

    def axis(self, title, limit, bottom):
        yield text(self.left + PANEL / 2, 20, title, "middle", "bold")
        for ratio in (0.01, 0.02, 0.05, 0.1, 0.2, 0.5, 1, 2, 5, 10, 20, 50, 100):
            if self.low <= math.log10(ratio) <= self.high:
                x = self.x(ratio)
                color, width = (INK, 1.5) if ratio == limit else (FAINT, 0.7)
                yield (f'<line x1="{x:.1f}" y1="{TOP - 12}" x2="{x:.1f}" y2="{bottom}" '
                       f'stroke="{color}" stroke-width="{width}"/>')
                yield text(x, TOP - 18, f"{ratio:g}", "middle")

    def dots(self, ratios, y, color):
        for ratio in ratios:
            yield (f'<circle cx="{self.x(ratio):.1f}" cy="{y}" r="4.2" fill="{color}" '
                   'fill-opacity="0.75"/>')


def text(x, y, string, anchor="start", weight="normal", color=INK):
    return (f'<text x="{x:.1f}" y="{y}" text-anchor="{anchor}" font-weight="{weight}" '
            f'fill="{color}">{string}</text>')


def plot(classes):
    blits = [r for c in classes.values() for r in c.ratios(c.rest + c.motion, "ratio_blit")]
    peers = [r for c in classes.values() for r in c.ratios(c.beside, "ratio_peer")]
    shown = {name: c for name, c in classes.items() if c.rest or c.motion}
    bottom = TOP + LINE * len(shown)
    left, right = Panel(LABELS, blits), Panel(LABELS + PANEL + GAP, peers)
    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {bottom + 34}" '
        'font-family="sans-serif" font-size="13">',
        "<title>What each look costs beside its blit and beside Qt's own widget</title>",
        f'<rect width="{WIDTH}" height="{bottom + 34}" fill="white"/>',
        *left.axis("times the blit", 2, bottom), *right.axis("times Qt's closest", 1, bottom)]
    for i, (name, of) in enumerate(shown.items()):
        y = TOP + LINE * i + LINE / 2
        parts.append(text(8, y + 4.5, name))
        parts.append(f'<line x1="8" y1="{y + LINE / 2}" x2="{WIDTH - 8}" y2="{y + LINE / 2}" '
                     f'stroke="{FAINT}" stroke-width="0.5"/>')
        parts += left.dots(of.ratios(of.rest, "ratio_blit"), y, AT_REST)
        parts += left.dots(of.ratios(of.motion, "ratio_blit"), y, IN_MOTION)
        for row in of.beside:
            color = AT_REST if row["kind"] == "at rest" else IN_MOTION
            parts += right.dots([row["ratio_peer"]], y, color)
    parts += [f'<circle cx="{LABELS}" cy="{bottom + 18}" r="4.2" fill="{AT_REST}"/>',
              text(LABELS + 10, bottom + 22.5, "a look at rest"),
              f'<circle cx="{LABELS + 130}" cy="{bottom + 18}" r="4.2" fill="{IN_MOTION}"/>',
              text(LABELS + 140, bottom + 22.5, "in motion"), "</svg>", ""]
    return "\n".join(parts)


def span(ratios):
    """The least and the most of them."""
    if not ratios:
        return "-"
    low, high = f"{min(ratios):.2f}", f"{max(ratios):.2f}"
    return low if low == high else f"{low} to {high}"


def class_table(classes):
    yield ("| class | looks | at rest, blits | at rest, floors | in motion, floors "
           "| of Qt's closest | made |")
    yield "|---|--:|--:|--:|--:|--:|--:|"
    for name, of in classes.items():
        yield (f"| `{name}` | {len(of.rest) + len(of.motion)} "
               f"| {span(of.ratios(of.rest, 'ratio_blit'))} "
               f"| {span(of.ratios(of.rest, 'ratio_floor'))} "
               f"| {span(of.ratios(of.motion, 'ratio_floor'))} "
               f"| {span(of.ratios(of.beside, 'ratio_peer'))} | {of.making:.2f} |")


def scene_table(scenes):
    yield "| scene | screen copies | limit |"
    yield "|---|--:|--:|"
    for scene in scenes:
        limit = "" if scene["limit"] is None else f"{scene['limit']:g}"
        yield f"| {scene['scene']} | {scene['copies']:.2f} | {limit} |"


def arm_table(scenes):
    yield "| scene | frames | on Arm, thousands | on the desktop, thousands | Arm / desktop |"
    yield "|---|--:|--:|--:|--:|"
    for scene in scenes:
        yield (f"| {scene['scene']} | {scene['frames']} | {scene['arm'] / 1e3:,.0f} "
               f"| {scene['here'] / 1e3:,.0f} | {scene['arm'] / scene['here']:.2f} |")


def replaced(page, mark, lines):
    """The page with other lines between the marks of that name."""
    pattern = rf"(<!-- {mark} -->\n).*?(<!-- end of {mark} -->)"
    result, count = re.subn(pattern, lambda match: match[1] + "\n".join(["", *lines, "", ""])
                            + match[2], page, flags=re.DOTALL)
    if count != 1:
        sys.exit(f"the page has no place for {mark}")
    return result


def main():
    counts, scenes, arm, page, picture = map(pathlib.Path, sys.argv[1:])
    classes = classes_of(json.loads(counts.read_text()))
    picture.write_text(plot(classes))
    content = replaced(page.read_text(), "classes", class_table(classes))
    content = replaced(content, "scenes", scene_table(json.loads(scenes.read_text())))
    content = replaced(content, "scenes on Arm", arm_table(json.loads(arm.read_text())))
    page.write_text(content)


if __name__ == "__main__":
    main()
