#!/usr/bin/env python3
"""Prints how much of the C and C++ code is tests, folder by folder.

    share.py TREE [LIMIT]

Counts the lines that hold more than blanks and comments. The share is that of tests/ and fuzz/ to
everything else, in percent; exit status 1 when it is above the limit.
"""

import collections
import pathlib
import re
import sys

SUFFIXES = {".c", ".h", ".cpp", ".inc"}
TESTS = ("tests", "fuzz")
# Comments, and before them what may hold the beginning of one.
TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | R"(?P<mark>[^()\s\\"]*)\(.*?\)(?P=mark)" | "(?:[^"\\\n]|\\.)*" | '(?:[^'\\\n]|\\.)+'
      | \d(?:'?[\w.])*""", re.DOTALL | re.VERBOSE)


def lines_of_code(source):
    def without_comment(match):
        return "\n" * match[0].count("\n") if match["comment"] else match[0]
    return sum(not line.isspace() for line in TOKEN.sub(without_comment, source).splitlines(True))


def sources(tree):
    for folder in sorted(tree.iterdir()):
        if folder.is_dir() and folder.name != "build":
            yield from (path for path in sorted(folder.rglob("*")) if path.suffix in SUFFIXES)


def row_of(tree, folders):
    """The row in which the files of a folder count; tests stand in the row of what they test."""
    if folders[0] == "tests" and (tree / folders[1]).is_dir():
        folders = folders[1:]
    return "/".join(folders[:2])


def main(tree, limit=None):
    counts = collections.defaultdict(lambda: [0, 0])
    for path in sources(tree):
        folders = path.relative_to(tree).parts[:-1]
        lines = lines_of_code(path.read_text(encoding="utf-8"))
        counts[row_of(tree, folders)][folders[0] in TESTS] += lines
    counts["total"] = [sum(column) for column in zip(*counts.values())]
    print(f"{'lines of C and C++':<24}{'code':>8}{'tests':>8}{'share':>8}")
    for row, (code, tests) in counts.items():
        share = f"{100 * tests / code:.1f} %" if code and tests else ""
        print(f"{row:<24}{code or '':>8}{tests or '':>8}{share:>8}")
    code, tests = counts["total"]
    if not code or not tests:
        return 1
    if limit is not None and 100 * tests > limit * code:
        print(f"tests are more than {limit} % of the other code")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]), *map(float, sys.argv[2:])))
