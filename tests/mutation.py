#!/usr/bin/env python3
"""Makes small faults in the sources, one at a time, and prints which of them the tests find.

    tests/mutation.py --count 300 --seed 1 --all-kills --json mutation.json
    tests/mutation.py --cover mutation.json

Each fault (mutant) is built and given to the tests of its folder: they kill it or it survives. All
work happens in copies of the tree under a temporary directory. Needs what ./check needs; uses lld
or mold and ccache where they are installed. docs/testing.md says how to read the result.
"""

import argparse
import collections
import hashlib
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading
import time

from mutants import mutants_of
from test_programs import Limits, Program

ROOT = pathlib.Path(__file__).resolve().parent.parent
# A folder, its sources, and the test programs that are to find its faults.
FOLDERS = {
    "platform": ("common/platform", ["platform", "platform_core", "foundation"]),
    "foundation": ("common/foundation", ["foundation", "foundation_core"]),
    "text": ("common/text", ["text", "text_core"]),
    "morphology": ("common/morphology", ["morphology", "morphology_core"]),
    "util": ("common/util", ["util", "util_core"]),
    "entry": ("common/entry", ["entry", "entry_core"]),
    # The queue is tested as a part of sets.
    "dictionary": ("common/dictionary", ["dictionary", "dictionary_core", "dicset"]),
    "dicset": ("common/dicset", ["dicset", "dicset_core"]),
    "grammar": ("common/grammar", ["grammar", "grammar_core"]),
    "lexicon": ("lexicon", ["lexicon", "lexicon_core", "tools"]),
    "tools": ("tools", ["tools"]),
}
# Tested by a check, not by a test program.
LEFT_OUT = ("tools/pages/",)
# These need the tool to be built, which takes long.
WITH_TOOL = ("lexicon", "tools")
BUILD_SECONDS = 300
# What became of a mutant. Only the first two count; the others are replaced.
KILLED, SURVIVED, REFUSED, SAME = "killed", "survived", "did not compile", "made no difference"


class Tree:
    """A copy of the tree with its build."""

    def __init__(self, directory, folders, jobs, memory):
        self.source, self.build = directory / "tree", directory / "build"
        self.scratch = directory / "tmp"
        self.folders, self.jobs, self.limits = folders, jobs, Limits(memory)
        # The same paths, seen from the build, in every copy: one fills the cache for the others.
        self.environment = dict(os.environ, CCACHE_BASEDIR=str(directory), CCACHE_NOHASHDIR="1")

    def prepare(self):
        """Builds the unchanged sources and runs their tests. The seconds that each test took."""
        shutil.copytree(ROOT, self.source, symlinks=True,
                        ignore=lambda place, _: ["build", ".git"] if place == str(ROOT) else [])
        self.scratch.mkdir()
        self.configure()
        listed = subprocess.run(["ninja", "-C", self.build, "-t", "targets", "all"],
                                capture_output=True, text=True, check=True).stdout
        targets = {line.split(":")[0] for line in listed.splitlines()}
        names = {folder: [name for name in map("kz_{}_tests".format, FOLDERS[folder][1])
                          if name in targets] for folder in self.folders}
        wanted = sorted(set(sum(names.values(), [])))
        self.make(wanted, check=True, jobs=os.cpu_count())
        programs = {}
        for name in wanted:
            path = next(path for path in self.build.glob(f"tests/**/{name}") if path.is_file())
            programs[name] = Program(str(path), str(self.scratch), self.limits)
        self.programs = {folder: [programs[name] for name in names[folder]] for folder in names}
        seconds = {}
        for program in programs.values():
            seconds.update(program.baseline())
        self.unchanged = {name: self.digest(name) for name in self.folders}
        return seconds

    def configure(self):
        command = ["cmake", "-G", "Ninja", "-S", self.source, "-B", self.build,
                   # Quick to compile, and quick enough for tests with much random input.
                   "-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-O1",
                   # A warning is no test, but a function without a result is no fair fault.
                   "-DKZ_WARNINGS=-Werror=return-type",
                   "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
                   f"-DKZ_BUILD_TOOL={'ON' if set(WITH_TOOL) & set(self.folders) else 'OFF'}"]
        linker = next((name for name in ("mold", "lld") if shutil.which(f"ld.{name}")), None)
        if linker:
            command += [f"-DCMAKE_{kind}_LINKER_FLAGS=-fuse-ld={linker}"
                        for kind in ("EXE", "SHARED")]
        if shutil.which("ccache"):
            command += [f"-DCMAKE_{language}_COMPILER_LAUNCHER=ccache" for language in ("C", "CXX")]
        subprocess.run(command, env=self.environment, stdout=subprocess.DEVNULL, check=True)

    def make(self, targets, check=False, jobs=None):
        process = subprocess.Popen(["ninja", "-C", self.build, f"-j{jobs or self.jobs}", *targets],
                                   env=self.environment, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, text=True)
        try:
            output, _ = process.communicate(timeout=None if check else BUILD_SECONDS)
        except subprocess.TimeoutExpired:
            process.terminate()  # ninja ends its compilers
            output, _ = process.communicate()
        if check and process.returncode:
            raise RuntimeError(output[-4000:])
        return process.returncode == 0

    def digest(self, folder):
        """Of everything that the tests of the folder run."""
        digest = hashlib.sha256()
        for path in [*sorted(self.build.glob("*/lib*.so")), self.build / "tools/kzdic",
                     *(pathlib.Path(program.path) for program in self.programs[folder])]:
            if path.exists():
                digest.update(path.read_bytes())
        return digest.digest()

    def judge(self, mutant, options):
        """What became of the mutant: a dictionary for the report."""
        path = self.source / mutant.file
        unchanged = path.read_text(encoding="utf-8")
        started = time.monotonic()
        path.write_text(mutant.apply(unchanged), encoding="utf-8")
        try:
            result = self.test(mutant, options.all_kills)
            if result["result"] == SURVIVED and options.elsewhere:
                result["elsewhere"] = self.find_elsewhere(mutant)
        finally:
            path.write_text(unchanged, encoding="utf-8")
            for left in self.scratch.iterdir():
                if left.is_dir() and not left.is_symlink():
                    shutil.rmtree(left, ignore_errors=True)
                else:
                    left.unlink()
        return {"folder": mutant.folder, "file": mutant.file, "line": mutant.line,
                "kind": mutant.kind, "before": mutant.before, "after": mutant.after,
                "seconds": round(time.monotonic() - started, 1), **result}

    def test(self, mutant, all_kills):
        programs = self.programs[mutant.folder]
        if not self.make([os.path.basename(program.path) for program in programs]):
            return {"result": REFUSED}
        if self.digest(mutant.folder) == self.unchanged[mutant.folder]:
            return {"result": SAME}
        failed, how, complete = [], "", True
        for program in programs:
            outcome = program.run(all_kills)
            failed += outcome.failed
            how = how or outcome.how
            complete = complete and outcome.complete
            if failed and not all_kills:
                break
        return {"result": KILLED if failed else SURVIVED, "how": how, "tests": failed,
                "complete": complete}

    def find_elsewhere(self, mutant):
        """A test of another folder that finds the mutant, or nothing."""
        own = self.programs[mutant.folder]
        programs = {program.path: program for found in self.programs.values() for program in found
                    if program not in own}
        if not self.make([os.path.basename(path) for path in programs]):
            return None
        failures = (program.run(all_kills=False).failed for program in programs.values())
        return next((failed[0] for failed in failures if failed), None)


