#!/usr/bin/env python3
"""Runs the commands that README.md and docs/embedding.md show and compares what they print.

Arguments: the source tree, the build tree, and "programs" to build and run the programs of the pages
too, against an installed copy of the build. The commands of a page run in order, in a directory that
holds what ./demo leaves behind; "$ cat FILE" makes the file.
"""
import difflib
import os
import pathlib
import subprocess
import sys
import tempfile

PAGES = "README.md", "docs/embedding.md"
PROGRAMS = "cc ", "c++ ", "./"
# Wants a database that is not part of this project.
LEFT_OUT = ("kzdic import",)


def sessions(page):
    """Pairs of a command and the lines that it printed."""
    command, lines, blanks = None, [], []
    for line in page.splitlines() + ["end"]:
        if command and not line:
            blanks.append(line)
        elif line.startswith("    $ ") or not line.startswith("    "):
            if command:
                yield command, lines
            command, lines, blanks = (line[6:] if line.startswith("    $ ") else None), [], []
        elif command:
            lines += [*blanks, line[4:]]
            blanks = []


def prepare(directory, source, environment):
    (directory / "data").symlink_to(source / "data")
    for text in sorted((source / "data").glob("base*.txt")):
        extension = ".dic" if len(text.stem) == len("baseenru") else ".dig"
        subprocess.run(["kzdic", "build", "-q", text, "-o", directory / (text.stem + extension)],
                       env=environment, check=True)


def install(build, tree, environment):
    """An installed copy, as compilers find one under /usr/local."""
    subprocess.run(["cmake", "--install", build, "--prefix", tree], check=True,
                   stdout=subprocess.DEVNULL)
    pkgconfig = next(tree.rglob("kzlexicon.pc")).parent
    environment["PKG_CONFIG_PATH"] = str(pkgconfig)
    environment["LD_LIBRARY_PATH"] = str(pkgconfig.parent)


def run_page(page, text, directory, environment, programs):
    """How many commands of the page ran, and how many of them printed something else."""
    checked = faults = 0
    for command, lines in sessions(text):
        if command.startswith("cat "):
            content = "".join(line + "\n" for line in lines)
            (directory / command[4:]).write_text(content, "utf-8")
            continue
        is_program = command.startswith(PROGRAMS)
        if not (programs if is_program else "kzdic" in command) or command.startswith(LEFT_OUT):
            continue
        run = subprocess.run(["bash", "-c", command], cwd=directory, env=environment,
                             encoding="utf-8", stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        checked += 1
        printed = run.stdout.splitlines()
        if printed != lines:
            faults += 1
            print(f"$ {command}",
                  *difflib.unified_diff(lines, printed, page, "printed", lineterm=""), sep="\n")
    return checked, faults


def main():
    source, build = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    programs = "programs" in sys.argv[3:]
    environment = dict(os.environ, PATH=f"{build}/tools:{os.environ['PATH']}")
    counts = []
    with tempfile.TemporaryDirectory() as name:
        if programs:
            install(build, pathlib.Path(name, "tree"), environment)
        for page in PAGES:
            directory = pathlib.Path(name, page.replace("/", "_"))
            directory.mkdir()
            prepare(directory, source, environment)
            counts.append(run_page(page, (source / page).read_text("utf-8"), directory,
                                   environment, programs))
    checked, faults = map(sum, zip(*counts))
    print(f"{checked} commands, {faults} differ")
    return 0 if counts[0][0] > 10 and faults == 0 else 1


sys.exit(main())
