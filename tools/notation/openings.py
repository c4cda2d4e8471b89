"""Tables for people: what object identifiers tell about the octets beside them, what numbers and bits are called."""

from .layout import c_string
from .parser import PLACES


def tables(modules):
    definitions = [definition for module in modules for definition in module.definitions]
    return "\n".join([place_names(), open_records(definitions), objects(modules), data(definitions),
                      named(definitions)])


LONG_NAMES = {"private": "private key", "othername": "other name", "wantback": "want back"}


def place_name(place):
    return LONG_NAMES.get(place, place)


def place_constant(place):
    return "Place::" + place_name(place).replace(" ", "_")


def place_names():
    """In the order of Place, which is that of the alphabet."""
    lines = [f"    {c_string(place_name(place))},\n" for place in PLACES.split("|")]
    return ("constexpr const char *kPlaceNames[] = {\n" + "".join(lines) + "};\n" +
            f"static_assert({place_constant(PLACES.rpartition('|')[2])} == Place{{std::size(kPlaceNames) - 1}});\n")


def array(name, kind, lines):
    return f"constexpr {kind} {name}[] = {{\n" + "".join(f"    {{{line}}},\n" for line in lines) + "};\n"


def open_records(definitions):
    """Records with a component whose type another component tells, by id."""
    rows = {}
    for definition in definitions:
        for index, component in enumerate(definition.fields):
            if "open" not in component.notes:
                continue
            for variant in definition.variants:
                place = variant.notes.get("open", component.notes["open"])
                elements = str(" OF " in component.type.name).lower()
                rows[variant.id] = f"{variant.row.constant}, {index}, {place_constant(place)}, {elements}"
    return array("kRecords", "OpenRecord", [rows[number] for number in sorted(rows)])


def objects(modules):
    """In the order of places and identifiers as strings, for a binary search."""
    rows = []
    for module in modules:
        for one in module.objects:
            opening = f"{{{one.row.constant}, {str(one.contained).lower()}, {names(one.type)}}}"
            rows.append((one.place, one.dotted, f"{place_constant(one.place)}, {c_string(one.dotted)}, {opening}"))
    return array("kOpenings", "PlacedOpening", [text for _, _, text in sorted(rows)])


def data(definitions):
    """What messages of the type data contain where they are components."""
    return array("kData", "DataComponent",
                 [f"{variant.row.constant}, {c_string(component.name)}, {{{component.data.constant}, true, nullptr}}"
                  for definition in definitions for variant in definition.variants
                  for component in definition.fields if component.data])


def named(definitions):
    rows = []
    for definition in definitions:
        for component in definition.fields:
            if component.type.names:
                rows += [f"{variant.row.constant}, {c_string(component.name)}, {names(component.type)}"
                         for variant in definition.variants]
    return array("kNamed", "NamedComponent", rows)


def names(type_name):
    """From number 0 on, separated by commas."""
    if not type_name.names:
        return "nullptr"
    return c_string(",".join(type_name.names.get(number, "") for number in range(max(type_name.names) + 1)))
