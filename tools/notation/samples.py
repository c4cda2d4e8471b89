"""Encodings of every structured type, made from the notation alone: vectors that decode and encode to the same octets.

A type has a full sample, with every component in it, no component at its default and two elements in a list, and a
least one. A CHOICE has a full sample of each alternative instead. What lies deep inside is kept small.
"""

import dataclasses

from .model import CLASS_BITS
from .resolve import ANY_ID, TIME_ID

CONTEXT, UNIVERSAL = 0x80, 0x00
OCTET_STRING_ID, UTC_TIME_ID = 4, 21
LISTS_OF_ANY = {24: 0, 25: 1, 26: 0, 27: 1}  # and the elements that they have at least

# What a check of a row refuses.
ABSENT = {"kPkixAttributeTypeAndValue": {"primaryDistinguished", "valuesWithContext"},
          "kPkcs10Attribute": {"valuesWithContext"},
          "kPkixNameConstraints": {"requiredNameForms"}}
# What it demands of those that may be absent.
PRESENT = {"kSignerLocation": {"countryName"}}
# Contents that a check of a row demands: without the optional components, and with them.
DEMANDED = {"kRsaVersion": {"version": (b"\0", b"\1")}, "kPbeSalt": {"salt": (bytes(8), bytes(8))},
            "kCertListType": {"certListType": (b"\2", b"\1")}}
# The type that a check of a row demands of the open types in it.
OPEN = {"kCmsSignedData": OCTET_STRING_ID}


def letter(salt):
    return bytes([ord("a") + salt % 26])


def number(salt):
    value = 100 + 37 * salt  # from the second on it takes a leading zero
    return value.to_bytes(value.bit_length() // 8 + 1, "big")


# Contents of the universal types by id; others are character strings of one octet a character.
CONTENTS = {
    1: lambda salt: b"\xff",
    2: number,
    3: lambda salt: b"\x04" + bytes([0x10 * (salt % 15 + 1)]),
    5: lambda salt: b"",
    6: lambda salt: bytes([0x55, 0x04, 3 + salt % 100]),
    7: lambda salt: bytes([1 + salt % 100]),
    10: lambda salt: bytes([ord("0") + salt % 10]),
    18: lambda salt: b"\0\0\0" + letter(salt),
    19: lambda salt: b"\0" + letter(salt),
    21: lambda salt: b"%02d0229120000Z" % (4 * (salt % 12)),
    22: lambda salt: b"20%02d0229120000Z" % (52 + 4 * (salt % 12)),
    90: lambda salt: bytes([1 + salt % 100]),
}


def tlv(tag_class, constructed, tag, content):
    assert tag < 31
    size = len(content)
    octets = size.to_bytes((size.bit_length() + 7) // 8, "big")
    length = bytes([size]) if size < 128 else bytes([0x80 | len(octets)]) + octets
    return bytes([tag_class | 0x20 * constructed | tag]) + length + content


@dataclasses.dataclass(frozen=True)
class Look:
    """How a value is to look."""

    optional: bool  # has all components
    elements: int  # of a list
    salt: int = 0  # makes values differ
    depth: int = 0
    open: int = None  # the type of what is open
    octets: int = 1  # of a string

    def inside(self, salt):
        return Look(self.optional and self.depth < 2, min(self.elements, 1), self.salt + salt, self.depth + 1,
                    self.open)


FULL, LEAST = Look(True, 2), Look(False, 0, 1)


class Sampler:
    def __init__(self, rows, described):
        self.rows = rows
        self.described = described  # definition and variant by id

    def header(self, type_id):
        """Class, form and tag that values of a type have, unless it is a CHOICE or open."""
        row = self.rows[type_id]
        if type_id not in self.described:
            return UNIVERSAL, type_id in LISTS_OF_ANY, row.tag
        if "wire" in self.described[type_id][0].notes:
            return UNIVERSAL, True, 16
        return CLASS_BITS[row.tag_class], True, row.tag

    def element(self, type_id, look):
        definition = self.described.get(type_id, [None])[0]
        if definition and definition.kind == "choice":
            return self.alternative(definition, definition.fields[look.salt % len(definition.fields)], look)
        if type_id == ANY_ID:
            return self.element(look.open or [9, 2][look.salt % 2], look)
        if type_id == TIME_ID:
            return self.element(UTC_TIME_ID, look)
        return tlv(*self.header(type_id), self.content(type_id, look))

    def content(self, type_id, look):
        if type_id in LISTS_OF_ANY:
            return self.elements(ANY_ID, max(look.elements, LISTS_OF_ANY[type_id]), look)
        if type_id not in self.described:
            return CONTENTS.get(type_id, letter)(look.salt) * look.octets
        definition, variant = self.described[type_id]
        if definition.is_list:
            return self.elements(definition.fields[0].row.id, max(look.elements, definition.at_least), look)
        check = variant.notes.get("check")
        look = dataclasses.replace(look, open=OPEN.get(check, look.open))
        if check == "kUuidPair":
            return tlv(*self.header(4), bytes(range(16))) + tlv(*self.header(4), bytes(range(16, 32)))
        demanded = {name: contents[look.optional] for name, contents in DEMANDED.get(check, {}).items()}
        return b"".join(tlv(*self.header(component.row.id), demanded[component.name])
                        if component.name in demanded else self.component(component, look.inside(salt))
                        for salt, component in enumerate(definition.fields)
                        if self.has(component, check, look, demanded.values()))

    @staticmethod
    def has(component, check, look, demanded):
        if "when" in component.notes:
            return bytes([component.notes["when"]]) in demanded
        if component.presence == "mandatory" or component.name in PRESENT.get(check, ()):
            return True
        return look.optional and component.name not in ABSENT.get(check, ())

    def elements(self, type_id, count, look):
        return b"".join(self.element(type_id, look.inside(salt)) for salt in range(count))

    def alternative(self, definition, component, look):
        if definition.is_strings:
            return tlv(UNIVERSAL, False, self.rows[component.row.id].tag, self.content(component.row.id, look))
        return self.component(component, look.inside(0), look.depth > 0)

    def component(self, component, look, as_written=False):
        type_id = component.row.id
        if component.size is not None:
            look = dataclasses.replace(look, octets=component.size[0])
        if component.tag is None:
            octets = self.element(type_id, look) if component.default is not True else tlv(*self.header(1), b"\0")
            written = component.notes.get("written") if as_written else None
            return bytes([written]) + octets[1:] if written else octets
        tag, tagging = component.tag
        if tagging == "explicit":
            return tlv(CONTEXT, True, tag, self.element(type_id, look))
        constructed = self.header(type_id)[1] and component.notes.get("form") != "primitive"
        content = b"\0" if component.default is True else self.content(type_id, look)
        return tlv(CONTEXT, constructed, tag, content)

    def samples(self, type_id):
        """Name, octets and, where they are not the same, the octets that are written."""
        definition, _ = self.described[type_id]
        if definition.kind != "choice":
            for name, look in (("full", FULL), ("least", LEAST)):
                yield name, self.element(type_id, look), None
            return
        for component in definition.fields:
            octets = self.alternative(definition, component, FULL)
            written = component.notes.get("written")
            yield component.name, octets, bytes([written]) + octets[1:] if written else None


def vectors(rows, described):
    sampler = Sampler(rows, described)
    lines = []
    for type_id in sorted(described):
        lines.append(f"\ntype = {rows[type_id].name}\n")
        for name, octets, written in sampler.samples(type_id):
            out = written.hex(" ").upper() if written else "same"
            lines.append(f"{octets.hex(' ').upper()} | {out} | {name}\n")
    return "".join(lines)
