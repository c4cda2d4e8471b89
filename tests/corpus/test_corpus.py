#!/usr/bin/env python3
"""What `quarn decode` shows of each file of the corpus: its leaves against the contents that `openssl asn1parse` finds,
the names around them and their order against the modules of pyasn1, and open types by their octets.

Environment: QUARN is the command, QUARN_CORPUS the folder that make_corpus.py made.
"""

import contextlib
import importlib
import ipaddress
import json
import os
import pathlib
import re
import sys
import unittest

import der

sys.path.append("/usr/lib/python3/dist-packages")  # where Debian's packages are, for other interpreters
sys.path.append(str(pathlib.Path(__file__).parent.parent / "cli"))

from test_quarn import Run  # noqa: E402

CORPUS = pathlib.Path(os.environ.get("QUARN_CORPUS", "corpus"))
WIDE = {"BMPSTRING": 0x1E, "UNIVERSALSTRING": 0x1C}
RFCS = [5280, 2986, 5652, 5755, 4055, 3279, 5083, 2634, 5035, 5751, 5208, 7292, 8017, 8018, 6960, 3161]

# Folders of the files that are to be known by their octets alone.
TOLD = """x509pubkeycert x509crl pkcs10certreq attributecertificate pkcs7contentinfo pkcs7signeddata cmsenvelopeddata
ldapmessage dssparams dsssigvalue ecprivatekey ocsp_basicocspresponse ocsp_ocsprequest ocsp_ocspresponse pkcs12certbag
pkcs12pfx pkcs12safebag pkcs1rsaprivkey pkcs1rsapubkey pkcs8encprivatekeyinfo pkcs8privatekeyinfo sm2cipher
tsp_timestampreq tsp_timestampresp tsp_tstinfo""".split()


def integer(value):
    return int(value, 16) if isinstance(value, str) else value


def oid_hex(oid):
    return der.Element(der.oid(oid["oid"])).content.hex().upper()


def leaves(value):
    """Contents that the leaves of a decoded value can stand for, in order: a set of hexadecimal for each."""
    if isinstance(value, list):
        for item in value:
            yield from leaves(item)
    elif not isinstance(value, dict):
        yield leaf(value)
    elif isinstance(value.get("oid"), str):
        yield {oid_hex(value)}
    elif value.get("type") == "OID":
        yield {oid_hex({"oid": value["value"]})}
    elif "unused bits" in value:
        yield {f"{value['unused bits']:02X}{value['value']}"}
    elif str(value.get("type")) in WIDE:
        yield {der.Element(der.text(value["value"], WIDE[value["type"]])).content.hex().upper()}
    elif value == {"type": "NULL"}:
        yield {""}
    elif "TAGGEDTYPE" in value.values():
        yield from leaves(value["value"])
    elif "number" in value:
        yield from leaves(value["number"])
    elif "bits" in value:
        yield {f"{-value['bits'] % 8:02X}" + value["hex"].upper()}
    elif "hex" in value:
        yield {value["hex"].upper(), "00" + value["hex"].upper()}  # of a BIT STRING, or another
    else:
        for key, item in value.items():
            if key != "rfc4514" and (key != "type" or isinstance(item, dict) or "value" not in value):
                yield from leaves(item)


def leaf(value):
    """The same of a value that JSON has itself."""
    if value is None or isinstance(value, bool):
        return {{None: "", True: "FF", False: "00"}[value]}
    if isinstance(value, int) or re.match("-?0[xX]", value):
        return {der.Element(der.integer(integer(value))).content.hex().upper()}
    digits = re.sub("[-T:]", "", value)
    found = {text.encode(coding) for coding in ("utf-8", "utf-16-be", "utf-32-be")
             for text in (value, digits, digits[2:])}
    with contextlib.suppress(ValueError):
        found.add(b"".join(ipaddress.ip_address(part).packed for part in value.split("/")))
    if re.fullmatch(r"\d+(\.\d+)*", value):
        found.add(der.Element(der.oid("1.2." + value)).content[1:])  # a relative identifier
    return {octets.hex().upper() for octets in found} | {value.upper()}


def algorithm(dotted, name, parameters=None):
    return {"algorithm": {"oid": dotted, "name": name}} | ({"parameters": parameters} if parameters else {})


NULL = {"type": "NULL"}
SHA1, SHA256 = algorithm("1.3.14.3.2.26", "sha1", NULL), algorithm("2.16.840.1.101.3.4.2.1", "sha256")
VERSIONED = {"validity", "requestList", "responderID"}  # what stands beside a version 0 that is left out
FLAGS = ("critical", "criticality", "dnAttributes", "cA", "certReq", "ordering", "onlyContainsUserCerts",
         "onlyContainsCACerts", "indirectCRL", "onlyContainsAttributeCerts")
DEFAULTS = dict.fromkeys(FLAGS, False) | {
    "primaryDistinguished": True, "minimum": 0, "iterations": 1, "saltLength": 20, "trailerField": 1,
    "hashAlgorithm": SHA1, "prf": algorithm("1.2.840.113549.2.7", "hmacWithSHA1", NULL),
    "maskGenAlgorithm": algorithm("1.2.840.113549.1.1.8", "mgf1", {"type": "AlgorithmIdentifier", "value": SHA1}),
    "pSourceAlgorithm": algorithm("1.2.840.113549.1.1.9", "pSpecified", {"type": "OCTET STRING", "value": ""})}


