#!/usr/bin/env python3
"""What `quarn decode` shows of each file of the corpus, field by field, against what openssl says.

Environment: QUARN is the command, QUARN_CORPUS the folder that make_corpus.py made, QUARN_CONTAINERS that of containers.py.
"""

import collections
import json
import os
import pathlib
import re
import subprocess
import time
import unittest

import der
import openssl_text
from openssl_text import integer

QUARN = os.environ.get("QUARN", "quarn")
CORPUS = pathlib.Path(os.environ.get("QUARN_CORPUS", "corpus"))
CONTAINERS = pathlib.Path(os.environ.get("QUARN_CONTAINERS", "containers"))
STRINGS = ("PRINTABLESTRING", "UTF8STRING", "IA5STRING", "BMPSTRING", "NUMERICSTRING", "UNIVERSALSTRING")
WIDE = {"BMPSTRING": 0x1E, "UNIVERSALSTRING": 0x1C}
EXTENSION_REQUEST = "1.2.840.113549.1.9.14"
UNKNOWN = ("1.2.840.113549.1.9.16.1.9", "1.2.840.113549.1.9.16.1.23")  # compressed and authenticated-enveloped data
BODIES = {"x509pubkeycert": "tbsCertificate", "x509crl": "tbsCertList", "pkcs10certreq": "certificationRequestInfo"}

# Types by the folders of the files that are to be known by their octets alone.
TOLD = {
    "x509pubkeycert": "Certificate", "x509crl": "CertificateList", "pkcs10certreq": "CertificationRequest",
    "attributecertificate": "AttributeCertificate", "pkcs7contentinfo": "ContentInfo", "pkcs7signeddata": "SignedData",
    "cmsenvelopeddata": "EnvelopedData", "ldapmessage": "LDAPMessage", "dssparams": "Dss-Parms", "dsssigvalue": "Dss-Sig-Value",
    "ecdsasigvalue": "Dss-Sig-Value", "ecpkparameters": "EcpkParameters", "ecprivatekey": "ECPrivateKey",
    "ocsp_basicocspresponse": "BasicOCSPResponse", "ocsp_ocsprequest": "OCSPRequest", "ocsp_ocspresponse": "OCSPResponse",
    "pkcs12certbag": "CertBag", "pkcs12pfx": "PFX", "pkcs12safebag": "SafeBag", "pkcs1rsaprivkey": "RSAPrivateKey",
    "pkcs1rsapubkey": "RSAPublicKey", "pkcs8encprivatekeyinfo": "EncryptedPrivateKeyInfo",
    "pkcs8privatekeyinfo": "PrivateKeyInfo", "sm2cipher": "SM2Cipher", "tsp_timestampreq": "TimeStampReq",
    "tsp_timestampresp": "TimeStampResp", "tsp_tstinfo": "TSTInfo",
}


def quarn(*arguments, data=""):
    done = subprocess.run([QUARN, *map(str, arguments)], input=data.encode(), capture_output=True, timeout=300,
                          check=False)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def in_words(text):
    """openssl's form of a time with single blanks, or null."""
    return text and " ".join(text.split())


def hex_of(holder):
    return (holder["hex"] if isinstance(holder, dict) else holder).upper()


def oid_hex(oid):
    return der.Element(der.oid(oid["oid"])).content.hex().upper()


def unescaped(text):
    return re.sub(r"\\([0-9A-F]{2}|\\)", lambda match: match[1] if match[1] == "\\" else chr(int(match[1], 16)), text)


def string_of(value):
    """[type of string, text], or nothing for what is shown as octets or otherwise."""
    shown_as_text = isinstance(value["value"], str) and value["type"] in STRINGS
    return [value["type"], value["value"]] if shown_as_text else [None, None]


