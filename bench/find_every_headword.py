#!/usr/bin/env python3
"""Looks every headword of a source text up in the dictionary built from it.

    find_every_headword.py KZDIC SOURCE DICTIONARY plain|packed

Each headword must be found as it is written, with the entries that the source has for it, in their
order and unchanged. Of a packed dictionary, headwords with characters that packed records cannot
hold are not asked for.
"""

import subprocess
import sys


def spelled(entry):
    """The entry with its headword as it is written: the source word is moved there."""
    headword, rest = entry.split("*", 1)
    body, mark, spelling = rest.rpartition("\\\\")
    return (spelling, body) if mark else (headword, rest)


def entries_by_headword(source):
    """Headword in lower case -> its entries as they are written."""
    entries = {}
    with open(source, encoding="utf-8") as lines:
        for line in lines:
            line = line.rstrip("\n")
            if not line or line.startswith("*"):
                continue
            headword, rest = spelled(line)
            entries.setdefault(headword.lower(), []).append((headword, rest))
    return entries


def main(kzdic, source, dictionary, form):
    entries = entries_by_headword(source)
    if form == "packed":  # bytes 128 to 191 of the code page
        page = "cp1251" if open(dictionary, "rb").read(57)[56:] in b"ER" else "cp1252"
        entries = {word: found for word, found in entries.items()
                   if not any(128 <= byte < 192 for entry in found
                              for byte in (word + entry[0]).encode(page))}
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
        found = [spelled(line) for line in answer.strip("\n").split("\n") if line]
        # Other words can have the same stored headword.
        if [entry for entry in found if entry[0].lower() == word] != entries[word]:
            faults += 1
            if faults <= 5:
                print(f"{word}: expected {entries[word]}, found {answer!r}")
    print(f"{len(words)} headwords asked for, {faults} faults")
    return 1 if faults or not words else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
