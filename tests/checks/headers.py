#!/usr/bin/env python3
"""Compiles every public header on its own: all as C++20, those of plain functions as C11 too."""

import pathlib
import subprocess
import sys

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only"]


def compiles(command, include, header):
    source = f'#include "kz/{header}"\n'
    run = subprocess.run(command + WARNINGS + ["-I", include, "-"], input=source.encode(),
                         capture_output=True)
    if run.returncode:
        print(f"{' '.join(command)}: kz/{header}\n{run.stderr.decode()}")
    return run.returncode == 0


def main(include, c_compiler, cxx_compiler):
    ok = True
    headers = sorted(path.name for path in pathlib.Path(include, "kz").glob("*.h"))
    c_headers = []
    for header in headers:
        ok &= compiles([cxx_compiler, "-std=c++20", "-x", "c++"], include, header)
        if '#ifdef __cplusplus' in pathlib.Path(include, "kz", header).read_text(encoding="utf-8"):
            c_headers.append(header)
            ok &= compiles([c_compiler, "-std=c11", "-x", "c"], include, header)
    print(f"{len(headers)} headers, {len(c_headers)} of them for C too")
    return 0 if ok and c_headers else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
