#!/usr/bin/env python3
"""Reads dictionaries and compiled inflection tables without the library.

    read_dictionary.py FILE           prints the source text of a dictionary, like "kzdic dump"
    read_dictionary.py FILE WORD...   prints the entries of words
    read_dictionary.py TABLE.Dat      prints the endings of an inflection table and their records

docs/dictionary-format.md, docs/entry-format.md and docs/tables.md describe the files. Headers of
124 bytes are not read, and files are taken to be sound.
"""
import bisect
import collections
import itertools
import os
import pathlib
import re
import struct
import sys
import unicodedata

HEADER = struct.Struct("<48s8s5s2s40sB8sBHhhiIIiIHBIiI")
Header = collections.namedtuple("Header", """signature label language type title reserved1 password
    property version depth alphabet index_offset data_offset file_size time reserved2 checksum packing
    shared_offset index_count shared_size""")
ALPHABETS = {26: b"abcdefghijklmnopqrstuvwxyz", 32: bytes(range(224, 256)),
             43: "aàâäbcçdeèéêëfghiîïjklmnoôöœpqrsßtuùûüvwxyz".encode("cp1252")}
YO, YE = "ёе".encode("cp1251")
MARKS = b"0123456789 \"#$%&'()+,-./:;<=>@[]~"
MIXED = re.compile(rb"([A-Za-z\x8c\x9c\xa8\xb8\xc0-\xff]+)")
LIGATURES = {"æ": "ae", "œ": "oe", "ß": "ss", "ø": "o", "þ": "th", "ð": "d"}
KEY = 0x7E


def sections(entry):
    """Headword, "*" to attribute block, body, source sections; together they are the entry."""
    head, star, rest = entry.rpartition(b"*")
    if not star:
        return entry, b"", b"", b""
    code, rest = rest[:1], rest[1:]
    source = rest.find(b"\\\\")
    if source < 0 or source + 2 == len(rest):
        source = len(rest)
    if code != b"$" and b"\\" in rest[:source]:
        source = rest.index(b"\\")
    text, body = rest[:source], 0
    block = re.search(rb"[\[ {]", text[:8])
    if block and text.find(b"]") > block.start() and code not in b"Ww$":
        body = text.index(b"]") + 1
    return head, star + code + text[:body], text[body:], rest[source:]


def code_page(language):
    return "cp1251" if language[0] in "RE" else "cp1252"


def decode(text, page):
    if page != "mixed":
        return text.decode(page, "replace")
    return "".join(run.decode("cp1252" if re.search(b"[A-Za-z]", run) and MIXED.match(run)
                              else "cp1251", "replace") for run in MIXED.split(text))


