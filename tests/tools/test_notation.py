"""The notation of structured types: what stops the generator. What it makes is in the tree, and tested there."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from notation import functions, model, parser, resolve  # noqa: E402

# Universal rows by their tags, and after them rows of structured types: name, stem, tag, form.
TAGS = {9: 12, 11: 19}
STRUCTURED = {100: ("point", "Point", 16, "constructed"), 101: ("points", "Points", 16, "constructed"),
              102: ("shape", "shape", 0, "either"), 103: ("name", "name", 0, "either"),
              104: ("bag", "bag", 17, "constructed"), 105: ("spot", "Point", 16, "constructed"),
              106: ("odd", "odd", 0, "either")}


def registry():
    made = []
    for number in range(107):
        universal = (f"u{number}", f"u{number}", TAGS.get(number, number), "primitive")
        name, stem, tag, form = STRUCTURED.get(number, universal)
        codec = "-" if number in STRUCTURED else "own"
        made.append(model.Row(number, name, stem, tag, "universal", form, 0x10200 + number, codec))
    return made


def module(body, notes="unit=UNIT header=shapes", path="modules/ASN1_Shapes.asn1"):
    return parser.parse(path, f"-- Shapes.\n--@ module {notes}\nShapes DEFINITIONS ::= BEGIN\n{body}\nEND\n")


def resolved(*bodies):
    modules = [module(body, f"unit=UNIT header=h{n}", f"modules/ASN1_M{n}.asn1") for n, body in enumerate(bodies)]
    made = resolve.Resolver(registry(), modules).resolve()
    functions.check_names(made)
    return made


POINT = """
--- A place.
--@ type id=100
--@ also id=105
Point ::= SEQUENCE { x INTEGER, y [0] EXPLICIT INTEGER DEFAULT 7 }
--- Things.
--@ type id=104
Bag ::= SET SIZE (1..MAX) OF Point                            --@ id=105
"""
NAME = """
--- What it is called.
--@ type id=103 strings
Name ::= CHOICE { utf8 UTF8String, plain PrintableString }
"""
SEQUENCE = "--- T.\n--@ type id=100\nT ::= SEQUENCE "


class Mistakes(unittest.TestCase):
    def stops(self, message, *bodies):
        with self.assertRaises(model.NotationError) as caught:
            resolved(*bodies)
        self.assertRegex(str(caught.exception), r"^modules/ASN1_M\d\.asn1:\d+: ")
        self.assertIn(message, str(caught.exception))

    def test_in_definitions(self):
        for message, body in (
                ("asn1:6: unknown note word 'gte'; did you mean 'get'?", SEQUENCE + "{ x INTEGER --@ gte=y\n}"),
                ("asn1:5: unknown note word 'chek'", "--- T.\n--@ type id=100 chek=kX\nT ::= SEQUENCE { x INTEGER }"),
                ("asn1:5: T has no '---' text", "--@ type id=100\nT ::= SEQUENCE { x INTEGER }"),
                ("T has no '--@ type id=", "--- T.\nT ::= SEQUENCE { x INTEGER }"),
                ("unknown type INTEGR; did you mean INTEGER?", SEQUENCE + "{ x INTEGR }"),
                ("the tag [0] is written without IMPLICIT or EXPLICIT", SEQUENCE + "{ x [0] INTEGER }"),
                ("a tag cannot be IMPLICIT on Name", NAME + SEQUENCE + "{ x [0] IMPLICIT Name }"),
                ("T is a SEQUENCE of universal tag 16; row 104 of modules/registry.tsv has universal tag 17",
                 "--- T.\n--@ type id=104\nT ::= SEQUENCE { x INTEGER }"),
                ("row 106 of modules/registry.tsv has", "--- T.\n--@ type id=106\nT ::= SEQUENCE { x INTEGER }"),
                ("id 4 is no row of INTEGER", "--- T.\n--@ type id=100\nT ::= SEQUENCE {\nx INTEGER --@ id=4\n}"),
                ("i has no type id: it is mandatory",
                 "--- T.\n--@ type id=101\nT ::= SEQUENCE { i I }\n--- I.\n--@ inner of=101\nI ::= CHOICE { x NULL }"),
                ("id 2 has the codec 'own'", "--- T.\n--@ type id=2\nT ::= SEQUENCE { x INTEGER }"),
                ("row 105 (spot) has the stem Point of T and no definition", SEQUENCE + "{ x INTEGER }"),
                ("content is for an OPTIONAL component under a tag", SEQUENCE + "{ x NULL OPTIONAL --@ content\n}"),
                ("the default of x is no OCTET STRING", SEQUENCE + "{ x OCTET STRING DEFAULT 0 }"),
                ("SIZE is for strings in a record", SEQUENCE + "{ x INTEGER (SIZE (8)) }"),
                ("the default of x is not between -128 and 127", SEQUENCE + "{ x INTEGER DEFAULT 128 }"),
                ("form=exact is for OPTIONAL components and alternatives without an EXPLICIT tag",
                 "--- T.\n--@ type id=102\nT ::= CHOICE {\nx [0] EXPLICIT NULL --@ form=exact\n}"),
                ("form=inside is for components without a tag that may be absent",
                 SEQUENCE + "{\nx NULL --@ form=inside\n}"),
                ("when is a number up to 127, for OPTIONAL components without a tag",
                 SEQUENCE + "{\ny INTEGER,\nx NULL --@ when=1\n}"),
                ("1.2 is there twice as bag", "a BAG ::= { 1.2 NULL }\nb BAG ::= { 1.2 ANY }"),
                ("y has the number of x", "C ::= INTEGER { x(1), y(1) }"),
                ("',' expected, not 'y'", SEQUENCE + "{ x INTEGER y NULL }")):
            with self.subTest(message):
                self.stops(message, body)

    def test_between_definitions(self):
        self.stops("id 100 is that of Point", POINT, SEQUENCE + "{ x INTEGER }")
        self.stops("id 100 is no row of Bag", POINT,
                   "--- T.\n--@ type id=101\nT ::= SEQUENCE {\nx Bag --@ id=100\n}")
        self.stops("has the stem Point of Point", POINT.replace("--@ also id=105\n", "").replace("--@ id=105", ""),
                   "--- T.\n--@ type id=105\nT ::= SEQUENCE { x INTEGER }")


if __name__ == "__main__":
    unittest.main()
