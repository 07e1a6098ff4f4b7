"""The small changes that tests/mutation.py makes to C++ sources, one at a time.

Sources are read as tokens, not as a syntax tree. clang-format keeps them in a shape for which that
is enough: a binary operator has blanks on both sides, a template bracket and a reference have none.
"""

import hashlib
import math
import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:[^\n\\]|\\.)*)
      | (?P<text>(?:u8|[uUL])?(?:R"(?P<mark>[^()\s\\"]*)\(.*?\)(?P=mark)"
                               |"(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)+')\w*)
      | (?P<number>\d(?:'?[\w.])*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<sign><<=|>>=|<=>|->\*|\.\.\.|::|<<|>>|->|\+\+|--|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|\S)""",
    re.DOTALL | re.MULTILINE | re.VERBOSE)

COMPARISONS = {"<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
               "==": ("!=",), "!=": ("==",)}
OPPOSITES = {"+": "-", "-": "+", "+=": "-=", "-=": "+=", "&&": "||", "||": "&&",
             "true": "false", "false": "true", "break": "continue", "continue": "break"}
KINDS = {**dict.fromkeys(COMPARISONS, "comparison"), "+": "arithmetic", "-": "arithmetic",
         "+=": "arithmetic", "-=": "arithmetic", "&&": "logic", "||": "logic",
         "true": "boolean", "false": "boolean", "break": "jump", "continue": "jump"}
# How often a kind is drawn for one site of it. Tables of numbers would outnumber everything else.
WEIGHTS = {"constant": 0.3}
# A header is compiled again with everything that includes it.
HEADER_WEIGHT = 0.5

NO_EXPRESSION = set("""return using typedef static_assert const constexpr static auto goto break
    continue case default struct class enum union template extern friend namespace inline public
    private protected typename operator virtual explicit if else for while do switch try""".split())
AFTER_NAME = {"(", ".", "->", "[", "=", "++", "--", "<<", "+=", "-=", "*=", "/=", "%=", "&=", "|=",
              "^=", "<<=", ">>="}
BLOCK_AFTER = {")", "}", "]", "else", "do", "try", "const", "noexcept", "override", "mutable"}
CLOSING = {"(": ")", "[": "]", "{": "}"}


@dataclass(frozen=True)
class Mutant:
    folder: str
    file: str
    line: int
    kind: str
    start: int
    end: int
    change: str
    before: str
    after: str
    # Its place in the order of the draw; the smallest come first.
    key: float

    def apply(self, source):
        return source[:self.start] + self.change + source[self.end:]

    def __str__(self):
        return f"{self.file}:{self.line}: {self.before} -> {self.after}"


class Scanner:
    """Finds the places of one source that can be changed: (kind, start, end, changes)."""

    def __init__(self, source):
        self.source = source
        found = [match for match in TOKEN.finditer(source)
                 if match.lastgroup not in ("comment", "directive")]
        self.text = [match.group() for match in found] + [""]
        self.group = [match.lastgroup for match in found] + [""]
        self.span = [match.span() for match in found] + [(len(source), len(source))]
        self.close = self.matching()
        self.parsed = set()
        self.sites = []

    def matching(self):
        """Index of an opening bracket -> index of the closing one."""
        close, stack = {}, []
        for i, text in enumerate(self.text):
            if text in CLOSING:
                stack.append(i)
            elif stack and text == CLOSING[self.text[stack[-1]]]:
                close[stack.pop()] = i
        for i in stack:
            close[i] = len(self.text) - 1
        return close

    def scan(self):
        i = 0
        while i < len(self.text) - 1:
            if self.text[i] == "static_assert" or self.text[i] == "alignas":
                i = self.close[i + 1]
            elif self.text[i] == "template" and self.text[i + 1] == "<":
                i = self.template_end(i + 1)
            elif self.text[i] == "{" and i not in self.parsed and self.begins_code(i):
                self.block(i, inner=False)
            self.token(i)
            i += 1
        return self.sites

    def template_end(self, i):
        depth = 0
        while i < len(self.text) - 1:
            depth += {"<": 1, ">": -1, ">>": -2}.get(self.text[i], 0)
            if depth <= 0:
                return i
            i = self.close.get(i, i) + 1
        return i

    def add(self, kind, first, last, *changes):
        self.sites.append((kind, self.span[first][0], self.span[last][1], changes))

    def spaced(self, i):
        start, end = self.span[i]
        return self.source[start - 1].isspace() and self.source[end].isspace()

    def token(self, i):
        text = self.text[i]
        if self.group[i] == "number":
            self.constant(i)
        elif text in COMPARISONS:
            if self.spaced(i) and self.text[i - 1] != "operator":
                self.add("comparison", i, i, *COMPARISONS[text])
        elif text in OPPOSITES and (self.group[i] == "name" or
                                    self.spaced(i) and self.text[i - 1] != "operator"):
            self.add(KINDS[text], i, i, OPPOSITES[text])

    def constant(self, i):
        match = re.fullmatch(r"(0[xX])?([\dA-Fa-f']+?)([uUlLzZ]*)", self.text[i])
        # A larger array, declared or named as a type, is no fault.
        if not match or self.text[i + 1] == ">" and not self.spaced(i + 1):
            return
        if (self.text[i - 1] == "[" and self.text[i + 1] == "]" and
                (self.group[i - 3] == "name" or self.text[i - 3] in (">", "*"))):
            return
        prefix, digits, suffix = match[1] or "", match[2].replace("'", ""), match[3]
        value = int(digits, 16 if prefix else 8 if re.fullmatch("0[0-7]+", digits) else 10)
        changes = [f"0x{n:X}{suffix}" if prefix else f"{n}{suffix}"
                   for n in (value + 1, value - 1) if n >= 0]
        self.add("constant", i, i, *changes)

    def begins_code(self, i):
        """Whether the brace opens the body of a function, a lambda or a statement."""
        if self.text[i - 1] in BLOCK_AFTER:
            return True
        # -> type {
        j = i - 1
        type_signs = ("::", "*", "&", "<", ">", ",")
        while j > 0 and (self.group[j] == "name" or self.text[j] in type_signs):
            j -= 1
        return self.text[j] == "->" and self.text[j - 1] in (")", "noexcept", "mutable")

    def block(self, i, inner):
        self.parsed.add(i)
        end = self.close[i]
        i += 1
        while i < end:
            i = self.statement(i, inner)
        return end + 1

    def statement(self, i, inner):
        """Takes one statement apart; inner: of which a condition decides. Index of the next one."""
        text = self.text[i]
        if text == "{":
            return self.block(i, inner)
        if text in ("if", "while", "for", "switch", "catch"):
            opening = i + 1 + (self.text[i + 1] == "constexpr")
            if self.text[opening] != "(":
                return opening
            closing = self.close[opening]
            if text in ("if", "while"):
                self.negation(opening, closing)
            i = self.statement(closing + 1, inner=True)
            return self.statement(i + 1, inner=True) if self.text[i] == "else" else i
        if text in ("do", "try", "else"):
            return self.statement(i + 1, inner=True)
        if text in ("case", "default"):
            while self.text[i] not in (":", ""):
                i += 1
            return i + 1
        last = i
        while self.text[last] not in (";", "}", ""):
            last = self.close.get(last, last) + 1
        if self.text[last] != ";":
            return last + 1
        if text == "return" and inner:
            self.remove("return", i, last)
        elif self.is_expression(i):
            self.remove("statement", i, last)
        return last + 1

    def negation(self, opening, closing):
        first = opening + 1
        for i in range(first, closing):
            if self.text[i] == ";":
                first = i + 1
        start, end = self.span[first][0], self.span[closing - 1][1]
        if first < closing:
            self.add("negation", first, closing - 1, f"!({self.source[start:end]})")

    def remove(self, kind, first, last):
        start, end = self.span[first][0], self.span[last][1]
        self.add(kind, first, last, ";" + "\n" * self.source.count("\n", start, end))

    def is_expression(self, i):
        if self.text[i] in ("*", "++", "--", "(", "delete"):
            return True
        if self.text[i] in NO_EXPRESSION or self.group[i] != "name":
            return False
        while self.text[i + 1] == "::":
            i += 2
        return self.text[i + 1] in AFTER_NAME


def shown(source, start, end, change=None):
    """The lines of a change as they are and, with the change, as they become, on one line."""
    first = source.rfind("\n", 0, start) + 1
    last = source.find("\n", end)
    middle = source[start:end] if change is None else change
    return " ".join((source[first:start] + middle + source[end:last]).split())


def mutants_of(folder, file, source, seed):
    """One mutant for each place; which of the possible changes it is, the seed decides."""
    result, seen = [], {}
    for kind, start, end, changes in Scanner(source).scan():
        before = shown(source, start, end)
        column = start - source.rfind("\n", 0, start)
        # What stands elsewhere in the source does not matter, so that the same mutants are drawn
        # from sources that changed a little.
        identity = f"{seed}|{file}|{before}|{kind}|{column}"
        seen[identity] = seen.get(identity, 0) + 1
        digest = hashlib.sha256(f"{identity}|{seen[identity]}".encode()).digest()
        change = changes[digest[0] % len(changes)]
        weight = WEIGHTS.get(kind, 1) * (HEADER_WEIGHT if not file.endswith(".cpp") else 1)
        uniform = (int.from_bytes(digest[1:8], "big") + 1) / 2**56
        line = source.count("\n", 0, start) + 1
        result.append(Mutant(folder, file, line, kind, start, end, change, before,
                             shown(source, start, end, change), -math.log(uniform) / weight))
    return result
