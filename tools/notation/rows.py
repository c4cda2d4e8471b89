"""Definitions as rows for the engine, and the registry's reference to them. core/schema.h has the words."""

from .layout import WIDTH, call

FORMS = {"primitive": "primitive_form()", "exact": "exact_form()", "inside": "told_inside()"}
CODECS = {"record": "kRecordCodec", "list": "kListCodec", "choice": "kChoiceCodec"}
# Of types that are read and written as elements of any type.
INFERRED = {"record": "kListCodec", "choice": "kElementCodec"}


def schema_of(definition, variant):
    """The constant that a row of the registry refers to. Rows that are checked differently have their own."""
    check = variant.notes.get("check")
    for other in definition.variants:
        if other.notes.get("check") == check:
            return definition.constant + ("" if other is definition.variants[0] else str(other.id)) + "Schema"
    raise AssertionError("a variant is one of its definition's")


def codec_of(definition, variant):
    """A codec of its own is that of one row; its other rows have the ordinary one."""
    inferred = "layout" in definition.notes
    return variant.notes.get("codec") or (INFERRED if inferred else CODECS)[definition.kind]


def registry_reference(definition, variant):
    return f"&{codec_of(definition, variant)}, &{schema_of(definition, variant)}"


def field(definition, component):
    notes = [f'"{component.name}"', component.row.constant]
    if component.tag is not None:
        notes.append(f"{component.tag[1]}_tag({component.tag[0]})")
    if "when" in component.notes:
        notes.append(f"selected_by({component.notes['when']})")
    elif component.presence == "optional":
        notes.append("content()" if "content" in component.notes else "optional()")
    elif isinstance(component.default, bytes):
        notes.append(f"default_encoding({default_constant(definition, component)})")
    elif component.presence == "default":
        notes.append(f"defaults_to({str(component.default).lower()})")
    if component.size is not None:
        notes.append(f"{'at_least_octets' if component.size[1] else 'octets'}({component.size[0]})")
    if "written" in component.notes:
        notes.append(f"written_tag({component.notes['written']})")
    if "form" in component.notes:
        notes.append(FORMS[component.notes["form"]])
    return call("    field(", notes, "),") + "\n"


def default_constant(definition, component):
    name = component.name.replace("-", "")
    return f"{definition.constant}{name[0].upper()}{name[1:]}Default"


def defaults(definition):
    lines = ""
    for component in definition.fields:
        if isinstance(component.default, bytes):
            octets = ", ".join(f"{octet:#04x}" for octet in component.default)
            lines += f"constexpr std::uint8_t {default_constant(definition, component)}[] = {{{octets}}};\n"
    return lines


def schema(definition, variant, unit, array):
    notes = definition.notes
    word = "open_tail" if "tail" in notes else "string_choice" if definition.is_strings else definition.kind
    arguments = [f'"{definition.name}"', unit, array]
    if definition.at_least:
        arguments.append("at_least(1)")
    if definition.first:
        arguments.append(f"numbered_from({definition.first})")
    if definition.by_tag:
        arguments.append("numbered_by_tag()")
    if "keep" in notes:
        arguments.append(f"keep_{notes['keep'].replace('alone', '_alone')}()")
    if "check" in variant.notes:
        arguments.append(f"restricted_by({variant.notes['check']})")
    name = schema_of(definition, variant)
    if "layout" not in notes:
        return constant(f"Schema {name}", word, arguments)
    layout = f"{definition.constant}Layout"
    row = definition.row
    form = "-1" if definition.kind == "choice" else "0"
    return (constant(f"Schema {layout}Schema", word, arguments) +
            call(f"constexpr Type {layout}{{", [f'"{row.name}"', f"&{CODECS[definition.kind]}", f"&{layout}Schema",
                                               str(row.tag), f"{row.code:#x}", "kUniversal", form], "};") + "\n" +
            constant(f"Schema {name}", "inferred", [f'"{definition.name}"', unit, layout]))


def constant(name, word, arguments):
    opening = f"constexpr {name} ="
    line = f"{opening} {word}({', '.join(arguments)});"
    return (line if len(line) <= WIDTH else f"{opening}\n" + call(f"    {word}(", arguments, ");")) + "\n"


def rows(module):
    unit = f"k{module.family}Unit"
    blocks = [f'constexpr Unit {unit}{{"{module.unit}"}};\n']
    for definition in module.definitions:
        array = definition.constant + {"record": "Fields", "list": "Element", "choice": "Alternatives"}[definition.kind]
        text = defaults(definition)
        text += f"constexpr Field {array}[] = {{\n"
        text += "".join(field(definition, component) for component in definition.fields) + "};\n"
        made = []
        for variant in definition.variants:
            if schema_of(definition, variant) not in made:
                made.append(schema_of(definition, variant))
                text += schema(definition, variant, unit, array)
        blocks.append(text)
    return "\n".join(blocks)


def own(modules):
    """What the notation takes from the modules' sources, codecs and checks, and what it gives them: ids."""
    codecs, checks, ids = set(), set(), ""
    for module in modules:
        for definition in module.definitions:
            codecs |= {variant.notes["codec"] for variant in definition.variants if "codec" in variant.notes}
            checks |= {variant.notes["check"] for variant in definition.variants if "check" in variant.notes}
            if definition.is_inner:
                row = definition.row
                ids += f"constexpr auto {row.constant} = static_cast<quarn_asn1_type_id>({row.id});\n"
    return ids + "".join([f"extern const Codec {name};\n" for name in sorted(codecs)] +
                   [f"extern const Restriction {name};\n" for name in sorted(checks)])
