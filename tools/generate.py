#!/usr/bin/env python3
"""Makes the files that are data in another form: headers, tables and documentation pages.

    tools/generate.py           writes the files
    tools/generate.py --check   writes nothing; exits 1 and names each file that is not up to date

Sources are modules/*.asn1, modules/registry.tsv, core/messages.tsv, cli/oids.tsv and, for the codes of the support
library, include/quarn_util.h. Only Python's standard library is used, and a build does not need this program: its
outputs are checked in.
"""

import functools
import pathlib
import re
import sys

from notation import api, catalogue, functions, model, openings, parser, resolve, rows, samples
from notation.layout import c_string

ROOT = pathlib.Path(__file__).resolve().parent.parent
FORM_NUMBERS = {"primitive": 1, "constructed": 0, "either": -1}


def rows_of(path):
    """The rows of a tab-separated file; lines that start with # are its documentation."""
    for line in (ROOT / path).read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            yield line.split("\t")


@functools.cache
def registry():
    made = []
    for number, fields in enumerate(rows_of("modules/registry.tsv")):
        type_id, name, stem, tag, tag_class, form, code, codec = fields
        if int(type_id) != number:
            raise SystemExit(f"modules/registry.tsv: row {number} has id {type_id}")
        made.append(model.Row(number, name, stem, int(tag), tag_class, form, int(code, 16), codec))
    return made


@functools.cache
def modules():
    paths = sorted((ROOT / "modules").glob("*.asn1"))
    parsed = [parser.parse(str(path.relative_to(ROOT)), path.read_text(encoding="utf-8")) for path in paths]
    resolved = resolve.Resolver(registry(), parsed).resolve()
    functions.check_names(resolved)
    return resolved


def described():
    """The definition and its variant of each row that has a notation, by id."""
    return {variant.id: (definition, variant) for module in modules() for definition in module.definitions
            for variant in definition.variants}


def messages():
    for number, (code, message, name, use) in enumerate(rows_of("core/messages.tsv")):
        if int(code, 16) != 0x10200 + number:
            raise SystemExit(f"core/messages.tsv: {code} is out of order")
        yield int(code, 16), message, name, use


def made_from(source, opening="//", closing=""):
    return f"{opening} Generated from {source} by tools/generate.py; do not edit.{closing}\n"


def ids_header():
    lines = [made_from("modules/registry.tsv", "/*", " */")]
    lines.append("""/** Type ids: the numbers by which callers name ASN.1 types. They never change. */
#ifndef QUARN_ASN1_IDS_H
#define QUARN_ASN1_IDS_H

#ifdef __cplusplus
extern "C" {
#endif

enum quarn_asn1_type_id {
""")
    for row in registry():
        lines.append(f"  {row.constant} = {row.id},\n")
    lines.append(f"  QUARN_ASN1_TYPE_COUNT = {len(registry())} /**< ids are 0 to one less than this */\n")
    lines.append("""};

#ifdef __cplusplus
}
#endif

#endif
""")
    return "".join(lines)


def errors_header():
    lines = [made_from("core/messages.tsv", "/*", " */")]
    lines.append("""/**
 * Error codes that are not tied to one type. The codes of a type are those of its registry row: see
 * quarn_asn1_type_describe(). quarn_igetASN1Error() has the message of every code; several messages
 * name another stage than the one that records them, so tell failures apart by their code.
 */
#ifndef QUARN_ASN1_ERRORS_H
#define QUARN_ASN1_ERRORS_H

#ifdef __cplusplus
extern "C" {
#endif

enum quarn_asn1_error {
""")
    named = [(code, name, use) for code, _, name, use in messages() if name != "-"]
    for code, name, use in named:
        end = "" if code == named[-1][0] else ","
        lines.append(f"  QUARN_ASN1_ERROR_{name} = {code:#x}{end} /**< {use} */\n")
    lines.append("""};

#ifdef __cplusplus
}
#endif

#endif
""")
    return "".join(lines)


def messages_table():
    body = "".join(f"    {c_string(message)},\n" for _, message, _, _ in messages())
    return made_from("core/messages.tsv") + "constexpr const char *kMessages[] = {\n" + body + "};\n"


def codec_reference(row):
    """The constants of a row's codec and of the schema that it goes by."""
    if row.id in described():
        return rows.registry_reference(*described()[row.id])
    if row.codec == "-":
        raise SystemExit(f"modules/registry.tsv: no definition is of row {row.id}, {row.name}")
    return "&k" + "".join(part.capitalize() for part in row.codec.split("_")) + "Codec, nullptr"


