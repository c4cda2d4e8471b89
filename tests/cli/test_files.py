#!/usr/bin/env python3
"""Real files through the command: what certification authorities published and what openssl makes.

Environment: QUARN is the command, QUARN_CORPUS the folder that tests/corpus/make_corpus.py made. Files
are handed to the command by the folder, so that a few runs cover hundreds of files.
"""

import base64
import json
import os
import pathlib
import random
import re
import shutil
import subprocess
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor

QUARN = os.environ.get("QUARN", "quarn")
CORPUS = pathlib.Path(os.environ.get("QUARN_CORPUS", "/nonexistent"))
# An error, or a constructed element of a universal type without a name, which is shown only.
NO_DOCUMENT = re.compile(r', "error": |"UNKNOWN", "user defined": \{"identifier": "\w+"\}')
PUBLISHED = pathlib.Path("/usr/share/ca-certificates/mozilla")
# Types, tags and times that real files do not have: from openssl asn1parse -genconf.
STRANGE = bytes.fromhex(
    "307a1e060061006200631c0c000000640000006500000066180f32303530303130313030303030305a020a80000000000000"
    "0000000304064400405f876803616263e50abf8180000583036162630a01ff3103010100040830061204313220330306001a"
    "03616263170d3530303130313030303030305a1b03616263")


def run(*command, **more):
    done = subprocess.run(list(map(str, command)), capture_output=True, timeout=120, check=False, **more)
    return done.returncode, done.stdout, done.stderr.decode()


def quarn(*arguments, data=b""):
    return run(QUARN, *arguments, input=data)


def write_all(folder, files):
    folder.mkdir()
    for name, octets in files.items():
        (folder / name).write_bytes(octets)
    return folder


# An encoder of its own, for the forms of BER that nobody's tools write.

def parse(octets):
    """The DER encodings in the octets, each as (identifier octets, content octets or parsed list)."""
    found, at = [], 0
    while at < len(octets):
        start, at = at, at + 1
        if octets[start] & 0x1F == 0x1F:
            while octets[at] & 0x80:
                at += 1
            at += 1
        identifier, size, at = octets[start:at], octets[at], at + 1
        if size & 0x80:
            count = size & 0x7F
            size, at = int.from_bytes(octets[at:at + count], "big"), at + count
        content, at = octets[at:at + size], at + size
        found.append((identifier, parse(content) if identifier[0] & 0x20 else content))
    return found


def wrap(identifier, content, indefinite=False):
    if indefinite:
        return identifier + b"\x80" + content + b"\0\0"
    size = len(content)
    count = (size.bit_length() + 7) // 8
    return identifier + (bytes([size]) if size < 128 else bytes([0x80 | count]) + size.to_bytes(count, "big")) + content


def cut_up(identifier, content, size, indefinite):
    """A string as constructed segments; the last two of several in a segment of their own."""
    unused, body = (content[:1], content[1:]) if identifier == b"\x03" else (b"", content)
    parts = [body[i:i + size] for i in range(0, len(body), size)]
    parts = [(b"\0" if unused else b"") + part for part in parts[:-1]] + [unused + part for part in parts[-1:]]
    segments = [wrap(identifier, part) for part in parts]
    constructed = bytes([identifier[0] | 0x20])
    if len(segments) > 2:
        segments[-2:] = [wrap(constructed, b"".join(segments[-2:]), indefinite)]
    return wrap(constructed, b"".join(segments), indefinite)


def encode(parsed, indefinite, segment=0, depth=0):
    """The octets of parsed encodings; indefinite(depth) chooses the form, segment cuts up strings."""
    octets = b""
    for identifier, content in parsed:
        if isinstance(content, list):
            octets += wrap(identifier, encode(content, indefinite, segment, depth + 1), indefinite(depth))
        elif segment and identifier in (b"\x03", b"\x04"):
            octets += cut_up(identifier, content, segment, indefinite(depth))
        else:
            octets += wrap(identifier, content)
    return octets


def depth_of(parsed):
    return max((1 + depth_of(content) for _, content in parsed if isinstance(content, list)), default=0)


def variants(octets):
    parsed = parse(octets)
    depth = depth_of(parsed)
    found = {f"level{level}": encode(parsed, lambda at, level=level: at == level) for level in range(depth)}
    found |= {f"segments{size}": encode(parsed, lambda at: False, size) for size in (1, 7, 1000)}
    return found | {"all": encode(parsed, lambda at: True), "odd": encode(parsed, lambda at: at % 2 == 1, 5),
                    "allsegments": encode(parsed, lambda at: True, 16)}


def segments_of(value):
    for item in value:
        yield from segments_of(item["value"]) if item.get("constructed") else [item["value"]]


