"""Dictionaries, sets, inflection tables; how long objects live, and threads."""

import gc
import os
import threading

import pytest

import kzlexicon
from kzlexicon import Dictionary, DictionarySet, Inflector, Step, WordGroup


def test_a_dictionary_finds_words(directory):
    with Dictionary(directory / "baseenru.dic") as dictionary:
        assert dictionary.path == str(directory / "baseenru.dic")
        assert (dictionary.language, dictionary.header.type) == ("ENRU", "C")
        answer = dictionary.find("Table")
        assert (answer.step, answer.description, len(answer)) == (Step.LOWER_CASE, "in lower case", 1)
        view = answer.entries[0].view()
        assert (view.headword, view.part_of_speech) == ("table", "noun")
        assert view.meanings[0].synonyms == ["стол", "столик"]
        assert view.meanings[1].synonym_blocks[0].tags == "F"
        assert [len(dictionary.find("table", next=3)), len(dictionary.find("qwerty"))] == [4, 0]
        assert not dictionary.find("qwerty") and "qwerty" not in dictionary
        assert {"glass", "glasses"} <= {entry.headword for entry in dictionary.find_prefix("glass")}
    assert dictionary.closed
    with pytest.raises(kzlexicon.ArgumentError, match="closed"):
        dictionary.find("table")
    assert repr(dictionary) == "<kzlexicon.Dictionary, closed>"


def test_walks_cover_a_part_of_a_dictionary(directory):
    dictionary = Dictionary(directory / "baseenru.dic")
    everything = list(dictionary)
    assert len(everything) == dictionary.statistics().records
    part = list(dictionary.entries(first="b", last="c", part_codes="N"))
    assert part == [e for e in everything
                    if e.headword[0] in "bc" and e.view().part_code == "N"] != []
    with pytest.raises(kzlexicon.ArgumentError):
        dictionary.entries(first="?")


def test_inflected_forms(directory):
    inflector = Inflector(directory / "ruflex.Dat")
    forms = [(form.headword, form.group) for form in inflector.headwords("книгами")]
    assert {("книг", WordGroup.MASCULINE), ("книга", WordGroup.FEMININE)} <= set(forms)
    ending = inflector.endings("столами")[0]
    assert (ending.rest, ending.readings[0].grammar[0]) == ("стол", "noun")
    answer = Dictionary(directory / "baseruen.dic").find_inflected("отцов", inflector)[0]
    assert (answer.step, answer.ending) == (Step.INFLECTED, "-ов (NM 1)")
    assert answer.entries[0].headword == "отец"


def test_tables_are_compiled_from_text_too(directory, tmp_path):
    text = (directory / "ruflex.txt").read_text("cp1251")
    Inflector.compile(text, tmp_path / "table.Dat")
    assert (tmp_path / "table.Dat").read_bytes() == (directory / "ruflex.Dat").read_bytes()
    with pytest.raises(kzlexicon.DataError) as caught:
        Inflector.compile("ами\nи", tmp_path / "bad.Dat", name="bad")
    assert (caught.value.file, caught.value.line) == ("bad", 1)


def test_a_set_is_a_sequence_of_dictionaries(directory):
    with DictionarySet(directory, "ENRU") as dictionaries:
        assert [os.path.basename(d.path) for d in dictionaries] == ["baseenru.dic", "baseru.dig"]
        assert dictionaries[-1].find("стол") and dictionaries.dictionaries[0] is dictionaries[0]
        assert len(dictionaries) == 2 and not dictionaries.missing
        first = dictionaries[0]
        with pytest.raises(IndexError):
            dictionaries[2]
    assert first.closed
    config = f"-CENRU {directory}/baseenru.dic:0;/nowhere/none.dic:0"
    (missing,) = DictionarySet(directory, config=config).missing
    assert (missing.path, missing.loaded) == ("/nowhere/none.dic", "")


def test_what_is_taken_from_an_object_outlives_it(directory):
    dictionary = DictionarySet(directory, "ENRU")[0]
    gc.collect()
    entry = dictionary.find("table").entries[0]
    walk = dictionary.entries()
    next(walk)
    dictionary.close()
    del dictionary
    gc.collect()
    assert len(list(walk)) > 100 and next(walk, None) is None
    assert entry.text.startswith("table*N")
    with open(directory / "baseenru.dic", "rb") as file:
        data = bytearray(file.read())
    dictionary = Dictionary.from_bytes(data, "copy")
    data.clear()  # nothing refers to the bytes any more
    assert dictionary.path == "copy" and dictionary.find("table").entries == [entry]


@pytest.mark.parametrize("shared", [False, True])
def test_threads(directory, shared):
    path = directory / "baseruen.dic"
    inflector = Inflector(directory / "ruflex.Dat")
    common = Dictionary(path)
    found = []

    def search(words):
        dictionary = common if shared else Dictionary(path)
        for _ in range(200):
            for form, headword in words.items():
                answers = dictionary.find_inflected(form, inflector)
                found.append(answers[0].entries[0].headword == headword)

    threads = [threading.Thread(target=search, args=[words])
               for words in ({"отцов": "отец", "окон": "окно"}, {"книгами": "книга"})]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len(found) == 600 and all(found)


def test_other_threads_run_during_work(tmp_path):
    pipe = tmp_path / "pipe"
    os.mkfifo(pipe)
    reader = kzlexicon.SourceReader()
    thread = threading.Thread(target=reader.add_file, args=[pipe], daemon=True)
    thread.start()
    pipe.write_text("cat*Nкот\n")  # waits for the reader, as the reader waits for it
    thread.join()
    assert len(reader.take()) == 1
