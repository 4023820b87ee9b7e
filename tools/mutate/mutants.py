"""The changes that one source offers: one operator, literal, statement or condition each.

Found in the text only, with comments and literals masked. The compiler rejects those that don't compile.
"""

import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Mutant:
    """Replaces the characters [begin, end) of the source by `text`. `line` counts from 1."""

    begin: int
    end: int
    text: str
    line: int
    kind: str

    def apply(self, source):
        return source[: self.begin] + self.text + source[self.end :]


LITERAL = re.compile(
    r"""//[^\n]*|/\*.*?\*/|^[ \t]*\#[^\n]*|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'""",
    re.DOTALL | re.MULTILINE | re.VERBOSE,
)

# In formatted sources binary operators have blanks around them, template brackets don't.
SWAPPED = {
    " == ": " != ",
    " != ": " == ",
    " < ": " <= ",
    " <= ": " < ",
    " > ": " >= ",
    " >= ": " > ",
    " && ": " || ",
    " || ": " && ",
    " + ": " - ",
    " - ": " + ",
    " * ": " / ",
    " / ": " * ",
    " += ": " -= ",
    " -= ": " += ",
}

STATEMENT = re.compile(r"[A-Za-z_][\w:]*(?:(?:\.|->|::|\([^()]*\)|\[[^\]]*\])[\w:]*)*\s*(?:[-+|&]?=(?!=)|\(|\+\+|--|<<)")
NOT_A_STATEMENT = re.compile(r"(?:if|while|for|switch|return|static_assert|catch|else|case|default|do|throw)\b")


def masked(source):
    """The source with comments, preprocessor lines and literals blanked to the same length, and its text literals."""
    literals = []

    def blank(match):
        text = match.group(0)
        if text.startswith('"'):
            literals.append(match.span())
        return re.sub(r"[^\n]", "\x01" if text[0] in "\"'R" else " ", text)

    return LITERAL.sub(blank, source), literals


def closing(text, place):
    """The place of the bracket that closes the one at `place`, or -1."""
    pairs = {"(": ")", "[": "]", "{": "}"}
    wanted = []
    for at in range(place, len(text)):
        if text[at] in pairs:
            wanted.append(pairs[text[at]])
        elif wanted and text[at] == wanted[-1]:
            wanted.pop()
            if not wanted:
                return at
    return -1


def statement_end(text, place):
    """The place after the ";" that ends the statement which begins at `place`, or -1."""
    at = place
    while at < len(text):
        if text[at] in "([{":
            at = closing(text, at)
            if at < 0:
                return -1
        elif text[at] in ")]}":
            return -1
        elif text[at] == ";":
            return at + 1
        at += 1
    return -1


def operators(text):
    for operator, other in SWAPPED.items():
        for match in re.finditer(re.escape(operator), text):
            yield match.start(), match.end(), other, "operator"
    for match in re.finditer(r"!(?=[\w(])", text):
        yield match.start(), match.end(), "", "operator"


def literals(source, text, texts):
    for begin, end in texts:
        yield begin, end, source[begin : end - 1] + '~"', "literal"
    for match in re.finditer(r"(?<![\w.\x01])\d+(?![\w.'])", text):
        yield match.start(), match.end(), str(int(match.group(0), 0 if match.group(0)[0] != "0" else 8) + 1), "literal"
    for match in re.finditer(r"\b(true|false)\b", text):
        yield match.start(), match.end(), "false" if match.group(0) == "true" else "true", "literal"


def conditions(text):
    for match in re.finditer(r"\b(if|while) (?:constexpr )?\(", text):
        begin = match.end() - 1
        end = closing(text, begin)
        if end < 0:
            continue
        semicolon = text.rfind(";", begin, end)
        start = semicolon + 1 if semicolon >= 0 else begin + 1
        yield start, end, " false", "condition"
        if match.group(1) == "if":
            yield start, end, " true", "condition"


def statements(text):
    for match in re.finditer(r"(?<=[;{}:>\s)])[A-Za-z_]", text):
        begin = match.start()
        before = text[:begin].rstrip()
        if not before or before[-1] not in ";{}":
            continue
        if NOT_A_STATEMENT.match(text, begin) or not STATEMENT.match(text, begin):
            continue
        end = statement_end(text, begin)
        if end > 0:
            yield begin, end, ";", "statement"
    for match in re.finditer(r"\breturn ([^;{}]+);", text):
        yield match.start(1), match.end(1), "{}", "statement"


def mutants(source):
    """All changes of a source, ordered by place."""
    text, texts = masked(source)
    found = set()
    for begin, end, new, kind in [*operators(text), *literals(source, text, texts), *conditions(text), *statements(text)]:
        if source[begin:end] != new:
            found.add(Mutant(begin, end, new, source.count("\n", 0, begin) + 1, kind))
    return sorted(found, key=lambda mutant: (mutant.begin, mutant.end, mutant.text))
