#!/usr/bin/env python3
"""Prints every include that breaks the layers of the tree; exit status 1 when there is one."""

import pathlib
import re
import sys

# What a folder may include, besides itself and the standard library. A name with a slash is a
# single header.
PLATFORM = {"platform"}
FOUNDATION = PLATFORM | {"foundation"}
TEXT = {"text"}
UTIL = FOUNDATION | TEXT | {"util"}
ENTRY = UTIL | {"entry"}
DICTIONARY = ENTRY | {"dictionary"}
ALLOWED = {
    "platform": PLATFORM | TEXT,
    "foundation": FOUNDATION | TEXT,
    "text": TEXT,
    "util": UTIL,
    "entry": ENTRY,
    "dictionary": DICTIONARY,
    "dicset": DICTIONARY | {"dicset"},
    "grammar": FOUNDATION | TEXT | {"grammar"},
    "morphology": UTIL | {"grammar", "morphology"},
    "lexicon": {"lexicon", "platform/replace.h", "platform/memory_file.h"},
    "tools": {"tools"},
    "python": {"python"},
    "examples": set(),
    "bench": {"bench", "text/literal.h"},
    "fuzz": {"fuzz", "text/literal.h"},
}

# The public headers that belong to each folder: including one is including the folder.
HEADERS = {
    "platform": "platform",
    "foundation": "string file array map time object",
    "text": "codepage charclass compare language special translit",
    "dictionary": "dic_error dic_header dic_index dictionary dic_iterator dic_queue",
    "entry": "entry_text entry entry_convert",
    "dicset": "dic_set dic_array",
    "grammar": "gram_record gram_codec gram_map gram_attr",
    "morphology": "inflection front_coding",
    "util": "replace_buffer list_file lexer strutil queue engine",
}
FOLDER_OF_HEADER = {f"kz/{name}.h": folder for folder, names in HEADERS.items()
                    for name in names.split()}
# For everybody, in whatever folder they stand: no code, or codes alone.
FREE = {"kz/export.h", "kz/types.h", "kz/dic_error.h", "kz/platform.h"}
# What needs no header of the tree: programs on top of the library.
PUBLIC_ONLY = {"lexicon", "tools", "python", "bench", "fuzz", "examples"}
LEXICON_CLIENTS = {"lexicon", "tools", "python", "bench", "fuzz", "examples"}

INCLUDE = re.compile(r'^\s*#include\s+(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)
SYSTEM = re.compile(r"^(sys|linux|netinet|arpa)/|^(unistd|fcntl|dirent|dlfcn|poll|pthread|sched|"
                    r"spawn|termios|utime|pwd|grp)\.h$")


def fault(folder, header):
    """Why a source of the folder may not include the header, or None."""
    if header in FREE:
        return None
    if header.startswith("kzlexicon/"):
        return None if folder in LEXICON_CLIENTS else "belongs to the library on top"
    if header.startswith("kz/"):
        if folder in PUBLIC_ONLY:
            return None
        owner = FOLDER_OF_HEADER.get(header)
        if owner is None:
            return "is in no list of public headers" if header != "kz/kzcommon.h" else None
        allowed = owner in ALLOWED[folder] or owner == folder
        # Text functions are what the string's language-dependent operations stand on.
        return None if allowed else f"belongs to {owner}, which stands above or beside"
    owner = header.split("/")[0]
    if owner in ALLOWED[folder] or header in ALLOWED[folder] or owner == folder:
        return None
    return f"belongs to {owner}, which {folder} may not include"


def main(root):
    faults = 0
    files = 0
    for folder in ALLOWED:
        place = root if folder in PUBLIC_ONLY else root / "common"
        for path in sorted((place / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp", ".inc"):
                continue
            files += 1
            for quoted, angled in INCLUDE.findall(path.read_text(encoding="utf-8")):
                if quoted:
                    why = fault(folder, quoted)
                elif SYSTEM.search(angled) and folder not in ("platform",) and folder not in PUBLIC_ONLY:
                    why = "is the operating system's; only platform/ may include it"
                else:
                    why = None
                if why:
                    faults += 1
                    print(f"{path.relative_to(root)}: {quoted or angled} {why}")
    print(f"{files} files, {faults} faults")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
