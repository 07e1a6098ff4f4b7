#!/usr/bin/env python3
"""The examples of the public headers: each is compiled, run, and compared with what it says it prints.

    header_examples.py write INCLUDE               writes header_examples.c and header_examples.cpp
    header_examples.py run INCLUDE PROGRAM KZDIC DATA    runs the program made from them

The example of a header is the first block of its first comment that is indented by three columns. It
is C, or C++ in a header of classes alone and behind a line that ends with "C++:"; functions in front
of it begin with "static". A comment such as

    puts(word);  // prints "cat", "dog"

gives lines of its output, in their order, in UTF-8; the program prints Windows-1251.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

EXAMPLE = re.compile(r"((?:^(?: \*|//) {3}.+\n)+)", re.MULTILINE)
FUNCTION = re.compile(r"static .*?^}\n", re.MULTILINE | re.DOTALL)
LINE = re.compile(r'// prints ("[^"\n]*"(?:, "[^"\n]*")*)')

PETS = "cat*N[|F]кошка\ndig*Vкопать\ndog*N[|F]собака;пёс[M]\n"
# The texts that the examples read, beside the sample dictionaries and the inflection table.
FILES = {"words.txt": "cat\r\ndog\r\n", "units.txt": "km kilometre\nk kilo\n",
         "replace.txt": "cat=dog\r\n"}


def examples(include):
    """For each header its name, its example, and whether that is C++."""
    for path in sorted(pathlib.Path(include, "kz").glob("*.h")):
        comment = path.read_text("utf-8").split("#ifndef")[0]
        match = EXAMPLE.search(comment)
        if match is None:
            sys.exit(f"kz/{path.name} has no example")
        text = "".join(line[5:] + "\n" for line in match[1].splitlines())
        is_cxx = comment.startswith("//") or comment[:match.start()].endswith("C++:\n *\n")
        yield path.stem, text, is_cxx


def write(include):
    sources = {False: "", True: ""}
    names = []
    for name, text, is_cxx in examples(include):
        functions = FUNCTION.match(text)
        start = functions.end() if functions else 0
        linkage = 'extern "C" ' if is_cxx else ""
        sources[is_cxx] += (f"{text[:start]}{linkage}void example_{name}(void);\n"
                            f"{linkage}void example_{name}(void) {{\n{text[start:]}}}\n\n")
        names.append(name)
    includes = "#include <kz/kzcommon.h>\n#include <stdio.h>\n#include <string.h>\n\n"
    pathlib.Path("header_examples.c").write_text(includes + sources[False], "utf-8")
    declarations = "".join(f'extern "C" void example_{name}(void);\n' for name in names)
    calls = "".join(f'  puts("\\001{name}");\n  fflush(stdout);\n  example_{name}();\n'
                    for name in names)
    pathlib.Path("header_examples.cpp").write_text(
        f"{includes}{sources[True]}{declarations}\nint main() {{\n{calls}}}\n", "utf-8")


def prepare(directory, kzdic, data):
    for name, text in FILES.items():
        (directory / name).write_text(text, "cp1251", newline="")
    (directory / "ruflex.txt").write_text((data / "ruflex.txt").read_text("utf-8"), "cp1251")
    (directory / "pets.txt").write_text(PETS, "utf-8")
    for source, name in ((directory / "pets.txt", "pets.dic"), (data / "baseenru.txt", "baseenru.dic"),
                         (data / "baseru.txt", "baseru.dig")):
        subprocess.run([kzdic, "build", "-q", "--language", "RU" if name.endswith("dig") else "ENRU",
                        source, "-o", directory / name], check=True)


def run(include, program, kzdic, data):
    with tempfile.TemporaryDirectory() as name:
        prepare(pathlib.Path(name), kzdic, pathlib.Path(data))
        result = subprocess.run([program], cwd=name, stdout=subprocess.PIPE)
    printed = {}
    for part in result.stdout.decode("cp1251").split("\1")[1:]:
        header, _, text = part.partition("\n")
        printed[header] = text.splitlines()
    faults = 0
    for header, text, _ in examples(include):
        stated = [line for lines in LINE.findall(text) for line in lines[1:-1].split('", "')]
        if not stated or printed.get(header) != stated:
            faults += 1
            print(f"kz/{header}.h: the example says {stated}, and prints {printed.get(header)}")
    if result.returncode:
        print(f"the examples ended with status {result.returncode}")
    print(f"{len(printed)} examples, {faults} differ")
    return 1 if faults or result.returncode else 0


if __name__ == "__main__":
    sys.exit({"write": write, "run": run}[sys.argv[1]](*sys.argv[2:]))
