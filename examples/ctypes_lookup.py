#!/usr/bin/env python3
"""Looks words up through the C interface of libkzcommon, without an extension module.

    ctypes_lookup.py DICTIONARY WORD...

For dictionaries from or into Russian, whose texts are Windows-1251.
"""

import ctypes
import os
import sys

PLAIN, EXACT, FULL = 0, 0, 2  # DIC_MODE_PLAIN, DIC_SEARCH_EXACT, DIC_LEVEL_FULL

library = ctypes.CDLL("libkzcommon.so.1")
library.DicOpen.argtypes = [ctypes.c_char_p, ctypes.c_int16]
library.DicOpen.restype = ctypes.c_void_p
library.DicFind.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int16, ctypes.c_int16]
library.DicFind.restype = ctypes.c_char_p  # copied: the next search overwrites it
library.DicFindNext.argtypes = [ctypes.c_void_p, ctypes.c_int16]
library.DicFindNext.restype = ctypes.c_char_p
library.DicClose.argtypes = [ctypes.c_void_p]
library.DicClose.restype = None


def find(dictionary: int, word: str) -> list[str]:
    entries = []
    key = word.encode("cp1251")
    entry = library.DicFind(dictionary, key, EXACT, FULL)
    while entry is not None and entry.startswith(key + b"*"):
        entries.append(entry.decode("cp1251"))
        entry = library.DicFindNext(dictionary, FULL)
    return entries


def main(path: str, words: list[str]) -> None:
    dictionary = library.DicOpen(os.fsencode(path), PLAIN)
    if not dictionary:
        sys.exit(f"{path}: cannot be opened")
    try:
        for word in words:
            print(f"{word}: {find(dictionary, word) or 'not found'}")
    finally:
        library.DicClose(dictionary)


main(sys.argv[1], sys.argv[2:])
