#!/usr/bin/env python3
"""Compares the names that the library exports with the list in the tree, both ways.

    exports.py LIST LIBRARY            prints the differences; exit status 1 when there are any
    exports.py LIST LIBRARY --write    writes the list anew

In the list, intptr_t stands for the type that it is on the system of the library.
"""

import pathlib
import subprocess
import sys


def exported(library):
    symbols = subprocess.run(["nm", "--dynamic", "--defined-only", "--demangle", library],
                             check=True, capture_output=True, text=True).stdout
    return {line.split(" ", 2)[2] for line in symbols.splitlines() if line[:1].isalnum()}


def intptr_type(library):
    """The spelling of intptr_t in a 32-bit or 64-bit library, by the class byte of its ELF header."""
    return "long" if pathlib.Path(library).read_bytes()[4] == 2 else "int"


def main(list_file, library, *options):
    names = exported(library)
    if "--write" in options:
        lines = [name.replace("(long)", "(intptr_t)") for name in sorted(names)]
        pathlib.Path(list_file).write_text("".join(f"{line}\n" for line in lines))
        return 0
    listed = set(pathlib.Path(list_file).read_text().replace("intptr_t", intptr_type(library))
                 .splitlines())
    for name in sorted(names - listed):
        print(f"exported, but not listed: {name}")
    for name in sorted(listed - names):
        print(f"listed, but not exported: {name}")
    print(f"{len(names)} names exported, {len(listed)} listed")
    return 0 if names == listed and names else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
