#!/usr/bin/env python3
"""Real files through the command.

Environment: QUARN is the command, QUARN_CORPUS the folder that tests/corpus/make_corpus.py made. Files
are handed to the command by the folder, so that a few runs cover hundreds of files.
"""

import json
import os
import pathlib
import random
import re
import sys
import unittest

from test_quarn import Case, Run

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "corpus"))

import der  # noqa: E402

CORPUS = pathlib.Path(os.environ.get("QUARN_CORPUS", "/nonexistent"))
# An error, or a constructed element of a universal type without a name, which is shown only.
NO_DOCUMENT = re.compile(r', "error": |"UNKNOWN", "user defined": \{"identifier": "\w+"\}')
# Types, tags and times that real files do not have: from openssl asn1parse -genconf.
STRANGE = bytes.fromhex(
    "307a1e060061006200631c0c000000640000006500000066180f32303530303130313030303030305a020a80000000000000"
    "0000000304064400405f876803616263e50abf8180000583036162630a01ff3103010100040830061204313220330306001a"
    "03616263170d3530303130313030303030305a1b03616263")


# The forms of BER that nobody's tools write.

def cut_up(string, size, indefinite):
    """A string as constructed segments; the last two of several in a segment of their own."""
    unused, body = (string.content[:1], string.content[1:]) if string.identifier == 3 else (b"", string.content)
    parts = [body[i:i + size] for i in range(0, len(body), size)]
    parts = [(b"\0" if unused else b"") + part for part in parts[:-1]] + [unused + part for part in parts[-1:]]
    segments, constructed = [der.wrap(string.tag, part) for part in parts], string.identifier | 0x20
    if len(segments) > 2:
        segments[-2:] = [der.wrap(constructed, *segments[-2:], indefinite=indefinite)]
    return der.wrap(constructed, *segments, indefinite=indefinite)


def encode(octets, indefinite, segment=0, depth=0):
    """Encodings in another form: of indefinite length at the depths of which indefinite(depth) says so, with strings
    cut up into segments of a size."""
    form, changed = indefinite(depth), b""
    for element in der.elements(octets):
        if element.identifier & 0x20:
            changed += der.wrap(element.tag, encode(element.content, indefinite, segment, depth + 1), indefinite=form)
        elif segment and element.identifier in (3, 4):
            changed += cut_up(element, segment, form)
        else:
            changed += element.octets
    return changed


def variants(octets):
    return {"all": encode(octets, lambda depth: True), "outer": encode(octets, lambda depth: depth == 0),
            "odd": encode(octets, lambda depth: depth % 2 == 1, 5), "segments": encode(octets, lambda depth: False, 1),
            "allsegments": encode(octets, lambda depth: True, 16)}


@unittest.skipUnless(CORPUS.is_dir(), "no corpus")
class Files(Case):
    def setUp(self):
        super().setUp()
        files = [*sorted(CORPUS.glob("*/*.der"))[::12], *CORPUS.glob("*/several*.der")]
        self.made = {f"{path.parent.name}-{path.name}": path.read_bytes() for path in files}
        self.made |= {"strange": STRANGE, "two": STRANGE + STRANGE}

    def write_all(self, files):
        for name, octets in files.items():
            self.file(f"files/{name}", octets)
        return str(self.path / "files")

    def records(self, folder, *arguments):
        run = Run("json", "--lines", "-r", *arguments, folder)
        self.assertEqual(run.err, "")
        records = {}
        for record in run.records():
            records.setdefault(os.path.basename(record["source"]), []).append(record)
        bad = any("error" in each for found in records.values() for each in found)
        self.assertIn(run.code, (1, 5) if bad else (0,))
        return records

    def octets_of(self, records):
        """By file, what the documents describe; files that make no document are left out."""
        lines = {name: "".join(json.dumps(record) + "\n" for record in found) for name, found in records.items()}
        lines = {name: text for name, text in lines.items() if not NO_DOCUMENT.search(text)}
        run = Run("der", "--hex", data="".join(lines.values()).encode())
        self.check(run, 0)
        octets = iter(run.lines)
        return {name: b"".join(bytes.fromhex(next(octets)) for _ in records[name]) for name in lines}

    def check_same(self, files):
        folder = self.write_all(files)
        records = self.records(folder)
        found = self.octets_of(records)
        self.assertEqual([name for name in files if found.get(name) != files[name]], [])
        documents = Run("json", "-r", folder)
        self.assertEqual(Run("der", data=documents.raw).raw, b"".join(files[name] for name in sorted(files)))
        return records

    def test_real_files_come_back_octet_for_octet(self):
        self.assertGreater(len(self.made), 50)
        records = self.check_same(self.made)
        self.assertEqual([name for name, found in records.items() if len(found) > 1], ["two"])

    def test_every_ber_form_of_a_file_comes_back_as_it_was(self):
        in_der = [name for name in self.made if b"\x30\x80" not in self.made[name]]
        samples = {name.split("-")[0]: name for name in in_der}.values()  # one of each type
        self.check_same({f"{name}-{form}": octets for name in samples
                         for form, octets in variants(self.made[name]).items()})

    def test_damaged_files_are_shown_as_what_they_say_or_refused_with_the_place_of_the_fault(self):
        chance, files = random.Random(1), {f"cut{place}": STRANGE[:place] for place in range(1, len(STRANGE), 5)}
        least_bad = len(files)
        for sample, octets in [("strange", STRANGE), ("segments", variants(STRANGE)["allsegments"])]:
            for place, octet in enumerate(octets):
                flipped = octet ^ chance.choice([1 << chance.randrange(8), 0x80, 0xFF, chance.randrange(1, 256)])
                files[f"{sample}{place}"] = octets[:place] + bytes([flipped]) + octets[place + 1:]
        folder = self.write_all(files)
        records = self.records(folder, "--in-form", "der")
        self.assertEqual(records.keys(), files.keys())
        errors = [(name, record) for name, found in records.items() for record in found if "error" in record]
        for name, record in errors:
            self.assertIn(record["error"]["exit"], (1, 4), name)
            self.assertLessEqual(record["error"]["offset"], record["length"], name)
        self.assertGreater(len({name for name, _ in errors}), least_bad)
        # An unfinished object identifier or a long form of a short length is not kept, but all else is.
        changed = [name for name, octets in self.octets_of(records).items() if octets != files[name]]
        self.assertLess(len(changed), len(files) // 20)
        run = Run("dump", "-r", "--in-form", "der", folder)
        messages = [line for line in run.err.splitlines() if line.startswith("quarn ")]
        self.assertEqual(run.code, 5)
        self.assertGreater(len(messages), least_bad)
        for message in messages:
            self.assertRegex(message, r": offset \d+ \(0x[0-9a-f]+\): found ")
        for command in ("dump", "check"):  # also where the form is guessed
            self.assertIn(Run(command, "-r", folder).code, (1, 5))


if __name__ == "__main__":
    unittest.main()
