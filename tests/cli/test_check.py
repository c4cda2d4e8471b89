#!/usr/bin/env python3
"""`quarn check` and `quarn convert`: expected findings from the rules of X.690 worked out by hand, and
none in what openssl makes but for what was changed in it.

Environment: as test_quarn.py.
"""

import base64
import pathlib
import shutil
import textwrap
import unittest

from test_files import der, variants
from test_quarn import NULL, Case, Run, on_terminal


def found_in(octets, *arguments):
    run = Run("check", "--json", "--in-form=der", *arguments, data=octets)
    assert run.err == "" and run.code == (1 if run.out else 0), (run.code, run.err)
    return [record["finding"] for record in run.records()]


def findings(octets, *arguments):
    """[(offset, rule)] of one object."""
    return [(found["offset"], found["rule"]) for found in found_in(octets, *arguments)]


class Rules(unittest.TestCase):
    def check_found(self, *rows):
        for octets, *found in rows:
            with self.subTest(octets):
                self.assertEqual(findings(bytes.fromhex(octets)), found)

    def test_each_rule_is_found_where_it_is_broken(self):
        self.check_found(
            ("3080 0101ff 0000", (1, "definite-length")), ("308103 020105", (1, "minimal-length")),
            ("308200030101ff", (1, "minimal-length")), ("3003 0201", (2, "length-fits")), ("02", (0, "whole-header")),
            ("1f010100", (0, "short-tag")), ("3f811000",), ("3f80811000", (1, "minimal-tag")),
            ("2000", (0, "reserved-tag")), ("9fffffffffffffffffff7f00", (0, "tag-limit")),
            ("0489ffffffffffffffffff", (1, "length-fits")), ("2403 040141", (0, "primitive-string")),
            ("2c03 0c0141", (0, "primitive-string"), (2, "segment")), ("2407 2405 2303 030100", (0, "primitive-string"),
             (2, "primitive-string"), (4, "segment"), (4, "primitive-string")),
            ("2103 010100", (0, "form")), ("1000", (0, "form")), ("bf8f0200",), ("0e00",), ("2e00", (0, "form")),
            ("0102 0000", (2, "boolean-length")), ("010101", (2, "boolean-true")), ("0200", (2, "integer-octets")),
            ("02020080",), ("0202007f", (2, "integer-minimal")), ("0a02ff80", (2, "integer-minimal")), ("0202ff7f",),
            ("030208ff", (2, "bit-count")), ("0300", (2, "bit-count-missing")), ("030101", (2, "bit-count-empty")),
            ("0303040008", (4, "bit-padding")), ("030204f0",), ("050100", (2, "null-content")),
            ("0600", (2, "oid-arcs")), ("06032a8001", (3, "oid-arcs")), ("06022a81", (3, "oid-arcs")), ("06032a8100",),
            ("0d018f", (2, "relative-oid-arcs")), ("0900",), ("0903800001",), ("0903800002", (2, "real-canonical")),
            ("0903900001", (2, "real-canonical")), ("090481000101", (2, "real-canonical")),
            ("0902b000", (2, "real-form")), ("090140",), ("090144", (2, "real-form")),
            ("0906 03312e452b30",), ("0908 032d31352e452d32",), ("0907 0331302e452b30", (2, "real-canonical")),
            ("0905 0331452b30", (2, "real-canonical")), ("0906 03312e452b31", (2, "real-canonical")),
            ("0903 013135", (2, "real-canonical")), ("0901 04", (2, "real-form")),
            ("1303 61402a", (3, "alphabet")), ("160180", (2, "alphabet")), ("120161", (2, "alphabet")),
            ("1a017f", (2, "alphabet")), ("0c03 61c380",), ("0c03 61c328", (3, "utf8")), ("0c03 eda080", (2, "utf8")),
            ("3009 06022a03 010100 0400",), ("1e0161", (2, "character-width")), ("1e04 0061dc00", (4, "alphabet")),
            ("1c04 00110000", (2, "alphabet")))

    def test_times_have_one_form(self):
        for tag, text, *rules in [
                (0x17, "260131235959Z"), (0x17, "2601312359Z", "seconds"), (0x17, "2601312359-0100", "seconds", "zone"),
                (0x17, "260132000000Z", "form"), (0x17, "500229000000Z", "form"), (0x17, "000229000000Z"),
                (0x17, "260131235959", "form"), (0x17, "260131235959+01", "form"), (0x17, "2601312359599Z", "form"),
                (0x18, "20260131235959Z"), (0x18, "20260131235959.5Z"), (0x18, "20260131235959.50Z", "fraction"),
                (0x18, "20260131235959,5Z", "point"), (0x18, "20260131235959.Z", "form"),
                (0x18, "2026013123Z", "seconds"), (0x18, "20260131235959", "zone"), (0x18, "20260131235959+01", "zone"),
                (0x18, "20260131235959+2400", "form"), (0x18, "20260131240000Z", "form"), (0x18, "00000229000000Z"),
                (0x18, "", "form")]:
            with self.subTest(text):
                found = [rule for _, rule in findings(der.wrap(tag, text.encode()))]
                self.assertEqual([rule.split("-")[-1] for rule in found], rules)

    def test_sets_may_be_ordered_by_tag_or_by_encoding(self):
        for components, rule in [
                ("020101 020102", None), ("020102 020101", "set-of-order"), ("020101 020101", None),
                ("0400 0400 020101", "set-order"), ("3000 130141", None), ("130141 3000", None),
                ("130141 3000 0500", "set-order"), ("0201ff 02020080", None), ("02020080 0201ff", "set-of-order"),
                ("8000 a100 4100", "set-order"), ("0500 c000 8000", "set-order")]:
            found = findings(der.wrap(0x31, bytes.fromhex(components)))
            self.assertEqual([name for _, name in found], [rule] if rule else [], components)

    def test_faults_end_the_search_in_the_element_around_only(self):
        self.check_found(
            ("300a 30030204ff 0101ff 0201", (4, "length-fits"), (10, "length-fits")),
            ("300a 3004 30800500 02020001", (5, "definite-length"), (8, "end-of-contents"), (10, "integer-minimal")),
            ("3009 30040000ff00 010101", (4, "no-end-of-contents"), (10, "boolean-true")),
            ("3005 0280 010101", (2, "primitive-length")),
            ("3007 300204ff 010101", (5, "reserved-length"), (8, "boolean-true")),
            ("3080 010101", (1, "definite-length"), (4, "boolean-true"), (5, "end-of-contents")))

    def test_encodings_inside_strings_are_judged_unless_they_make_no_sense(self):
        for octets, found in [("0405 3003010101", [(6, "boolean-true")]), ("0306 003003010101", [(7, "boolean-true")]),
                              ("0405 3003010201", []), ("0403 010203", [])]:
            self.assertEqual(findings(bytes.fromhex(octets)), found)
            self.assertEqual(findings(bytes.fromhex(octets), "--no-dig"), [])