class Reading:
    """The fields of oracle.py, as the decoded object has them. `open` gets the documents of open types, with
    what their octets should be."""

    def __init__(self, kind, value, facts):
        self.open, self.facts, body = [], facts, value[BODIES[kind]]
        algorithm = value["signatureAlgorithm"]
        self.fields = {"algorithm": openssl_text.long_name(algorithm["algorithm"]), "version": body.get("version", 0),
                       "signature": hex_of(value.get("signatureValue", value.get("signature")))}
        self.algorithm(algorithm, facts["algorithmOctets"])
        if "signature" in body:
            self.algorithm(body["signature"], facts["algorithmOctets"])
        for key in ("issuer", "subject"):
            if key in body:
                self.name(key, openssl_text.rdns(body[key]))
        info = body.get("subjectPublicKeyInfo", body.get("subjectPKInfo"))
        if info:
            self.key(info)
        getattr(self, kind)(body)

    def algorithm(self, value, octets):
        _, *parameters = der.Element(bytes.fromhex(octets)).parts()
        if parameters:
            if "type" in value["parameters"]:  # else it is an alternative of EcpkParameters
                self.open.append((value["parameters"], parameters[0].octets.hex()))

    def key(self, info):
        algorithm = der.Element(bytes.fromhex(self.facts.pop("key"))).parts()[0]
        self.algorithm(info["algorithm"], algorithm.octets.hex())
        found = hex_of(info["subjectPublicKey"])
        self.fields["keyAlgorithm"] = openssl_text.long_name(info["algorithm"]["algorithm"])
        self.fields["keyParts"] = [part for part in self.facts["keyParts"] if part in found]

    def name(self, key, rdns):
        """Types and octets of all values, and the texts of those that are strings."""
        self.fields[key] = [[oid_hex(value["type"]) for value in rdn] for rdn in rdns]
        values = [value["value"] for rdn in rdns for value in rdn]
        expected = [value for rdn in self.facts[key] for value in rdn]
        self.facts[key] = [[kind[4:] for kind, _ in rdn] for rdn in self.facts[key]]
        self.open += [(value, octets) for value, (_, octets) in zip(values, expected)]
        ours, theirs = [], []
        for rdn, texts in zip(rdns, self.facts["texts"][key]):
            for value, (kind, form, text) in zip(rdn, texts):
                ours.append([value["type"]["oid"], *string_of(value["value"])])
                theirs.append([kind, form, unescaped(text)])
        same = [(a, b) for a, b in zip(ours, theirs) if a[1] is not None]
        self.fields["text of " + key], self.facts["text of " + key] = map(list, zip(*same)) if same else ([], [])

    def extensions(self, listed, texts):
        """Texts of those that are typed."""
        for extension, facts in zip(listed, texts):
            writer = openssl_text.WRITERS.get(extension["extnID"]["oid"])
            self.typed = getattr(self, "typed", 0) + bool(writer)
            facts[:] = [*facts[:2], facts[2] if writer else None]
        return [[openssl_text.long_name(each["extnID"]), each["critical"], None if facts[2] is None else text_of(each)]
                for each, facts in zip(listed, texts)]

    def x509pubkeycert(self, body):
        listed = body.get("extensions", [])
        self.fields |= {"serial": integer(body["serialNumber"]),
                        **{key: openssl_text.time(body["validity"][key]) for key in ("notBefore", "notAfter")},
                        "extensions": self.extensions(listed, self.facts["extensions"])}

    def x509crl(self, body):
        listed, entries = body.get("crlExtensions", []), body.get("revokedCertificates", [])
        self.fields |= {"thisUpdate": openssl_text.time(body["thisUpdate"]),
                        "nextUpdate": openssl_text.time(body["nextUpdate"]) if "nextUpdate" in body else None,
                        "extensions": self.extensions(listed, self.facts["extensions"]),
                        "entries": [{"serial": integer(entry["userCertificate"]),
                                     "date": openssl_text.time(entry["revocationDate"]),
                                     "extensions": self.entry(entry, facts)}
                                    for entry, facts in zip(entries, self.facts["entries"])]}
        self.fields["number of entries"], self.facts["number of entries"] = len(entries), len(self.facts["entries"])

    def entry(self, entry, facts):
        found = self.extensions(entry.get("crlEntryExtensions", []), facts["extensions"])
        inherited = [each for each in facts["extensions"] if each[0] == "X509v3 Certificate Issuer"]
        own = [each["extnID"]["oid"] for each in entry.get("crlEntryExtensions", [])]
        if inherited and "2.5.29.29" not in own:  # openssl shows what an indirect CRL says further up
            facts["extensions"] = [each for each in facts["extensions"] if each not in inherited]
        return found

    def pkcs10certreq(self, body):
        """Attributes: texts of those that are text, extensions of the rest."""
        expected, found = self.facts.pop("attributeOctets"), body["attributes"]
        listed, self.fields["attributes"] = [], []
        for attribute, (_, values) in zip(found, expected):
            if attribute["type"]["oid"] == EXTENSION_REQUEST:
                listed = attribute["values"][0]["value"]
            else:
                self.open += list(zip(attribute["values"], values))
                self.fields["attributes"].append([openssl_text.long_name(attribute["type"]),
                                                  attribute["values"][0]["value"]])
        texts = zip(self.fields["attributes"], self.facts["attributes"])  # a T61String is shown as octets
        self.facts["attributes"] = [ours if isinstance(ours[1], dict) else theirs for ours, theirs in texts]
        self.fields["extensions"] = self.extensions(listed, self.facts["extensions"])


