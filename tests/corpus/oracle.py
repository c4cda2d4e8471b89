"""What the openssl command prints about a file, as fields.

Names come twice: as types and octets of their values, and as the text that openssl makes of them. Of the
extensions openssl prints the text; their octets and the parameters of algorithms are read with the small
reader of der.py. Attribute certificates, which openssl 3.0 cannot print, are what `openssl asn1parse` says.
"""

import base64
import re

from der import Element, openssl

AS_OCTETS = ("-nameopt", "oid,dump_all,dump_der,sep_comma_plus")
AS_TEXT = ("-nameopt", "sep_multiline,oid,show_type,utf8,esc_ctrl")
READERS = {
    "x509pubkeycert": ("x509", "-serial", "-pubkey"),
    "x509crl": ("crl",),
    "pkcs10certreq": ("req", "-pubkey"),
}
KNOWN_NAMES = {}


def joined(lines):
    return " ".join(" ".join(lines).split())


def indentation(line):
    return len(line) - len(line.lstrip())


def block(lines, title):
    """The lines below a title up to the next title that is indented no more. Text may contain line breaks."""
    start = next((i for i, line in enumerate(lines) if line.strip() == title), len(lines))
    end = next((i for i, line in enumerate(lines[start + 1:], start + 1)
                if re.match(r" *[A-Z][^:]*:", line) and indentation(line) <= indentation(lines[start])), len(lines))
    return lines[start + 1:end]


def titled(lines):
    """(title, text) of each entry of a block, whose titles are indented as much as the first."""
    found = []
    for line in lines:
        if indentation(line) == indentation(lines[0]) and re.search(r": (critical)?$", line):
            found.append((line.strip(), []))
        elif found:
            found[-1][1].append(line)
    return [(title, joined(below)) for title, below in found]


def extensions(lines, title):
    """(name as openssl knows it, whether critical, text) of each."""
    return [(head.rpartition(":")[0], head.endswith(": critical"), text) for head, text in titled(block(lines, title))]


def after(lines, start):
    return next((line.strip()[len(start):].strip() for line in lines if line.strip().startswith(start)), None)


def name(text):
    """RDNs, each a list of [type, value in hex]."""
    return [[value.split("=#") for value in rdn.split("+")] for rdn in text.split(",")] if text else []


def texts_of(octets, command, which):
    """The same as [type, type of string, text]; each name is asked for once."""
    if str(octets) not in KNOWN_NAMES:
        found = openssl(*command, "-" + which, *AS_TEXT).decode("utf-8", "replace").split("=", 1)[1]
        rdns = [line.lstrip(" ").split(" + ") for line in found.split("\n") if line.strip()]
        KNOWN_NAMES[str(octets)] = [[re.split("[=:]", value, maxsplit=2) for value in rdn] for rdn in rdns]
    return KNOWN_NAMES[str(octets)]


def signature(lines):
    """Hex of the lines after the last title."""
    digits = []
    for line in reversed(lines):
        if not re.fullmatch(r"\s+([0-9a-f]{2}:?)+", line):
            break
        digits.insert(0, line.strip().replace(":", ""))
    return "".join(digits).upper()


def extension_octets(listed):
    """[OID octets, critical, value] in hex of each element of Extensions."""
    found = []
    for extension in listed.parts():
        kind, *critical, value = extension.parts()
        found.append([kind.content.hex().upper(), bool(critical), value.content.hex().upper()])
    return found


def certificate(lines, body):
    tagged = {part.identifier: part for part in body if part.identifier in (0xA3, 0x81, 0x82)}
    exts = extension_octets(tagged[0xA3].parts()[0]) if 0xA3 in tagged else []
    return {"serial": int(after(lines, "serial="), 16),
            "notBefore": after(lines, "Not Before:"), "notAfter": after(lines, "Not After :"),
            "issuerUniqueID": (after(lines, "Issuer Unique ID:") or "").replace(":", "").upper(),
            "subjectUniqueID": (after(lines, "Subject Unique ID:") or "").replace(":", "").upper(),
            "extensionOctets": exts, "extensions": extensions(lines, "X509v3 extensions:")}