def encoded(identifier, *parts):
    octets = [bytes.fromhex(part) if isinstance(part, str) else part for part in (identifier, *parts)]
    return der.wrap(*octets)


def extension(identifier, value, critical=""):
    return encoded("30", encoded("06", identifier), critical, encoded("04", value))


FALSE, KEY_ALGORITHM, TIME = "010100", "300d06092a864886f70d0101010500", encoded("17", b"260101000000Z")
KEY_USAGE = "300b 0603551d0f 0404"
NOT_CRITICAL = extension("551d13", "3003 010100", FALSE)
KEY = encoded("30", KEY_ALGORITHM, encoded("03", "00", "3006 020105 020103"))
EXTENSIONS = encoded("30", NOT_CRITICAL, extension("551d1e", "300a a008 3006 820161 800100"))
TBS = encoded("30", "a003020100 020101", KEY_ALGORITHM, "3000", encoded("30", TIME, TIME), "3000", KEY,
              encoded("a3", EXTENSIONS))
CERTIFICATE = encoded("30", TBS, KEY_ALGORITHM, "03020001")
IN_CERTIFICATE = ["version", "extensions[0].critical", "extensions[0].extnValue.BasicConstraints.cA",
                  "extensions[1].extnValue.NameConstraints.permittedSubtrees[0].minimum"]


def typed(octets, *arguments):
    """[(offset, path, rule)] of one object."""
    return [(found["offset"], found["path"], found["rule"]) for found in found_in(octets, *arguments)]


