#!/usr/bin/env python3
"""`quarn decode`: typed values for people and for programs. Environment: as for test_quarn.py."""

import json
import shutil
import unittest

from test_quarn import Case, Run, der

LEAVES = [  # type, octets, line for people, JSON
    ("integer", "020720000000000000", "INTEGER 9007199254740992", "0x20000000000000"),
    ("integer", "02090080000000000000ff", "INTEGER 0x80000000000000ff (9 octets)", "0x80000000000000ff"),
    ("integer", "0209ff0000000000000000", "INTEGER -0x10000000000000000 (9 octets)", "-0x10000000000000000"),
    ("integer", "0207e0000000000001", "INTEGER -9007199254740991", -9007199254740991),
    ("integer", "0207e0000000000000", "INTEGER -9007199254740992", "-0x20000000000000"),
    ("enumerated", "0a01ff", "ENUMERATED -1", {"number": -1}),
    ("oid", "060388370a", "OID 2.999.10", {"oid": "2.999.10"}),
    ("octetstring", "04020a0b", "OCTET STRING (2 octets) 0A 0B", "0a0b"),
    ("bitstring", "030205a0", "BIT STRING (3 bits) '101'B", {"bits": 3, "hex": "a0"}),
    ("Time", "181532303236303130313132303030302e352b30313030",
     "GeneralizedTime 2026-01-01T12:00:00.5+01:00", "2026-01-01T12:00:00.5+01:00"),
    ("DirectoryString", "1e0400e4202e", "BMPString 'ä\\u{202E}'", "ä\u202e"),
    ("DirectoryString", "1401e4", "TeletexString '\\xE4'", {"hex": "e4"}),
    ("utf8string", "0c02ff61", "UTF8String '\\xFFa'", {"hex": "ff61"}),
    ("GeneralName", "8704c0000201", "GeneralName iPAddress: OCTET STRING 192.0.2.1", {"iPAddress": "192.0.2.1"}),
    ("GeneralName", "87080a000000ff000000", "GeneralName iPAddress: OCTET STRING 10.0.0.0/255.0.0.0",
     {"iPAddress": "10.0.0.0/255.0.0.0"}),
    ("GeneralName", "8703c00002", "GeneralName iPAddress: OCTET STRING (3 octets) C0 00 02", {"iPAddress": "c00002"}),
    ("any", "30020500", "SEQUENCE", {"type": "SEQUENCE", "value": [{"type": "NULL"}]}),
]

EXTENSIONS = """keyUsage=critical,keyCertSign,cRLSign basicConstraints=CA:TRUE,pathlen:0
subjectAltName=DNS:example.org,IP:2001:db8::1,otherName:1.3.6.1.4.1.311.20.2.3;UTF8:u certificatePolicies=1.2.3
nameConstraints=permitted;IP:10.0.0.0/255.0.0.0 issuingDistributionPoint=onlysomereasons:keyCompromise""".split()
CERTIFICATE_LINES = r"""version               INTEGER 2 (v3)
serialNumber          INTEGER 0x123456789abcdef012 (9 octets)
subject               Name CN=a\1B[31m\E2\80\AE,O=Ex\, \<A\>,C=DE
[2]  2.5.4.3 commonName: UTF8String 'a\u{1B}[31m\u{202E}'
extnValue  OCTET STRING holds BIT STRING keyCertSign, cRLSign (7 bits) '0000011'B
critical   BOOLEAN FALSE (default)
[1]  iPAddress: OCTET STRING 2001:db8::1
value    UTF8String 'u'
base     iPAddress: OCTET STRING 10.0.0.0/255.0.0.0
onlySomeReasons             BIT STRING keyCompromise (2 bits) '01'B""".splitlines()


class Values(Case):
    def test_leaves_for_people_and_for_programs(self):
        for name, octets, line, value in LEAVES:
            with self.subTest(octets):
                run = Run("decode", "-t", name, data=bytes.fromhex(octets))
                self.check(run, 0)
                self.assertEqual(run.lines[0], line)
                run = Run("decode", "-t", name, "--json", data=bytes.fromhex(octets))
                self.assertEqual(json.loads(run.out), value)

    def test_components_have_names_and_defaults(self):
        octets = der.extension("2.5.29.15", bytes.fromhex("03020106"))
        for arguments in (["-t", "36", "--json"], ["--compact"]):
            value = json.loads(Run("decode", *arguments, data=octets).out)
            self.assertEqual(value, {
                "extnID": {"oid": "2.5.29.15", "name": "keyUsage"}, "critical": False,
                "extnValue": {"hex": "03020106", "type": "BIT STRING",
                              "value": {"bits": 7, "hex": "06", "names": ["keyCertSign", "cRLSign"]}}})

    def test_messages_are_opened_by_their_content_type(self):
        data = der.sequence(der.integer(1), der.set_of(), der.sequence(der.oid("1.2.840.113549.1.7.1")), der.set_of())
        for kind, shown in [("2", "SignedData"), ("3", "(no EnvelopedData: offset "), ("9", "SEQUENCE")]:
            run = Run("decode", data=der.sequence(der.oid("1.2.840.113549.1.7." + kind), der.context(0, data)))
            self.check(run, 0)
            self.assertIn(shown, run.lines[2])

    def test_values_that_cannot_be_opened_are_shown_as_elements(self):
        for octets, oid, line, value in [
                ("0c0161", "1.2.3", "holds", {"hex": "0c0161", "element": {"type": "UTF8STRING", "value": "a"}}),
                ("01", "1.2.3", "(1 octet) 01", {"hex": "01"}),
                ("0c0161", "2.5.29.19", "holds (no BasicConstraints: offset 1: incorrect item)",
                 {"hex": "0c0161", "error": "no BasicConstraints: offset 1: incorrect item",
                  "element": {"type": "UTF8STRING", "value": "a"}}),
                ("300005", "2.5.29.19", "(3 octets) 30 00 05 (no BasicConstraints: 1 octet after its end)",
                 {"hex": "300005", "error": "no BasicConstraints: 1 octet after its end"})]:
            with self.subTest(octets + oid):
                data = der.extension(oid, bytes.fromhex(octets))
                shown = Run("decode", "-t", "Extension", data=data).lines
                self.assertEqual(shown[3].strip(), "extnValue  OCTET STRING " + line)
                self.assertEqual(shown[4:], ["    UTF8String 'a'"] if "holds" in line else [])
                found = json.loads(Run("decode", "-t", "Extension", "--json", data=data).out)
                self.assertEqual(found["extnValue"], value)