def text_of(extension):
    value = extension["extnValue"]
    if "value" not in value:
        return f"not decoded: {value}"
    shown = openssl_text.with_raw_strings(value["value"], bytes.fromhex(value["hex"]))
    return " ".join(openssl_text.WRITERS[extension["extnID"]["oid"]](shown).split())


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
            if key not in ("rfc4514", "type") or isinstance(item, dict):
                yield from leaves(item)
    elif value is True or value is False:
        yield {"FF" if value else "00"}
    elif isinstance(value, int) or re.match("-?0[xX]", value):
        yield {der.Element(der.integer(integer(value))).content.hex().upper()}
    else:
        digits = value.replace("-", "").replace("T", "").replace(":", "")
        yield {text.encode().hex().upper() for text in (value, digits, digits[2:])} | {value.upper()}


def named(value, name=""):
    """(name, value) of each component, as oracle.py has them of messages."""
    if isinstance(value, list):
        for item in value:
            yield from named(item, name)
    elif not isinstance(value, dict):
        yield name, str(integer(value)) if name in ("version", "serialNumber") else value.lower()
    elif "signatureValue" in value:
        yield "certificate", value["signatureValue"]["hex"]
    elif found := [value[key] for key in ("oid", "rfc4514", "hex") if isinstance(value.get(key), str)]:
        yield name, found[0]
    elif name == "content" and "value" in value:
        yield from named(value["value"], name)
    elif not value.keys() <= {"type", "value"}:  # else it is of an open type
        for key, item in value.items():
            yield from named(item, key)


def algorithm(dotted, name, parameters=None):
    return {"algorithm": {"oid": dotted, "name": name}} | ({"parameters": parameters} if parameters else {})