class Draw:
    """Hands the mutants out: to each folder its share, in the order that the seed gives."""

    def __init__(self, mutants, count, deadline):
        self.waiting = {folder: collections.deque(sorted(found, key=lambda mutant: mutant.key))
                        for folder, found in mutants.items()}
        # Small folders get a few more than their share.
        least = count // (3 * len(mutants)) if len(mutants) else 0
        total = sum(map(len, mutants.values()))
        rest = count - least * len(mutants)
        ends = [0]
        for found in mutants.values():
            ends.append(ends[-1] + len(found))
        self.share = {folder: least + round(rest * end / total) - round(rest * begin / total)
                      for folder, begin, end in zip(mutants, ends, ends[1:])}
        self.taken = dict.fromkeys(mutants, 0)
        self.deadline, self.lock = deadline, threading.Lock()
        self.results, self.failure = [], None

    def next(self):
        with self.lock:
            open_folders = [folder for folder in self.waiting
                            if self.waiting[folder] and self.taken[folder] < self.share[folder]]
            if not open_folders or self.failure or time.monotonic() > self.deadline:
                return None
            folder = min(open_folders, key=lambda name: self.taken[name] / self.share[name])
            self.taken[folder] += 1
            return self.waiting[folder].popleft()

    def enter(self, mutant, result):
        with self.lock:
            self.results.append(result)
            if result["result"] in (REFUSED, SAME):
                self.taken[mutant.folder] -= 1
            done = sum(self.taken.values())
            print(f"{done}: {result['result']}, {result['seconds']} s: {mutant}", file=sys.stderr,
                  flush=True)


def work(tree, draw, building, tests, options):
    try:
        with building:
            if draw.failure is None:
                tests.update(tree.prepare())
        while mutant := draw.next():
            draw.enter(mutant, tree.judge(mutant, options))
    except Exception as error:
        draw.failure = draw.failure or error


