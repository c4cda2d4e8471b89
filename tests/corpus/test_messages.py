#!/usr/bin/env python3
"""Every field of the messages of the corpus against what `openssl cms -cmsout -print` says, in its order.

Environment: QUARN is the command, QUARN_CORPUS the folder that make_corpus.py made.
"""

import re
import unittest
from concurrent.futures import ThreadPoolExecutor

from der import openssl
from test_corpus import CORPUS, Run, integer

# What openssl calls otherwise, and the names that it gives to parts without a name of their own.
NAMES = {"eContentType": "contentType", "eContent": "content", "data": "content", "object": "type",
         "publicKey": "subjectPublicKey", "keyIdentifier": "subjectKeyIdentifier", "crl": "certificate"}
NAMELESS = ("parameter", "set")
# Of these openssl knows the type only: compressed and authenticated-enveloped data.
UNKNOWN = ("1.2.840.113549.1.9.16.1.9", "1.2.840.113549.1.9.16.1.23")


def printed(path):
    """[name, value] of all that is printed of a message. Of certificates and lists it is the signature."""
    found, inside = [], 1000
    told = openssl("cms", *"-cmsout -noout -print -inform DER -nameopt RFC2253,utf8,-esc_msb -in".split(), path)
    for line in told.decode("utf-8", "replace").split("\n"):
        indent = len(line) - len(line.lstrip())
        if octets := re.match(r" +[0-9a-f]{4,} - ((?:[0-9a-f]{2}[ -])+)", line):
            found[-1][1] += re.sub("[ -]", "", octets[1])
        elif match := re.match(r" *(?:d\.)?([a-z]\w*): *(.*)", line):
            if indent > inside:
                found[-1][1] = ""  # of the last part, the signature, what follows is kept
                continue
            name = NAMES.get(match[1], match[1])
            inside = indent if name == "certificate" else 1000
            value = re.sub(r"^(<\w+>|\(\d unused bits\))$|^.* \(([\d.]+)\)$", r"\2", match[2])
            found.append([name, str(int(value, 0)) if name in ("version", "serialNumber") else value])
    return [[name, value] for name, value in found if value and name not in NAMELESS]


def named(value, name=""):
    """The same of a decoded message."""
    if isinstance(value, list):
        for item in value:
            yield from named(item, name)
    elif not isinstance(value, dict):
        yield [name, str(integer(value)) if name in ("version", "serialNumber") else value.lower()]
    elif "signatureValue" in value:
        yield ["certificate", value["signatureValue"]["hex"]]
    elif found := [value[key] for key in ("oid", "rfc4514", "hex") if isinstance(value.get(key), str)]:
        yield [name, found[0]]
    elif name == "content" and "value" in value:
        yield from named(value["value"], name)
    elif not value.keys() <= {"type", "value"}:  # else it is of an open type
        for key, item in value.items():
            yield from named(item, key)


@unittest.skipUnless((CORPUS / "pkcs7contentinfo").exists(), "no corpus")
class Messages(unittest.TestCase):
    maxDiff = 3000

    def test_fields(self):
        paths = [path for path in sorted((CORPUS / "pkcs7contentinfo").glob("*.der"))
                 if not path.name.startswith(("other", "made"))]
        run = Run("decode", "--lines", "--type", "ContentInfo", *map(str, paths))
        self.assertEqual((run.code, run.err), (0, ""))
        records = [record["value"] for record in run.records()]
        with ThreadPoolExecutor(4) as pool:
            for path, value, expected in zip(paths, records, pool.map(printed, paths), strict=True):
                with self.subTest(path.name):
                    kind = value["contentType"]["oid"]
                    self.assertEqual([expected[0][1]] if kind in UNKNOWN else list(named(value)),
                                     [kind] if kind in UNKNOWN else expected)
        self.assertGreaterEqual(len(paths), 150)


if __name__ == "__main__":
    unittest.main()
