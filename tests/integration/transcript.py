#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Takes the commands out of a page: each block of them becomes OUT/<number>.sh, and what the page
says that they write OUT/<number>.says.

usage: transcript.py PAGE OUT
"""

import pathlib
import re
import sys


def main():
    page, out = map(pathlib.Path, sys.argv[1:3])
    out.mkdir(parents=True)
    blocks = re.findall(r"^```(\w+)\n(.*?)^```$", page.read_text(encoding="utf-8"),
                        re.DOTALL | re.MULTILINE)
    number = 0
    for language, text in blocks:
        if language == "sh":
            number += 1
            (out / f"{number:02}.sh").write_text(text, encoding="utf-8")
        elif language == "text":
            (out / f"{number:02}.says").write_text(text, encoding="utf-8")
        else:
            sys.exit(f"{page}: what is a block of {language}?")
    if not number:
        sys.exit(f"{page} has no commands")


if __name__ == "__main__":
    main()
