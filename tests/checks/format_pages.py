#!/usr/bin/env python3
"""Holds the pages of the file formats against the files: examples/read_dictionary.py, written from
the pages alone, has to agree with kzdic, and kzdic with the bytes of the worked examples.

Arguments: the source tree, kzdic, a directory for the files made.
"""
import collections
import itertools
import json
import pathlib
import re
import subprocess
import sys

SOURCE, KZDIC, FILES = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
sys.path.insert(0, str(SOURCE / "examples"))
sys.dont_write_bytecode = True
import read_dictionary  # noqa: E402

faults = []


def expect(what, found, wanted):
    """Compares two lists, and shows the first places where they differ."""
    differing = [f"  {a!r}, not {b!r}" for a, b in itertools.zip_longest(found, wanted) if a != b]
    if differing:
        faults.append(what)
        print(what, *differing[:5], sep="\n")


def kzdic(*arguments, text=None):
    run = subprocess.run([KZDIC, *arguments], cwd=FILES, input=text, encoding="utf-8",
                         stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    if run.returncode:
        sys.exit(f"kzdic {arguments}: {run.stderr}")
    return run.stdout


def read(name):
    return read_dictionary.Dictionary((FILES / name).read_bytes())


def check_dictionary(name):
    """A walk gives what kzdic dumps, a search the entries that the walk has for the word."""
    dictionary = read(name)
    entries = list(dictionary.entries())
    lines = [*dictionary.directives(), *map(dictionary.source_line, entries)]
    expect(f"{name}: walk", lines, kzdic("dump", name).splitlines())
    by_word = collections.defaultdict(list)
    for entry in entries:
        by_word[entry.split(b"*")[0]].append(entry)
    for word in list(by_word):
        for absent in word[:-1], word + b"a", word + b"\xff":
            by_word.setdefault(absent, [])
    expect(f"{name}: search", [list(dictionary.find(word)) for word in by_word],
           list(by_word.values()))


def check_samples():
    for text in sorted((SOURCE / "data").glob("base*.txt")):
        for depth, form in itertools.product("235", ("plain", "packed")):
            name = f"{text.stem}-{depth}-{form}.dic"
            kzdic("build", f"--{form}", "--depth", depth, "--skip-bad", text, "-o", name)
            check_dictionary(name)


def check_limits():
    """Records after a match of more than 63 characters, part codes without a block, word lists."""
    headwords = "ab", "a" * 60 + "bcd", "a" * 60 + "ef"
    bodies = "один", "два", "один, два"
    sources = (
        ("limits.dic", "ENRU", "".join(f"{word}*N{body}\n" for word in headwords for body in bodies)),
        ("codes.dic", "RUDE", "дом*W[Öl]haus\nкот*$«a»[Öl]\\Bär\nсуп*\nстол*Nab[Т]tisch\\1\\\\Стол\n"),
        ("spellings.dic", "ENRU", "'tis*Wа\n_a.*Nб\n-armed*Aв\nX-ray*Nг\nbow*Nд\\\\Bow\n"),
        ("accents.dic", "FRRU", "Ålesund*Nа\nÆrø*Nб\nÉtat*Nг\n'été*Nд\n"),
        ("words.dis", "EN", "a\nab\nabc\nac\n"))
    for (name, language, source), form in itertools.product(sources, ("--plain", "--packed")):
        kzdic("build", "--language", language, form, "-", "-o", name, text=source)
        check_dictionary(name)


def check_table():
    """The records of the compiled table are those of its text."""
    kzdic("inflect", "--build", SOURCE / "data/ruflex.txt", "ruflex.Dat")
    indices = []
    for kind, count in enumerate((66, 25, 111)):
        answers = kzdic("grammar", "name", "--json", str(kind), "-",
                        text="".join(f"{index}\n" for index in range(count))).splitlines()
        names = [json.loads(answer)["name"] for answer in answers]
        indices.append({name: index for index, name in enumerate(names)})
    wanted = {}
    for line in (SOURCE / "data/ruflex.txt").read_text("utf-8").splitlines():
        if not line or line[0] == "*":
            continue
        ending, *_ = line.split()
        wanted[ending] = []
        for words in line.removeprefix(ending).split("|"):
            record, kind = [0, 0, 0, 0, ""], 0
            for word in words.split():
                if word[0].isdigit():
                    number, record[4] = re.fullmatch(r"(\d+)(.?)", word).groups()
                    record[3], kind = int(number), 2
                else:
                    record[kind], kind = indices[kind][word], kind + 1
            wanted[ending].append(tuple(record))
    found = read_dictionary.read_table((FILES / "ruflex.Dat").read_bytes())
    expect("ruflex.Dat", sorted(found), sorted(wanted.items()))


def shown(data, position):
    row = data[position:position + 16]
    pairs = " ".join(row[i:i + 2].hex() for i in range(0, len(row), 2))
    return f"{position:08x}: {pairs:39}  " + "".join(chr(b) if 32 <= b < 127 else "." for b in row)


def check_page():
    """The hexadecimal lines of the worked examples, after the commands that make the files."""
    page = (SOURCE / "docs/dictionary-format.md").read_text("utf-8")
    example = re.compile(r"(?P<source>(?:    \*: .*\n)+(?:    .*\n)*)|"
                         r"`kzdic (?P<build>build (?:[^`]* )?(?P<text>\S+) -o (?P<file>[^`]+))`|"
                         r"^    (?P<line>(?P<position>[0-9a-f]{8}): .*)|^    (?P<gap>\.\.\.)$|"
                         r"\| 0x(?P<at>\w+) \| `(?P<bytes>[0-9a-f ]+)`", re.MULTILINE)
    source, data, end, compared = "", b"", 0, 0
    for match in example.finditer(page):
        if match["source"]:
            source = re.sub("^    ", "", match["source"], flags=re.MULTILINE)
        elif match["build"]:
            (FILES / match["text"]).write_text(source, "utf-8")
            kzdic(*match["build"].split())
            data = (FILES / match["file"]).read_bytes()
        elif match["line"]:
            position = int(match["position"], 16)
            compared += 1
            expect("dictionary-format.md", [match["line"]], [shown(data, position)])
            end = position + 16
        elif match["bytes"]:
            record = bytes.fromhex(match["bytes"])
            position = int(match["at"], 16)
            expect("dictionary-format.md", record, data[position:position + len(record)])
        else:
            following = re.match(r"\s*([0-9a-f]{8}):", page[match.end():])
            stop = int(following[1], 16) if following else len(data)
            expect("dictionary-format.md: lines left out", data[end:stop].strip(b"\xff"), b"")
    expect("dictionary-format.md: lines compared", [compared > 30], [True])
    kzdic("build", "--language", "ENRU", "--password", "pass", "-", "-o", "secret.dic", text="a*Nb")
    secret = read("secret.dic")
    expect("password", secret.password(), b"pass")
    expect("dictionary-format.md: password", [secret.header.password.hex(" ") in page], [True])


def check_part_names():
    """The names of part codes, which entries, tags and endings of words have in common."""
    page = (SOURCE / "docs/entry-format.md").read_text("utf-8")
    rows = re.findall(r"^\| `([^`]+)` \| (.+) \|$", page.split("| Code | Name |")[1].split("\n\n")[0], re.M)
    names = [(code, name) for codes, name in rows for code in codes.split()]
    # A word list of Russian has entries of all codes; a tag string may be empty.
    kzdic("build", "--language", "RU", "-", "-o", "parts.dic",
          text="".join(f"а*{code}а\n" for code, _ in names))
    entries = json.loads(kzdic("lookup", "--json", "parts.dic", "а"))["entries"]
    found = {entry["part_code"]: entry["part_of_speech"] for entry in entries}
    expect("entry-format.md: names in entries", sorted(found.items()), sorted(names))
    described = kzdic("grammar", "decode", "-", text="".join(f"{code} \n" for code, _ in names))
    expect("entry-format.md: names in grammar", re.findall(r"^part-of-speech +(.), (.+) \(", described, re.M),
           names)
    endings = json.loads(kzdic("inflect", "--all", "--json", "ruflex.Dat", "делающий"))["endings"]
    parts = {record["class"]: record["grammar"][0] for end in endings for record in end["records"]}
    expect("names in endings", [parts["G"]], [dict(names)["G"]])


FILES.mkdir(parents=True, exist_ok=True)
check_samples()
check_limits()
check_table()
check_page()
check_part_names()
print(len(faults), "faults")
sys.exit(1 if faults else 0)
