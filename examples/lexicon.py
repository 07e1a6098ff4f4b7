#!/usr/bin/env python3
"""A dictionary made of a table and searched, with the package kzlexicon (docs/python.md)."""

import pathlib
import tempfile

import kzlexicon

WORDS = [
    ("книга", "N", "F", ["book"]),
    ("отец", "N", "M@", ["father", "dad"]),
    ("писать", "V", "", ["write"]),
]

# A few lines of the inflection table of Russian: an ending, and the classes of words that have it.
TABLE = """\
ами NM 1 | NF 1 | N 1
ов NM 1
"""


def build() -> bytes:
    builder = kzlexicon.Builder("RUEN", title="Words of a table")
    for headword, part_code, attribute, synonyms in WORDS:
        meanings = [kzlexicon.PlainMeaning(synonyms)]
        builder.add(kzlexicon.PlainEntry(headword, meanings, part_code, attribute))
    return builder.to_bytes()


def show(word: str, answer: kzlexicon.Answer) -> None:
    for entry in answer:
        view = entry.view()
        print(f"{word}: {view.spelling}, {view.part_of_speech}, {answer.description}")
        for meaning in view.meanings:
            print("  " + "; ".join(meaning.synonyms))


def main() -> None:
    dictionary = kzlexicon.Dictionary.from_bytes(build())
    print(f"{dictionary.header.title}: {dictionary.statistics().headwords} headwords")
    with tempfile.TemporaryDirectory() as directory:
        table = pathlib.Path(directory) / "ruflex.Dat"
        kzlexicon.Inflector.compile(TABLE, table)
        inflector = kzlexicon.Inflector(table)
    for word in ("Отец", "книгами", "стол"):
        answer = dictionary.find(word)
        for found in [answer] if answer else dictionary.find_inflected(word, inflector):
            show(word, found)


main()
