"""The type hints agree with the module, and the examples run."""

import ast
import doctest
import inspect
import pathlib
import re
import shutil
import subprocess
import sys

import pytest

import kzlexicon
from conftest import TREE
from kzlexicon import _native

# Python writes these with wider types than the module needs.
LOOSE = {"__eq__", "__hash__", "__exit__"}
SPELLINGS = {"kzlexicon._native.": "", "List[": "list[", "Tuple[": "tuple["}


def spelled(annotation):
    text = annotation if isinstance(annotation, str) else ast.unparse(annotation)
    for before, after in SPELLINGS.items():
        text = text.replace(before, after)
    return re.sub(r"Optional\[([\w.]+)\]", r"\1 | None", text)


def signature(function, of_class):
    """What a caller sees of a function: names, types and defaults."""
    given = function.args
    arguments = [(a.arg, "" if a.arg == "self" else spelled(a.annotation))
                 for a in given.args + given.kwonlyargs]
    defaults = [ast.unparse(d) for d in given.defaults + given.kw_defaults if d]
    result = spelled(function.returns).replace("Self", of_class)
    return arguments, len(given.kwonlyargs), defaults, result


def check_function(hint, native, of_class=""):
    if hint.name in LOOSE:
        return
    if hint.decorator_list and hint.decorator_list[0].id == "property":
        assert spelled(native.fget.__doc__.splitlines()[0].split(" -> ")[1]) == spelled(hint.returns)
        return
    # "__iter__(self: ...)": a method without names for its arguments has no others.
    line = native.__doc__.splitlines()[0].replace("arg0", "self", 1)
    documented = ast.parse(f"def {line}: ...").body[0]
    assert signature(documented, of_class) == signature(hint, of_class)


def test_type_hints():
    stub = pathlib.Path(kzlexicon.__file__).with_name("_native.pyi")
    hints = {item.name: item for item in ast.parse(stub.read_text()).body if hasattr(item, "name")}
    assert set(hints) == {name for name in vars(_native) if name[0] != "_"}
    for name, hint in hints.items():
        native = getattr(_native, name)
        if isinstance(hint, ast.FunctionDef):
            check_function(hint, native)
            continue
        members = {member.name: member for member in hint.body}
        public = {member for member in vars(native) if member[0] != "_"}
        assert {member for member in members if member[0] != "_"} == public, name
        for member, item in members.items():
            check_function(item, inspect.getattr_static(native, member)
                           if "property" in map(ast.unparse, item.decorator_list)
                           else getattr(native, member), name)


def test_everything_is_documented_and_exported():
    assert set(_native.__dict__) - set(kzlexicon.__all__) == {
        name for name in vars(_native) if name.startswith("__")}
    for name in kzlexicon.__all__:
        value = getattr(kzlexicon, name)
        assert value.__module__ == "kzlexicon" and (value.__doc__ or "").strip(), name


def test_the_page_for_users(directory, tmp_path, monkeypatch):
    monkeypatch.chdir(shutil.copytree(directory, tmp_path / "copy"))
    page = doctest.testfile(str(TREE / "docs" / "python.md"), module_relative=False, encoding="utf-8")
    assert (page.failed, doctest.testmod(kzlexicon).failed) == (0, 0) and page.attempted > 10


@pytest.mark.parametrize("script, arguments", [
    ("lexicon", []), ("ctypes_lookup", ["baseenru.dic", "table", "qwerty"])])
def test_examples(script, arguments, directory):
    run = subprocess.run([sys.executable, TREE / "examples" / f"{script}.py", *arguments],
                         cwd=directory, capture_output=True, encoding="utf-8")
    assert run.stderr == ""
    assert run.stdout == (TREE / "examples" / f"{script}.expected").read_text("utf-8")
