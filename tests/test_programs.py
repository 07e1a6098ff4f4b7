"""Runs GoogleTest programs that may crash, hang, or eat memory, for tests/mutation.py."""

import os
import re
import selectors
import signal
import subprocess
import time
from dataclasses import dataclass, field

LINE = re.compile(rb"\[ +(RUN|OK|FAILED|SKIPPED) +\] ([^\s,]+)")
# Tests make sparse files.
FILE_LIMIT = 1 << 33
CLOCK_TICKS = os.sysconf("SC_CLK_TCK")
# Seconds that a test takes of which nothing is known yet.
UNKNOWN = 20
# After so many tests that hang, the others are not run any more.
HANGS = 3


@dataclass
class Limits:
    """Bytes of memory; for one test, seconds of processor time beyond so many times what it takes
    normally, and seconds in all beyond that. Processor time, since the machine may be busy."""
    memory: int
    processor: float = 3
    factor: float = 5
    waiting: float = 60


@dataclass
class Outcome:
    failed: list = field(default_factory=list)
    # How the first one failed: failure, crash, hang or exit.
    how: str = ""
    # Whether every test that did not fail has passed.
    complete: bool = True
    # Of each test, in all and of processor time.
    seconds: dict = field(default_factory=dict)
    processor: dict = field(default_factory=dict)


def list_tests(program):
    listed = subprocess.run([program, "--gtest_list_tests"], capture_output=True, text=True,
                            check=True).stdout
    tests, suite = [], ""
    for line in listed.splitlines():
        name = line.split("#")[0].strip()
        if not line.startswith(" "):
            suite = name
        elif "DISABLED_" not in suite + name:
            tests.append(suite + name)
    # A first line of GoogleTest's main names its source file.
    return [test for test in tests if "." in test]


def processor_seconds(pid):
    try:
        with open(f"/proc/{pid}/stat", encoding="utf-8", errors="replace") as stat:
            fields = stat.read().rpartition(")")[2].split()
    except OSError:
        return 0.0
    return sum(int(ticks) for ticks in fields[11:15]) / CLOCK_TICKS


class Program:
    """One test program; tests are known as <program>.<suite>.<test>."""

    def __init__(self, path, directory, limits):
        self.path, self.directory, self.limits = path, directory, limits
        self.prefix = os.path.basename(path) + "."
        self.tests = list_tests(path)
        self.normal = {}

    def baseline(self):
        """Runs the tests of the unchanged sources; what fails is an error."""
        outcome = self.run(all_kills=True)
        if outcome.failed or not outcome.complete:
            raise RuntimeError(f"{outcome.how} in the unchanged sources: {outcome.failed}")
        self.normal = outcome.processor
        return {self.prefix + name: seconds for name, seconds in outcome.seconds.items()}

    def run(self, all_kills):
        """Runs all tests, or up to the first that fails."""
        outcome = Outcome()
        left, hangs = self.tests, 0
        while left:
            done, current, how = self.run_once(left, all_kills, outcome)
            outcome.how = outcome.how or how
            if how in ("crash", "hang"):
                hangs += how == "hang"
                # Without a current test it is the program that cannot start or end.
                outcome.failed += [current] if current else [t for t in left if t not in done]
                done = done | ({current} if current else set(left))
            elif how == "exit" and not outcome.failed:
                outcome.failed += left
            if outcome.failed and not all_kills:
                outcome.complete = False
                break
            if how not in ("crash", "hang"):
                break
            left = [test for test in left if test not in done]
            if hangs == HANGS and left:
                outcome.complete = False
                break
        outcome.failed = [self.prefix + name for name in outcome.failed]
        return outcome

    def run_once(self, tests, all_kills, outcome):
        """One run of the program: the tests that ended, the one that did not, and how it ended."""
        command = ["prlimit", f"--as={self.limits.memory}", f"--fsize={FILE_LIMIT}", "--core=0",
                   self.path, "--gtest_color=no", "--gtest_filter=" + ":".join(tests)]
        if not all_kills:
            command.append("--gtest_fail_fast")
        process = subprocess.Popen(command, cwd=self.directory, start_new_session=True,
                                   env=dict(os.environ, TMPDIR=self.directory),
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT)
        try:
            done, current, hangs = self.follow(process, outcome)
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.stdout.close()
            status = process.wait()
        if hangs:
            return done, current, "hang"
        if current or status < 0 or status > 1:
            return done, current, "crash"
        return done, None, "" if status == 0 else "failure" if outcome.failed else "exit"

    def follow(self, process, outcome):
        """Reads what the program prints until it ends or hangs."""
        done, current, rest = set(), None, b""
        started, spent = time.monotonic(), 0.0
        with selectors.DefaultSelector() as selector:
            selector.register(process.stdout, selectors.EVENT_READ)
            while True:
                if selector.select(0.5):
                    read = os.read(process.stdout.fileno(), 1 << 16)
                    if not read:
                        return done, current, False
                    *lines, rest = (rest + read).split(b"\n")
                    rest = rest[-4096:]
                    for match in filter(None, map(LINE.search, lines)):
                        event, name = match[1], match[2].decode()
                        now, used = time.monotonic(), processor_seconds(process.pid)
                        if event == b"RUN":
                            current = name
                        elif name == current:
                            done.add(name)
                            outcome.seconds[name] = round(now - started, 3)
                            outcome.processor[name] = used - spent
                            if event == b"FAILED":
                                outcome.failed.append(name)
                                outcome.how = outcome.how or "failure"
                            current = None
                        started, spent = now, used
                normal = self.limits.factor * self.normal.get(current, UNKNOWN)
                if (processor_seconds(process.pid) - spent > self.limits.processor + normal or
                        time.monotonic() - started > self.limits.waiting + normal):
                    return done, current, True
