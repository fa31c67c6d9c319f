#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Looks through the documentation's site, as it was written to a folder: every link, style, script
and picture is there, anchors included; every page can be reached from the start page; every guide and
every class stands in the menu.

usage: site.py SITE DOCS
"""

import html.parser
import pathlib
import re
import sys
import urllib.parse

ATTRIBUTES = {"a": "href", "link": "href", "img": "src", "script": "src", "iframe": "src"}

# Doxygen's other lists of what the menu leads to.
LISTS = re.compile(r"(dir_.*|functions_.*|classes|hierarchy|pages)\.html$")

RAW = re.compile(r"[@\\]ref\b|\]\([^)]*\.md")


class Page(html.parser.HTMLParser):
    """What a page refers to, and what in it can be referred to."""

    def __init__(self, path):
        super().__init__()
        self.links, self.anchors, self.menu, self.raw = [], set(), set(), []
        self.in_menu = False
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        self.anchors.update(attrs[key] for key in ("id", "name") if attrs.get(key))
        self.in_menu |= tag == "nav"
        link = attrs.get(ATTRIBUTES.get(tag, ""))
        if link and not link.startswith("javascript:"):
            self.links.append(link)
            if self.in_menu:
                self.menu.add(link)

    def handle_endtag(self, tag):
        self.in_menu &= tag != "nav"

    def handle_data(self, data):
        # A link that is broken into two lines, say, stays as it was written, without a warning.
        if RAW.search(data):
            self.raw.append(data.strip())


def faults_of(name, page, pages, site):
    """The links of a page that lead nowhere, or are none."""
    for text in page.raw:
        yield f"{name}: not understood: {text[:80]}"
    for link in page.links:
        url = urllib.parse.urlsplit(link)
        target = urllib.parse.unquote(url.path) or name
        if url.scheme or url.netloc or target.startswith("/"):
            yield f"{name}: {link} is not in the site"
            continue
        if not (site / target).is_file():
            yield f"{name}: there is no {link}"
        elif url.fragment and target in pages and url.fragment not in pages[target].anchors:
            yield f"{name}: there is no place {link}"


def reached(pages):
    """The pages that a reader comes to from the start page."""
    seen, ahead = set(), ["index.html"]
    while ahead:
        name = ahead.pop()
        if name not in seen and name in pages:
            seen.add(name)
            ahead += [urllib.parse.urlsplit(link).path for link in pages[name].links]
    return seen


def main():
    site, docs = map(pathlib.Path, sys.argv[1:3])
    pages = {path.name: Page(path) for path in site.glob("*.html")}
    faults = [fault for name, page in sorted(pages.items())
              for fault in faults_of(name, page, pages, site)]
    written = {}
    for path in sorted(docs.glob("guide/*.md")) + sorted(docs.glob("classes/*.md")) + [
            docs / "using.md", docs / "from-packages.md"]:
        label = re.match(r"# .* \{#([a-z-]+)\}\n", path.read_text(encoding="utf-8"))
        written[path.name] = label[1] + ".html" if label else "a page with a label"
    menu = pages["index.html"].menu
    for name, page in written.items():
        if page not in menu:
            faults.append(f"{name}: {page} is not in the menu")
    for name in sorted(set(pages) - reached(pages)):
        if not LISTS.match(name):
            faults.append(f"{name}: cannot be reached from the start page")
    for name in ("search/searchdata.js", "search/search.js"):
        if not (site / name).is_file():
            faults.append(f"there is no {name}")
    print("\n".join(faults) or f"{len(pages)} pages, "
          f"{sum(len(page.links) for page in pages.values())} links: all lead somewhere")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
