"""Lines of the notation as tokens, notes and documentation."""

import dataclasses
import difflib
import re

from .model import NotationError

TOKEN = re.compile(r"\s*(::=|\.\.|[{}()\[\],;]|'[0-9A-Fa-f]*'H|\d+(?:\.\d+)+|-?\d+|[A-Za-z][A-Za-z0-9-]*)")


@dataclasses.dataclass
class Token:
    text: str
    line: int


@dataclasses.dataclass
class Line:
    number: int
    kind: str  # code, note, text, comment, blank
    text: str  # without the mark
    note: str = None  # at the end of a line of code


def lines_of(text):
    for number, raw in enumerate(text.splitlines(), 1):
        line = raw.strip()
        if not line:
            yield Line(number, "blank", "")
        elif line.startswith("--@"):
            yield Line(number, "note", line[3:].rstrip())
        elif line.startswith("---") and not line.startswith("----"):
            yield Line(number, "text", line[3:].strip())
        elif line.startswith("--"):
            yield Line(number, "comment", line[2:].strip())
        else:
            code, _, rest = raw.partition("--")
            yield Line(number, "code", code.rstrip(), rest[1:].strip() if rest.startswith("@") else None)


def tokens_of(path, line):
    position = 0
    code = line.text
    while code[position:].strip():
        match = TOKEN.match(code, position)
        if match is None:
            raise NotationError(path, line.number, f"cannot read '{code[position:].strip()}'")
        yield Token(match[1], line.number)
        position = match.end()


def parse_notes(path, line, text, allowed):
    """The words of a note. allowed maps a word to None (it stands alone), to its values, or to a pattern of them."""
    notes = {}
    for item in text.split():
        word, equals, value = item.partition("=")
        if word not in allowed:
            near = difflib.get_close_matches(word, allowed, 1)
            hint = f"; did you mean '{near[0]}'?" if near else f"; known here: {', '.join(allowed)}"
            raise NotationError(path, line, f"unknown note word '{word}'{hint}")
        pattern = allowed[word]
        if (pattern is None) != (equals == "") or (pattern and not re.fullmatch(pattern, value)):
            shape = word if pattern is None else f"{word}={pattern}"
            raise NotationError(path, line, f"bad note '{item}': it is written {shape}")
        if word in notes:
            raise NotationError(path, line, f"note word '{word}' is there twice")
        notes[word] = int(value) if pattern == r"\d+" else value if equals else True
    return notes
