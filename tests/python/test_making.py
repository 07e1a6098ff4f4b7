"""Building, source text, importing, code pages, grammar, output files, and exceptions."""

import pytest

import kzlexicon
from kzlexicon import Builder, CodePage, Dictionary, ErrorCode, PlainEntry, PlainMeaning, Severity


def test_what_is_built_is_found_again(tmp_path):
    builder = Builder("ENRU", title="Pets", packed=True, shared=True)
    builder.add(PlainEntry("cat", [PlainMeaning(["кот", "кошка"], number=1),
                                   PlainMeaning(["плеть"], "на корабле", 2)], "N"))
    builder.add_line("Dog*Nсобака;пёс[M]").add_line("Dog*Nсобака;пёс[M]", kzlexicon.Place("me", 7))
    assert builder.summary is None
    with Dictionary.from_bytes(builder.to_bytes()) as dictionary:
        assert dictionary.header.title == "Pets" and dictionary.header.packed
        view = dictionary.find("cat").entries[0].view()
        assert view.meanings[1].definition == "на корабле"
        formatter = kzlexicon.SourceFormatter(dictionary.header)
        assert "*: title Pets\n" in formatter.directives()
        (line,) = [formatter.line(entry) for entry in dictionary.find("dog")]
        assert (line.text, line.exact) == ("Dog*Nсобака;пёс[M]", True)
    assert builder.summary.headwords == 2
    (note,) = builder.diagnostics
    assert (note.severity, note.place.file, note.place.line) == (Severity.NOTE, "me", 7)
    with pytest.raises(kzlexicon.ArgumentError, match="written"):
        builder.write(tmp_path / "again.dic")
    assert kzlexicon.type_of_file_name(tmp_path / "a.dis") == "S"


def test_entries_that_cannot_be_stored():
    source = kzlexicon.SourceReader(title="Mine").add("*: language ENRU\n*: title Theirs\ncat\n", "a")
    source = source.take()
    assert (source.properties.title.value, source.properties.language.place.line) == ("Mine", 1)
    assert source.place(source.lines[0]) == kzlexicon.Place("a", 3)
    builder = Builder("RUEN", properties=source.properties).add_source(source)
    with pytest.raises(kzlexicon.DataError):
        builder.to_bytes()
    (diagnostic,) = builder.diagnostics
    assert (diagnostic.severity, diagnostic.code) == (Severity.ERROR, ErrorCode.DATA)
    kept = Builder("ENRU", skip_bad=True).add_source(source).add_line("dog*Nпёс")
    assert (kept.to_bytes()[:1] != b"", kept.summary.left_out) == (True, 1)


def test_plain_entries_as_source_lines():
    writer = kzlexicon.SourceWriter("ENRU")
    entry = PlainEntry("bow", [PlainMeaning(["лук", "поклон fig.", " "])], "N")
    assert writer.lines(entry) == ["bow*Nлук;поклон {fig.}"]
    assert writer.losses.synonyms == 1
    entry.meanings[0].synonyms = "лук"
    with pytest.raises(TypeError, match="synonyms"):
        writer.lines(entry)


def test_a_database_of_dictd_is_imported(tmp_path):
    article = "haus\n   _n. дом\n".encode()
    (tmp_path / "db.dict").write_bytes(article)
    (tmp_path / "db.index").write_text(f"haus\tA\t{'ABCDEFGHIJKLMNOPQRSTUVWXYZ'[len(article)]}\n")
    text, summary = kzlexicon.import_dictd(tmp_path / "db", "ENRU")
    assert "\nhaus*Nдом\n" in text
    assert (summary.articles, summary.entries, summary.losses.meanings) == (1, 1, 0)
    assert str(tmp_path / "db.dict") in kzlexicon.dictd_files(tmp_path / "db.index")


def test_code_pages_agree_with_the_codecs_of_python():
    for text, page, codec in [("Жук", CodePage.RUSSIAN, "cp1251"), ("Maß", CodePage.WESTERN, "cp1252"),
                              ("Жук", CodePage.CP866, "cp866"), ("Maß", CodePage.CP850, "cp850"),
                              ("Жук", CodePage.KOI8_R, "koi8-r"),
                              ("Жук", CodePage.ISO_8859_5, "iso8859-5"),
                              ("Жук", CodePage.MAC_CYRILLIC, "mac-cyrillic")]:
        assert kzlexicon.encode(text, page) == text.encode(codec), page
        assert kzlexicon.decode(memoryview(text.encode(codec)), page) == text
    assert kzlexicon.code_page_name(CodePage.WESTERN) == "Windows-1252"


