"""A module of the notation: ASN.1 with notes, as definitions. docs/adding-a-type.md shows the notation."""

import re

from .lexer import Token, lines_of, parse_notes, tokens_of
from .model import Alias, Component, Definition, Export, Module, NotationError, Object, TypeName, Variant

NUMBER, CONSTANT, WORD = r"\d+", r"k[A-Za-z0-9]+", r"[A-Za-z0-9_]+"
MODULE_NOTES = {"unit": WORD, "header": WORD}
TYPE_NOTES = {"id": NUMBER, "prefix": WORD, "new": "none|own", "accessors": "own", "check": CONSTANT,
              "keep": "encoding|body|bodyalone|positions", "codec": CONSTANT, "wire": "sequence", "first": NUMBER,
              "tail": "open", "strings": None, "layout": "inferred"}
INNER_NOTES = {"of": NUMBER}
PLACES = ("attribute|bag|capability|content|extension|key|othername|parameters|private|qualifier|response|revocation"
          "|statement|validation|wantback")
ALSO_NOTES = {word: TYPE_NOTES[word] for word in ("id", "prefix", "check")} | {"open": PLACES}
COMPONENT_NOTES = {"get": WORD, "has": WORD, "new": WORD, "id": NUMBER, "written": NUMBER,
                   "form": "primitive|exact|inside", "when": NUMBER, "through": None, "content": None, "open": PLACES,
                   "data": r"[A-Z][A-Za-z0-9-]*"}

TWO_WORDS = {"BIT": "STRING", "OCTET": "STRING", "OBJECT": "IDENTIFIER"}
WITH_NAMES = ("INTEGER", "ENUMERATED", "BIT STRING")
MOST_NAMES = 256