def registry_table():
    lines = [made_from("modules/registry.tsv and modules/*.asn1"), "constexpr Type kTypes[] = {\n"]
    inner = [variant.row for _, variant in described().values() if variant.row.inner]
    for row in [*registry(), *sorted(inner, key=lambda row: row.id)]:
        wire = row.id in described() and "wire" in described()[row.id][0].notes
        tag, form = (16, "constructed") if wire else (row.tag, row.form)
        parts = [c_string(row.name), codec_reference(row), str(tag), f"{row.code:#x}",
                 f"{model.CLASS_BITS[row.tag_class]:#x}", str(FORM_NUMBERS[form]), *(["true"] if wire else [])]
        lines.append("    {" + ", ".join(parts) + f"}},  // {row.id}\n")
    return "".join(lines) + "};\n"


@functools.cache
def described_types():
    return catalogue.Catalogue(registry(), modules(), described())


def errors_page():
    lines = ["<!-- Generated from core/messages.tsv by tools/generate.py; do not edit. -->\n",
             "# Error codes\n\n"
             "Codes and messages of the ASN.1 library. Tell failures apart by code: several messages name\n"
             "another stage than the one that records them, and callers rely on them as they are.\n\n",
             "| code | message | reports |\n|---|---|---|\n"]
    for code, message, _, use in messages():
        lines.append(f"| `{code:#x}` | {message} | {'' if use == '-' else use} |\n")
    return "".join(lines)


def oid_names():
    """In the order of the strings, for a binary search."""
    names = sorted(line if len(line) == 3 else [*line, ""] for line in rows_of("cli/oids.tsv"))
    body = "".join("    {" + ", ".join(c_string(text) for text in name) + "},\n" for name in names)
    return made_from("cli/oids.tsv") + "constexpr OidName kOidNames[] = {\n" + body + "};\n"


def support_codes():
    """Code, name and use of the codes of the support library, from the enumerators' comments."""
    header = re.sub(r"\s+", " ", (ROOT / "include/quarn_util.h").read_text(encoding="utf-8"))
    for name, code, use in re.findall(r"(QUARN_(?:STREAM_)?ERROR_\w+) = (0x\w+),? /\*\*< (.*?) \*/", header):
        yield int(code, 16), name, use


def error_uses():
    uses = list(support_codes())
    uses += [(code, f"QUARN_ASN1_ERROR_{name}", use) for code, _, name, use in messages() if name != "-"]
    body = "".join(f"    {{{code:#x}, {c_string(name)}, {c_string(use)}}},\n" for code, name, use in uses)
    return (made_from("core/messages.tsv and include/quarn_util.h") +
            "constexpr CodeUse kCodeUses[] = {\n" + body + "};\n")


def module_outputs():
    for module in modules():
        name = f"modules/gen/ASN1_{module.family}"
        yield f"{name}.inc", made_from(module.path) + rows.rows(module)
        yield f"{name}_api.inc", made_from(module.path) + api.bodies(module)
        yield (f"include/quarn_asn1/{module.header}.h",
               made_from(module.path, "/*", " */") + api.header(module, modules()))
    yield "modules/gen/own.inc", made_from("modules/*.asn1") + rows.own(modules())


def outputs():
    yield from module_outputs()
    yield "include/quarn_asn1/ids.h", ids_header()
    yield "include/quarn_asn1/errors.h", errors_header()
    yield "core/gen/messages.inc", messages_table()
    yield "modules/gen/registry.inc", registry_table()
    yield "cli/gen/oid_names.inc", oid_names()
    yield "cli/gen/error_uses.inc", error_uses()
    yield "cli/gen/openings.inc", made_from("modules/*.asn1") + openings.tables(modules())
    yield "cli/gen/catalogue.inc", made_from("modules/registry.tsv and modules/*.asn1") + described_types().table()
    yield "docs/types.md", described_types().page()
    yield "tests/vectors/gen/samples.vec", (made_from("modules/*.asn1", "#") + samples.vectors(registry(), described()))
    yield "docs/errors.md", errors_page()


def left_over(paths):
    """Generated files of modules that are there no more."""
    for path in [*(ROOT / "modules/gen").glob("*"), *(ROOT / "include/quarn_asn1").glob("*.h")]:
        name = str(path.relative_to(ROOT))
        if name not in paths and "Generated from" in path.read_text(encoding="utf-8").partition("\n")[0]:
            yield name


def main(arguments):
    if arguments not in ([], ["--check"]):
        raise SystemExit(__doc__)
    try:
        made = list(outputs())
    except model.NotationError as error:
        raise SystemExit(f"{error}")
    stale = 0
    for path in left_over({path for path, _ in made}):
        print(f"{path} has no source; delete it", file=sys.stderr)
        stale = 1
    for path, text in made:
        target = ROOT / path
        if target.exists() and target.read_text(encoding="utf-8") == text:
            continue
        if arguments:
            print(f"{path} is not up to date; run tools/generate.py", file=sys.stderr)
            stale = 1
        else:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_text(text, encoding="utf-8")
    return stale


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
