#!/usr/bin/env python3
"""`quarn cms`: messages of openssl from files and pipes, and what is no message. QUARN is the command."""

import json
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

from test_quarn import QUARN, Case, Run, der

SIGN = "cms -sign -binary -in content -signer a.pem -inkey a.key -nosmimecap"
KEY = "-secretkey 000102030405060708090a0b0c0d0e0f"
SIGNED = "version digestAlgorithms contentInfo certificates signerInfos"
MESSAGES = [  # name, command, type, names of the parts
    ("signed", f"{SIGN} -nodetach", "SignedData", SIGNED),
    ("pieces", f"{SIGN} -nodetach -stream -indef", "SignedData", SIGNED),
    ("keyid", f"{SIGN} -nodetach -keyid -cades -nocerts", "SignedData", SIGNED.replace(" certificates", "")),
    ("detached", SIGN, "SignedData", SIGNED),
    ("enveloped", f"cms -encrypt -binary -in content -aes256 {KEY} -secretkeyid 0102 -pwri_password x -recip a.pem",
     "EnvelopedData", "version recipientInfos encryptedContentInfo"),
    ("encrypted", f"cms -EncryptedData_encrypt -binary -in content -aes128 {KEY}", "EncryptedData",
     "version encryptedContentInfo"),
    ("digested", "cms -digest_create -binary -in content", "DigestedData",
     "version digestAlgorithm contentInfo digest"),
    ("data", "cms -data_create -binary -in content", "ContentInfo", "contentType")]
CLEAR = ("signed", "pieces", "keyid", "digested", "data")
CONTENT = bytes(range(256)) * 700
SIGNED_LINES = r"""[0]  AlgorithmIdentifier 2.16.840.1.101.3.4.2.1 sha256
contentInfo       ContentInfo at 44 to 179270, content of 179200 octets in the element at 65 to 179270
[0]  certificate: Certificate subject CN=A\1B[31m,O=Ex; issuer CN=Root; serialNumber 18; notBefore 20
[0]  SignerInfo, names certificate [0]
sid                 issuerAndSerialNumber: IssuerAndSerialNumber issuer CN=Root; serialNumber 18
contentType           OID 1.2.840.113549.1.7.1 data
messageDigest         OCTET STRING (32 octets)
signatureAlgorithm  AlgorithmIdentifier 1.2.840.113549.1.1.1 rsaEncryption""".splitlines()


def message(kind, value):
    """A ContentInfo; kind is an object identifier, or octets that stand in its place."""
    return der.sequence(kind if isinstance(kind, bytes) else der.oid(kind), der.context(0, value))


