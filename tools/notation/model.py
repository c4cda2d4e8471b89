"""What a module of the notation says, as data."""

import dataclasses
import re


CLASS_BITS = {"universal": 0x00, "application": 0x40}


class NotationError(Exception):
    """A mistake in a source file, with its place."""

    def __init__(self, path, line, text):
        super().__init__(f"{path}:{line}: {text}")


@dataclasses.dataclass
class Row:
    """A row of modules/registry.tsv."""

    id: int
    name: str
    stem: str
    tag: int
    tag_class: str
    form: str
    code: int
    codec: str

    @property
    def constant(self):
        return f"QUARN_ASN1_{self.name.upper()}"


@dataclasses.dataclass
class TypeName:
    """A type as a component or a list names it: a builtin one, or a definition of any module."""

    name: str
    line: int
    names: dict = None  # number or bit to name, where they have names


@dataclasses.dataclass
class Component:
    """A component of a record, an alternative of a CHOICE, or the element of a list."""

    name: str
    type: TypeName
    line: int
    tag: tuple = None  # (number, "implicit" or "explicit")
    presence: str = "mandatory"  # optional, default
    default: object = None  # bool, int, or bytes: an encoding
    size: tuple = None  # of a string: octets, and whether it may have more
    notes: dict = dataclasses.field(default_factory=dict)
    # Filled in by resolve.py.
    row: Row = None
    c_type: str = ""
    number: int = 0  # of an alternative
    record: object = None  # the definition whose getters are given for the whole value too

    @property
    def part(self):
        """The last part of the names of its functions; None when it has none."""
        part = self.notes.get("get", re.sub(r"[^a-z0-9]", "", self.name.lower()))
        return None if part == "none" or "through" in self.notes else part

    @property
    def default_text(self):
        if isinstance(self.default, bool):
            return "TRUE" if self.default else "FALSE"
        return str(self.default) if isinstance(self.default, int) else "the default"


@dataclasses.dataclass
class Variant:
    """A row of the registry that a definition describes: that of its type note, or of an also note."""

    id: int
    notes: dict
    line: int
    row: Row = None
    prefix: str = ""  # of its functions; empty when they are those of the definition's first row


@dataclasses.dataclass
class Export:
    """A function that is written by hand and declared in the generated header."""

    text: list
    prototype: str
    line: int


@dataclasses.dataclass
class Alias:
    """Another name of a builtin type, for the sake of the names of its numbers or bits."""

    type: TypeName
    source: list


@dataclasses.dataclass
class Object:
    """What an object identifier stands for in one place: the type of the octets beside it."""

    name: str
    place: str
    dotted: str
    type: TypeName
    line: int
    notes: dict = dataclasses.field(default_factory=dict)
    # Filled in by resolve.py.
    row: Row = None


@dataclasses.dataclass
class Definition:
    name: str
    path: str
    line: int
    text: list  # documentation
    source: list  # the definition's lines without notes and comments
    kind: str  # record, choice, list
    set: bool
    fields: list
    at_least: int
    own_tag: tuple  # (class, number) when it has another tag than SEQUENCE or SET
    variants: list
    exports: list = dataclasses.field(default_factory=list)
    aliases: list = dataclasses.field(default_factory=list)  # the lines of those that it names
    # Filled in by resolve.py.
    struct: str = ""  # C type of its values
    first: int = 0  # number of a CHOICE's first alternative
    by_tag: bool = False  # the tags of a CHOICE's alternatives are their numbers
    owner: object = None  # the definition whose free function and struct it shares

    @property
    def notes(self):
        return self.variants[0].notes

    @property
    def row(self):
        return self.variants[0].row

    @property
    def constant(self):
        return "k" + self.name.replace("-", "")

    @property
    def is_list(self):
        return self.kind == "list"

    @property
    def is_strings(self):
        return "strings" in self.notes

    def fail(self, text, line=None):
        raise NotationError(self.path, line or self.line, text)


@dataclasses.dataclass
class Module:
    path: str
    family: str  # X509 of modules/ASN1_X509.asn1
    head: list  # the comment at the head of the file
    unit: str
    header: str
    definitions: list
    aliases: dict  # name to Alias
    objects: list