class Parser:
    def __init__(self, path, text):
        self.path = path
        self.lines = list(lines_of(text))
        self.tokens = [token for line in self.lines if line.kind == "code" for token in tokens_of(path, line)]
        self.position = 0
        self.trailing = {line.number: line.note for line in self.lines if line.note is not None}
        self.aliases = {}
        self.objects = []

    # ---- Tokens

    @property
    def next(self):
        if self.position < len(self.tokens):
            return self.tokens[self.position]
        return Token("the end of the file", self.lines[-1].number if self.lines else 1)

    def fail(self, text, line=None):
        raise NotationError(self.path, line or self.next.line, text)

    def take(self, *expected):
        token = self.next
        if self.position == len(self.tokens):
            self.fail("the file ends in the middle")
        if expected and token.text not in expected:
            self.fail(f"'{' or '.join(expected)}' expected, not '{token.text}'")
        self.position += 1
        return token

    def accept(self, text):
        if self.next.text != text:
            return False
        self.position += 1
        return True

    def take_name(self, pattern, what):
        if not re.fullmatch(pattern, self.next.text):
            self.fail(f"{what} expected, not '{self.next.text}'")
        return self.take()

    # ---- Module

    def module(self):
        if not self.tokens:
            self.fail("no definitions", 1)
        notes = self.standing_notes(1, self.tokens[0].line)
        if len(notes) != 1 or notes[0].text.split()[:1] != ["module"]:
            self.fail("one '--@ module unit=… header=…' belongs above the first line of ASN.1", 1)
        words = self.notes(notes[0], MODULE_NOTES)
        for word in MODULE_NOTES:
            if word not in words:
                self.fail(f"the module note lacks {word}=", notes[0].number)
        family = re.fullmatch(r"(?:.*/)?ASN1_(\w+)\.asn1", self.path)
        if family is None:
            self.fail("the file is not called ASN1_<Family>.asn1", 1)
        head = [line.text for line in self.lines[:notes[0].number] if line.kind == "comment"]
        if not any(head):
            self.fail("no comment at the head of the file says what it holds", 1)
        while self.take().text != "BEGIN":
            pass
        definitions = self.definitions(self.tokens[self.position - 1].line)
        for line in sorted(self.trailing):
            self.fail("a note that belongs to no component", line)
        return Module(self.path, family[1], head, words["unit"], words["header"], definitions, self.aliases,
                      self.objects)

    def definitions(self, line):
        made = []
        while self.next.text != "END":
            above = self.between(line, self.next.line)
            text, variants, exports = self.standing(above)
            if made:
                made[-1].exports += exports
            elif exports:
                self.fail("an export follows the definition that it belongs to", exports[0].line)
            if text or variants or not self.assignment():
                made.append(self.definition(text, variants))
            line = self.tokens[self.position - 1].line
        text, variants, exports = self.standing(self.between(line, self.next.line))
        if variants or text:
            self.fail("notes or text without a definition")
        if made:
            made[-1].exports += exports
        self.take("END")
        return made

    # ---- Documentation and notes on lines of their own

    def between(self, first, last):
        return [line for line in self.lines if first < line.number < last and line.kind in ("note", "text")]

    def standing_notes(self, first, last):
        return [line for line in self.lines if first <= line.number < last and line.kind == "note"]

    def notes(self, line, allowed):
        _, _, words = line.text.strip().partition(" ")
        return parse_notes(self.path, line.number, words, allowed)

    def standing(self, lines):
        """Text and rows for the next definition, and the exports that stand before it."""
        text, variants, exports = [], [], []
        while lines:
            line = lines.pop(0)
            if line.kind == "text":
                text.append(line.text)
                continue
            word = line.text.split()[0] if line.text.split() else ""
            if word == "export":
                if variants:
                    self.fail("an export between a type note and its definition", line.number)
                exports.append(self.export(line, text, lines))
                text = []
            elif word in ("type", "also"):
                if (word == "type") != (variants == []):
                    self.fail("a definition has one type note, and also notes after it", line.number)
                notes = self.notes(line, TYPE_NOTES if word == "type" else ALSO_NOTES)
                if "id" not in notes:
                    self.fail(f"the {word} note lacks id=", line.number)
                variants.append(Variant(notes["id"], notes, line.number))
            elif word == "inner" and not variants:
                notes = self.notes(line, INNER_NOTES)
                if "of" not in notes:
                    self.fail("the inner note lacks of=", line.number)
                variants.append(Variant(None, notes, line.number))
            else:
                self.fail(f"unknown note '{word}'; known here: type, also, inner, export", line.number)
        return text, variants, exports

    def export(self, line, text, following):
        """The prototype is the note lines from here to the closing parenthesis."""
        parts = [line.text.strip().removeprefix("export").strip()]
        while following and following[0].kind == "note" and not self.complete(parts):
            parts.append(following.pop(0).text.strip())
        prototype = " ".join(part for part in parts if part).rstrip(";")
        if not re.fullmatch(r"[a-z].*\bquarn_\w+\s*\([^;{}]*\)", prototype):
            self.fail(f"no prototype of a quarn_ function in the export: '{prototype}'", line.number)
        if not any(text):
            self.fail(f"the export {prototype} has no '---' text", line.number)
        return Export(text, re.sub(r"\s+", " ", prototype), line.number)

    @staticmethod
    def complete(parts):
        whole = " ".join(parts)
        return "(" in whole and whole.count("(") == whole.count(")")

    # ---- Names of builtin types, and what object identifiers stand for

    def assignment(self):
        """Takes one, if one is next."""
        if re.fullmatch(r"[a-z].*", self.next.text):
            self.objects.append(self.object())
            return True
        if [token.text for token in self.tokens[self.position + 1:self.position + 3]] in (
                ["::=", name.split()[0]] for name in WITH_NAMES):
            self.alias()
            return True
        return False

    def object(self):
        name = self.take()
        place = self.take_name(PLACES.upper(), "where the object identifier stands").text.lower()
        self.take("::=")
        self.take("{")
        dotted = self.take_name(r"[0-2](\.\d+)+", "an object identifier").text
        made = Object(name.text, place, dotted, self.type_name(), name.line)
        if made.type.name == "OCTET STRING" and self.accept("("):
            self.take("CONTAINING")
            made.contained = True
            made.type = self.type_name()
            self.take(")")
        self.take("}")
        return self.noted(made, {"id": NUMBER})

    def alias(self):
        name = self.take()
        self.take("::=")
        type_name = self.type_name()
        last = self.tokens[self.position - 1].line
        self.aliases[name.text] = Alias(type_name, self.code(name.line, last))

    def code(self, first, last):
        return [line.text for line in self.lines[first - 1:last] if line.kind == "code"]

    # ---- Definitions

    def definition(self, text, variants):
        first = self.position
        name = self.take_name(r"[A-Z][A-Za-z0-9-]*", "the name of a definition")
        if not variants:
            self.fail(f"{name.text} has no '--@ type id=…'", name.line)
        if not any(text):
            self.fail(f"{name.text} has no '---' text", name.line)
        self.take("::=")
        own_tag = self.definition_tag()
        kind = self.take("SEQUENCE", "SET", "CHOICE").text
        at_least = 0
        if kind != "CHOICE" and self.next.text != "{":
            at_least = self.size()
            self.take("OF")
            fields = [self.element()]
            shape = "list"
        else:
            fields = self.fields(kind == "CHOICE")
            shape = "choice" if kind == "CHOICE" else "record"
        last = self.tokens[self.position - 1].line
        if last >= self.next.line:
            self.fail("a definition begins on a line of its own")
        source = self.code(self.tokens[first].line, last)
        return Definition(name.text, self.path, name.line, text, source, shape, kind == "SET", fields, at_least,
                          own_tag, variants)

    def definition_tag(self):
        """[UNIVERSAL 8] IMPLICIT, of a SEQUENCE or SET whose row has a tag of its own."""
        if not self.accept("["):
            return None
        tag_class = self.take("UNIVERSAL", "APPLICATION").text.lower()
        number = int(self.take_name(r"\d+", "a tag number").text)
        self.take("]")
        self.take("IMPLICIT")
        return tag_class, number

    def size(self):
        if not self.accept("SIZE"):
            return 0
        self.take("(")
        least = int(self.take_name(r"\d+", "a least number of elements").text)
        self.take("..")
        self.take("MAX")
        self.take(")")
        return least

    def octets(self):
        """(SIZE (8)) or (SIZE (1..MAX)), of a string."""
        if not self.accept("("):
            return None
        self.take("SIZE")
        self.take("(")
        count = int(self.take_name(r"\d+", "a number of octets").text)
        more = self.accept("..")
        if more:
            self.take("MAX")
        self.take(")")
        self.take(")")
        return count, more

    def element(self):
        """An element may have a name of its own; otherwise it is called as its type is."""
        line = self.next.line
        named = re.fullmatch(r"[a-z][A-Za-z0-9-]*", self.next.text) is not None
        name = self.take().text if named else None
        type_name = self.type_name()
        if name is None:
            name = re.sub(r"^[A-Z]+(?=[A-Z][a-z])|^[A-Z]+", lambda m: m[0].lower(), type_name.name.replace(" ", ""))
        return self.noted(Component(name, type_name, line))

    def fields(self, choice):
        self.take("{")
        made = []
        while not self.accept("}"):
            made.append(self.component(choice))
            if any(one.name == made[-1].name for one in made[:-1]):
                self.fail(f"two components are called {made[-1].name}", made[-1].line)
            if self.next.text != "}":
                self.take(",")
            made[-1] = self.noted(made[-1])
        return made

    def component(self, choice):
        name = self.take_name(r"[a-z][A-Za-z0-9-]*", "the name of a component")
        tag = self.tag()
        made = Component(name.text, self.type_name(), name.line, tag)
        made.size = self.octets()
        if not choice and self.accept("OPTIONAL"):
            made.presence = "optional"
        elif not choice and self.accept("DEFAULT"):
            made.presence = "default"
            made.default = self.default()
        return made

    def noted(self, one, allowed=None):
        """The note at the end of the lines from the first token of a component or an object to its last."""
        for number in range(one.line, self.tokens[self.position - 1].line + 1):
            note = self.trailing.pop(number, None)
            if note is not None:
                one.notes.update(parse_notes(self.path, number, note, allowed or COMPONENT_NOTES))
        return one

    def tag(self):
        if not self.accept("["):
            return None
        number = int(self.take_name(r"\d+", "a tag number").text)
        self.take("]")
        if self.next.text not in ("IMPLICIT", "EXPLICIT"):
            self.fail(f"the tag [{number}] is written without IMPLICIT or EXPLICIT")
        return number, self.take().text.lower()

    def default(self):
        text = self.take().text
        if text in ("TRUE", "FALSE"):
            return text == "TRUE"
        if re.fullmatch(r"-?\d+", text):
            return int(text)
        if re.fullmatch(r"'(..)*'H", text):
            return bytes.fromhex(text[1:-2])
        return self.fail(f"a default is TRUE, FALSE, a number or an encoding in hexadecimal, not '{text}'",
                         self.tokens[self.position - 1].line)

    def type_name(self):
        """A builtin type, a definition's name, or a list of any type."""
        token = self.take()
        if token.text in ("SEQUENCE", "SET"):
            return TypeName(self.any_list(token), token.line)
        name = token.text
        if name in TWO_WORDS:
            name += " " + self.take(TWO_WORDS[name]).text
        elif not re.fullmatch(r"[A-Z][A-Za-z0-9-]*", name):
            self.fail(f"a type expected, not '{name}'", token.line)
        if name == "ANY" and self.accept("DEFINED"):
            self.take("BY")
            self.take()
        names = self.names() if name in WITH_NAMES and self.accept("{") else None
        return TypeName(name, token.line, names)

    def names(self):
        """Of numbers or bits, behind the brace that opens them."""
        made = {}
        while True:
            name = self.take_name(r"[a-z][A-Za-z0-9-]*", "a name")
            self.take("(")
            number = int(self.take_name(r"\d+", "its number").text)
            self.take(")")
            if number in made or number >= MOST_NAMES:
                self.fail(f"{name.text} has the number of {made.get(number, 'none that can have a name')}", name.line)
            made[number] = name.text
            if self.take(",", "}").text == "}":
                return made

    def any_list(self, token):
        least = self.size()
        if self.next.text == "{" or not self.accept("OF") or not self.accept("ANY") or least > 1:
            self.fail(f"a {token.text} inside a component is a definition of its own, with an id", token.line)
        return f"{token.text} SIZE (1..MAX) OF ANY" if least else f"{token.text} OF ANY"


def parse(path, text):
    return Parser(path, text).module()