class Typed(Case):
    def test_what_only_the_type_tells_is_found_under_it(self):
        for name, octets, *found in [
                ("BasicConstraints", "3003 010100", (2, ".cA", "default-value")), ("BasicConstraints", "3003 0101ff"),
                ("BasicConstraints", "3003 020100"), ("GeneralSubtree", "3006 820161 810100"),
                ("GeneralSubtree", "3006 820161 800100", (5, ".minimum", "default-value")),
                ("GeneralSubtree", "3007 820161 80020005", (7, ".minimum", "integer-minimal")),
                ("GeneralNames", "300a 8201ff 8701ff a202 0400", (4, "[0].dNSName", "alphabet"),
                 (8, "[2].dNSName", "primitive-string")),
                ("IssuingDistributionPoint", "3003 810101", (4, ".onlyContainsUserCerts", "boolean-true")),
                ("IssuingDistributionPoint", "3004 83020560"),
                ("IssuingDistributionPoint", "3004 83020460", (5, ".onlySomeReasons", "named-bits")),
                ("PrivateKeyUsagePeriod", encoded("30", encoded("81", b"2026010100Z")),
                 (14, ".notAfter", "gentime-seconds")),
                ("Extension", KEY_USAGE + "03020106"),
                ("Extension", KEY_USAGE + "03020006", (12, ".extnValue", "named-bits")),
                ("Extension", encoded("30", "0603551d0f 0405 0303070600"), (13, ".extnValue", "named-bits")),
                ("Extension", encoded("30", "0603551d0f 0403 030100")), ("Extension", KEY_USAGE + "03020102"),
                ("Extension", encoded("30", "0603551d13", FALSE, "2407 0405 3003 010100"),
                 (7, ".critical", "default-value"), (10, None, "primitive-string")),
                ("ATSHashIndex", "300a 3004 0402cafe 3000 3000"),  # the algorithm, of the same tag, is left out
                ("BasicConstraints", "3080 010100 0000", (1, None, "definite-length"), (2, ".cA", "default-value"))]:
            octets = bytes.fromhex(octets) if isinstance(octets, str) else octets
            with self.subTest(octets.hex()):
                ours = [(offset, path.removeprefix(name) if path.startswith(name) else None, rule)
                        for offset, path, rule in typed(octets, "-t", name)]
                self.assertEqual(sorted(ours), sorted(found))

    def test_elements_of_a_set_under_a_tag_of_its_own_have_an_order(self):
        values = [encoded("30", "06092a864886f70d0109" + last, "3103 0c0162") for last in ("01", "02")]
        for order, found in [(values, []), (values[::-1], ["Request.certificationRequestInfo.attributes[1]"])]:
            request = encoded("30", encoded("30", "020100 3000", KEY, encoded("a0", *order)), KEY_ALGORITHM, "03020001")
            self.assertEqual([path.removeprefix("Certification") for _, path, _ in typed(request)], found)

    def test_types_are_known_by_label_by_sight_and_by_name(self):
        found, expected = typed(CERTIFICATE), ["Certificate.tbsCertificate." + each for each in IN_CERTIFICATE]
        self.assertEqual([(CERTIFICATE[offset:offset + 3].hex(), path) for offset, path, _ in found],
                         list(zip(["a00302", FALSE, FALSE, "800100"], expected)))
        self.assertEqual([path for _, path, _ in typed(CERTIFICATE, "--no-dig")], expected[:2])
        self.assertEqual(typed(extension("2a03", "3003 010100", FALSE)), [], "might be anything")
        for label, code in [("CERTIFICATE", 1), ("X509 CRL", 0), ("NO LABEL", 1)]:
            text = f"-----BEGIN {label}-----\n{base64.b64encode(CERTIFICATE).decode()}\n-----END {label}-----\n"
            self.check(Run("check", data=text.encode()), code)
        self.check(Run("check", "-t", "CertificateList", data=CERTIFICATE), 1, "tbsCertList")
        self.check(Run("check", "-t", "Certificat", data=CERTIFICATE), 2, "did you mean")

    def test_forms_of_ber_do_not_hide_or_add_what_the_type_tells(self):
        for form, changed in variants(CERTIFICATE).items():
            paths = [path for _, path, _ in typed(changed) if path.startswith("Certificate")]
            kept = IN_CERTIFICATE if form in ("all", "outer") else IN_CERTIFICATE[:2]
            self.assertEqual(paths, ["Certificate.tbsCertificate." + each for each in kept], form)


