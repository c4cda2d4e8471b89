"""The functions of a definition: constructors, getters, and the functions written by hand that it exports."""

import dataclasses
import re

from .layout import paragraphs

KEYWORDS = set(
    "alignas alignof and asm auto bool break case catch char class compl concept const consteval constexpr constinit "
    "continue decltype default delete do double else enum explicit export extern false float for friend goto if "
    "inline int long mutable namespace new noexcept not nullptr operator or private protected public register "
    "requires restrict return short signed sizeof static struct switch template this throw true try typedef typeid "
    "typename union unsigned using virtual void volatile while xor".split())


@dataclasses.dataclass
class Function:
    result: str  # with the blank or star that the name follows
    name: str
    parameters: list
    text: list  # paragraphs of documentation
    body: str = None  # one statement; None when it is written by hand
    line: int = 0


def parameter_name(component):
    """dNSName is dns_name, notBefore is not_before."""
    name = component.name.replace("-", "_")
    name = re.sub(r"^([a-z])(?=[A-Z])", lambda match: match[1].upper(), name)
    name = re.sub(r"(?<=[a-z0-9])(?=[A-Z])|(?<=[A-Z])(?=[A-Z][a-z])", "_", name).lower()
    return name + "_" if name in KEYWORDS else name


def pointer(c_type):
    return f"{c_type} *"


def functions_of(definition):
    made = [free_function(definition, variant) for variant in definition.variants]
    made = [function for function in made if function is not None]
    for variant in definition.variants:
        if variant.prefix and variant.notes.get("accessors") != "own":
            made += accessors(definition, variant)
    if definition.notes.get("keep") in ("body", "bodyalone"):
        made.append(body_octets(definition))
    return made + [exported(definition, export) for export in definition.exports]


def free_function(definition, variant):
    """There is one for each stem: that of the first row that has it."""
    if definition.is_inner or definition.owner is not definition or variant.row.stem in [
            other.row.stem for other in definition.variants[:definition.variants.index(variant)]]:
        return None
    return Function("void ", f"quarn_{variant.row.stem}_free", [f"{definition.struct} *value"],
                    [f"As quarn_asn1_value_free() under {variant.row.constant}."],
                    f"quarn_asn1_value_free({variant.row.constant}, value)", variant.line)


def accessors(definition, variant):
    own = variant.notes.get("new") in ("none", "own")
    if definition.is_list:
        return []
    if definition.kind == "record":
        return ([] if own else [record_constructor(definition, variant)]) + record_getters(definition, variant)
    if definition.is_strings:
        return ([] if own else [string_constructor(definition, variant)]) + string_getters(definition, variant)
    return choice_type(definition, variant) + [
        function for component in definition.fields for function in alternative(definition, variant, component, own)]


# ---- Records

def record_constructor(definition, variant):
    names = [parameter_name(component) for component in definition.fields]
    parameters = [f"const {component.c_type} *{name}" for component, name in zip(definition.fields, names)]
    absent = [name for component, name in zip(definition.fields, names) if component.presence == "optional"]
    defaults = [name + ("" if isinstance(component.default, bytes) else f" ({component.default_text})")
                for component, name in zip(definition.fields, names) if component.presence == "default"]
    nulls = [f"leaves out {enumeration(absent)}"] if absent else []
    nulls += [f"stands for the default of {enumeration(defaults)}"] if defaults else []
    text = "From its components." + (f" Null {', and '.join(nulls)}." if nulls else "")
    call = f"quarn::asn1::build<{definition.struct}>({', '.join([variant.row.constant, *names])})"
    return Function(pointer(definition.struct), f"quarn_{variant.prefix}_new", parameters, [text], f"return {call}",
                    variant.line)


def record_getters(definition, variant):
    made = []
    value = [f"const {definition.struct} *value"]
    inferred = "layout" in definition.notes
    holder = "quarn::asn1::inferred_layout(value)" if inferred else "value"
    for index, component in enumerate(definition.fields):
        arguments = f"({holder}, {index})"
        has = component.notes.get("has", component.part)
        if component.record is not None:
            made += getters_through(definition, variant, component, index)
        if has is not None and (component.presence == "optional" or "has" in component.notes):
            made.append(Function("int ", f"quarn_{variant.prefix}_has{has}", value,
                                 [f"1 when {component.name} is there."],
                                 f"return quarn::asn1::has_part{arguments}", component.line))
        if component.part is not None:
            text = {"optional": f"{component.name}, null when it is absent.",
                    "default": f"{component.name}, {component.default_text} when the encoding has none.",
                    "mandatory": f"{component.name}."}[component.presence]
            if inferred:
                text = f"{component.name}, null also when the elements are laid out otherwise."
            made.append(Function(pointer(component.c_type), f"quarn_{variant.prefix}_get{component.part}", value,
                                 [text], f"return quarn::asn1::part<{component.c_type}>{arguments}", component.line))
    return made