class Dictionary:
    def __init__(self, data):
        self.data = data
        self.header = header = Header(*HEADER.unpack_from(data))
        if not header.signature.startswith((b"KZ Dictionary 3.00", b"KZ Dictionary 2.10")):
            raise ValueError("not a dictionary with a header of 154 bytes")
        self.language = header.language.rstrip(b"\0").decode()
        self.words_only = header.type[:1] == b"S"
        packing = header.packing if header.version > 538 else 0
        self.packed = packing in (1, 3)
        shares = packing in (2, 3) and not self.words_only
        self.shared = data[header.shared_offset:][:header.shared_size] if shares else b""
        self.slots = {letter: slot for slot, letter in enumerate(ALPHABETS[header.alphabet])}
        if header.alphabet == 32:
            self.slots[YO] = self.slots[YE]
        cells = header.alphabet * (header.alphabet + 1) ** (header.depth - 1)
        size, form = (8 * header.index_count, "<Ii") if header.depth == 5 else (4 * cells, "<i")
        self.index = list(struct.iter_unpack(form, data[header.index_offset:][:size]))
        self.positions = sorted(entry[-1] for entry in self.index) + [header.index_offset]

    def password(self):
        field = itertools.takewhile(bool, self.header.password)
        return bytes((byte - KEY - place) % 256 for place, byte in enumerate(field))

    def directives(self):
        page = "cp1252" if self.language in ("DE", "FR") else "cp1251"
        for name in "language", "type", "title", "label":
            text = getattr(self.header, name).partition(b"\0")[0]
            if text:
                yield f"*: {name} {decode(text, page)}"

    def records(self, begin, end):
        """Pairs of a count and the characters that follow the ones taken over."""
        area = self.data[begin:end]
        if not self.packed:
            lines = area.removeprefix(b"\n").split(b"\n")
            return ((0, line) for line in itertools.takewhile(bool, lines))
        return ((stored[0], bytes(byte ^ 0x80 for byte in stored[1:]))
                for stored in re.findall(rb"[\0-\x3f][\x40-\xff]*", area.partition(b"\0\x1a")[0]))

    def entries(self):
        """All entries in the order of the file."""
        record = b""
        for count, new in self.records(self.header.data_offset, self.header.index_offset):
            record = record[:count] + new
            yield self.resolve(record)

    def find(self, word):
        """The entries of a word."""
        whole = self.packed and self.words_only
        key = word if whole else word + b"*"
        matched, record = None, key
        for count, new in self.records(*self.block(word)):
            if not self.packed or matched is None:
                matched = count
            elif count < matched:
                if count < 63:
                    return
                matched = count
            if count == matched:
                matched += len(os.path.commonprefix([key[matched:], new]))
            if matched == len(key):
                record = record[:count] + new
                if record == key or not whole:
                    yield self.resolve(record)

    def block(self, word):
        """Where the block of a word begins and ends."""
        depth, n = self.header.depth, self.header.alphabet
        start = word[:depth]
        if (not start or start[0] not in self.slots and not start[:1].isdigit()
                or any(c not in self.slots and c not in MARKS for c in start)):
            return 0, 0
        if depth == 5:
            position = dict(self.index).get(self.key(start), -1)
        else:
            slots = [self.slots.get(c, n) for c in start.ljust(depth, b"\0")]
            if slots[0] == n:
                heads = [[row] + [n] * (depth - 1) for row in range(n)]
                slots = next((head for head in heads if self.cell(head) != -1), heads[0])
            position = self.cell(slots)
        if position == -1:
            return 0, 0
        return position, self.positions[bisect.bisect(self.positions, position)]

    def cell(self, slots):
        number = 0
        for slot in slots:
            number = number * (self.header.alphabet + 1) + slot
        return self.index[number][0]

    def key(self, start):
        key = 0
        for c in start.ljust(5, b"\0"):
            key = key << 6 | (c - 224 + 8 if c >= 224 else b" ')-./`".find(c) + 1)
        return key

    def resolve(self, record):
        """The entry of a record: with its shared text."""
        head, attributes, body, sources = sections(record)
        number = re.match(rb"[0-9A-Fa-f]{1,10}(?=\\|\Z)", body)
        if not number or int(number[0], 16) >= len(self.shared):
            return record
        text = self.shared[int(number[0], 16):].partition(b"\0")[0]
        return head + attributes + text + (b"" if sources == b"\\" else sources)

    def headword(self, spelling):
        """The headword under which an entry of this spelling is stored."""
        page, word, letters = code_page(self.language), spelling.lower(), self.slots

        def is_known(c):
            return c.encode(page)[0] in letters or c.encode(page) in MARKS

        if re.match(r"\w", word) and all(map(is_known, word[:self.header.depth])):
            return word
        plain = (c if is_known(c) else LIGATURES.get(c) or unicodedata.normalize("NFD", c)[0]
                 for c in word)
        return re.sub(r"^\W+", "", "".join(c for c in "".join(plain) if is_known(c)))

    def source_line(self, entry):
        """The line of source text of an entry."""
        own, target = self.language[:2], self.language[2:] or self.language
        page = "mixed" if self.language == "RUDE" else code_page(target)
        pages = code_page(own), "cp1251", page, code_page(own)
        head, attributes, body, sources = map(decode, sections(entry), pages)
        reference, _, spelling = sources.partition("\\\\")
        if spelling and spelling != head and self.headword(spelling) == head:
            return spelling + attributes + body + reference
        if self.words_only and entry.endswith(b"*"):
            return head
        return head + attributes + body + sources


def read_table(data):
    """Pairs of an ending and its records: class, addition, stem change, paradigm, its letter."""
    (count,), at = struct.unpack_from("<H", data), 2
    for _ in range(count):
        size = 1 + 8 * data[at]
        records = [(first & 255, (first >> 8 & 63 ^ 32) - 32, first >> 16 & 255, second & 65535,
                    bytes([second >> 16 & 255]).strip(b"\0").decode("cp1251"))
                   for first, second in struct.iter_unpack("<II", data[at + 1:at + size])]
        at += size
        size = 1 + data[at]
        yield bytes(byte ^ KEY for byte in data[at + 1:at + size]).decode("cp1251"), records
        at += size


def main():
    path, words = sys.argv[1], sys.argv[2:]
    data = pathlib.Path(path).read_bytes()
    if path.endswith(".Dat"):
        for ending, records in read_table(data):
            print(ending, *records)
        return
    dictionary = Dictionary(data)
    if words:
        words = [word.encode(code_page(dictionary.language)) for word in words]
        entries = itertools.chain.from_iterable(map(dictionary.find, words))
    else:
        print(*dictionary.directives(), sep="\n")
        entries = dictionary.entries()
    for entry in entries:
        print(dictionary.source_line(entry))


if __name__ == "__main__":
    main()