class RealFiles(Case):
    PUBLISHED = pathlib.Path("/usr/share/ca-certificates/mozilla")

    @unittest.skipUnless(PUBLISHED.is_dir(), "no published certificates on this machine")
    def test_published_certificates_break_no_rule_but_one_of_named_bits(self):
        run = Run("check", "--json", "-r", str(self.PUBLISHED))
        self.assertEqual(run.err, "")  # key usages may go on after the last bit set
        self.assertLessEqual({record["finding"]["rule"] for record in run.records()}, {"named-bits"})

    @unittest.skipUnless(shutil.which("openssl"), "needs the openssl command")
    def test_conversion_goes_through_every_form_and_guesses_labels(self):
        (self.path / "data").write_bytes(b"x" * 200)
        for command in [
                "req -x509 -newkey rsa:1024 -nodes -keyout key.pem -out cert.pem -subj /CN=a",
                "cms -sign -in data -signer cert.pem -inkey key.pem -outform PEM -out cms.pem -nodetach -binary",
                "req -new -key key.pem -subj /CN=r -out req.pem", "crl2pkcs7 -nocrl -certfile cert.pem -out p7.pem",
                "pkcs8 -topk8 -in key.pem -passout pass:x -out encrypted.pem",
                "pkey -in key.pem -pubout -out public.pem", "ecparam -name prime256v1 -genkey -noout -out ec.pem",
                "x509 -in cert.pem -trustout -addtrust serverAuth -out trusted.pem"]:
            der.openssl(*command.split(), cwd=self.path)
        for path in self.path.glob("*.pem"):
            text = path.read_text().replace("BEGIN CMS", "BEGIN PKCS7").replace("END CMS", "END PKCS7")
            octets = Run("convert", "--to", "der", str(path)).raw
            for form in ("pem", "hex", "base64"):
                run = Run("convert", "--to", form, str(path))
                self.check(run, 0)
                self.assertEqual(Run("convert", "--to", "der", data=run.raw).raw, octets)
            if path.name != "trusted.pem":  # two encodings, of which the second has no look of its own
                self.assertEqual(Run("convert", "--to", "pem", data=octets).out, text[text.index("-----BEGIN"):], path)
        octets = Run("convert", "--to", "der", str(self.path / "cms.pem")).raw
        self.assertEqual(findings(octets), [])
        for form, changed in variants(octets).items():
            rules = {rule for _, rule in findings(changed, "--no-dig")}
            self.assertIn("primitive-string" if "segments" in form else "definite-length", rules, form)
            self.assertLessEqual(rules, {"definite-length", "primitive-string", "set-of-order"}, form)


class Command(Case):
    def test_findings_are_lines_for_people_and_for_programs(self):
        path = self.file("a.der", bytes.fromhex("3003010101"))
        run = Run("check", path)
        self.check(run, 1)
        self.assertEqual(run.out, f"{path}: offset 4, SEQUENCE[0].BOOLEAN: found 01; expected FF for TRUE, 00 for "
                                  "FALSE (X.690 11.1, boolean-true)\n")
        self.assertEqual(Run("check", "--json", path).records(), [
            {"source": path, "index": 0, "offset": 0, "length": 5, "finding": {
                "offset": 4, "path": "SEQUENCE[0].BOOLEAN", "rule": "boolean-true", "clause": "X.690 11.1",
                "found": "01", "expected": "FF for TRUE, 00 for FALSE"}}])
        self.check(Run("check", data=NULL), 0)
        self.assertIn("object 1 at 2: offset 0: found 1 octet after an encoding", Run("check", data=NULL + b"\x30").out)

    def test_exit_codes_tell_findings_from_files_that_cannot_be_read(self):
        bad, none, text = self.file("bad", b"\1\1\1"), str(self.path / "none"), self.file("text", "text, no more")
        for arguments, code in [([bad], 1), ([none], 3), ([bad, none], 5), ([text], 1), (["--dep", bad], 2)]:
            self.assertEqual(Run("check", *arguments).code, code, arguments)
        self.assertEqual(Run("check", "--json", bad, none).records()[1]["error"]["exit"], 3)

    def test_conversion_says_what_it_needs(self):
        self.assertEqual(Run("convert", "--to", "hex", data=NULL + b"\x02\x01\x05").out, "0500\n020105\n")
        self.assertEqual(Run("convert", "--to", "pem", "--label", "X Y", data=NULL).out,
                         "-----BEGIN X Y-----\nBQA=\n-----END X Y-----\n")
        octets = der.octet_string(bytes(45)) * 3 + NULL
        lines = textwrap.fill(base64.b64encode(octets).decode(), 64) + "\n"
        self.assertEqual(Run("convert", "--to", "base64", data=octets).out, lines)
        target = self.path / "out"
        for arguments, data, code, message in [
                (["--to", "pem"], NULL, 2, "name it with --label"), ([], NULL, 2, "it needs --to der, pem"),
                (["--to", "der", "--label", "A"], NULL, 2, "for --to pem only"),
                (["--to", "pem", "--label", "A-B"], NULL, 2, "cannot be the label"),
                (["--to", "hex", "-o", str(target)], b"\x30\x80\x05\0", 1, "offset 4"),
                (["--to", "text"], NULL, 2, "one of der, pem, hex, base64")]:
            self.check(Run("convert", *arguments, data=data), code, message)
        self.assertFalse(target.exists())
        self.check(Run("convert", "--to", "der", "-o", str(target), data=b"0500"), 0)
        self.assertEqual(target.read_bytes(), NULL)

    def test_octets_go_to_a_terminal_only_when_asked_to(self):
        for arguments, code in [(["convert", "--to", "der"], 2), (["convert", "--to", "der", "-o", "-"], 0),
                                (["convert", "--to", "hex"], 0), (["der"], 2)]:
            done, _ = on_terminal(arguments, b'{"type":"NULL"}' if arguments == ["der"] else NULL)
            self.assertEqual(done.returncode, code, (arguments, done.stderr))


if __name__ == "__main__":
    unittest.main()