@unittest.skipUnless(shutil.which("openssl"), "no openssl to make messages with")
class Messages(Case):
    @classmethod
    def setUpClass(cls):
        made = tempfile.TemporaryDirectory()
        cls.addClassCleanup(made.cleanup)
        cls.at = pathlib.Path(made.name)
        (cls.at / "content").write_bytes(CONTENT)
        for command in ("req -x509 -newkey rsa:2048 -nodes -keyout root.key -subj /CN=Root -days 9 -out root.pem",
                        "req -x509 -newkey rsa:2048 -nodes -keyout a.key -subj /O=Ex/CN=A\x1b[31m -set_serial 18"
                        " -out a.pem -CA root.pem -CAkey root.key",
                        *(f"{command} -outform DER -out {name}" for name, command, *_ in MESSAGES),
                        f"{SIGN} -nodetach -outform PEM -out pem"):
            der.openssl(*command.split(), cwd=cls.at)

    def octets(self, name):
        return (self.at / name).read_bytes()

    def document(self, octets):
        return json.loads(Run("cms", "--json", data=octets).out)

    def test_each_type_from_file_and_pipe(self):
        for name, _, kind, parts in MESSAGES:
            with self.subTest(name):
                run, octets = Run("cms", str(self.at / name)), self.octets(name)
                self.check(run, 0)
                self.assertEqual(Run("cms", data=octets).out, run.out)
                shown = [line.split()[0] for line in run.lines if line[:2] == "  " != line[2:4]]
                found = self.document(octets)
                self.assertEqual((found["type"], found["length"]), (kind, len(octets)))
                self.assertEqual([shown, list(found["value"])], [parts.split()] * 2)
                self.check_places(name, octets, found["places"])

    def check_places(self, name, octets, places):
        self.assertEqual("content" in places, name != "detached")
        if name not in ("detached", "pieces"):
            place = places["content"]
            held = octets[place["end"] - place["length"]:place["end"]]
            self.assertEqual((held == CONTENT, place["length"] >= len(CONTENT)), (name in CLEAR, True))
            self.assertEqual(octets[place["offset"]] & 0x1F, 0 if name in ("enveloped", "encrypted") else 4)
        if "signerInfos" in places:
            self.assertEqual(places["signerInfos"]["end"], len(octets) - (6 if name == "pieces" else 0))
            self.assertEqual(octets[places["signerInfos"]["offset"]], 0x31)

    def test_content_is_cut_out_whole_or_not_at_all(self):
        for name in (*CLEAR, "pem"):
            out = self.path / name
            self.check(Run("cms", "--content", str(out), data=self.octets(name)), 0)
            self.assertEqual(out.read_bytes(), CONTENT)
            self.assertEqual(Run("cms", "--content", "-", str(self.at / name)).raw, CONTENT)
        sealed, kept = self.octets("enveloped"), self.path / "kept"
        length = self.document(sealed)["places"]["content"]["length"]
        self.assertEqual(Run("cms", "--content", "-", data=sealed).raw, sealed[-length:])
        kept.write_text("before", encoding="ascii")
        signed = self.octets("signed")
        for octets in (signed[:-1], self.octets("pieces")[:99999], self.octets("detached"), signed + b"\0"):
            self.check(Run("cms", "--content", str(kept), data=octets), 1, "quarn cms: standard input: ")
            self.assertEqual(kept.read_text(encoding="ascii"), "before")
            self.assertEqual(sorted(os.listdir(self.path)), sorted((*CLEAR, "kept", "pem")))

    def test_content_outlives_what_ends_the_output_and_no_part_of_it_what_ends_the_input(self):
        signer = bytes.fromhex("301602010130053000020101300306012a300306012a0400")
        parts = bytes.fromhex("0201013100301006092a864886f70d010701a003040141"), der.set_of(*[signer] * 2000)
        signed = self.file("m", message("1.2.840.113549.1.7.2", der.sequence(*parts)))
        for end in (">&-", "| head -1 >&2", "2>&- >/dev/full"):
            out = self.path / "out"
            subprocess.run(f"{QUARN} cms --content {out} {signed} {end}", shell=True, capture_output=True, check=False)
            self.assertEqual(out.read_bytes(), b"A", end)
            out.unlink()
        for number in (signal.SIGTERM, signal.SIGXCPU):
            with subprocess.Popen([QUARN, "cms", "--content", str(self.path / "out")],
                                  stdin=subprocess.PIPE) as command:
                command.stdin.write(self.octets("pieces")[:170000])
                command.stdin.flush()
                while len(os.listdir(self.path)) < 2:
                    time.sleep(0.01)
                command.send_signal(number)
                self.assertEqual(command.wait(), -number)
            self.assertEqual(os.listdir(self.path), ["m"])

    def test_signers_and_recipients_are_named(self):
        run = Run("cms", data=self.octets("signed"))
        for line in SIGNED_LINES:
            self.assertTrue([each for each in run.lines if each.strip().startswith(line)], line)
        self.assertNotIn(b"\x1b", run.raw + Run("cms", "--json", data=self.octets("signed")).raw)
        value = self.document(self.octets("pem"))["value"]
        self.assertEqual(value["certificates"][0]["certificate"]["subject"], {"rfc4514": r"CN=A\1B[31m,O=Ex"})
        signer = value["signerInfos"][0]
        self.assertEqual([signer["certificate"], *[each["type"]["name"] for each in signer["signedAttrs"]]],
                         [0, "contentType", "signingTime", "messageDigest"])
        recipients = self.document(self.octets("enveloped"))["value"]["recipientInfos"]
        self.assertEqual([list(each)[0] for each in recipients], ["ktri", "kekri", "pwri"])

    def test_forms_that_openssl_does_not_make(self):
        octets, encrypted = self.octets("detached"), "301406092a864886f70d0107013004060255048001ff"
        sealed = bytes.fromhex("301f020100" + "3100" + "300406025504" + "300f06092a864886f70d010701a0020400" + "040101")
        both = bytes.fromhex("301f020101" + "3100" + "3100" + encrypted + "3100")
        for data, first, length in [
                (octets[octets.index(b"\xa0\x82") + 4:], "SignedData", None),
                (message("1.2.156.10197.6.1.4.2.2", octets[19:]), "SignedData in a ContentInfo, sm2-signedData", None),
                (message("1.2.840.113549.1.9.16.1.2", sealed), "AuthenticatedData in a ContentInfo, authData", 0),
                (message("1.2.840.113549.1.7.4", both),
                 "SignedAndEnvelopedData in a ContentInfo, signedAndEnvelopedData", 1)]:
            self.assertEqual(Run("cms", data=data).lines[:1], [f"{first}, {len(data)} octets"])
            self.assertEqual(self.document(data)["places"].get("content", {}).get("length"), length)

    def test_what_is_no_message_is_explained(self):
        signed, text = self.octets("detached"), self.octets("pem")
        for octets, *said in [
                (b"", "is empty"), (b"\x30", "after 1 octet"), (b"\x05\0", "found NULL", "expected  SEQUENCE"),
                (b"MIME-Version: 1.0\n\nx", "neither DER nor PEM", "S/MIME"),
                (signed[:-9], "OCTET STRING", "input has left"),
                (self.octets("signed")[:-9], "path      signerInfos[0].signature", "[end]", "0x10103"),
                (signed + signed, f"offset {len(signed)} ", "octets follow"), (text + text, "another message follows"),
                (b"\x30\x03" + signed[4:], "found the end of the SignedData", "expected  it at 5"),
                (message("1.2.840.113549.1.9.16.1.9", b""), "type 1.2.840.113549.1.9.16.1.9 compressedData"),
                (message("1.2.840.113549.1.9.16.1.4", b"\x30\0"), "1.9.16.1.4 tstInfo, which"),
                (message(b"\x06\x02\x2a\x86", b""), "found OID", "complete"),
                (message(b"\x06\x80\x2a\x03", b""), "of indefinite length"),
                (text[:-40], "PEM block is broken", "END line"),
                (text.replace(b"\nA", b"\n*", 1), "no character of base64"),
                (signed.replace(b"\x02\x01\x01", b"\x02\x88\x7f" + b"\xff" * 7, 1),
                 "found INTEGER with 9223372036854775807")]:
            self.check(Run("cms", data=octets), 1, "quarn cms: standard input: ", *said)
        for code, said, *arguments in [
                (2, "did you mean '--content'?", "--contnt", "x"), (2, "no JSON", "--content", "-", "--json", "x"),
                (3, "No such file", str(self.path / "none")), (3, "No space left", "--content", "/dev/full")]:
            self.check(Run("cms", *arguments, data=self.octets("signed")), code, said)
        deep = message("1.2.840.113549.1.7.1", b"\x24\x80" * 200 + b"\0\0" * 200)
        self.check(Run("cms", data=deep), 4, "found values nested too deep", "at most 128 inside one another")

    def test_a_large_message_through_a_pipe_needs_no_more_memory(self):
        octets, segment, memory = self.octets("pieces"), b"\x04\x82\xff\xff" + bytes(65535), []
        start, end = octets.index(b"\x24\x80") + 2, self.document(octets)["places"]["content"]["end"] - 2
        for count in (1, 3000):
            with subprocess.Popen([QUARN, "cms", "-c"], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as command:
                for piece in (octets[:start], *[segment] * count, octets[end:]):
                    command.stdin.write(piece)
                command.stdin.close()
                self.assertEqual(json.load(command.stdout)["places"]["content"]["length"], 65535 * count)
                _, command.returncode, used = os.wait4(command.pid, 0)
            self.assertEqual(command.returncode, 0)
            memory.append(used.ru_maxrss)
        self.assertLess(memory[1], memory[0] + 4096)


if __name__ == "__main__":
    unittest.main()