class Types(Case):
    def test_types_are_named_in_every_way(self):
        for name in ("Extensions", "extensions", "x509extensions", "37"):
            self.check(Run("decode", "--type", name, data=b"\x30\0"), 0)
        for name, text in [("Extensons", "did you mean 'Extensions'?"), ("421", "'quarn types' lists them"),
                           ("x509NameConstraints", "did you mean 'x509nameconstaints'?"),
                           ("\x1b", "'\\u{1B}'")]:
            self.check(Run("decode", "--type", name, data=b"\x30\0"), 2, text)

    def test_what_fits_no_type_or_not_the_one_named_is_explained(self):
        data = bytes.fromhex("300a0203010203" + "0c03616263")
        run = Run("decode", data=data)
        self.check(run, 1, "none of the", "tried     ", "offset 7", "found UTF8String")
        self.assertEqual(run.lines, ["SEQUENCE", "  INTEGER 66051", "  UTF8String 'abc'"])
        self.assertEqual(Run("decode", "--json", data=data).out, "")
        error = Run("decode", "--lines", data=data).records()[0]["error"]
        self.assertIn({"offset": 7}, [{"offset": each["offset"]} for each in error["tried"]])
        wrong = b"-----BEGIN PUBLIC KEY-----\nMAA=\n-----END PUBLIC KEY-----\n"  # the label names the only type tried
        self.assertEqual(len(Run("decode", "--lines", data=wrong).records()[0]["error"]["tried"]), 1)
        run = Run("decode", "-t", "Extension", data=data)
        self.check(run, 1, "offset 2 (0x2): found INTEGER", "path      extnID",
                   "expected  OBJECT IDENTIFIER, in a value of Extension", "0x1020a")
        self.check(Run("decode", data=b"\x30\x05\x02\x01"), 1, "expected  at most 0 octets")
        for name, level in [("ldapfilter", b"\xa2\x80"), ("octetstring", b"\x24\x80")]:
            self.check(Run("decode", "-t", name, data=level * 200 + b"\0\0" * 200), 4, "found values nested too deep")
        run = Run("decode", "-t", "pkixnameconstaints", data=bytes.fromhex("3006a204800200aa"))
        self.check(run, 1, "offset 4 (0x4): found [0]", "a value of NameConstraints (pkixnameconstaints)", "0x102ce")

    def test_what_could_be_several_things_is_doubted_or_not_named(self):
        modulus = "0240" + "71" * 64
        for octets in ["3000", "30023100", "3006020102020103", "3006020101040161", "3006020101020103", "30030a0100",
                       "3009 0601 2a 0404 deadbeef", "3003820161", "300b 3005 0603 2a0304 0402 0102", "30043002 3000",
                       "3007 020109 3000 3000", "30050603 2a0304", "300e 020103 3005 0603 2a0304 0402 0102",
                       "3045" + modulus + "020104"]:
            with self.subTest(octets):
                self.check(Run("decode", data=bytes.fromhex(octets)), 1, "--type names another")
        for octets, name, other in [("3045" + modulus + "020103", "DHParameter", "RSAPublicKey"),
                                    ("3045" + modulus + "020107", "RSAPublicKey", ""),
                                    ("3045" + modulus + "020102", "DHParameter", ""),
                                    ("3009 0603 2a0304 a002 0500", "ContentInfo", ""),
                                    ("300c 300a 0603 551d0e 0403 040141", "Extensions, 1 element", "")]:
            with self.subTest(octets):
                run = Run("decode", data=bytes.fromhex(octets))
                self.check(run, 0, *[f"--type could also be {other}\n"] * bool(other))
                self.assertEqual((run.lines[0], bool(run.err)), (name, bool(other)))

    @unittest.skipUnless(shutil.which("openssl"), "no openssl to make certificates with")
    def test_certificates_of_openssl(self):
        command = "req -x509 -newkey rsa:1024 -nodes -keyout key -out cert -set_serial 0x123456789abcdef012 -utf8"
        der.openssl(*command.split(), *(word for extension in EXTENSIONS for word in ("-addext", extension)),
                    "-subj", "/C=DE/O=Ex, <A>/CN=a\x1b[31m\u202e", cwd=self.path)
        cert = str(self.path / "cert")
        run = Run("decode", cert)
        self.check(run, 0)
        lines = [line.strip() for line in run.lines]
        for line in CERTIFICATE_LINES:
            self.assertIn(line, lines)
        self.assertNotIn("(no ", run.out)
        octets = der.openssl("x509", "-in", cert, "-outform", "DER")
        at = octets.index(b"\x17\x0d")
        run = Run("decode", data=octets[:at] + b"\x16" + octets[at + 1:])
        self.check(run, 1, f"Certificate: offset {at}: tbsCertificate.validity.notBefore: found IA5String")
        self.assertEqual(run.lines[0], "SEQUENCE")


if __name__ == "__main__":
    unittest.main()
