#!/usr/bin/env python3
"""Runs the kzdic commands that README.md shows and compares what they print.

Arguments: the source tree, the build tree. The commands run in order, in a directory that holds
what ./demo leaves behind; "$ cat FILE" makes the file.
"""
import difflib
import os
import pathlib
import subprocess
import sys
import tempfile

# Wants a database that is not part of this project.
LEFT_OUT = ("kzdic import",)


def sessions(readme):
    """Pairs of a command and the lines that it printed."""
    command, lines = None, []
    for line in readme.splitlines() + [""]:
        if line.startswith("    $ ") or not line.startswith("    "):
            if command:
                yield command, lines
            command, lines = (line[6:] if line.startswith("    $ ") else None), []
        elif command:
            lines.append(line[4:])


def prepare(directory, source, environment):
    (directory / "data").symlink_to(source / "data")
    for text in sorted((source / "data").glob("base*.txt")):
        extension = ".dic" if len(text.stem) == len("baseenru") else ".dig"
        subprocess.run(["kzdic", "build", "-q", text, "-o", directory / (text.stem + extension)],
                       env=environment, check=True)


def main():
    source, build = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    environment = dict(os.environ, PATH=f"{build}/tools:{os.environ['PATH']}")
    checked = faults = 0
    with tempfile.TemporaryDirectory() as name:
        directory = pathlib.Path(name)
        prepare(directory, source, environment)
        for command, lines in sessions((source / "README.md").read_text("utf-8")):
            if command.startswith("cat "):
                text = "".join(line + "\n" for line in lines)
                (directory / command[4:]).write_text(text, "utf-8")
            if "kzdic" not in command or command.startswith(LEFT_OUT):
                continue
            run = subprocess.run(["bash", "-c", command], cwd=directory, env=environment,
                                 encoding="utf-8", stdout=subprocess.PIPE,
                                 stderr=subprocess.STDOUT)
            checked += 1
            printed = run.stdout.splitlines()
            if printed != lines:
                faults += 1
                print(f"$ {command}", *difflib.unified_diff(lines, printed, "README.md", "printed",
                                                            lineterm=""), sep="\n")
    print(f"{checked} commands, {faults} differ")
    return 0 if checked > 10 and faults == 0 else 1


sys.exit(main())
