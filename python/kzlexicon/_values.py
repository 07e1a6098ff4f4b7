"""Records and enumerations of the library.

Those that the library only gives are frozen. Texts that say nothing are empty, and so are lists.
"""

from __future__ import annotations

import dataclasses
import enum
import typing
from collections.abc import Iterator

if typing.TYPE_CHECKING:
    from ._native import Entry

_record = dataclasses.dataclass(frozen=True, slots=True)
_input = dataclasses.dataclass(slots=True)


class ErrorCode(enum.Enum):
    """What kind of failure an error is."""

    ARGUMENT = 2
    FILE = 3
    DATA = 4
    CODE_PAGE = 5


@_record
class Place:
    """Where an error or a diagnostic is.

    Lines and columns count from 1; 0 means none. Columns count characters. An offset counts bytes;
    -1 means none.
    """

    file: str = ""
    line: int = 0
    column: int = 0
    offset: int = -1


# Code pages


class CodePage(enum.Enum):
    """Single-byte code pages of dictionaries and of other programs.

    MIXED is German beside Russian: a word that holds a Latin letter is Windows-1252, everything
    else Windows-1251.
    """

    RUSSIAN = 0
    WESTERN = 1
    CP866 = 2
    CP850 = 3
    KOI8_R = 4
    ISO_8859_5 = 5
    MAC_CYRILLIC = 6
    MIXED = 7


# Grammar


class FieldKind(enum.Enum):
    """What the value of a field is."""

    WORD = 0
    NUMBER = 1
    TEXT = 2
    FLAG = 3


@_record
class Field:
    """A field of grammar, such as gender=masculine; str() writes it so."""

    name: str
    value: str
    kind: FieldKind = FieldKind.TEXT
    word: int = -1  # of a flag: its place in the grammatical record
    bit: int = -1

    def __str__(self) -> str:
        return f"{self.name}={self.value}"


@_record
class Decoded:
    """A tag string and everything that it says."""

    code: str
    tags: str
    canonical: str  # the tag string that the library writes for the same grammar
    fields: list[Field]
    left_out: list[Field]  # fields that reading the canonical string does not give back
    ignored: str  # characters of the tag string that set nothing
    unread: str  # what follows its end
    words: list[int]
    semantics: int


@_record
class AttributeName:
    """A compact attribute, as inflection tables use them."""

    kind: int
    index: int  # -1 for a name that is none
    name: str
    code: str  # the part of speech that a class stands for
    fields: list[Field]


# Entries


@_record
class SynonymBlock:
    """An attribute block that follows a synonym."""

    synonym: str
    part_code: str  # of the synonym, where it has its own
    tags: str


@_record
class MeaningView:
    """A meaning of an entry."""

    number: str  # "1.", with the text of its label: "2. mus."
    part_of_speech: str  # of a meaning that is another part of speech than the entry
    part_code: str
    definition: str
    synonyms: list[str]
    block: str  # attribute block at the beginning of its text
    synonym_blocks: list[SynonymBlock]


@_record
class EntryView:
    """An entry taken apart."""

    headword: str
    spelling: str  # as written: the source word, or the headword
    part_code: str
    part_of_speech: str
    attribute: str  # the block after the part code
    reference: str  # the source reference
    meanings: list[MeaningView]
    text: str  # the entry as the dictionary has it
    language: str


class Side(enum.Enum):
    """The word of an entry of which an attribute block speaks."""

    SOURCE = 0
    TARGET = 1
    SYNONYM = 2


@_record
class WordGrammar:
    """What an attribute block says of a word."""

    side: Side
    synonym: str  # of SYNONYM
    grammar: Decoded


# Dictionaries


@_record
class Header:
    """What the header of a dictionary file states."""

    generation: int = 0  # 1, 2, or 3 for the current format
    language: str = ""  # "ENRU"; empty when unknown
    type: str = ""  # "C"; empty when unknown
    title: str = ""
    label: str = ""
    has_password: bool = False
    checksum_agrees: bool = False
    property: int = 0
    version: int = 0
    time_stamp: int = 0  # seconds since 1970
    packed: bool = False  # front-coded records
    shared: bool = False  # has a shared-text block
    depth: int = 0  # of the letter index
    alphabet: int = 0  # letters of the index
    file_size: int = 0
    record_bytes: int = 0
    index_bytes: int = 0
    shared_bytes: int = 0


@_record
class Statistics:
    """What a walk over a whole dictionary counts."""

    blocks: int
    largest_block: int
    records: int
    headwords: int
    references: int  # records that name shared text
    longest_headword: int
    longest_record: int


