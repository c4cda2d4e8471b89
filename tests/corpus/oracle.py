"""What the openssl command prints about files, as fields.

openssl prints the text of everything but attribute certificates, and `openssl asn1parse` the contents of all
elements; the octets of names, keys and parameters are read with the small reader of der.py. All certificates are
printed by one process, and each name once: starting openssl is what costs.
"""

import base64
import re

from der import Element, openssl

AS_TEXT = ("-nameopt", "sep_multiline,oid,show_type,utf8,esc_ctrl")
COMMANDS = {"x509pubkeycert": "x509", "x509crl": "crl", "pkcs10certreq": "req"}
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


def name(element):
    """RDNs, each a list of [type, value] in hex."""
    return [[[part.octets.hex().upper() for part in value.parts()] for value in rdn.parts()] for rdn in element.parts()]


def texts_of(octets, path, which):
    """A name's values as [type, type of string, text]."""
    if octets not in KNOWN_NAMES:
        command = (COMMANDS[path.parent.name], "-inform", "DER", "-in", path, "-noout", "-" + which, *AS_TEXT)
        found = openssl(*command).decode("utf-8", "replace").split("=", 1)[1]
        rdns = [line.lstrip(" ").split(" + ") for line in found.split("\n") if line.strip()]
        KNOWN_NAMES[octets] = [[re.split("[=:]", value, maxsplit=2) for value in rdn] for rdn in rdns]
    return KNOWN_NAMES[octets]


def hex_lines(lines, title):
    """The octets in the lines below a title, in hex."""
    digits = ""
    start = next((i for i, line in enumerate(lines) if line.strip() == title), len(lines))
    for line in lines[start + 1:]:
        if not re.fullmatch(r"\s+([0-9a-f]{2}:?)+", line):
            break
        digits += line.strip().replace(":", "")
    return digits.upper()


def serial_number(lines):
    text = after(lines, "Serial Number:")
    if text:
        return int(text.split()[0])
    start = next(i for i, line in enumerate(lines) if line.strip() == "Serial Number:")
    digits = lines[start + 1].strip().replace(":", "")
    return -int(digits[10:], 16) if digits.startswith("(Negative)") else int(digits, 16)


def signature(lines):
    """Hex of the lines at the end; before them may stand the parameters of the algorithm."""
    digits = []
    for line in reversed([line for line in lines if line]):
        if not re.fullmatch(r"\s+([0-9a-f]{2}:?)+", line):
            break
        digits.insert(0, line.strip().replace(":", ""))
    return "".join(digits).upper()


def key(lines, info):
    """What is printed of a key, and all of it."""
    parts = [hex_lines(lines, title) for title in ("pub:", "Modulus:")]
    return {"keyAlgorithm": after(lines, "Public Key Algorithm:"), "key": info.octets.hex().upper(),
            "keyParts": [part.lstrip("0") for part in parts if part]}


def certificate(lines, body):
    issuer, _, subject, info = [part for part in body if part.identifier == 0x30][1:]
    return {"serial": serial_number(lines), "issuer": name(issuer), "subject": name(subject),
            "notBefore": after(lines, "Not Before:"), "notAfter": after(lines, "Not After :"),
            "extensions": extensions(lines, "X509v3 extensions:")} | key(lines, info)


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
    next_update = after(lines, "Next Update:")
    issuer = [part for part in body if part.identifier == 0x30][1]
    return {"issuer": name(issuer), "thisUpdate": after(lines, "Last Update:"),
            "nextUpdate": None if next_update == "NONE" else next_update, "entries": entries,
            "extensions": extensions(lines[:end], "CRL extensions:")}


def request(lines, body):
    matches = [re.fullmatch(r" {12}(\S+) *:(.+)", line) for line in block(lines, "Attributes:")]
    attributes = [list(match.groups()) for match in matches if match]
    values = [[kind.content.hex().upper(), [value.octets.hex().upper() for value in held.parts()]]
              for kind, held in (attribute.parts() for attribute in body[3].parts())]
    return {"attributes": attributes, "attributeOctets": values, "subject": name(body[1]),
            "extensions": extensions(lines, "Requested Extensions:")} | key(lines, body[2])


class Parsed:
    """An element as `openssl asn1parse` prints it, and those in it."""
    PATTERN = re.compile(r" *(\d+):d=(\d+) +hl=(\d+) +l= *(\d+|inf) +(prim|cons): (.{0,18})")

    def __init__(self, start, depth, header, length, form, what):
        self.start, self.depth, self.content = int(start), int(depth), int(start) + int(header)
        self.end = 0 if length == "inf" else self.content + int(length)
        self.constructed, self.what, self.parts = form == "cons", what.strip(), []

    def strings(self, octets):
        """Contents in hex of all primitive elements; the segments of an OCTET STRING are joined."""
        if not self.constructed:
            return [octets[self.content:self.end].hex().upper()]
        found = [string for part in self.parts if part.what != "EOC" for string in part.strings(octets)]
        segments = {part.what for part in self.parts} == {"OCTET STRING", "EOC"}
        return ["".join(found)] if segments or self.what == "OCTET STRING" else found


