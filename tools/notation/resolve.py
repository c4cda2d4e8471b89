"""Names of types as rows of the registry, and everything that a definition and the registry must agree on."""

import dataclasses
import difflib
import re

from .model import Component, NotationError, Row, TypeName

BUILTIN = {
    "BOOLEAN": (1, "boolean"), "INTEGER": (2, "integer"), "BIT STRING": (3, "bitstring"),
    "OCTET STRING": (4, "octetstring"), "NULL": (5, None), "OBJECT IDENTIFIER": (6, "oid"),
    "ENUMERATED": (7, "integer"), "UTF8String": (9, "octetstring"), "NumericString": (10, "octetstring"),
    "PrintableString": (11, "octetstring"), "TeletexString": (12, "octetstring"),
    "VideotexString": (13, "octetstring"), "IA5String": (14, "octetstring"), "GraphicString": (15, "octetstring"),
    "VisibleString": (16, "octetstring"), "GeneralString": (17, "octetstring"),
    "UniversalString": (18, "octetstring"), "BMPString": (19, "octetstring"), "Time": (20, "time"),
    "UTCTime": (21, "time"), "GeneralizedTime": (22, "time"), "ANY": (23, "any"),
    "SEQUENCE OF ANY": (24, "list"), "SEQUENCE SIZE (1..MAX) OF ANY": (25, "list"), "SET OF ANY": (26, "list"),
    "SET SIZE (1..MAX) OF ANY": (27, "list"), "RELATIVE-OID": (90, "oid"),
}
ANY_ID, TIME_ID = 23, 20
CHARACTER_STRINGS = range(9, 20)
STRINGS = (4, *CHARACTER_STRINGS)
KINDS = {"record": "SEQUENCE or SET", "list": "list", "choice": "CHOICE"}