def shown(value):
    """Without components that hold their defaults, which are not in the encoding."""
    if isinstance(value, list):
        return [shown(item) for item in value]
    if not isinstance(value, dict):
        return value
    defaults = DEFAULTS | ({"version": 0} if value.keys() & VERSIONED else {})
    if hashed := value.keys() & {"certHash", "issuerNameHash", "hashedMessage"}:
        defaults["hashAlgorithm"] = SHA256 if "certHash" in hashed else None
    return {key: shown(item) for key, item in value.items() if key not in defaults or defaults[key] != item}


class Names:
    """Compares the names of components with those that pyasn1 decodes. `seen` gets the types compared, `unread` what
    pyasn1 cannot read."""
    # What the library calls otherwise, mostly because several standards share a type.
    RENAMED = {"signature": "signatureValue", "encapContentInfo": "contentInfo", "eContentType": "contentType",
               "eContent": "content", "attrType": "type", "attrValues": "values", "policyQualifierId": "algorithm",
               "qualifier": "parameters", "capabilityID": "algorithm", "keyIdentifier": "subjectKeyIdentifier",
               "publicKey": "subjectPublicKey", "hashAlgorithm": "digestAlgorithm", "hashedMessage": "digest"}

    def __init__(self):
        from pyasn1 import error
        from pyasn1.codec.der import decoder
        from pyasn1.type import univ
        self.decode, self.error, self.univ, self.seen, self.unread = decoder.decode, error.PyAsn1Error, univ, set(), []
        self.modules = [importlib.import_module(f"pyasn1_modules.rfc{number}") for number in RFCS]

    def whole(self, kind, value, octets):
        """Of a type that the modules have; character strings and the like have no names inside."""
        made = next((getattr(module, kind) for module in self.modules if hasattr(module, kind)), None)
        if made and not issubclass(made, (self.univ.BitString, self.univ.OctetString)):
            try:
                found, _ = self.decode(octets, asn1Spec=made())
            except self.error:  # indefinite lengths; names of X.400
                self.unread.append(kind)
                return
            self.seen.add(kind)
            self.compare(value, found, kind)

    def compare(self, value, found, path):
        univ, typed = self.univ, isinstance(value, dict) and "type" in value and "value" in value
        if isinstance(found, (univ.Any, univ.OctetString)):
            if typed and ("hex" in value or not re.fullmatch("[A-Z0-9]+", value["type"])):  # else elements are shown
                self.whole(value["type"], value["value"], bytes(found))
        elif isinstance(found, (univ.SequenceOf, univ.SetOf)):
            assert len(value) == len(found), path
            for one, other in zip(value, found):
                self.compare(one, other, path)
        elif isinstance(found, univ.Choice):
            if isinstance(value, dict):  # else the alternative has no name
                assert value.keys() - {"rfc4514"} == {found.getName()}, f"{path}: {value}"
                self.compare(value[found.getName()], found.getComponent(), f"{path}.{found.getName()}")
        elif isinstance(found, (univ.Sequence, univ.Set)) and isinstance(value, dict):  # else shown as elements
            self.components(value, found, path)

    def components(self, value, found, path):
        parts, defaulted = {}, {"primaryDistinguished"}
        for each in found.componentType.namedTypes:
            name = each.name if each.name in value else self.RENAMED.get(each.name, each.name)
            part = found.getComponentByName(each.name, default=None, instantiate=False)
            if each.isDefaulted:
                defaulted.add(name)
            empty = isinstance(part, self.univ.Sequence) and len(part) == 0  # of optional components alone
            if part is not None and part.isValue and (name in value or not empty):
                parts[name] = part
        both = [name for name in value if name in parts]
        same = both == [name for name in parts if name in value] and parts.keys() ^ value.keys() <= defaulted
        assert same, f"{path}: {list(value)}, not {list(parts)}"
        for name in both:
            self.compare(value[name], parts[name], f"{path}.{name}")


@unittest.skipUnless((CORPUS / "facts.json").exists(), "no corpus")
class Corpus(unittest.TestCase):
    maxDiff = 3000

    @classmethod
    def setUpClass(cls):
        cls.facts, cls.names = json.loads((CORPUS / "facts.json").read_text()), Names()

    def decoded(self, *arguments):
        run = Run("decode", "--lines", *map(str, arguments))
        self.assertEqual((run.code, run.err), (0, ""), run.out[-2000:])
        return {"/".join(record["source"].split("/")[-2:]): record for record in run.records()}

    def test_values_and_their_names(self):
        kinds = {name.split("/")[0] for name in self.facts}
        self.assertLessEqual(set(TOLD), kinds)
        for kind in sorted(kinds):
            records = self.decoded("--type", kind, "-r", CORPUS / kind)
            self.assertEqual(records.keys(), {name for name in self.facts if name.startswith(kind + "/")})
            for name, record in records.items():
                with self.subTest(name):
                    self.check_leaves(name, record["value"], self.facts[name])
                    self.names.whole(record["type"], record["value"], (CORPUS / name).read_bytes())
            if kind in TOLD:  # by sight, without doubt; not those with values of no sense
                told = self.decoded(*[CORPUS / name for name in records if "/made" not in name])
                self.assertEqual({record["type"] for record in told.values()}, {record["type"]}, kind)
        self.assertGreater(len(self.names.seen), 45, self.names.seen)
        self.assertLess(len(self.names.unread), 80, self.names.unread)

    def check_leaves(self, name, value, expected):
        """All leaves against the contents of all primitive elements."""
        found = list(leaves(shown(value)))
        for place, (candidates, content) in enumerate(zip(found, expected)):
            self.assertIn(content, candidates, f"{name}: leaf {place}")
        self.assertEqual(len(found), len(expected), name)


if __name__ == "__main__":
    unittest.main()