NULL = {"type": "NULL"}
SHA1, SHA256 = algorithm("1.3.14.3.2.26", "sha1", NULL), algorithm("2.16.840.1.101.3.4.2.1", "sha256")
DEFAULTS = {"critical": False, "primaryDistinguished": True, "saltLength": 20, "trailerField": 1,
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
    defaults = DEFAULTS | ({"version": 0} if "validity" in value else {}) | (
        {"hashAlgorithm": SHA256} if "certHash" in value else {})
    return {key: shown(item) for key, item in value.items() if key not in defaults or defaults[key] != item}


@unittest.skipUnless((CORPUS / "facts.json").exists(), "no corpus")
class Corpus(unittest.TestCase):
    maxDiff = 3000

    @classmethod
    def setUpClass(cls):
        cls.facts = json.loads((CORPUS / "facts.json").read_text())
        cls.counts, cls.start = collections.Counter(), time.monotonic()

    @classmethod
    def tearDownClass(cls):
        counts = ", ".join(f"{count} {what}" for what, count in sorted(cls.counts.items()))
        print(f"corpus compared: {counts} in {time.monotonic() - cls.start:.1f} s")

    def told(self, folder):
        """The files of a folder, each known for what it is without its type and without doubt."""
        code, out, err = quarn("decode", "--lines", "-r", folder)
        self.assertEqual((code, err), (0, ""), out[-2000:])
        found = [json.loads(line) for line in out.splitlines()]
        self.assertEqual({each["type"] for each in found}, {TOLD[folder.name]}, folder)
        return found

    def test_types_are_told_by_sight(self):
        told = [self.told(root / kind) for root in (CORPUS, CONTAINERS) for kind in TOLD if (root / kind).exists()]
        self.assertGreater(len(told), len(TOLD))
        self.counts["types told by sight"] += sum(map(len, told))

    def records(self, kind):
        records = {f"{kind}/{os.path.basename(each['source'])}": each for each in self.told(CORPUS / kind)}
        self.assertEqual(records.keys(), {name for name in self.facts if name.startswith(kind + "/")})
        return records

    def check_open(self, found):
        """Documents of open types against the octets that they stand for."""
        documents = [(name, value, octets) for name, value, octets in found if set(value) != {"type", "value"}
                     or value["type"].isupper()]
        if not documents:
            return
        code, out, err = quarn("der", "--hex", data="".join(json.dumps(value) + "\n" for _, value, _ in documents))
        self.assertEqual((code, err), (0, ""))
        made = out.splitlines()
        self.assertEqual(len(made), len(documents))
        wrong = [(name, value) for (name, value, octets), line in zip(documents, made)
                 if line.upper() != octets.upper()]
        self.assertEqual(wrong, [])
        self.counts["open types"] += len(documents)

    def check(self, kind):
        opened = []
        for name, record in self.records(kind).items():
            with self.subTest(name):
                facts = self.facts[name]
                self.check_strings(name, record["value"], facts["strings"])
                reading = Reading(kind, record["value"], facts)
                for key in ("notBefore", "notAfter", "thisUpdate", "nextUpdate"):
                    facts[key] = in_words(facts.get(key))
                for entry in facts.get("entries", []):
                    entry["date"] = in_words(entry["date"])
                for key, value in reading.fields.items():
                    self.assertEqual(value, facts[key], f"{name}: {key}")
                opened += [(name, *pair) for pair in reading.open]
                self.counts["fields"] += len(reading.fields)
                self.counts["typed extensions"] += getattr(reading, "typed", 0)
            self.counts[kind] += 1
        self.check_open(opened)

    def test_certificates(self):
        self.check("x509pubkeycert")

    def test_revocation_lists(self):
        self.check("x509crl")

    def test_requests(self):
        self.check("pkcs10certreq")

    def check_strings(self, name, value, expected):
        """All leaves against the contents of all primitive elements."""
        found = list(leaves(shown(value)))
        for place, (candidates, content) in enumerate(zip(found, expected)):
            self.assertIn(content, candidates, f"{name}: leaf {place}")
        self.assertEqual(len(found), len(expected), name)

    def test_attribute_certificates(self):
        for name, record in self.records("attributecertificate").items():
            with self.subTest(name):
                self.check_strings(name, record["value"], self.facts[name]["strings"])
            self.counts["attributecertificate"] += 1

    def test_messages(self):
        for name, record in self.records("pkcs7contentinfo").items():
            with self.subTest(name):
                value, facts = record["value"], self.facts[name]
                self.check_strings(name, value, facts["strings"])
                kind = value["contentType"]["oid"]
                if kind in UNKNOWN:  # what is in it is shown as elements
                    self.assertEqual(([kind], "SEQUENCE"), ([facts["printed"][0][1]], value["content"]["type"]))
                elif facts["printed"]:
                    self.assertEqual(list(map(list, named(value))), facts["printed"], name)
                    self.counts["fields"] += len(facts["printed"])
                self.counts["messages of type " + value["contentType"]["name"]] += 1


if __name__ == "__main__":
    unittest.main()
