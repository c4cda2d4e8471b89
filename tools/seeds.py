#!/usr/bin/env python3
"""Makes the first corpus of a fuzz target from the test vectors and the system's certificates.

    tools/seeds.py TARGET FOLDER
"""

import base64
import hashlib
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TEXTS = ["\x001.2.840.113549.1.1.11", "\x012.999.3", "\x02240229120000Z", "\x022402291200+0130",
         "\x0320240229120000.5Z", "\x0320240229120000-0130", "\x032024022912", "\x04-123456789012345678901234567890",
         "\x05aß水𐀀"]


def octets(text):
    """Octets of a vector's text, with groups repeated: (30 80)*3 "text"."""
    text = re.sub('"([^"]*)"', lambda m: m[1].encode().hex(), text)
    while "(" in text:
        text = re.sub(r"\(([^()]*)\)(?:\*(\d+))?", lambda m: " ".join([m[1]] * int(m[2] or 1)), text)
    return bytes.fromhex(text)


def type_ids():
    for line in (ROOT / "modules/registry.tsv").read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            number, name = line.split("\t")[:2]
            yield name, int(number)


def vectors():
    ids = dict(type_ids())
    for path in sorted((ROOT / "tests/vectors").rglob("*.vec")):
        type_id, defined = 0, {}
        for line in path.read_text(encoding="utf-8").splitlines():
            line = re.sub("<.*?>", lambda m: defined.get(m[0], m[0]), line.split("#")[0])
            key, _, value = (part.strip() for part in line.partition("="))
            if key == "type":
                type_id = ids[value]
            elif key.startswith("def "):
                defined[f"<{key[4:]}>"] = value
            elif key:
                name, row = re.fullmatch("(?:([a-z0-9_]+):)?(.*)", line.split("|")[0]).groups()
                if len(content := octets(row)) <= 4096:
                    yield ids[name] if name else type_id, content


def certificates():
    for path in sorted(pathlib.Path("/usr/share/ca-certificates/mozilla").glob("*.crt"))[:20]:
        yield subprocess.run(["openssl", "x509", "-in", path, "-outform", "DER"],
                             check=True, capture_output=True).stdout


def text_forms(content, label):
    text = base64.encodebytes(content)
    return content, text, b"-----BEGIN %s-----\n%s-----END %s-----\n" % (label, text, label)


def loadable():
    """The kind of a signed object, and its octets or text."""
    labels = {39: b"CERTIFICATE", 41: b"X509 CRL", 46: b"CERTIFICATE REQUEST"}
    whole = [*vectors(), *((39, content) for content in certificates())]
    for type_id, content in whole:
        if type_id in labels:
            yield from ((list(labels).index(type_id), form) for form in text_forms(content, labels[type_id]))


def seeds(target):
    if target == "loaders":
        for kind, content in loadable():
            yield bytes([kind]) + content
    elif target in ("typed", "messages"):
        for type_id, content in vectors():
            yield type_id.to_bytes(2, "big") + content
    elif target == "value_text":
        yield from (text.encode() for text in TEXTS)
    elif target == "json_text":
        page = (ROOT / "docs/json.md").read_text(encoding="utf-8")
        yield from (m.encode() for m in re.findall(r"^\{.*\}$", page, re.MULTILINE))
        yield b'[null, true, 1e3, -0.5, "\\u0041\\n", {"a": []}]'
    else:
        yield from (content for _, content in vectors())
        yield from certificates()


def main(target, folder):
    for seed in seeds(target):
        (pathlib.Path(folder) / hashlib.sha1(seed).hexdigest()).write_bytes(seed)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    main(*sys.argv[1:])
