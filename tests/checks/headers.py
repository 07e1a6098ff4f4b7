#!/usr/bin/env python3
"""Compiles every public header on its own: those of kz/ as C++11, as C++20 and, if they are of plain
functions, as C11; those of kzlexicon/ as C++20."""

import pathlib
import subprocess
import sys

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only"]


def compiles(compiler, standard, language, include, header):
    command = [compiler, f"-std={standard}", "-x", language, *WARNINGS, "-I", include, "-"]
    run = subprocess.run(command, input=f'#include "{header}"\n'.encode(), capture_output=True)
    if run.returncode:
        print(f"{' '.join(command)}: {header}\n{run.stderr.decode()}")
    return run.returncode == 0


def main(include, c_compiler, cxx_compiler):
    ok = True
    counts = {"c11": 0, "c++11": 0, "c++20": 0}
    for path in sorted(pathlib.Path(include).glob("kz*/*.h")):
        header = str(path.relative_to(include))
        standards = ["c++20"]
        if header.startswith("kz/"):
            standards.append("c++11")
            if "#ifdef __cplusplus" in path.read_text("utf-8"):
                standards.append("c11")
        for standard in standards:
            counts[standard] += 1
            compiler, language = (c_compiler, "c") if standard == "c11" else (cxx_compiler, "c++")
            ok &= compiles(compiler, standard, language, include, header)
    print(", ".join(f"{count} headers as {standard}" for standard, count in counts.items()))
    return 0 if ok and 0 < counts["c11"] < counts["c++11"] < counts["c++20"] else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
