import pathlib

import pytest

import kzlexicon

TREE = pathlib.Path(__file__).resolve().parents[2]
DATA = TREE / "data"


@pytest.fixture(scope="session")
def directory(tmp_path_factory):
    """The sample dictionaries and the inflection table, compiled."""
    place = tmp_path_factory.mktemp("dictionaries")
    for name in ("baseenru.dic", "baseruen.dic", "baseru.dig"):
        source = kzlexicon.SourceReader().add_file((DATA / name).with_suffix(".txt")).take()
        builder = kzlexicon.Builder(properties=source.properties).add_source(source)
        assert builder.write(place / name).headwords > 50
        assert not builder.diagnostics
    kzlexicon.Inflector.compile_file(DATA / "ruflex.txt", place / "ruflex.Dat")
    return place
