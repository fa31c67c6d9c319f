# SPDX-License-Identifier: Apache-2.0
"""Writes files in which changes stand beside what they change, to be chosen when a program runs.

One compilation does for all changes of a file. Where the language wants a constant, a change needs
a compilation of its own.
"""

CHOICE = """// Whether PANELKIT_MUTANT names this change.
#ifndef PANELKIT_MUTANT_H
#define PANELKIT_MUTANT_H
#include <cstdlib>
inline bool panelkitMutant(int number)
{
    static const int chosen = [] {
        const char *text = std::getenv("PANELKIT_MUTANT");
        return text ? std::atoi(text) : 0;
    }();
    return chosen == number;
}
#endif
"""


def nests(outer, inner):
    return outer.start <= inner.start and inner.end <= outer.end


def without_crossings(numbered):
    """Those changes that stand beside or inside each other, and the rest."""
    kept, rest = [], []
    for number, site in sorted(numbered, key=lambda pair: (pair[1].start, -pair[1].end)):
        fits = all(site.start >= other.end or nests(other, site) for _, other in kept)
        (kept if fits else rest).append((number, site))
    return kept, rest


def with_choices(source, numbered, start=0, end=None):
    """The piece of the source with these changes (sorted, none crosses another) to choose from."""
    end = len(source) if end is None else end
    pieces, position, remaining = [], start, list(numbered)
    while remaining:
        number, site = remaining.pop(0)
        inside = []
        while remaining and nests(site, remaining[0][1]):
            inside.append(remaining.pop(0))
        pieces.append(source[position:site.start])
        original = with_choices(source, inside, site.start, site.end)
        if site.is_statement:
            pieces.append(f"{{ if (panelkitMutant({number})) {{ {site.mutated} }} else {{ {original} }} }}")
        else:
            pieces.append(f"(panelkitMutant({number}) ? ({site.mutated}) : ({original}))")
        position = site.end
    pieces.append(source[position:end])
    return "".join(pieces)


def with_one(source, site):
    """The source with this one change made."""
    mutated = f"{{ {site.mutated} }}" if site.is_statement else site.mutated
    return source[:site.start] + mutated + source[site.end:]
