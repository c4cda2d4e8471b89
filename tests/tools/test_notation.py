"""The notation of structured types: what is made of a definition, and what stops the generator."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

from notation import api, catalogue, functions, model, openings, parser, resolve, rows  # noqa: E402

# Universal rows by their tags, and after them rows of structured types: name, stem, tag, form.
TAGS = {9: 12, 11: 19}
STRUCTURED = {100: ("point", "Point", 16, "constructed"), 101: ("points", "Points", 16, "constructed"),
              102: ("shape", "shape", 0, "either"), 103: ("name", "name", 0, "either"),
              104: ("bag", "bag", 17, "constructed"), 105: ("spot", "Point", 16, "constructed"),
              106: ("odd", "odd", 0, "either"), 107: ("short", "name", 0, "either"),
              108: ("vague", "vague", 16, "constructed"), 109: ("dim", "dim", 0, "either")}


def registry():
    made = []
    for number in range(110):
        name, stem, tag, form = STRUCTURED.get(number, (f"u{number}", f"u{number}", TAGS.get(number, number), "primitive"))
        codec = "-" if number in STRUCTURED else "own"
        made.append(model.Row(number, name, stem, tag, "universal", form, 0x10200, codec))
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
--@ type id=100 prefix=pt
--@ also id=105 check=kSpot
Point ::= SEQUENCE {
    x          INTEGER,
    y-Axis     [0] EXPLICIT INTEGER DEFAULT 7,                --@ get=height
    iv         OCTET STRING (SIZE (8)),
    text       [3] IMPLICIT UTF8String (SIZE (1..MAX)) OPTIONAL,
    dNSName    [1] IMPLICIT OCTET STRING OPTIONAL,            -- a remark
    colour     [2] IMPLICIT Bag DEFAULT '3100'H,
    new        ANY OPTIONAL                                   --@ get=none
}
--- Moves it
--- away.
--@ export
--@   int quarn_pt_move(quarn_pt *value,
--@                     const quarn_asn1_integer *by);
--- Things.
--@ type id=104
Bag ::= SET SIZE (1..MAX) OF Point                            --@ id=105
"""
SHAPE = """
--- A shape.
--@ type id=102 first=1
Shape ::= CHOICE {
    dot    Point,
    label  [5] EXPLICIT Name                                  --@ get=text new=_label
}
--- What it is called.
--@ type id=103 strings
Name ::= CHOICE { utf8 UTF8String, plain PrintableString }
--- Another.
--@ type id=107 strings
Short ::= CHOICE { a UTF8String }
"""