def run(options):
    deadline = time.monotonic() + options.seconds
    mutants = {}
    for folder in options.folder or FOLDERS:
        paths = [path for path in sorted((ROOT / FOLDERS[folder][0]).rglob("*"))
                 if path.suffix in (".cpp", ".h", ".inc")]
        files = [(str(path.relative_to(ROOT)), path.read_text(encoding="utf-8")) for path in paths]
        found = [mutant for file, source in files if not file.startswith(LEFT_OUT)
                 for mutant in mutants_of(folder, file, source, options.seed)]
        if found:
            mutants[folder] = found
    draw, building, tests = Draw(mutants, options.count, deadline), threading.Lock(), {}
    with tempfile.TemporaryDirectory(prefix="kz-mutation-") as directory:
        os.chmod(directory, 0o755)  # some tests act as another user
        trees = [Tree(pathlib.Path(directory) / str(job), list(mutants),
                      max(1, os.cpu_count() // options.jobs), options.memory << 20)
                 for job in range(options.jobs)]
        threads = [threading.Thread(target=work, args=(tree, draw, building, tests, options))
                   for tree in trees]
        for thread in threads:
            thread.start()
        try:
            for thread in threads:
                thread.join()
        except KeyboardInterrupt:
            draw.deadline = 0
            for thread in threads:
                thread.join()
    if draw.failure:
        raise draw.failure
    order = {mutant: i for i, mutant in enumerate(mutants)}
    results = sorted(draw.results, key=lambda r: (order[r["folder"]], r["file"], r["line"]))
    return {"seed": options.seed, "count": options.count, "all_kills": options.all_kills,
            "tests": tests, "mutants": results}


def report(data):
    """The table and the survivors."""
    print(f"{'folder':<12}{'mutants':>8}{'killed':>8}{'survived':>9}{'percent':>8}"
          f"{'did not compile':>17}{'no difference':>15}")
    rows = collections.defaultdict(collections.Counter)
    for mutant in data["mutants"]:
        rows[mutant["folder"]][mutant["result"]] += 1
        rows["total"][mutant["result"]] += 1
    total = rows.pop("total", collections.Counter())
    for folder, row in [*rows.items(), ("total", total)]:
        counted = row[KILLED] + row[SURVIVED]
        percent = f"{100 * row[KILLED] / counted:.0f} %" if counted else ""
        print(f"{folder:<12}{counted:>8}{row[KILLED]:>8}{row[SURVIVED]:>9}{percent:>8}"
              f"{row[REFUSED]:>17}{row[SAME]:>15}")
    ends = collections.Counter(mutant["how"] for mutant in data["mutants"] if mutant.get("how"))
    print("\nkilled by", ", ".join(f"{how}: {number}" for how, number in ends.most_common()))
    print("\nsurvivors:")
    for mutant in data["mutants"]:
        if mutant["result"] == SURVIVED:
            elsewhere = f" (found by {mutant['elsewhere']})" if mutant.get("elsewhere") else ""
            print(f"{mutant['file']}:{mutant['line']}: {mutant['before']} -> {mutant['after']}"
                  f"{elsewhere}")


def cover(data):
    """Few tests that kill everything killed, and the tests that kill nothing alone."""
    if not data["all_kills"]:
        sys.exit("the report was made without --all-kills")
    kills = {test: set() for test in data["tests"]}
    killed = [mutant for mutant in data["mutants"] if mutant["result"] == KILLED]
    alone = collections.Counter(m["tests"][0] for m in killed if len(m["tests"]) == 1)
    for number, mutant in enumerate(killed):
        for test in mutant["tests"]:
            kills[test].add(number)
    left, chosen = set(range(len(killed))), []
    while left:
        test = min(kills, key=lambda name: (-len(kills[name] & left), data["tests"][name], name))
        chosen.append((test, len(kills[test] & left)))
        left -= kills[test]
    print(f"{len(chosen)} of {len(kills)} tests kill all {len(killed)}"
          " (how many more than those before, test):")
    for test, more in chosen:
        print(f"{more:5}  {test}")
    useless = [test for test in kills if not alone[test]]
    print(f"\n{len(useless)} tests kill nothing alone"
          " (how many with others; * in the choice above):")
    picked = {test for test, _ in chosen}
    for test in sorted(useless, key=lambda name: (name.split(".")[0], len(kills[name]), name)):
        print(f"{len(kills[test]):5}{'*' if test in picked else ' '} {test}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--count", type=int, default=300, help="mutants over all folders")
    parser.add_argument("--seconds", type=float, default=2400, help="begin no mutant after these")
    parser.add_argument("--seed", default="1", help="which mutants are drawn")
    parser.add_argument("--folder", action="append", choices=FOLDERS, help="only this; repeatable")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="mutants at a time")
    parser.add_argument("--memory", type=int, default=2048, help="megabytes for one test program")
    parser.add_argument("--all-kills", action="store_true",
                        help="run all tests on each mutant, not up to the first that fails")
    parser.add_argument("--elsewhere", action="store_true",
                        help="let the tests of the other folders look for survivors")
    parser.add_argument("--json", metavar="FILE", help="write everything to this file")
    parser.add_argument("--cover", metavar="FILE",
                        help="read such a file and print which tests are enough")
    options = parser.parse_args()
    if options.cover:
        cover(json.loads(pathlib.Path(options.cover).read_text(encoding="utf-8")))
        return
    data = run(options)
    if options.json:
        text = json.dumps(data, ensure_ascii=False, indent=1)
        pathlib.Path(options.json).write_text(text + "\n", encoding="utf-8")
    report(data)


if __name__ == "__main__":
    main()
