#!/usr/bin/env python3
"""Looks every headword of a source text up in the dictionary built from it.

    find_every_headword.py KZDIC SOURCE DICTIONARY plain|packed

Each headword must be found by exact search, with the entries that the source has for it, in their
order and unchanged. Of a packed dictionary, headwords with characters that packed records cannot
hold are not asked for.
"""

import subprocess
import sys


def entries_by_headword(source):
    """Stored headword -> the entries as they are stored."""
    entries = {}
    with open(source, encoding="utf-8") as lines:
        for line in lines:
            line = line.rstrip("\n")
            if not line or line.startswith("*"):
                continue
            spelling, rest = line.split("*", 1)
            headword = spelling.lower()
            if headword != spelling and "\\\\" not in rest:
                rest += "\\\\" + spelling
            entries.setdefault(headword, []).append(f"{headword}*{rest}")
    return entries


def main(kzdic, source, dictionary, form):
    entries = entries_by_headword(source)
    if form == "packed":  # bytes 128 to 191 of the code page
        page = "cp1251" if b"RU" == open(dictionary, "rb").read(58)[56:58] else "cp1252"
        entries = {word: found for word, found in entries.items()
                   if not any(128 <= byte < 192 for byte in word.encode(page))}
    words = list(entries)
    output = subprocess.run([kzdic, "lookup", "--raw", dictionary, "-"],
                            input="".join(f"{word}\n" for word in words).encode(),
                            stdout=subprocess.PIPE).stdout.decode()
    answers = output.removesuffix("\n").split("\n\n")
    if len(answers) != len(words):
        print(f"{len(answers)} answers to {len(words)} words")
        return 1
    faults = 0
    for word, answer in zip(words, answers):
        if answer.strip("\n").split("\n") != entries[word]:
            faults += 1
            if faults <= 5:
                print(f"{word}: expected {entries[word]}, found {answer!r}")
    print(f"{len(words)} headwords asked for, {faults} faults")
    return 1 if faults or not words else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
