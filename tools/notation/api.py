"""Definitions as C functions: their bodies, and the public header of a module."""

import re
import textwrap

from .functions import functions_of
from .layout import WIDTH, call, comment, declaration, paragraphs

CONVENTIONS = [
    "Constructors copy their arguments and return null when a mandatory one is null, one has another SIZE than the "
    "definition says, or memory is short. Getters lend: what they return lives as long as the value. Null for the "
    "value gives null from a getter and 0 from a test. A component with a DEFAULT is always there once a value has "
    "been made or decoded. An end-of-contents is no value for a component that may be of any type: constructors "
    "return null.",
    "A value is decoded, encoded, copied and freed under its type id by the functions of quarn_asn1/core.h; "
    "free functions are there for each type as well. Lists are of the type quarn_asn1_list.",
]


def bodies(module):
    text = []
    for definition in module.definitions:
        functions = [function for function in functions_of(definition) if function.body is not None]
        if functions:
            text.append(f"// {definition.name}\n")
        for function in functions:
            text.append(declaration(f"{function.result}{function.name}(", function.parameters, ") {"))
            text.append(statement(f"  {function.body};"))
            text.append("}")
    return "\n".join(text) + "\n"


def statement(line):
    """A call, perhaps of the result of another."""
    if len(line) <= WIDTH:
        return line
    outer, nested, inner = line.rpartition("(quarn::")
    if nested:
        return f"{outer}(\n" + statement(f"      quarn::{inner}")
    opening, _, arguments = line.partition("(")
    end = re.search(r"\)*;$", arguments)[0]
    return call(opening + "(", arguments.removesuffix(end).split(", "), end)


def header(module, modules):
    guard = f"QUARN_ASN1_{module.header.upper()}_H"
    definitions = in_order(module)
    includes = "".join(f'#include "{name}.h"\n' for name in sorted(["types", *needed(module, modules)]))
    head = comment([*paragraphs(module.head), *CONVENTIONS])
    parts = [f"{head}\n#ifndef {guard}\n#define {guard}\n\n{includes}\n"
             '#ifdef __cplusplus\nextern "C" {\n#endif\n']
    parts += [section(definition) for definition in definitions]
    parts.append("#ifdef __cplusplus\n}\n#endif\n\n#endif\n")
    return "\n".join(parts)


def section(definition):
    described = [*paragraphs(definition.text), source(definition), identity(definition)]
    text = f"/* ---- {definition.name} */\n\n{comment(described)}\n"
    if definition.struct not in ("quarn_asn1_list", "void"):
        owner = definition.owner.struct
        text += f"typedef struct {owner} {definition.struct};\n"
    for function in functions_of(definition):
        # The text of a list, which has no struct, goes before its free function.
        if not text.endswith("*/\n"):
            text += comment(function.text) + "\n"
        text += declaration(f"QUARN_ASN1_API {function.result}{function.name}(", function.parameters, ");") + "\n"
    return text


def source(definition):
    """Its lines, and those that say what the numbers and bits in it are called."""
    lines = [*definition.source, *definition.aliases]
    return ["    " + line for line in textwrap.dedent("\n".join(lines)).splitlines()]


def identity(definition):
    """Under which ids, as what, and freed by what."""
    if definition.is_inner:
        return "It has no type id. Its alternatives: " + ", ".join(
            f"{component.number} {component.name} ({component.row.constant})" for component in definition.fields) + "."
    names = [f"{variant.row.constant} ({variant.id}{application_tag(variant.row)})" for variant in definition.variants]
    text = ("Type ids " if len(names) > 1 else "Type id ") + ", ".join(names) + "."
    if definition.struct == "quarn_asn1_list":
        element = definition.fields[0]
        text += f" A quarn_asn1_list of {element.type.name} ({element.c_type})."
    if definition.owner is not definition:
        text += f" Freed with quarn_{definition.row.stem}_free()."
    return text


def application_tag(row):
    return f", [APPLICATION {row.tag}]" if row.tag_class == "application" else ""


# ---- Order

def structs(definition):
    """The structs that a definition's part of the header names."""
    names = [definition.owner.struct]
    for function in functions_of(definition):
        for text in (function.result, *function.parameters):
            names += re.findall(r"\b(quarn_\w+) \*", text)
    return set(names)


def in_order(module):
    """Each definition after those whose structs it names."""
    makers = {definition.struct: definition for definition in module.definitions
              if definition.struct != "quarn_asn1_list"}
    done, open_ones = [], []

    def place(definition):
        if definition in done:
            return
        if definition in open_ones:
            definition.fail(f"{definition.name} and {open_ones[-1].name} name each other's structs")
        open_ones.append(definition)
        for name in sorted(structs(definition)):
            if name in makers and makers[name] is not definition:
                place(makers[name])
        open_ones.pop()
        done.append(definition)

    for definition in module.definitions:
        place(definition)
    return done


def needed(module, modules):
    """Headers that declare structs of other modules."""
    names = {name for definition in module.definitions for name in structs(definition)}
    return (other.header for other in modules if other is not module and
                  names & {definition.struct for definition in other.definitions} - {"quarn_asn1_list"})