class Step(enum.Enum):
    """The forms in which a word is looked up, in this order."""

    NONE = 0
    TYPED = 1
    LOWER_CASE = 2
    FOLDED = 3  # in lower case, and the Russian letter ё written as е
    PLAIN = 4  # in plain letters or punctuation that the dictionary has for others
    INFLECTED = 5  # the headword of an inflected form


@_record
class Answer:
    """The entries found for a word; false when there are none."""

    step: Step
    entries: list[Entry]
    ending: str  # "-ами (NF 1)": how an inflected form was understood
    description: str  # "as typed", "in lower case", "by its ending -ами (NF 1)"

    def __bool__(self) -> bool:
        return self.step is not Step.NONE

    def __len__(self) -> int:
        return len(self.entries)

    def __iter__(self) -> Iterator[Entry]:
        return iter(self.entries)


@_record
class MissingDictionary:
    """A dictionary of a set that is not where it should be."""

    path: str
    loaded: str  # the file of the same name that was loaded for it


# Inflection


@_record
class InflectionReading:
    """One record of an ending: a class of words that have it."""

    word_class: str  # "NM"
    addition: str
    paradigm: int  # 0 for none
    letter: str  # of the paradigm
    stem_change: str
    grammar: list[str]  # "noun", "masculine": the part of speech comes first


@_record
class Ending:
    """A known ending of a word."""

    ending: str
    rest: str  # the word without it
    attributes: str  # the ending with its attributes: "ами NM 1 | NF 1"
    readings: list[InflectionReading]


class WordGroup(enum.Enum):
    """The group of words that a headword would belong to."""

    MASCULINE = 0
    FEMININE = 1
    NEUTER = 2
    PLURAL = 3
    ADJECTIVE = 4
    VERB = 5


@_record
class HeadwordForm:
    """A headword that a word may be a form of."""

    headword: str
    group: WordGroup
    ending: str  # as the table writes it; empty for a form without ending
    word_class: str  # "NF 1"


# Source text


@_record
class SourceLine:
    """A line of source text; not yet checked."""

    file: int  # index into SourceText.files
    line: int  # counted from 1
    text: str


@_record
class Property:
    """What an option or a directive states; None where nothing is stated."""

    value: str | None = None
    place: Place = Place()


@_record
class Properties:
    """The properties of a dictionary that source text states."""

    language: Property = Property()
    type: Property = Property()
    title: Property = Property()
    label: Property = Property()


@_input
class PlainMeaning:
    """A meaning in plain text."""

    synonyms: list[str] = dataclasses.field(default_factory=list)
    definition: str = ""
    number: int = 0  # 0: without a number


@_input
class PlainEntry:
    """An entry in plain text, of which nothing is a mark of the format."""

    headword: str
    meanings: list[PlainMeaning] = dataclasses.field(default_factory=list)
    part_code: str = "W"
    attribute: str = ""  # tags without brackets
    spelling: str = ""  # as written, where that differs


@_record
class Losses:
    """What a SourceWriter could not keep."""

    characters: int  # written otherwise or dropped: the code page lacks them
    definitions: int  # too long, dropped
    synonyms: int  # empty after cleaning
    meanings: int  # without any synonym


@_record
class FormattedLine:
    """A source line of a SourceFormatter."""

    text: str
    exact: bool  # a build makes the same entry of it


# Building and importing


class Severity(enum.Enum):
    """How much a diagnostic matters."""

    NOTE = 0
    WARNING = 1
    ERROR = 2


@_record
class Diagnostic:
    """One thing to say about one entry."""

    severity: Severity
    code: ErrorCode  # of an error
    place: Place
    message: str


@_record
class BuildSummary:
    """What a builder has written."""

    depth: int
    headwords: int
    records: int
    blocks: int
    file_bytes: int
    record_bytes: int
    index_bytes: int
    shared_bytes: int
    shared_texts: int
    referring_records: int
    left_out: int  # entries that the format cannot hold


@_record
class ImportSummary:
    """What an import has read, written and left out."""

    name: str  # of the database
    language: str
    articles: int
    entries: int
    plain_headwords: int  # written in plain letters: a character is not in the code page
    bad_characters: int  # headwords left out: a character is not in the code page
    unindexed: int  # headwords left out: without a letter, or too long
    empty: int  # articles of which no translation is left
    losses: Losses


# Texts


class Alphabet(enum.Enum):
    """The letters into which a filter turns text."""

    LATIN = 0
    RUSSIAN = 1
