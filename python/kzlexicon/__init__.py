"""Dictionaries read, searched, built, imported and checked.

    >>> import kzlexicon
    >>> builder = kzlexicon.Builder("ENRU", title="Pets").add_line("dog*Nсобака;пёс[M]")
    >>> with kzlexicon.Dictionary.from_bytes(builder.to_bytes()) as dictionary:
    ...     for entry in dictionary.find("Dog"):
    ...         print(entry.view().meanings[0].synonyms)
    ['собака', 'пёс']

Every failure of the library is a kzlexicon.Error; a word that is not there is no error.
"""

from . import _errors, _native, _values
from ._errors import ArgumentError, CodePageError, DataError, Error, FileError
from ._native import (
    Builder,
    Conversion,
    Dictionary,
    DictionarySet,
    Entries,
    Entry,
    Inflector,
    OutputFile,
    SourceFormatter,
    SourceReader,
    SourceText,
    SourceWriter,
    TextFilter,
    code_page_name,
    convert_narrow,
    decode,
    decode_tags,
    describe_grammar,
    dictd_files,
    encode,
    encode_fields,
    encodings,
    entry_grammar,
    find_attribute,
    import_dictd,
    keyboard_layout,
    meaning_grammar,
    part_name,
    refuse_inputs_as_output,
    replacement,
    summarize_fields,
    tag_group,
    transliteration,
    type_of_file_name,
    view_entry,
)
from ._values import (
    Alphabet,
    Answer,
    AttributeName,
    BuildSummary,
    CodePage,
    Decoded,
    Diagnostic,
    Ending,
    EntryView,
    ErrorCode,
    Field,
    FieldKind,
    FormattedLine,
    Header,
    HeadwordForm,
    ImportSummary,
    InflectionReading,
    Losses,
    MeaningView,
    MissingDictionary,
    Place,
    PlainEntry,
    PlainMeaning,
    Properties,
    Property,
    Severity,
    Side,
    SourceLine,
    Statistics,
    Step,
    SynonymBlock,
    WordGrammar,
    WordGroup,
)

__all__ = sorted(
    name
    for name, value in globals().items()
    if getattr(value, "__module__", "").startswith(f"{__name__}._")
)
# Names as users write them, in messages and help.
for _name in __all__:
    globals()[_name].__module__ = __name__
