#!/usr/bin/env python3
"""The examples of the public headers: each is compiled, run, and compared with the output it states.

    header_examples.py write INCLUDE               writes header_examples.c and header_examples.cpp
    header_examples.py run INCLUDE PROGRAM KZDIC DATA    runs the program made from them

The example of a header is the first block of its first comment that is indented by three columns (in
kz/) or five (in kzlexicon/). It is C, or C++ in kzlexicon/, in a header of classes alone and after a
line that ends with "C++:". Functions in front of it begin with "static". A comment such as

    puts(word);  // Output: cat

gives one line of its output, in UTF-8; examples of kz/ print Windows-1251.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

EXAMPLE = {"kz": re.compile(r"((?:^(?: \*|//) {3}.+\n)+)", re.MULTILINE),
           "kzlexicon": re.compile(r"((?:^// {5}.+\n)+)", re.MULTILINE)}
FUNCTION = re.compile(r"static .*?^}\n", re.MULTILINE | re.DOTALL)
LINE = re.compile(r"// Output:(?: (.*))?$", re.MULTILINE)

PETS = "cat*N[|F]кошка\ndig*Vкопать\ndog*N[|F]собака;пёс[M]\n"
# The texts that the examples read, beside the sample dictionaries and the inflection table.
FILES = {"words.txt": "cat\r\ndog\r\n", "units.txt": "km kilometre\nk kilo\n",
         "replace.txt": "cat=dog\r\n", "pets.index": "cat\tA\tM\n", "pets.dict": "cat\n  кот\n"}


def examples(include):
    """For each header its name, its example, and whether that is C++."""
    for folder in "kz", "kzlexicon":
        for path in sorted(pathlib.Path(include, folder).glob("*.h")):
            header = f"{folder}/{path.name}"
            comment = path.read_text("utf-8").split("#ifndef")[0]
            match = EXAMPLE[folder].search(comment)
            if match is None:
                sys.exit(f"{header} has no example")
            text = "".join(line[5:] + "\n" for line in match[1].splitlines())
            is_cxx = comment.startswith("//") or comment[:match.start()].endswith("C++:\n *\n")
            yield header, text, is_cxx


def write(include):
    sources = {False: "", True: ""}
    declarations = calls = ""
    for header, text, is_cxx in examples(include):
        functions = FUNCTION.match(text)
        start = functions.end() if functions else 0
        linkage = 'extern "C" ' if is_cxx else ""
        function = "example_" + header.replace("/", "_")[:-2]
        sources[is_cxx] += (f"{text[:start]}{linkage}void {function}(void);\n"
                            f"{linkage}void {function}(void) {{\n{text[start:]}}}\n\n")
        declarations += f'extern "C" void {function}(void);\n'
        calls += f'  puts("\\001{header}");\n  fflush(stdout);\n  {function}();\n'
    includes = "#include <kz/kzcommon.h>\n#include <stdio.h>\n#include <string.h>\n"
    lexicon = "".join(f"#include <{name}>\n" for name in ("kzlexicon/lexicon.h", "fstream",
                                                          "iostream", "sstream"))
    pathlib.Path("header_examples.c").write_text(f"{includes}\n{sources[False]}", "utf-8")
    pathlib.Path("header_examples.cpp").write_text(
        f"{includes}{lexicon}\n{sources[True]}{declarations}\nint main() {{\n{calls}}}\n", "utf-8")


def prepare(directory, kzdic, data):
    for name, text in FILES.items():
        encoding = "utf-8" if name.startswith("pets.") else "cp1251"
        (directory / name).write_text(text, encoding, newline="")
    (directory / "ruflex.txt").write_text((data / "ruflex.txt").read_text("utf-8"), "cp1251")
    (directory / "data").symlink_to(data)
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
    for part in result.stdout.split(b"\1")[1:]:
        header, _, text = part.partition(b"\n")
        encoding = "cp1251" if header.startswith(b"kz/") else "utf-8"
        printed[header.decode()] = [line.rstrip() for line in text.decode(encoding).splitlines()]
    faults = 0
    for header, text, _ in examples(include):
        stated = [line.rstrip() for line in LINE.findall(text)]
        if not stated or printed.get(header) != stated:
            faults += 1
            print(f"{header}: the example says {stated}, and prints {printed.get(header)}")
    if result.returncode:
        print(f"the examples ended with status {result.returncode}")
    print(f"{len(printed)} examples, {faults} differ")
    return 1 if faults or result.returncode else 0


if __name__ == "__main__":
    sys.exit({"write": write, "run": run}[sys.argv[1]](*sys.argv[2:]))
