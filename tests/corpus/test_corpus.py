#!/usr/bin/env python3
"""What `quarn decode` shows of each file of the corpus: its leaves against the contents that `openssl asn1parse` finds,
the names around them and their order against the modules of pyasn1, and open types by their octets.

Environment: QUARN is the command, QUARN_CORPUS the folder that make_corpus.py made.
"""

import collections
import contextlib
import importlib
import ipaddress
import json
import os
import pathlib
import re
import subprocess
import sys
import time
import unittest

import der

sys.path.append("/usr/lib/python3/dist-packages")  # where Debian's packages are, for other interpreters

QUARN = os.environ.get("QUARN", "quarn")
CORPUS = pathlib.Path(os.environ.get("QUARN_CORPUS", "corpus"))
WIDE = {"BMPSTRING": 0x1E, "UNIVERSALSTRING": 0x1C}
RFCS = [5280, 2986, 5652, 5755, 4055, 3279, 5083, 2634, 5035, 5751, 5208, 7292, 8017, 8018, 6960, 3161]

# Types by the folders of the files that are to be known by their octets alone.
TOLD = {
    "x509pubkeycert": "Certificate", "x509crl": "CertificateList", "pkcs10certreq": "CertificationRequest",
    "attributecertificate": "AttributeCertificate", "pkcs7contentinfo": "ContentInfo", "pkcs7signeddata": "SignedData",
    "cmsenvelopeddata": "EnvelopedData", "ldapmessage": "LDAPMessage", "dssparams": "Dss-Parms",
    "dsssigvalue": "Dss-Sig-Value", "ecdsasigvalue": "Dss-Sig-Value", "ecprivatekey": "ECPrivateKey",
    "ocsp_basicocspresponse": "BasicOCSPResponse", "ocsp_ocsprequest": "OCSPRequest",
    "ocsp_ocspresponse": "OCSPResponse", "pkcs12certbag": "CertBag", "pkcs12pfx": "PFX", "pkcs12safebag": "SafeBag",
    "pkcs1rsaprivkey": "RSAPrivateKey", "pkcs1rsapubkey": "RSAPublicKey",
    "pkcs8encprivatekeyinfo": "EncryptedPrivateKeyInfo", "pkcs8privatekeyinfo": "PrivateKeyInfo",
    "sm2cipher": "SM2Cipher", "tsp_timestampreq": "TimeStampReq", "tsp_timestampresp": "TimeStampResp",
    "tsp_tstinfo": "TSTInfo",
}


def quarn(*arguments, data=""):
    done = subprocess.run([QUARN, *map(str, arguments)], input=data.encode(), capture_output=True, timeout=300,
                          check=False)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def integer(value):
    return int(value, 16) if isinstance(value, str) else value


def oid_hex(oid):
    return der.Element(der.oid(oid["oid"])).content.hex().upper()