def plain(node):
    """The document with definite lengths and whole strings."""
    if isinstance(node, list):
        return [plain(item) for item in node]
    if not isinstance(node, dict):
        return node
    if node.get("constructed"):
        parts = list(segments_of(node["value"]))
        if node["type"] == "OCTETSTRING":
            return {"type": "OCTETSTRING", "value": "".join(parts)}
        return {"type": "BITSTRING", "value": {"unused bits": parts[-1]["unused bits"] if parts else 0,
                                               "value": "".join(part["value"] for part in parts)}}
    return {key: plain(value) for key, value in node.items() if key != "indefinite"}


SYNONYMS = {"OBJECT": "OID", "T61STRING": "TELETEXSTRING", "EOC": "END-OF-CONTENTS"}


def rows_of_openssl(path):
    """(offset, depth, header length, length, form, tag) of each element, as openssl reads them."""
    pattern = re.compile(r" *(\d+):d=(\d+) +hl=(\d+) +l= *(\d+|inf) +(cons|prim): (\S+(?: \[ \d+ \]| STRING)?)")
    out = run("openssl", "asn1parse", "-inform", "DER", "-in", path)[1].decode("utf-8", "replace")
    for match in filter(None, map(pattern.match, out.split("\n"))):  # other lines are more of a text
        offset, depth, head, length, form, tag = match.groups()
        tag = re.sub(r"^(?:cont|(appl|priv)) \[ (\d+) \]", lambda m: f"[{m[1] or ''}{m[2]}]", tag)
        yield (int(offset), int(depth) - (tag == "EOC"), int(head), length, form, SYNONYMS.get(tag, tag).upper())