class Resolver:
    """Fills in rows, C types and numbers of all modules, or stops at the first mistake."""

    def __init__(self, rows, modules):
        self.rows = [*rows]
        self.modules = modules
        self.by_name = {}
        self.by_id = {}
        self.by_stem = {}
        self.aliases = {name: alias for module in modules for name, alias in module.aliases.items()}

    def resolve(self):
        definitions = [definition for module in self.modules for definition in module.definitions]
        for definition in definitions:
            self.enter(definition)
        for definition in sorted(definitions, key=lambda one: one.row.id):
            self.name_struct(definition)
        for definition in definitions:
            for component in definition.fields:
                self.component(definition, component)
            self.shape(definition)
        for definition in definitions:
            self.sharing(definition)
        self.objects()
        self.claims()
        self.headers()
        return self.modules

    # ---- Definitions and their rows

    def enter(self, definition):
        other = self.by_name.setdefault(definition.name, definition)
        if definition.name in BUILTIN:
            definition.fail(f"{definition.name} is a builtin type")
        if other is not definition:
            definition.fail(f"{definition.name} is also defined in {other.path}:{other.line}")
        for variant in definition.variants:
            if variant.id is None:
                self.add_row(definition, variant)
            if variant.id >= len(self.rows):
                definition.fail(f"there is no id {variant.id} in modules/registry.tsv", variant.line)
            variant.row = self.rows[variant.id]
            taken = self.by_id.setdefault(variant.id, definition)
            if taken is not definition or variant.id in [v.id for v in definition.variants if v is not variant]:
                definition.fail(f"id {variant.id} is that of {taken.name} ({taken.path}:{taken.line}) too",
                                variant.line)
            if variant.row.codec != "-":
                definition.fail(f"id {variant.id} has the codec '{variant.row.codec}' in modules/registry.tsv; "
                                "a row with a notation has '-' there", variant.line)
            self.form(definition, variant)
            variant.prefix = variant.notes.get("prefix", "")
        if not definition.variants[0].prefix and not definition.is_inner:
            definition.variants[0].prefix = definition.row.name

    def add_row(self, definition, variant):
        """A row behind those of the registry. Failures have the code of the row that it is inside."""
        around = variant.notes["of"]
        if definition.kind != "choice" or around >= len(self.rows):
            definition.fail("inner is for a CHOICE inside a row of modules/registry.tsv", variant.line)
        variant.id = len(self.rows)
        self.rows.append(Row(variant.id, definition.constant[1:], definition.name, 0, "universal", "either",
                             self.rows[around].code, "-", True))

    @staticmethod
    def form(definition, variant):
        row = variant.row
        actual = (row.tag_class, row.tag)
        if row.tag_class == "application" and variant is not definition.variants[0]:
            actual = (definition.row.tag_class, definition.row.tag)  # the row tells the tag
        if definition.kind == "choice":
            wanted = ("universal", 0)
        else:
            wanted = definition.own_tag or ("universal", 17 if definition.set else 16)
        if "wire" in definition.notes:
            if actual != ("universal", 0) or row.form != "either":
                definition.fail(f"wire=sequence is for rows without a tag, not for row {row.id}", variant.line)
        elif actual != wanted or (definition.kind != "choice" and row.form != "constructed"):
            shown = {"record": "SET" if definition.set else "SEQUENCE", "choice": "CHOICE"}.get(
                definition.kind, "SET OF" if definition.set else "SEQUENCE OF")
            definition.fail(f"{definition.name} is a {shown} of {wanted[0]} tag {wanted[1]}; row {row.id} of "
                            f"modules/registry.tsv has {actual[0]} tag {actual[1]}, {row.form}", variant.line)

    def name_struct(self, definition):
        """Types that share a free function share its struct."""
        for variant in definition.variants:
            owner = self.by_stem.setdefault(variant.row.stem, definition)
            if variant is definition.variants[0]:
                definition.owner = owner
        if "layout" in definition.notes and definition.is_list:
            definition.fail("layout=inferred is for records and CHOICEs")
        bare = definition.is_list and "keep" not in definition.notes and "codec" not in definition.notes
        definition.struct = ("void" if definition.is_inner else "quarn_asn1_list" if bare
                             else f"quarn_{definition.variants[0].prefix}")

    @staticmethod
    def sharing(definition):
        """One function can free values of two definitions when both are strings, or lists of the same elements."""
        owner = definition.owner
        if owner is definition or (owner.is_strings and definition.is_strings):
            return
        if owner.is_list and definition.is_list and owner.fields[0].row.stem == definition.fields[0].row.stem:
            return
        definition.fail(f"row {definition.row.id} has the stem {definition.row.stem} of {owner.name} and so its free "
                        "function; write it as a row of that definition: '--@ also'")

    def claims(self):
        """A row that shares the stem, and so the free function, of a definition is described by it or by another."""
        for row in self.rows:
            owner = self.by_stem.get(row.stem)
            if owner is not None and row.codec == "-" and row.id not in self.by_id:
                owner.fail(f"row {row.id} ({row.name}) has the stem {row.stem} of {owner.name} and no definition; "
                           f"write '--@ also id={row.id}'")

    # ---- Components

    def component(self, definition, component):
        alias = self.aliases.get(component.type.name)
        if alias is not None:
            definition.aliases += [line for line in alias.source if line not in definition.aliases]
        component.row = self.named(component, definition.path)
        if "data" in component.notes:
            held = Component("", TypeName(component.notes["data"], component.line), component.line)
            component.data = self.named(held, definition.path)
        target = self.by_name.get(component.type.name)
        c_name = BUILTIN[component.type.name][1] if target is None else None
        component.c_type = target.struct if target else f"quarn_asn1_{c_name}" if c_name else "void"
        if component.row.inner and (component.tag or component.presence != "mandatory" or component.part):
            definition.fail(f"{component.name} has no type id: it is mandatory, without a tag, and get=none",
                            component.line)
        self.tagging(definition, component)
        self.presence(definition, component)

    def named(self, one, path):
        """The row of what a component or an object names."""
        if one.type.name in self.aliases:
            one.type = dataclasses.replace(self.aliases[one.type.name].type, line=one.type.line)
        name, wanted = one.type.name, one.notes.get("id")
        if name in BUILTIN:
            row = self.rows[BUILTIN[name][0] if wanted is None else wanted]
            if row.stem != self.rows[BUILTIN[name][0]].stem:
                raise NotationError(path, one.line, f"id {wanted} is no row of {name}")
            return row
        target = self.by_name.get(name)
        if target is None:
            near = difflib.get_close_matches(name, [*BUILTIN, *self.by_name, *self.aliases], 1)
            hint = f"; did you mean {near[0]}?" if near else ""
            raise NotationError(path, one.type.line, f"unknown type {name}{hint}")
        number = target.row.id if wanted is None else wanted
        if number not in [variant.id for variant in target.variants]:
            raise NotationError(path, one.line, f"id {number} is no row of {name}")
        return self.rows[number]

    def objects(self):
        """An identifier tells one type in one place."""
        seen = set()
        for module in self.modules:
            for one in module.objects:
                one.row = self.named(one, module.path)
                if (one.place, one.dotted) in seen:
                    raise NotationError(module.path, one.line, f"{one.dotted} is there twice as {one.place}")
                seen.add((one.place, one.dotted))

    def is_choice(self, component):
        target = self.by_name.get(component.type.name)
        return target is not None and target.kind == "choice"

    def tagging(self, definition, component):
        if component.tag is None or component.tag[1] == "explicit":
            return
        if self.is_choice(component) or component.row.id in (ANY_ID, TIME_ID):
            definition.fail(f"{component.name}: a tag cannot be IMPLICIT on {component.type.name}, which has no tag "
                            "of its own to replace", component.line)

    def presence(self, definition, component):
        if isinstance(component.default, int) and not -128 <= component.default <= 127:
            definition.fail(f"the default of {component.name} is not between -128 and 127", component.line)
        sized = definition.kind == "record" and component.row.id in STRINGS
        if component.size and (not sized or not 1 <= component.size[0] <= 127):
            definition.fail("SIZE is for strings in a record, of 1 to 127 octets", component.line)
        if component.row.id not in {bool: (1,), int: (2, 7)}.get(type(component.default), (component.row.id,)):
            definition.fail(f"the default of {component.name} is no {component.type.name}", component.line)
        if "through" in component.notes:
            component.record = self.by_name.get(component.type.name)
            if component.record is None or component.record.kind != "record" or component.presence != "mandatory":
                definition.fail(f"through is for mandatory records, which {component.name} is not", component.line)

    # ---- Kinds

    def shape(self, definition):
        notes = definition.notes
        fields = definition.fields
        if definition.at_least > 1:
            definition.fail("a list has at least 0 or 1 elements")
        for word, kind in (("first", "choice"), ("strings", "choice"), ("tail", "record")):
            if word in notes and definition.kind != kind:
                definition.fail(f"{word} is for a {KINDS[kind]}", definition.variants[0].line)
        if notes.get("keep") in ("body", "bodyalone", "positions") and definition.kind != "record":
            definition.fail(f"keep={notes['keep']} is for a SEQUENCE", definition.variants[0].line)
        if not fields:
            definition.fail(f"{definition.name} is empty")
        if "tail" in notes and (len(fields) != 2 or fields[1].row.id != ANY_ID or fields[1].presence != "optional"):
            definition.fail("tail=open is for a mandatory component and ANY OPTIONAL", definition.variants[0].line)
        for component in fields:
            for word, kind in (("new", "choice"), ("written", "choice"), ("has", "record"), ("through", "record"),
                               ("when", "record"), ("content", "record")):
                if word in component.notes and definition.kind != kind:
                    definition.fail(f"{word} is for components of a {KINDS[kind]}", component.line)
            self.recognition(definition, component)
            if "content" in component.notes and (component.presence != "optional" or component.tag is None or
                                                 component.type.name not in ("ANY", "OCTET STRING")):
                definition.fail("content is for an OPTIONAL component under a tag, ANY or OCTET STRING", component.line)
            if definition.is_strings and component.row.id not in CHARACTER_STRINGS:
                definition.fail(f"{component.name} is no character string", component.line)
        if definition.kind == "choice":
            self.numbers(definition)

    @staticmethod
    def recognition(definition, component):
        """What a component may be known by besides its class and tag."""
        form, tagging = component.notes.get("form"), component.tag[1] if component.tag else "plain"
        may_lack = component.presence == "optional"
        if form == "primitive" and definition.kind != "record":
            definition.fail("form=primitive is for components of a SEQUENCE or SET", component.line)
        if form == "exact" and (not may_lack and definition.kind != "choice" or tagging == "explicit"):
            definition.fail("form=exact is for OPTIONAL components and alternatives without an EXPLICIT tag",
                            component.line)
        if form == "inside" and (not may_lack and not isinstance(component.default, bytes) or tagging != "plain"):
            definition.fail("form=inside is for components without a tag that may be absent", component.line)
        if "when" in component.notes and (not may_lack or tagging != "plain" or component.notes["when"] > 127):
            definition.fail("when is a number up to 127, for OPTIONAL components without a tag", component.line)

    @staticmethod
    def numbers(definition):
        """By position, or by tag when all alternatives have one that is not universal."""
        fields = definition.fields
        tags = [component.tag[0] if component.tag else component.row.tag if component.row.tag_class != "universal"
                else None for component in fields]
        definition.by_tag = None not in tags
        if definition.by_tag and "first" in definition.notes:
            definition.fail("the tags number the alternatives; first= does not", definition.variants[0].line)
        definition.first = definition.notes.get("first", 0)
        numbers = tags if definition.by_tag else range(definition.first, definition.first + len(fields))
        for component, number in zip(fields, numbers):
            component.number = number

    def headers(self):
        seen = {}
        for module in self.modules:
            other = seen.setdefault(module.header, module)
            if other is not module:
                module.definitions[0].fail(f"header={module.header} is that of {other.path} too", 1)
            for definition in module.definitions:
                for export in definition.exports:
                    unknown = set(re.findall(r"\b(quarn_\w+) \*", export.prototype)) - self.c_types()
                    if unknown:
                        definition.fail(f"unknown C type {sorted(unknown)[0]}", export.line)

    def c_types(self):
        """Structs that prototypes may name: of definitions, of the universal types, of the support library."""
        made = {f"quarn_asn1_{name}" for _, name in BUILTIN.values() if name}
        made |= {definition.struct for module in self.modules for definition in module.definitions}
        return made | {f"quarn_{name}" for name in ("stream", "err_ctx", "data_blob", "json", "time", "bitset",
                                                    "biginteger")}