def elements(octets):
    """What openssl finds in encodings that follow one another."""
    found, levels = [], []
    for line in openssl("asn1parse", "-inform", "DER", data=octets).decode("utf-8", "replace").splitlines():
        if match := Parsed.PATTERN.match(line):
            element = Parsed(*match.groups())
            del levels[element.depth:]
            (levels[-1].parts if levels else found).append(element)
            if element.what == "EOC" and levels:
                levels[-1].end = element.end
            levels.append(element)
    return found


def strings(paths):
    """Of each file the contents of all primitive elements."""
    octets = b"".join(path.read_bytes() for path in paths)
    return [element.strings(octets) for element in elements(octets)]


# What openssl calls otherwise, and the names that it gives to parts whose octets are compared without their names.
NAMES = {"eContentType": "contentType", "eContent": "content", "data": "content", "object": "type",
         "publicKey": "subjectPublicKey", "keyIdentifier": "subjectKeyIdentifier", "crl": "certificate"}
NAMELESS = ("parameter", "set")


def message(path):
    """[name, value] of all that is printed of a message. Of certificates and lists it is the signature."""
    found, inside = [], 1000
    if path.stem.startswith("authenticated"):
        return {"printed": []}  # openssl takes the digest algorithm to be mandatory and not to be tagged
    told = openssl("cms", *"-cmsout -noout -print -inform DER -nameopt RFC2253,utf8,-esc_msb -in".split(), path)
    for line in told.decode("utf-8", "replace").split("\n"):
        if octets := re.match(r" +[0-9a-f]{4,} - ((?:[0-9a-f]{2}[ -])+)", line):
            found[-1][1] += re.sub("[ -]", "", octets[1])
        elif match := re.match(r" *(?:d\.)?([a-z]\w*): *(.*)", line):
            if indentation(line) > inside:
                found[-1][1] = ""  # of the last part, the signature, what follows is kept
                continue
            name = NAMES.get(match[1], match[1])
            inside = indentation(line) if name == "certificate" else 1000
            value = re.sub(r"^(<\w+>|\(\d unused bits\))$|^.* \(([\d.]+)\)$", r"\2", match[2])
            found.append([name, str(int(value, 0)) if name in ("version", "serialNumber") else value])
    return {"printed": [[name, value] for name, value in found if value and name not in NAMELESS]}


def texts(kind, paths):
    """The lines that openssl prints of each file."""
    if kind == "pkcs10certreq":
        texts = [openssl("req", "-inform", "DER", "-in", path, "-noout", "-text") for path in paths]
        return [text.decode("utf-8", "replace").split("\n") for text in texts]
    label, option = {"x509pubkeycert": ("CERTIFICATE", "-certs"), "x509crl": ("X509 CRL", "-crls")}[kind]
    bundle = paths[0].parent.parent / f"{kind}.pem"
    bundle.write_text("".join(f"-----BEGIN {label}-----\n{base64.encodebytes(path.read_bytes()).decode()}"
                              f"-----END {label}-----\n" for path in paths))
    text = openssl("storeutl", "-noout", "-text", option, bundle).decode("utf-8", "replace")
    return [part.split("\n") for part in re.split(r"^\d+: (?:Certificate|CRL)\n", text, flags=re.MULTILINE)[1:]]


def fields(path, lines):
    kind = path.parent.name
    body, algorithm, bits = Element(path.read_bytes()).parts()
    while lines[-1].strip() == "" or lines[-1].startswith("Total found"):
        lines.pop()
    version = re.search(r"Version:? \d+ \(0x(\d+)\)", "\n".join(lines))
    at = max(i for i, line in enumerate(lines) if "Signature Algorithm:" in line)
    found = {"version": int(version[1], 16), "algorithm": after(lines[at:], "Signature Algorithm:"),
             "algorithmOctets": algorithm.octets.hex().upper(), "signature": signature(lines)}
    if found["algorithm"].lower().startswith("dsa"):  # its two numbers are printed apart
        found["signature"] = bits.content[1:].hex().upper()
    found |= {"x509pubkeycert": certificate, "x509crl": crl, "pkcs10certreq": request}[kind](lines, body.parts())
    found["texts"] = {key: texts_of(str(found[key]), path, key) for key in ("issuer", "subject") if key in found}
    return found


def facts(folders, pool):
    """By "type/file", what there is to know of all files."""
    found = {}
    for folder in folders:
        paths = sorted(folder.glob("*.der"))
        if folder.name in COMMANDS:
            results = pool.map(fields, paths, texts(folder.name, paths))
        else:
            results = pool.map(message if folder.name == "pkcs7contentinfo" else lambda _: {}, paths)
        for path, result, contents in zip(paths, results, strings(paths)):
            found[f"{folder.name}/{path.name}"] = result | {"strings": contents}
    return found