def crl(lines, body):
    end = next((i for i, line in enumerate(lines) if line.startswith(("Revoked Cert", "No Revoked"))), len(lines))
    lines = lines[:next(i for i, line in enumerate(lines[end:], end) if line.startswith("    Signature Algorithm:"))]
    entries = []
    for line in lines[end:]:
        if line.startswith("    Serial Number:"):
            entries.append({"serial": int(line.split()[-1], 16), "lines": []})
        elif line.startswith("        ") and entries:
            entries[-1]["lines"].append(line)
    for found in entries:
        found["date"] = after(found["lines"], "Revocation Date:")
        found["extensions"] = extensions(found.pop("lines"), "CRL entry extensions:")
    listed = [part.parts()[0] for part in body if part.identifier == 0xA0]
    next_update = after(lines, "Next Update:")
    return {"thisUpdate": after(lines, "Last Update:"), "nextUpdate": None if next_update == "NONE" else next_update,
            "entries": entries, "extensionOctets": extension_octets(listed[0]) if listed else [],
            "extensions": extensions(lines[:end], "CRL extensions:")}


def request(lines, body):
    found = block(lines, "Attributes:")
    attributes = [line.strip() for line in found if re.match(r" {12}\S.*:.+", line)]
    values = [[kind.content.hex().upper(), [value.octets.hex().upper() for value in held.parts()]]
              for kind, held in (attribute.parts() for attribute in body[3].parts())]
    return {"attributes": attributes, "attributeOctets": values,
            "extensions": extensions(lines, "Requested Extensions:")}


def asn1parse(path):
    """[depth, whether constructed, content in hex] of every element."""
    octets = path.read_bytes()
    pattern = re.compile(r" *(\d+):d=(\d+) +hl=(\d+) +l= *(\d+) +(cons|prim): ([^:]+?) *(?::.*)?")
    found = []
    for line in openssl("asn1parse", "-inform", "DER", "-in", path).decode("utf-8", "replace").splitlines():
        if match := pattern.fullmatch(line):
            at, depth, head, size = map(int, match.groups()[:4])
            content = octets[at + head:at + head + size].hex().upper() if match[5] == "prim" else ""
            found.append((int(depth), match[5], content))
    return found


def facts(path):
    kind = path.parent.name
    if kind == "attributecertificate":
        return {"elements": asn1parse(path)}
    command, *wanted = READERS[kind]
    first = (command, "-inform", "DER", "-in", path, "-noout")
    text = openssl(*first, "-text", *wanted, *AS_OCTETS).decode("utf-8", "replace")
    lines = text.replace("\\\n", "").split("\n")
    outer = Element(path.read_bytes()).parts()
    at = next(i for i, line in enumerate(lines) if line.endswith(" Signature Value:") or "Signature Value:" in line)
    version = re.search(r"Version:? \d+ \(0x(\d+)\)", "\n".join(lines))
    found = {"version": int(version[1], 16), "algorithm": after(lines[at - 1:], "Signature Algorithm:"),
             "algorithmOctets": outer[1].octets.hex().upper(), "signature": None}
    ends = next((i for i, line in enumerate(lines[at:], at) if line.startswith(("serial=", "-----"))), len(lines))
    found["signature"] = signature([line for line in lines[at:ends] if line])
    if found["algorithm"].lower().startswith("dsa"):  # its two numbers are printed apart
        found["signature"] = outer[2].content[1:].hex().upper()
    if command != "req":
        found["issuer"] = name(after(lines, "Issuer:"))
    if command != "crl":
        found["subject"] = name(after(lines, "Subject:"))
    found["texts"] = {key: texts_of(found[key], first, key) for key in ("issuer", "subject") if key in found}
    if "-pubkey" in wanted:
        whole = "".join(lines)
        found["key"] = base64.b64decode(whole[whole.index("KEY-----") + 8:whole.index("-----END")]).hex().upper()
    read = {"x509": certificate, "crl": crl, "req": request}[command]
    return found | read(lines, outer[0].parts())
