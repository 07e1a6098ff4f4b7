#!/usr/bin/env python3
"""Compares the names that a library exports with the list in the tree, both ways.

    exports.py LIST LIBRARY            prints the differences; exit status 1 when there are any
    exports.py LIST LIBRARY --write    writes the list anew

In the list, intptr_t and size_t stand for the types that they are on the system of the library, and
the standard library's strings have their short names.
"""

import pathlib
import subprocess
import sys

STRINGS = {
    "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >": "std::string",
    "std::basic_string_view<char, std::char_traits<char> >": "std::string_view",
    "std::basic_string_view<char32_t, std::char_traits<char32_t> >": "std::u32string_view",
}


def exported(library):
    symbols = subprocess.run(["nm", "--dynamic", "--defined-only", "--demangle", library],
                             check=True, capture_output=True, text=True).stdout
    for long, short in STRINGS.items():
        symbols = symbols.replace(long, short)
    return {line.split(" ", 2)[2] for line in symbols.splitlines() if line[:1].isalnum()}


def pointer_type(library):
    """The spelling of intptr_t in a 32-bit or 64-bit library, by the class byte of its ELF header."""
    return "long" if pathlib.Path(library).read_bytes()[4] == 2 else "int"


def main(list_file, library, *options):
    names = exported(library)
    if "--write" in options:
        lines = [name.replace("(long)", "(intptr_t)").replace("unsigned long", "size_t")
                 for name in sorted(names)]
        pathlib.Path(list_file).write_text("".join(f"{line}\n" for line in lines))
        return 0
    pointer = pointer_type(library)
    listed = set(pathlib.Path(list_file).read_text().replace("intptr_t", pointer)
                 .replace("size_t", f"unsigned {pointer}").splitlines())
    for name in sorted(names - listed):
        print(f"exported, but not listed: {name}")
    for name in sorted(listed - names):
        print(f"listed, but not exported: {name}")
    print(f"{len(names)} names exported, {len(listed)} listed")
    return 0 if names == listed and names else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
