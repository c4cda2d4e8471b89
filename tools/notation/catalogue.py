"""The catalogue of types: a page, and a table for the command."""

import re
import textwrap

from .functions import functions_of
from .layout import c_string, paragraphs

HEAD = """# Types

Every ASN.1 type that the library names, by its id, and below, by source, what each is made of and the
functions that are its own. A tag is written only where the row has one; CHOICEs and open types have none. The
decode code is the encode code plus one. A type without a name in ASN.1 is a universal or an open type, or, in
LDAP, a universal one under an APPLICATION tag.

"""
STANDARD = re.compile(r"\(([^()]*\b(?:RFC|X\.|ISO|PKCS|GM/T|GB/T|EN|TS) ?#?\d[^()]*)\)")


class Catalogue:
    def __init__(self, registry, modules, described):
        self.registry = registry
        self.modules = modules
        self.described = described
        self.module_of = {definition.name: module for module in modules for definition in module.definitions}

    def standard(self, definition):
        """Where a type is defined: what its own text says, or else the one standard of its module."""
        if "layout" in definition.notes:  # nothing public defines it
            return ""
        found = STANDARD.search(" ".join(definition.text))
        if found:
            return found[1]
        found = STANDARD.findall(" ".join(self.module_of[definition.name].head))
        return found[0] if len(found) == 1 and not re.search(r",.*[A-Z]", found[0]) else ""

    # ---- docs/types.md

    def page(self):
        lines = ["<!-- Generated from modules/registry.tsv and modules/*.asn1 by tools/generate.py; do not edit. -->\n",
                 HEAD, "| id | constant | ASN.1 | standard | tag | form | encode code |\n",
                 "|---|---|---|---|---|---|---|\n"]
        lines += [self.page_row(row) for row in self.registry]
        for module in self.modules:
            lines.append(f"\n## quarn_asn1/{module.header}.h\n\n{' '.join(module.head)}\n")
            lines += [self.page_section(definition) for definition in module.definitions]
        return "".join(lines)

    def page_row(self, row):
        tag = f"{'APPLICATION ' if row.tag_class == 'application' else ''}{row.tag}"
        name = standard = ""
        if row.id in self.described:
            definition = self.described[row.id][0]
            name = f"[{definition.name}](#{definition.name.lower()})"
            standard = self.standard(definition)
        return f"| {row.id} | `{row.constant}` | {name} | {standard} | {tag} | {row.form} | `{row.code:#x}` |\n"

    @staticmethod
    def page_section(definition):
        text = "\n\n".join(paragraphs(definition.text))
        functions = ", ".join(f"`{name}`" for name in function_names(definition))
        ids = ", ".join(f"{variant.id}" for variant in definition.variants)
        return (f"\n### {definition.name}\n\n{text}\n\n```asn1\n{source(definition)}\n```\n\n"
                f"Type id {ids}. {functions}\n")

    # ---- cli/gen/catalogue.inc

    def table(self):
        definitions = [definition for module in self.modules for definition in module.definitions]
        numbers = {definition.name: number for number, definition in enumerate(definitions)}
        inner = sorted(row_id for row_id in self.described if row_id >= len(self.registry))
        of = [str(numbers[self.described[row_id][0].name]) if row_id in self.described else "-1"
              for row_id in [*range(len(self.registry)), *inner]]
        return "\n".join(
            [*(components(definition, numbers[definition.name]) for definition in definitions),
             "constexpr Definition kDefinitions[] = {\n" +
             "".join(self.entry(definition, numbers[definition.name]) for definition in definitions) + "};\n",
             "// By type id; behind those of callers, the ids of definitions that are only parts of others.\n"
             "constexpr std::int16_t kDefinitionOf[] = {\n" +
             textwrap.fill(", ".join(of), 99, initial_indent="    ", subsequent_indent="    ") + ",\n};\n"])

    def entry(self, definition, number):
        parts = [definition.name, f"quarn_asn1/{self.module_of[definition.name].header}.h", self.standard(definition),
                 "\n\n".join(paragraphs(definition.text)), source(definition), " ".join(function_names(definition))]
        return "    {" + ",\n     ".join([*map(c_string, parts), f"kComponents{number}"]) + "},\n"


def components(definition, number):
    lines = []
    for component in definition.fields:
        tag = f"[{component.tag[0]}] {component.tag[1].upper()}" if component.tag else ""
        presence = {"mandatory": "", "optional": "OPTIONAL",
                    "default": f"DEFAULT {component.default_text}"}[component.presence]
        row, name = component.row, "" if definition.is_list else component.name
        parts = [c_string(name), str(row.id if row.inner else row.constant), c_string(tag), c_string(presence)]
        lines.append("    {" + ", ".join(parts) + "},\n")
    return f"constexpr Component kComponents{number}[] = {{\n{''.join(lines)}}};\n"


def source(definition):
    return textwrap.dedent("\n".join([*definition.source, *definition.aliases]))


def function_names(definition):
    return [function.name for function in functions_of(definition)]
