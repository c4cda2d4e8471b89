#!/usr/bin/env python3
"""Makes the files that are data in another form: headers, tables and documentation pages.

    tools/generate.py           writes the files
    tools/generate.py --check   writes nothing; exits 1 and names each file that is not up to date

Sources are modules/registry.tsv, core/messages.tsv and cli/oids.tsv. Only Python's standard library is used, and a
build does not need this program: its outputs are checked in.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CLASS_BITS = {"universal": 0x00, "application": 0x40}
FORM_NUMBERS = {"primitive": 1, "constructed": 0, "either": -1}


def rows_of(path):
    """The rows of a tab-separated file; lines that start with # are its documentation."""
    for line in (ROOT / path).read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            yield line.split("\t")


def registry():
    for number, fields in enumerate(rows_of("modules/registry.tsv")):
        type_id, name, stem, tag, tag_class, form, code, codec = fields
        if int(type_id) != number:
            raise SystemExit(f"modules/registry.tsv: row {number} has id {type_id}")
        yield number, name, stem, int(tag), tag_class, form, int(code, 16), codec


def messages():
    for number, (code, message, name, use) in enumerate(rows_of("core/messages.tsv")):
        if int(code, 16) != 0x10200 + number:
            raise SystemExit(f"core/messages.tsv: {code} is out of order")
        yield int(code, 16), message, name, use


def made_from(source, opening="//", closing=""):
    return f"{opening} Generated from {source} by tools/generate.py; do not edit.{closing}\n"


def c_string(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


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
    for number, name, *_ in registry():
        lines.append(f"  QUARN_ASN1_{name.upper()} = {number},\n")
    lines.append("""  QUARN_ASN1_TYPE_COUNT = 420 /**< ids are 0 to one less than this */
};

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


def codec_constants(codec):
    """The constants of a codec and of the schema it goes by: record:Validity."""
    name, _, schema = codec.partition(":")
    constant = "k" + "".join(part.capitalize() for part in name.split("_")) + "Codec"
    return f"&{constant}, " + (f"&k{schema}" if schema else "nullptr")


def registry_table():
    lines = [made_from("modules/registry.tsv"), "constexpr Type kTypes[] = {\n"]
    for number, name, _, tag, tag_class, form, code, codec in registry():
        parts = [c_string(name), codec_constants(codec), str(tag), f"{code:#x}",
                 f"{CLASS_BITS[tag_class]:#x}", str(FORM_NUMBERS[form])]
        lines.append("    {" + ", ".join(parts) + f"}},  // {number}\n")
    return "".join(lines) + "};\n"


def types_page():
    lines = ["<!-- Generated from modules/registry.tsv by tools/generate.py; do not edit. -->\n",
             "# Types\n\nEvery ASN.1 type that the library names, by its id. A tag of its own is written only where\n"
             "the row has one; CHOICEs and open types have none. The decode code is the encode code plus one.\n\n",
             "| id | constant | tag | form | encode code | in this version |\n|---|---|---|---|---|---|\n"]
    for number, name, _, tag, tag_class, form, code, codec in registry():
        tag_text = f"{'APPLICATION ' if tag_class == 'application' else ''}{tag}"
        state = "no" if codec == "unsupported" else "yes"
        lines.append(f"| {number} | `QUARN_ASN1_{name.upper()}` | {tag_text} | {form} | `{code:#x}` | {state} |\n")
    return "".join(lines)


def errors_page():
    lines = ["<!-- Generated from core/messages.tsv by tools/generate.py; do not edit. -->\n",
             "# Error codes\n\nCodes and messages of the ASN.1 library. Tell failures apart by code: several messages name\n"
             "another stage than the one that records them, and callers rely on them as they are.\n\n",
             "| code | message | reports |\n|---|---|---|\n"]
    for code, message, _, use in messages():
        lines.append(f"| `{code:#x}` | {message} | {'' if use == '-' else use} |\n")
    return "".join(lines)


def oid_names():
    """In the order of the strings, for a binary search."""
    rows = sorted(line if len(line) == 3 else [*line, ""] for line in rows_of("cli/oids.tsv"))
    body = "".join("    {" + ", ".join(c_string(text) for text in row) + "},\n" for row in rows)
    return made_from("cli/oids.tsv") + "constexpr OidName kOidNames[] = {\n" + body + "};\n"


def support_codes():
    """Code, name and use of the codes of the support library, from the enumerators' comments."""
    header = re.sub(r"\s+", " ", (ROOT / "include/quarn_util.h").read_text(encoding="utf-8"))
    for name, code, use in re.findall(r"(QUARN_(?:STREAM_)?ERROR_\w+) = (0x\w+),? /\*\*< (.*?) \*/", header):
        yield int(code, 16), name, use


def error_uses():
    rows = list(support_codes())
    rows += [(code, f"QUARN_ASN1_ERROR_{name}", use) for code, _, name, use in messages() if name != "-"]
    body = "".join(f"    {{{code:#x}, {c_string(name)}, {c_string(use)}}},\n" for code, name, use in rows)
    return (made_from("core/messages.tsv and include/quarn_util.h") +
            "constexpr CodeUse kCodeUses[] = {\n" + body + "};\n")


def outputs():
    yield "include/quarn_asn1/ids.h", ids_header()
    yield "include/quarn_asn1/errors.h", errors_header()
    yield "core/gen/messages.inc", messages_table()
    yield "modules/gen/registry.inc", registry_table()
    yield "cli/gen/oid_names.inc", oid_names()
    yield "cli/gen/error_uses.inc", error_uses()
    yield "docs/types.md", types_page()
    yield "docs/errors.md", errors_page()


def main(arguments):
    if arguments not in ([], ["--check"]):
        raise SystemExit(__doc__)
    stale = 0
    for path, text in outputs():
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