def leaves(value):
    """Contents that the leaves of a decoded value can stand for, in order: a set of hexadecimal for each."""
    if isinstance(value, list):
        for item in value:
            yield from leaves(item)
    elif isinstance(value, dict) and isinstance(value.get("oid"), str):
        yield {oid_hex(value)}
    elif isinstance(value, dict) and value.get("type") == "OID":
        yield {oid_hex({"oid": value["value"]})}
    elif isinstance(value, dict) and "unused bits" in value:
        yield {f"{value['unused bits']:02X}{value['value']}"}
    elif isinstance(value, dict) and str(value.get("type")) in WIDE:
        yield {der.Element(der.text(value["value"], WIDE[value["type"]])).content.hex().upper()}
    elif value == {"type": "NULL"}:
        yield {""}
    elif isinstance(value, dict) and "TAGGEDTYPE" in value.values():
        yield from leaves(value["value"])
    elif isinstance(value, dict) and "number" in value:
        yield from leaves(value["number"])
    elif isinstance(value, dict) and "bits" in value:
        yield {f"{-value['bits'] % 8:02X}" + value["hex"].upper()}
    elif isinstance(value, dict) and "hex" in value:
        yield {value["hex"].upper(), "00" + value["hex"].upper()}  # of a BIT STRING, or another
    elif isinstance(value, dict):
        for key, item in value.items():
            if key != "rfc4514" and (key != "type" or isinstance(item, dict) or "value" not in value):
                yield from leaves(item)
    elif value is None or value is True or value is False:
        yield {{None: "", True: "FF", False: "00"}[value]}
    elif isinstance(value, int) or re.match("-?0[xX]", value):
        yield {der.Element(der.integer(integer(value))).content.hex().upper()}
    else:
        digits = value.replace("-", "").replace("T", "").replace(":", "")
        found = {text.encode(coding) for coding in ("utf-8", "utf-16-be", "utf-32-be")
                 for text in (value, digits, digits[2:])}
        with contextlib.suppress(ValueError):
            found.add(b"".join(ipaddress.ip_address(part).packed for part in value.split("/")))
        if re.fullmatch(r"\d+(\.\d+)*", value):
            found.add(der.Element(der.oid("1.2." + value)).content[1:])  # a relative identifier
        yield {octets.hex().upper() for octets in found} | {value.upper()}


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
            "maskGenAlgorithm": algorithm("1.2.840.113549.1.1.8", "mgf1",
                                           {"type": "AlgorithmIdentifier", "value": SHA1}),
            "pSourceAlgorithm": algorithm("1.2.840.113549.1.1.9", "pSpecified",
                                           {"type": "OCTET STRING", "value": ""})}


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
    """Compares the names of components with those that pyasn1 decodes. `open` gets the documents of open types, with
    their octets; `seen` the types compared, `unread` what pyasn1 cannot read."""
    # What the library calls otherwise, mostly because several standards share a type.
    RENAMED = {"signature": "signatureValue", "encapContentInfo": "contentInfo", "eContentType": "contentType",
               "eContent": "content", "attrType": "type", "attrValues": "values", "policyQualifierId": "algorithm",
               "qualifier": "parameters", "capabilityID": "algorithm", "keyIdentifier": "subjectKeyIdentifier",
               "publicKey": "subjectPublicKey", "hashAlgorithm": "digestAlgorithm", "hashedMessage": "digest"}

    def __init__(self):
        from pyasn1 import error
        from pyasn1.codec.der import decoder
        from pyasn1.type import univ
        self.decode, self.error, self.univ, self.open, self.seen, self.unread = (
            decoder.decode, error.PyAsn1Error, univ, [], set(), [])
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
            if typed and re.fullmatch("[A-Z0-9]+", value["type"]) and "hex" not in value:
                self.open += [(value, bytes(found).hex().upper())] if isinstance(found, univ.Any) else []
            elif typed:
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
        cls.facts = json.loads((CORPUS / "facts.json").read_text())
        cls.names, cls.counts, cls.start = Names(), collections.Counter(), time.monotonic()

    @classmethod
    def tearDownClass(cls):
        counts = ", ".join(f"{count} {what}" for what, count in sorted(cls.counts.items()))
        print(f"corpus compared: {counts} in {time.monotonic() - cls.start:.1f} s")

    def records(self, kind):
        code, out, err = quarn("decode", "--lines", "--type", kind, "-r", CORPUS / kind)
        self.assertEqual((code, err), (0, ""), out[-2000:])
        records = {f"{kind}/{os.path.basename(each['source'])}": each for each in map(json.loads, out.splitlines())}
        self.assertEqual(records.keys(), {name for name in self.facts if name.startswith(kind + "/")})
        return records

    def test_types_are_told_by_sight(self):
        """Each file is known for what it is without its type and without doubt; not those with values of no sense."""
        for kind, name in TOLD.items():
            files = [path for path in (CORPUS / kind).glob("*.der") if not path.name.startswith("made")]
            code, out, err = quarn("decode", "--lines", *files)
            self.assertEqual((code, err), (0, ""), out[-2000:])
            self.assertEqual({json.loads(line)["type"] for line in out.splitlines()}, {name}, kind)
            self.counts["types told by sight"] += len(files)

    def test_values_and_their_names(self):
        for kind in sorted({name.split("/")[0] for name in self.facts}):
            for name, record in self.records(kind).items():
                with self.subTest(name):
                    self.check_leaves(name, record["value"], self.facts[name])
                    self.names.whole(record["type"], record["value"], (CORPUS / name).read_bytes())
                self.counts["values"] += 1
        self.check_open(self.names.open)
        self.assertGreater(len(self.names.seen), 45, self.names.seen)
        self.assertLess(len(self.names.unread), 80, self.names.unread)

    def check_leaves(self, name, value, expected):
        """All leaves against the contents of all primitive elements."""
        found = list(leaves(shown(value)))
        for place, (candidates, content) in enumerate(zip(found, expected)):
            self.assertIn(content, candidates, f"{name}: leaf {place}")
        self.assertEqual(len(found), len(expected), name)
        self.counts["leaves"] += len(found)

    def check_open(self, found):
        """Documents of open types against the octets that they stand for."""
        code, out, err = quarn("der", "--hex", data="".join(json.dumps(value) + "\n" for value, _ in found))
        self.assertEqual((code, err), (0, ""))
        self.assertEqual([line.upper() for line in out.splitlines()], [octets for _, octets in found])
        self.counts["open types"] += len(found)


if __name__ == "__main__":
    unittest.main()