def getters_through(definition, variant, component, index):
    """The getters of a component, for the value that it is in."""
    inner = f"quarn_{component.record.variants[0].prefix}_"
    part = f"quarn::asn1::part<{component.c_type}>(value, {index})"
    return [dataclasses.replace(getter, name=f"quarn_{variant.prefix}_" + getter.name.removeprefix(inner),
                                parameters=[f"const {definition.struct} *value"],
                                body=f"return {getter.name}({part})", line=component.line)
            for getter in record_getters(component.record, component.record.variants[0])]


def body_octets(definition):
    row = definition.row
    return Function("int ", f"quarn_{definition.variants[0].prefix}_gettbsocts",
                    [f"{definition.struct} *value", "uint8_t *buffer", "uint64_t *length"],
                    [f"The octets of {definition.fields[0].name} that were, or are to be, signed. length says how much "
                     "room buffer has and receives how many octets there are; a null buffer asks for no more. "
                     "0 when the room is too small, length is null, or the value cannot be encoded."],
                    f"return quarn::asn1::body_octets({row.constant}, value, buffer, length)",
                    definition.line)


# ---- CHOICEs

def choice_type(definition, variant):
    numbers = ", ".join(f"{component.number} {component.name}" for component in definition.fields)
    return [Function("uint32_t ", f"quarn_{variant.prefix}_gettype", [f"const {definition.struct} *value"],
                     [f"Number of the alternative: {numbers}; all ones for null"
                      + (", and for another element." if "layout" in definition.notes else ".")],
                     f"return quarn::asn1::choice_number({variant.row.constant}, value)", definition.line)]


def alternative(definition, variant, component, own):
    made = []
    part = component.part
    new = component.notes.get("new", part)
    name = parameter_name(component)
    is_null = component.type.name == "NULL"
    if not own and new is not None and new != "none":
        arguments = [variant.row.constant, str(component.number), *([] if is_null else [name])]
        made.append(Function(pointer(definition.struct), f"quarn_{variant.prefix}_new{new}",
                             ["void"] if is_null else [f"const {component.c_type} *{name}"],
                             [f"The alternative {component.name}."],
                             f"return quarn::asn1::build_choice<{definition.struct}>({', '.join(arguments)})",
                             component.line))
    if part is not None and not is_null:
        arguments = f"({variant.row.constant}, value, {component.number})"
        made.append(Function(pointer(component.c_type), f"quarn_{variant.prefix}_get{part}",
                             [f"const {definition.struct} *value"],
                             [f"{component.name}, null when it is another alternative."],
                             f"return quarn::asn1::choice_part<{component.c_type}>{arguments}", component.line))
    return made


def string_constructor(definition, variant):
    tags = ", ".join(f"{component.row.tag} {component.type.name}" for component in definition.fields)
    return Function(pointer(definition.struct), f"quarn_{variant.prefix}_new",
                    ["uint64_t tag", "const quarn_asn1_octetstring *string"],
                    [f"A string under one of the tags {tags}; another tag gives null."],
                    f"return quarn::asn1::build_choice<{definition.struct}>({variant.row.constant}, tag, string)",
                    variant.line)


def string_getters(definition, variant):
    value = [f"const {definition.struct} *value"]
    return [Function("uint64_t ", f"quarn_{variant.prefix}_gettype", value,
                     ["The universal tag of the string; 0 for null."],
                     f"return quarn::asn1::string_tag({variant.row.constant}, value)", variant.line),
            Function("quarn_asn1_octetstring *", f"quarn_{variant.prefix}_getstring", value, ["Its content."],
                     "return quarn::asn1::string_part(value)", variant.line)]


# ---- Functions written by hand

def exported(definition, export):
    result, name, parameters = re.fullmatch(r"(.*?)(quarn_\w+)\s*\((.*)\)", export.prototype).groups()
    return Function(re.sub(r"\s*\*\s*$", " *", result), name, [part.strip() for part in parameters.split(",")],
                    paragraphs(export.text), None, export.line)


def enumeration(words):
    return words[0] if len(words) == 1 else ", ".join(words[:-1]) + " and " + words[-1]


def check_names(modules):
    """No two functions have the same name."""
    places = {}
    for module in modules:
        for definition in module.definitions:
            for function in functions_of(definition):
                if function.name in places:
                    definition.fail(f"{function.name} is made twice; first for {places[function.name]}", function.line)
                places[function.name] = f"{definition.path}:{function.line}"
