#!/usr/bin/env python3
"""Compiles every public header on its own: as C++11, as C++20, and those of plain functions as C11."""

import pathlib
import subprocess
import sys

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only"]


def compiles(compiler, standard, language, include, header):
    command = [compiler, f"-std={standard}", "-x", language, *WARNINGS, "-I", include, "-"]
    run = subprocess.run(command, input=f'#include "kz/{header}"\n'.encode(), capture_output=True)
    if run.returncode:
        print(f"{' '.join(command)}: kz/{header}\n{run.stderr.decode()}")
    return run.returncode == 0


def main(include, c_compiler, cxx_compiler):
    ok = True
    headers = sorted(pathlib.Path(include, "kz").glob("*.h"))
    c_headers = [path for path in headers if "#ifdef __cplusplus" in path.read_text("utf-8")]
    for header in headers:
        for standard in "c++11", "c++20":
            ok &= compiles(cxx_compiler, standard, "c++", include, header.name)
    for header in c_headers:
        ok &= compiles(c_compiler, "c11", "c", include, header.name)
    print(f"{len(headers)} headers, {len(c_headers)} of them for C too")
    return 0 if ok and c_headers else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