def rows_of_quarn(paths):
    """The same from one run of the command, by path."""
    code, out, err = quarn("dump", "--no-dig", "--width", "20", *paths)
    assert (code, err) == (0, ""), err
    heading = re.compile(r"(.+): object \d+ at offset (\d+), \d+ octets?$")
    pattern = re.compile(r" *(\d+) +(\d+) +(\d+|indef)  (cons|prim)  ( *)(\[[^]]*\]|[A-Z]+ STRING|\S+)")
    rows, base = {}, 0
    for line in out.decode().splitlines():
        if match := heading.match(line):
            base = int(match[2])
            path = rows.setdefault(match[1], [])
        elif match := pattern.match(line):
            offset, head, length, form, indent, tag = match.groups()
            tag = tag.replace("APPLICATION ", "appl").replace("PRIVATE ", "priv").upper()
            path.append((base + int(offset), len(indent) // 2, int(head), length.replace("indef", "inf"), form, tag))
    return rows


@unittest.skipUnless(CORPUS.is_dir() and shutil.which("openssl"), "needs the corpus and openssl")
class Files(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.path = pathlib.Path(folder.name)
        files = [*sorted(CORPUS.glob("*/*.der"))[::12], *CORPUS.glob("*/*indef.der")]
        cls.made = {f"{path.parent.name}-{path.name}": path.read_bytes() for path in files}
        cls.made |= {"strange": STRANGE, "two": STRANGE + STRANGE}
        cls.folder = write_all(cls.path / "made", cls.made)

    def records(self, folder, *arguments):
        code, out, err = quarn("json", "--lines", "-r", *arguments, folder)
        self.assertEqual(err, "")
        self.assertIn(code, (0, 1, 5))
        records = {}
        for line in out.decode().splitlines():
            record = json.loads(line)
            records.setdefault(os.path.basename(record["source"]), []).append(record)
        self.assertEqual(code == 0, not any("error" in each for found in records.values() for each in found))
        return records

    def octets_of(self, records):
        """By file, what the documents describe; files that make no document are left out."""
        lines = {name: "".join(json.dumps(record) + "\n" for record in found) for name, found in records.items()}
        lines = {name: text for name, text in lines.items() if not NO_DOCUMENT.search(text)}
        code, out, err = quarn("der", "--hex", data="".join(lines.values()).encode())
        self.assertEqual((code, err), (0, "") if lines else (1, "quarn der: standard input: holds no JSON document\n"))
        octets = iter(out.decode().splitlines())
        return {name: b"".join(bytes.fromhex(next(octets)) for _ in records[name]) for name in lines}

    def check_same(self, found, expected):
        self.assertEqual([name for name in expected if found.get(name) != expected[name]], [])

    def check_folder(self, files, folder):
        records = self.records(folder)
        self.check_same(self.octets_of(records), files)
        code, out, err = quarn("json", "-r", folder)
        self.assertEqual((code, err), (0, ""))
        everything = b"".join(files[name] for name in sorted(files, key=os.fsencode))
        self.assertEqual(quarn("der", data=out), (0, everything, ""))
        return records

    def check_rows(self, paths):
        ours = rows_of_quarn(paths)
        with ThreadPoolExecutor(2) as pool:
            for path, theirs in zip(paths, pool.map(lambda path: list(rows_of_openssl(path)), paths)):
                self.assertEqual(ours[str(path)], theirs, path)

    @unittest.skipUnless(PUBLISHED.is_dir(), "no published certificates on this machine")
    def test_published_certificates_come_back_from_pem_and_from_der(self):
        files = {path.name: base64.b64decode(path.read_text().split("-----")[2])
                 for path in PUBLISHED.glob("*.crt")}
        self.assertGreater(len(files), 100)
        records = self.records(PUBLISHED)
        self.assertEqual({record["label"] for found in records.values() for record in found}, {"CERTIFICATE"})
        self.check_same(self.octets_of(records), files)
        folder = write_all(self.path / "published", files)
        self.check_folder(files, folder)
        self.check_rows([folder / name for name in sorted(files)[::9]])

    def test_what_openssl_makes_comes_back_octet_for_octet(self):
        self.assertGreater(len(self.made), 50)
        records = self.check_folder(self.made, self.folder)
        self.assertEqual([name for name, found in records.items() if len(found) > 1], ["two"])

    def test_rows_of_a_dump_agree_with_another_parser(self):
        self.check_rows([self.folder / name for name in sorted(self.made)[::2]])

    def test_every_ber_form_of_a_file_means_the_same(self):
        in_der = [name for name in self.made if b"\x30\x80" not in self.made[name]]
        for sample in {name.split("-")[0]: name for name in in_der}.values():  # one of each type
            with self.subTest(sample):
                files = {"der": self.made[sample], **variants(self.made[sample])}
                folder = write_all(self.path / f"ber-{sample}", files)
                records = self.check_folder(files, folder)
                for name, found in records.items():
                    self.assertEqual(plain(found[0]["document"]), records["der"][0]["document"], name)
                self.check_rows([folder / "all", folder / "allsegments"])

    def check_damaged(self, files, folder, least_bad):
        """Every damaged file is shown as what it says or refused with the place of the fault."""
        write_all(folder, files)
        records = self.records(folder, "--in-form", "der")
        self.assertEqual(records.keys(), files.keys())
        errors = [(name, record) for name, found in records.items() for record in found if "error" in record]
        for name, record in errors:
            self.assertIn(record["error"]["exit"], (1, 4), name)
            self.assertLessEqual(record["error"]["offset"], record["length"], name)
        self.assertGreaterEqual(len(errors), least_bad)
        # An unfinished object identifier or a long form of a short length is not kept, but all else is.
        changed = {name: octets for name, octets in self.octets_of(records).items() if octets != files[name]}
        self.assertLess(len(changed), 1 + len(files) // 20)
        again = self.records(write_all(self.path / f"{folder.name}-again", changed), "--in-form", "der")
        for name, found in again.items():
            self.assertEqual([each["document"] for each in found], [each["document"] for each in records[name]])
        for arguments in (["json", "--compact"], ["dump"]):
            code, _, err = quarn(*arguments, "-r", "--in-form", "der", folder)
            self.assertIn(code, (1, 5))
            messages = [line for line in err.splitlines() if line.startswith("quarn ")]
            self.assertGreaterEqual(len(messages), least_bad)
            for message in messages:
                self.assertRegex(message, r": offset \d+ \(0x[0-9a-f]+\): found ")
        self.assertIn(quarn("dump", "-r", folder)[0], (1, 5))  # also where the form is guessed
        self.assertIn(quarn("check", "-r", folder)[0], (1, 5))

    def test_truncated_files_are_refused_with_an_offset(self):
        octets = STRANGE
        places = [1, 2, 3, 4, 5, len(octets) - 1] + list(range(6, len(octets) - 1, len(octets) // 16))
        for place in places:
            code, out, err = quarn("json", "--in-form", "der", data=octets[:place])
            self.assertEqual((code, out), (1, b""), place)
            self.assertRegex(err, r"^quarn json: standard input: offset \d+ ", place)
        files = {str(place): octets[:place] for place in places}
        self.check_damaged(files, self.path / "truncated", len(files))

    def test_flipped_octets_never_end_the_command(self):
        chance = random.Random(1)
        for sample, octets in [("strange", STRANGE), ("segments", variants(STRANGE)["allsegments"])]:
            files = {}
            for place, octet in enumerate(octets):
                flipped = octet ^ chance.choice([1 << chance.randrange(8), 0x80, 0xFF, chance.randrange(1, 256)])
                files[str(place)] = octets[:place] + bytes([flipped]) + octets[place + 1:]
            with self.subTest(sample):
                self.check_damaged(files, self.path / f"flipped-{sample}", 1)


if __name__ == "__main__":
    unittest.main()