def test_texts_made_of_texts(tmp_path):
    russian = kzlexicon.Alphabet.RUSSIAN
    (tmp_path / "words.rpl").write_bytes("кот=кошка\r\n".encode("cp1251"))
    for text_filter, text, expected in [
            (kzlexicon.transliteration(), "ёж", "yozh"),
            (kzlexicon.transliteration(to=russian, smart=True), "station", "сташн"),
            (kzlexicon.keyboard_layout(), "ghbdtn", "привет"),
            (kzlexicon.keyboard_layout(to=russian, look_alike=True), "POCA", "РОСА"),
            (kzlexicon.replacement(tmp_path / "words.rpl"), "кот", "кошка")]:
        assert text_filter.apply(text) == expected
    with pytest.raises(kzlexicon.ArgumentError):
        kzlexicon.transliteration(small_letters=True)
    assert kzlexicon.Conversion("koi8-r", "UTF8").apply("мир".encode("koi8-r")) == "мир".encode()
    with pytest.raises(kzlexicon.CodePageError):
        kzlexicon.Conversion("utf-8", "koi8-r").apply("№".encode())
    narrow = kzlexicon.convert_narrow("дом".encode("cp1251"), "windows-1251", "cp866")
    assert narrow == "дом".encode("cp866")
    assert all(kzlexicon.Conversion(name, "utf-8") for name in kzlexicon.encodings())


def test_grammar_in_words():
    decoded = kzlexicon.decode_tags("N", "MS@")
    assert [str(field) for field in decoded.fields] == ["gender=masculine", "number=singular",
                                                        "animacy=animate"]
    assert kzlexicon.summarize_fields(decoded.fields) == "masculine, singular, animate"
    assert kzlexicon.encode_fields("N", ["masculine", "animate"]) == "M@"
    assert kzlexicon.find_attribute(0, "NMa").code == "N"
    assert (kzlexicon.tag_group("N"), kzlexicon.part_name("V")) == ("noun", "verb")
    entry = kzlexicon.view_entry("water*N[-P|F]1.вода/2.{курорт}воды[P]", "ENRU")
    assert (kzlexicon.describe_grammar(kzlexicon.entry_grammar(entry), "ENRU")
            == "English: singular, no-plural; Russian: feminine")
    (word,) = kzlexicon.meaning_grammar(entry, entry.meanings[1])
    assert (word.side, word.synonym) == (kzlexicon.Side.SYNONYM, "воды")


def test_output_files_appear_when_they_are_complete(tmp_path):
    target = tmp_path / "words.txt"
    with kzlexicon.OutputFile(target) as output:
        output.write("кот\n")
        assert not target.exists()
    with pytest.raises(ZeroDivisionError), kzlexicon.OutputFile(target) as output:
        output.write("пёс\n")
        1 / 0
    assert target.read_text() == "кот\n" and list(tmp_path.iterdir()) == [target]
    with pytest.raises(kzlexicon.ArgumentError):
        kzlexicon.refuse_inputs_as_output(target, [target])


def test_errors_have_a_class_for_each_code_and_a_place(tmp_path):
    (tmp_path / "bad.dic").write_bytes(b"no dictionary")
    text = tmp_path / "source.txt"
    text.write_text("*: language ENRU\n*: language RUEN\n")
    for work, error, base, code, line in [
            (lambda: Dictionary(tmp_path / "none.dic"), kzlexicon.FileError, OSError, "FILE", 0),
            (lambda: Dictionary(tmp_path / "bad.dic"), kzlexicon.DataError, ValueError, "DATA", 0),
            (lambda: Builder("XX"), kzlexicon.ArgumentError, ValueError, "ARGUMENT", 0),
            (lambda: kzlexicon.SourceReader().add_file(text), kzlexicon.DataError, ValueError, "DATA", 2),
            (lambda: kzlexicon.encode("é", CodePage.RUSSIAN), kzlexicon.CodePageError, ValueError,
             "CODE_PAGE", 0)]:
        with pytest.raises(base) as caught:
            work()
        assert type(caught.value) is error
        assert (caught.value.code, caught.value.line) == (ErrorCode[code], line)
        assert caught.value.message in str(caught.value)
        if line:
            assert str(caught.value).startswith(f"{caught.value.file}:{line}: ")
    assert (caught.value.character, caught.value.page) == ("é", CodePage.RUSSIAN)


def test_text_that_is_no_unicode():
    dictionary = Dictionary.from_bytes(Builder("ENRU").add_line("cat*Nкот").to_bytes())
    with pytest.raises(kzlexicon.DataError) as caught:
        dictionary.find("ca\udc80t")  # the byte 0x80, as Python keeps it
    assert caught.value.offset == 2
    with pytest.raises(UnicodeEncodeError):
        dictionary.find("\ud800")
    with pytest.raises(TypeError):
        dictionary.find(b"cat")
    source = kzlexicon.SourceReader().add("cat*N\udc80", "\udc81").take()
    assert (source.lines[0].text, source.files) == ("cat*N\udc80", ["\udc81"])