class Output(unittest.TestCase):
    def has(self, text, *parts):
        for part in parts:
            self.assertIn(part, text)

    def test_rows(self):
        modules = resolved(POINT, SHAPE)
        self.has(rows.rows(modules[0]),
                 'field("x", QUARN_ASN1_U2),',
                 'field("y-Axis", QUARN_ASN1_U2, explicit_tag(0), defaults_to(7)),',
                 'field("iv", QUARN_ASN1_U4, octets(8)),',
                 'field("text", QUARN_ASN1_U9, implicit_tag(3), optional(), at_least_octets(1)),',
                 'field("dNSName", QUARN_ASN1_U4, implicit_tag(1), optional()),',
                 "constexpr std::uint8_t kPointColourDefault[] = {0x31, 0x00};",
                 'field("colour", QUARN_ASN1_BAG, implicit_tag(2), default_encoding(kPointColourDefault)),',
                 'constexpr Schema kPointSchema = record("Point", kM0Unit, kPointFields);',
                 "kPointFields, restricted_by(kSpot));",
                 'field("point", QUARN_ASN1_SPOT)', "kBagElement, at_least(1));")
        self.has(rows.rows(modules[1]), "numbered_from(1)", 'string_choice("Name", kM1Unit, kNameAlternatives)')
        gaps = resolved("--- T.\n--@ type id=102\nT ::= CHOICE { a [0] IMPLICIT NULL, b [3] IMPLICIT INTEGER }")[0]
        self.has(rows.rows(gaps), "kTAlternatives, numbered_by_tag());")
        self.has(api.bodies(gaps), "choice_part<quarn_asn1_integer>(QUARN_ASN1_SHAPE, value, 3)")
        point = modules[0].definitions[0]
        self.assertEqual([rows.registry_reference(point, variant) for variant in point.variants],
                         ["&kRecordCodec, &kPointSchema", "&kRecordCodec, &kPoint105Schema"])
        self.assertEqual(rows.own(modules), "extern const Restriction kSpot;\n")

    def test_accessors(self):
        modules = resolved(POINT, SHAPE)
        self.has(api.bodies(modules[0]),
                 "void quarn_Point_free(quarn_pt *value) {\n  quarn_asn1_value_free(QUARN_ASN1_POINT, value);\n}",
                 "const quarn_asn1_octetstring *dns_name,", "const quarn_asn1_any *new_)",
                 "return quarn::asn1::part<quarn_asn1_integer>(value, 1);",
                 "int quarn_pt_hasdnsname(const quarn_pt *value) {\n"
                 "  return quarn::asn1::has_part(value, 4);",
                 "void quarn_bag_free(quarn_asn1_list *value)")
        for absent in ("getnew", "hasnew", "quarn_pt_move", "hasheight", "quarn_spot"):
            self.assertNotIn(absent, api.bodies(modules[0]))
        self.has(api.bodies(modules[1]), "uint32_t quarn_shape_gettype(", "quarn_shape *quarn_shape_newdot(const quarn_pt *dot)",
                 "build_choice<quarn_shape>(QUARN_ASN1_SHAPE, 2, label)", "quarn_shape_new_label(",
                 "quarn_name *quarn_shape_gettext(", "quarn_name_new(uint64_t tag, const")

    def test_header(self):
        modules = resolved(POINT, SHAPE)
        text = api.header(modules[0], modules)
        self.has(text, " * A place.\n *\n *     Point ::= SEQUENCE {\n *         x          INTEGER,\n",
                 " *         dNSName    [1] IMPLICIT OCTET STRING OPTIONAL,\n",
                 "Type ids QUARN_ASN1_POINT (100), QUARN_ASN1_SPOT (105).", "typedef struct quarn_pt quarn_pt;",
                 "/** Moves it away. */\nQUARN_ASN1_API int quarn_pt_move(quarn_pt *value, const quarn_asn1_integer *by);",
                 "A quarn_asn1_list of Point (quarn_pt).", "\n * From its components. Null leaves out text, dns_name and new_, and stands for the default of")
        text = api.header(modules[1], modules)
        self.has(text, '#include "h0.h"\n#include "types.h"\n')
        self.assertLess(text.index("typedef struct quarn_name"), text.index("typedef struct quarn_shape"))
        self.assertLessEqual(max(len(line) for line in text.splitlines()), 100)

    def test_words_for_whole_types(self):
        kept = resolved("--- N.\n--@ type id=101 keep=encoding\nN ::= SEQUENCE OF line UTF8String\n"
                        "--- S.\n--@ type id=100 keep=body\n--@ also id=105\nS ::= SEQUENCE {\na O, --@ through\nb NULL\n}\n"
                        "--- O.\n--@ type id=106 wire=sequence accessors=own\nO ::= SEQUENCE {\nc N OPTIONAL,\nd N --@ has=dd\n}\n"
                        "--- C.\n--@ type id=104 codec=kC keep=bodyalone\nC ::= SET { a N }\n"
                        "--- E.\n--@ type id=102\nE ::= CHOICE { good [0] IMPLICIT NULL, bad INTEGER }\n"
                        "--- I.\n--@ type id=109 layout=inferred\nI ::= CHOICE { a INTEGER }\n"
                        "--- J.\n--@ type id=108 layout=inferred\nJ ::= SEQUENCE { a I }")
        self.has(rows.rows(kept[0]), 'field("line", QUARN_ASN1_U9)', "keep_encoding());", "keep_body());",
                 "keep_body_alone());", 'constexpr Schema kISchema = inferred("I", kM0Unit, kILayout);',
                 'kILayout{"dim", &kChoiceCodec, &kILayoutSchema, 0, 0x10200, kUniversal, -1};')
        self.has(api.bodies(kept[0]), "quarn_Points_free(quarn_points *value)", "quarn_points *quarn_point_getd(const quarn_point *value) {\n"
                 "  return quarn_odd_getd(quarn::asn1::part<quarn_odd>(value, 0));",
                 "quarn::asn1::part<quarn_dim>(quarn::asn1::inferred_layout(value), 0)",
                 "quarn_shape *quarn_shape_newgood(void) {\n  return quarn::asn1::build_choice<quarn_shape>(QUARN_ASN1_SHAPE, 0);",
                 "int quarn_point_hasc(", "int quarn_point_hasdd(",
                 "int quarn_point_gettbsocts(quarn_point *value, uint8_t *buffer, uint64_t *length)")
        for absent in ("quarn_odd_getd(const", "getgood"):
            self.assertNotIn(absent, api.bodies(kept[0]))
        self.assertEqual([rows.registry_reference(one, one.variants[0]) for one in kept[0].definitions[2:4]],
                         ["&kRecordCodec, &kOSchema", "&kC, &kCSchema"])

    def test_names_and_openings(self):
        modules = resolved("Colours ::= BIT STRING { red(0), blue(2) }\n"
                           "--- P (RFC 1, 2).\n--@ type id=100 new=own\n--@ also id=105 open=key\n"
                           "P ::= SEQUENCE {\na INTEGER { one(1) },\nb [0] IMPLICIT Colours OPTIONAL,\n"
                           "c SET OF ANY --@ open=bag\n}\n"
                           "second BAG ::= { 1.2.3 P }  --@ id=105\nfirst BAG ::= { 1.2.10 Colours }")
        self.has(openings.tables(modules), '{QUARN_ASN1_POINT, 2, Place::bag, true}',
                 '{QUARN_ASN1_SPOT, 2, Place::key, true}', '{QUARN_ASN1_POINT, "a", ",one"}',
                 '{QUARN_ASN1_POINT, "b", "red,,blue"}',
                 '{Place::bag, "1.2.10", {QUARN_ASN1_U3, "red,,blue"}},\n'
                 '    {Place::bag, "1.2.3", {QUARN_ASN1_SPOT, nullptr}},')
        self.has(api.header(modules[0], modules), " *     Colours ::= BIT STRING { red(0), blue(2) }\n")
        definition = modules[0].definitions[0]
        types = catalogue.Catalogue([definition.row], modules, {100: (definition, definition.variants[0])})
        self.assertEqual(types.standard(definition), "RFC 1, 2")
        self.has(types.table(), '{"b", QUARN_ASN1_U3, "[0] IMPLICIT", "OPTIONAL"}', '"quarn_Point_free', "    0,\n")


class Mistakes(unittest.TestCase):
    def stops(self, message, *bodies):
        with self.assertRaises(model.NotationError) as caught:
            resolved(*bodies)
        self.assertRegex(str(caught.exception), r"^modules/ASN1_M\d\.asn1:\d+: ")
        self.assertIn(message, str(caught.exception))

    def test_in_definitions(self):
        name = SHAPE[SHAPE.index("--- What"):]
        for message, body in (
                ("asn1:6: unknown note word 'gte'; did you mean 'get'?",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER --@ gte=y\n}"),
                ("asn1:5: unknown note word 'chek'", "--- T.\n--@ type id=100 chek=kX\nT ::= SEQUENCE { x INTEGER }"),
                ("bad note 'keep=all': it is written keep=encoding|body",
                 "--- T.\n--@ type id=100 keep=all\nT ::= SEQUENCE { x INTEGER }"),
                ("asn1:5: T has no '---' text", "--@ type id=100\nT ::= SEQUENCE { x INTEGER }"),
                ("T has no '--@ type id=", "--- T.\nT ::= SEQUENCE { x INTEGER }"),
                ("the export int quarn_f(void) has no '---' text",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER }\n--@ export int quarn_f(void)"),
                ("unknown type INTEGR; did you mean INTEGER?", "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGR }"),
                ("the tag [0] is written without IMPLICIT or EXPLICIT",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE { x [0] INTEGER }"),
                ("a tag cannot be IMPLICIT on Name",
                 name + "--- T.\n--@ type id=100\nT ::= SEQUENCE { x [0] IMPLICIT Name }"),
                ("T is a SEQUENCE of universal tag 16; row 104 of modules/registry.tsv has universal tag 17",
                 "--- T.\n--@ type id=104\nT ::= SEQUENCE { x INTEGER }"),
                ("row 106 of modules/registry.tsv has", "--- T.\n--@ type id=106\nT ::= SEQUENCE { x INTEGER }"),
                ("id 2 has the codec 'own'", "--- T.\n--@ type id=2\nT ::= SEQUENCE { x INTEGER }"),
                ("there is no id 999", "--- T.\n--@ type id=999\nT ::= SEQUENCE { x INTEGER }"),
                ("two components are called x", "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER, x NULL }"),
                ("row 105 (spot) has the stem Point of T and no definition",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER }"),
                ("quarn_point_getx is made twice", "--- T.\n--@ type id=100\n--@ also id=105\nT ::= SEQUENCE {\nx INTEGER,\n"
                                                   "y NULL --@ get=x\n}"),
                ("the default of x is no OCTET STRING",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE { x OCTET STRING DEFAULT 0 }"),
                ("SIZE is for strings in a record",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER (SIZE (8)) }"),
                ("the default of x is not between -128 and 127",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER DEFAULT 128 }"),
                ("form=exact is for OPTIONAL components and alternatives without an EXPLICIT tag",
                 "--- T.\n--@ type id=102\nT ::= CHOICE {\nx [0] EXPLICIT NULL --@ form=exact\n}"),
                ("form=inside is for components without a tag that may be absent",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE {\nx NULL --@ form=inside\n}"),
                ("when is a number up to 127, for OPTIONAL components without a tag",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE {\ny INTEGER,\nx NULL --@ when=1\n}"),
                ("a SEQUENCE inside a component is a definition of its own",
                 "--- T.\n--@ type id=100\nT ::= SEQUENCE { x SEQUENCE OF INTEGER }"),
                ("unknown type Colour", "a BAG ::= { 1.2 Colour }"),
                ("1.2 is there twice as bag", "a BAG ::= { 1.2 NULL }\nb BAG ::= { 1.2 ANY }"),
                ("y has the number of x", "C ::= INTEGER { x(1), y(1) }"),
                ("where the object identifier stands expected, not 'BOX'", "a BOX ::= { 1.2 NULL }"),
                ("',' expected, not 'y'", "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER y NULL }"),
                ("',' expected, not 'END'", "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER")):
            with self.subTest(message):
                self.stops(message, body)

    def test_between_definitions(self):
        self.stops("id 100 is that of Point", POINT, "--- T.\n--@ type id=100\nT ::= SEQUENCE { x INTEGER }")
        self.stops("Point is also defined in", POINT, "--- T.\n--@ type id=101\nPoint ::= SEQUENCE { x INTEGER }")
        self.stops("id 100 is no row of Bag", POINT,
                   "--- T.\n--@ type id=101\nT ::= SEQUENCE {\nx Bag --@ id=100\n}")
        self.stops("has the stem Point of Point", POINT.replace("--@ also id=105 check=kSpot\n", "").replace(
            "--@ id=105", ""), "--- T.\n--@ type id=105\nT ::= SEQUENCE { x INTEGER }")
        self.assertIn("typedef struct quarn_name quarn_short;", api.section(resolved(POINT, SHAPE)[1].definitions[2]))


if __name__ == "__main__":
    unittest.main()
