#!/usr/bin/env python3
"""The command `quarn` as a person runs it: output, messages and exit codes.

Environment: QUARN is the command; QUARN_COMPLETION and QUARN_MAN are what was made from its table of
options, tested when they are set.
"""

import base64
import ctypes
import json
import os
import pathlib
import pty
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "corpus"))

import der  # noqa: E402

QUARN = os.environ.get("QUARN", "quarn")
ENVIRONMENT = {"PATH": os.environ["PATH"], "LC_ALL": "C", "TERM": "xterm"}
SEQUENCE = bytes.fromhex("3003020105")
NULL = bytes.fromhex("0500")
# SEQUENCE { OID commonName, UTF8String with every kind of hidden character }
HOSTILE_TEXT = "a\x1b[31m\u202eb\u2028c\x7f\x85\ufeffd\r\ne".encode() + b"\xff\xc0\x80"
HOSTILE = der.wrap(0x0C, HOSTILE_TEXT)


class Run:
    """One run of the command."""

    def __init__(self, *arguments, data=b"", **variables):
        done = subprocess.run([QUARN, *arguments], input=data, capture_output=True, timeout=300,
                              env={**ENVIRONMENT, **variables}, check=False)
        self.code, self.raw = done.returncode, done.stdout
        self.out = done.stdout.decode("utf-8", "replace")
        self.err = done.stderr.decode("utf-8", "replace")
        self.lines = self.out.splitlines()

    def records(self):
        return [json.loads(line) for line in self.lines]


def on_small_stack(command, octets):
    return subprocess.run(["sh", "-c", 'ulimit -s 256; exec "$0" "$@"', QUARN, *command], input=octets,
                          capture_output=True, timeout=300, env=ENVIRONMENT, check=False)


def as_owner(command):
    """A run that may read what its files' modes allow, also when root runs the tests."""
    system = ctypes.CDLL(None)
    return subprocess.run([QUARN, *command], capture_output=True, text=True, timeout=300, env=ENVIRONMENT, check=False,
                          preexec_fn=lambda: [system.prctl(24, right) for right in (1, 2)])


def on_terminal(command, octets, term="xterm"):
    """What came of a run, and the first octets that its terminal got."""
    master, slave = pty.openpty()
    done = subprocess.run([QUARN, *command], input=octets, stdout=slave, stderr=subprocess.PIPE,
                          env={**ENVIRONMENT, "TERM": term}, check=False)
    os.write(slave, b"\n")
    found = os.read(master, 4096)
    os.close(master)
    os.close(slave)
    return done, found


class Case(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = pathlib.Path(self.folder.name)

    def file(self, name, content):
        path = self.path / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return str(path)

    def check(self, run, code, *err):
        self.assertEqual(run.code, code, run.err + run.out)
        for text in err:
            self.assertIn(text, run.err)
        if not err:
            self.assertEqual(run.err, "")


class CommandLine(Case):
    def test_help_and_version_go_to_standard_output(self):
        self.assertRegex(Run("--version").out, r"^quarn \d+\.\d+\.\d+\n.*\nlibquarn_util \d")
        self.assertEqual(Run("json", "--help").out, Run("help", "json").out)
        for command in ("json", "der", "decode", "cms", "dump", "check", "convert", "types", "error", "help"):
            self.assertIn(f"  {command} ", Run("--help").out)

    def test_usage_errors_are_one_line_with_a_hint(self):
        for arguments, text in [
                (["jsno"], "did you mean 'json'?"), (["dump", "--deph=3"], "did you mean '--depth'?"),
                (["json", "--in-form", "foo"], "one of auto, der, pem, base64, hex"),
                (["json", "--compact=3"], "--compact takes no value"), (["dump", "--depth", "-1"], "number from 0 up"),
                (["dump", "--width", "99999999999999999999"], "number from 0 up"), (["der", "-o"], "needs a value"),
                (["der", "--pem", "A", "--hex"], "exclude each other"),
                (["der", "--pem", "A\nB"], "cannot be the label"), (["types", "a", "b"], "unexpected operand 'b'"),
                (["error"], "CODE"), (["error", "0x102zz"], "no code"), (["help", "dmup"], "did you mean 'dump'?"),
                (["\x1b[2J"], r"unknown command '\u{1B}[2J'"), (["no", "dump"], "unknown command 'no'"),
                (["--depth", "0", "dump"], "quarn: unknown option '--depth'")]:
            with self.subTest(arguments):
                run = Run(*arguments)
                self.check(run, 2, text, "--help")
                self.assertEqual((run.out, run.err.count("\n")), ("", 1))
        self.check(Run(), 2, "quarn --help")

    @unittest.skipUnless("QUARN_COMPLETION" in os.environ, "no completion to test")
    def test_bash_completion_offers_commands_options_and_values(self):
        def complete(*words):
            script = (f"source {os.environ['QUARN_COMPLETION']}; COMP_WORDS=({' '.join(words)} '');"
                      f"COMP_WORDS[{len(words) - 1}]={words[-1]}; COMP_CWORD={len(words) - 1};"
                      "_quarn; echo ${COMPREPLY[*]}")
            return der.run("bash", "-c", script).decode().split()
        for *words, found in [("d", "der decode dump"), ("json", "--co", "--compact --color"),
                              ("json", "--in-form", "d", "der"), ("convert", "--to", "h", "hex")]:
            self.assertEqual(complete("quarn", *words), found.split())

    @unittest.skipUnless("QUARN_MAN" in os.environ and shutil.which("man"), "no man page to test")
    def test_man_page_has_no_warnings_and_every_option(self):
        done = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", os.environ["QUARN_MAN"]],
                              capture_output=True, check=True, env={**ENVIRONMENT, "MANWIDTH": "100"})
        self.assertEqual(done.stderr, b"")
        for option in ("--in-form", "--recursive", "--lines", "--no-dig", "--pem", "--label", "EXIT STATUS"):
            self.assertIn(option, done.stdout.decode())


class Input(Case):
    def test_every_form_is_found_by_itself(self):
        pem = "explanation\n-----BEGIN X-----\nMAMCAQU=\n-----END X-----\n"
        for form, text in [("der", SEQUENCE), ("hex", b"0x30 03:02\n01 05\n"), ("hex", b"3003020105"),
                           ("base64", b"MAMCAQU=\n"), ("base64", b"MAMC\nAQU"),
                           ("pem", pem.encode()), ("pem", pem.replace("\n", "\r\n").encode())]:
            for arguments in ([], ["--in-form", form]):
                with self.subTest(text=text, arguments=arguments):
                    run = Run("json", "--compact", *arguments, data=text)
                    self.check(run, 0)
                    self.assertEqual(json.loads(run.out)["value"], [{"type": "INTEGER", "value": 5}])

    def test_text_that_happens_to_be_well_formed_is_text(self):
        pem = der.octet_string(b"\n-----BEGIN X-----\nMAMCAQU=\n-----END X-----\n")  # this one is not
        for text in (base64.b64encode(b"\x04\x59" + b"c" * 89), b"0432" + b"A0" * 50, pem):
            self.assertEqual(Run("dump", "--in-form=der", data=text).code, 0, text)
            self.assertEqual(json.loads(Run("json", data=text).out)["type"], "OCTETSTRING")

    def test_several_objects_have_indexes_and_offsets(self):
        pem = self.file("two.pem", "-----BEGIN A-----\nBQA=\n-----END A-----\ntext\n"
                                   "-----BEGIN B-----\nBQ!A=\n-----END B-----\n"
                                   "-----BEGIN C-----\nMAMCAQU=\n-----END C-----\n")
        found = Run("json", "--lines", pem)
        self.check(found, 5)
        first, bad, last = found.records()
        start = pathlib.Path(pem).read_text().index("-----BEGIN C")
        self.assertEqual([first["index"], first["offset"], last["index"], last["offset"]], [0, 0, 2, start])
        self.assertEqual((first["label"], bad["error"]["exit"], last["label"]), ("A", 1, "C"))
        records = Run("json", "--lines", data=NULL + SEQUENCE + b"\x30\x80\x05\0\0\0" + b"\n").records()
        self.assertEqual([(r["offset"], r["length"]) for r in records], [(0, 2), (2, 5), (7, 6), (13, 1)])
        self.assertIn("error", records[3])

    def test_bad_text_is_refused_with_its_offset(self):
        for form, text, message in [("hex", b"30 0g", "offset 4: 'g' is no hexadecimal digit"),
                                    ("hex", b"300", "odd number"), ("base64", b"MAM*", "offset 3"),
                                    ("pem", b"none", "holds no PEM block"), ("auto", b"A letter.\n", "is text, but"),
                                    ("auto", b"!" * 510 + "€".encode(), "is text, but neither PEM")]:
            with self.subTest(text):
                self.check(Run("json", "--in-form", form, data=text), 1, message)

    def test_files_that_cannot_be_read(self):
        for *arguments, code, text in [
                ("json", self.folder.name, 3, "is a directory; --recursive"),
                ("dump", self.file("empty", ""), 1, "the input is empty"),
                ("der", "none", 3, "none: cannot be opened: No such file"),
                ("dump", "--", "--none", 3, "--none: cannot be opened: No such file"), ("json", "dump", 3, "dump: ")]:
            self.check(Run(*arguments), code, text)

    def test_directories_are_walked_in_order_and_one_bad_file_hides_nothing(self):
        self.file("b", SEQUENCE)
        self.file("a/z", NULL)
        self.file("a/bad\x1b\u202e", b"\x30")
        os.symlink(self.path, self.path / "a/loop")
        run = Run("json", "--lines", "-r", self.folder.name)
        self.check(run, 5)
        names = [os.path.relpath(r["source"], self.path) for r in run.records()]
        self.assertEqual(names, ["a/bad\x1b\u202e", "a/z", "b"])
        self.assertNotIn("\x1b", run.out)
        self.check(Run("dump", "-r", self.folder.name), 5, r"a/bad\u{1B}\u{202E}")

    def test_what_cannot_be_opened_hides_nothing(self):
        for name in ("a/1", "closed/2", "z/3"):
            self.file(name, NULL)
        os.symlink("loop", self.path / "loop")
        os.chmod(self.path / "closed", 0)
        self.addCleanup(os.chmod, self.path / "closed", 0o700)
        below = os.open(self.path, os.O_RDONLY)
        for _ in range(17):  # together longer than a path may be
            os.mkdir("d" * 250, dir_fd=below)
            self.addCleanup(os.close, below)
            below = os.open("d" * 250, os.O_RDONLY, dir_fd=below)
        self.addCleanup(os.close, below)
        run = as_owner(["json", "--lines", "-r", str(self.path / "closed/2"), str(self.path / "loop"), "n" * 5000,
                        self.folder.name])
        records = [json.loads(line) for line in run.stdout.splitlines()]
        self.assertEqual((run.returncode, run.stderr), (5, ""))
        self.assertEqual(sorted(os.path.basename(r["source"])[:6] for r in records if "error" in r),
                         ["2", "closed", "dddddd", "loop", "nnnnnn"])
        self.assertEqual({r["error"]["exit"] for r in records if "error" in r}, {3})
        self.assertEqual([r["source"][-3:] for r in records if "error" not in r], ["a/1", "z/3"])


class Json(Case):
    def test_errors_in_documents_are_shown_with_their_place(self):
        for text, *message in [
                ('{"type":"SEQUENCE",\n "value":[,]}', "line 2, column 11, offset 30", "          ^"),
                ('{"type":"NULL"', "offset 14", "ends in the middle"), ("", "holds no JSON"),
                ("garbage", "line 1, column 1, offset 0"),
                ('{"type":"SET","value":[{"type":"NULL"},{"type":"SET","value":[{"type":"N\\u001b"}]}]}',
                 "/value/1/value/0", '{"type":"N'),
                ('{"source":"a","error":{}}', "reports an error")]:
            with self.subTest(text):
                run = Run("der", data=text.encode())
                self.check(run, 1, *message)
                self.assertNotIn("\x1b", run.err)

    def test_output_file_is_replaced_only_when_all_went_well(self):
        target = pathlib.Path(self.file("out", "old"))
        target.chmod(0o640)
        link = self.path / "link"
        link.symlink_to(target)
        self.check(Run("der", "-o", str(link), data=b'{"type":"NIL"}'), 1, "no encoding")
        self.assertEqual(target.read_bytes(), b"old")
        self.check(Run("der", "-o", str(link), data=b'{"type":"NULL"}'), 0)
        self.assertEqual((target.read_bytes(), target.stat().st_mode & 0o777, link.is_symlink()), (NULL, 0o640, True))
        self.assertEqual(sorted(os.listdir(self.path)), ["link", "out"])
        run = Run("der", "--pem", "X Y", "-o", "/dev/stdout", data=b'{"type":"NULL"}')
        self.assertEqual(run.out, "-----BEGIN X Y-----\nBQA=\n-----END X Y-----\n")
        self.check(Run("der", "-o", str(self.path / "no/out"), data=b"{}"), 3, "cannot be written")


class Dump(Case):
    def rows(self, octets, *arguments):
        run = Run("dump", *arguments, data=octets)
        self.check(run, 0)
        return [" ".join(line.split()) for line in run.lines[1:]]

    def test_values_are_shown_for_people(self):
        for octets, row in [
                ("010100", "BOOLEAN FALSE"), ("010101", "BOOLEAN TRUE (0x1)"), ("0201ff", "INTEGER -1"),
                ("02087fffffffffffffff", "INTEGER 9223372036854775807"), ("0200", "INTEGER (no INTEGER)"),
                ("0209008000000000000000", "INTEGER (9 octets) 00 80 00 00 00 00 00 00 00"),
                ("03020520", "BIT STRING (3 bits) '001'B"), ("03020920", "BIT STRING (no BIT STRING) 09 20"),
                ("06082b06010505070201",
                 "OID 1.3.6.1.5.5.7.2.1 cps (policy qualifier: certification practice statement)"),
                ("06028001", "OID (no OID that can be shown) 80 01"),
                ("0d0187", "RELATIVE-OID (no RELATIVE-OID that can be shown) 87"),
                ("170d3439313233313233353935395a", "UTCTime 2049-12-31 23:59:59 UTC"),
                ("170d3530303130313030303030305a", "UTCTime 1950-01-01 00:00:00 UTC"),
                ("181532303236303130313132303030302e352b30313030", "GeneralizedTime 2026-01-01 12:00:00.5+0100"),
                ("17023131", "UTCTime (no time) '11'"), ("1c040001f600", "UniversalString '\U0001f600'"),
                ("800161", "[0] (1 octet) 61"), ("8203612e62", "[2] 'a.b'"), ("5f8101026162", "[APPLICATION 129] 'ab'"),
                ("0403010203", "OCTET STRING (3 octets) 01 02 03"), ("0400", "OCTET STRING (empty)")]:
            with self.subTest(octets):
                self.assertIn(row, self.rows(bytes.fromhex(octets))[0])

    def test_strings_that_hold_encodings_are_opened_with_absolute_offsets(self):
        octets = bytes.fromhex("300d04053003020105030400050100")
        self.assertEqual([row.split()[0] for row in self.rows(octets)], ["0", "2", "4", "6", "9"])
        self.assertIn("OCTET STRING encapsulates", self.rows(octets)[1])
        self.assertEqual(len(self.rows(octets, "--no-dig")), 3)
        self.assertEqual(len(self.rows(octets, "--depth", "1")), 3)
        self.assertIn("encapsulates", self.rows(bytes.fromhex("0306003003020105"))[0])

    def test_everything_up_to_a_fault_is_shown(self):
        run = Run("dump", data=bytes.fromhex("3080020105300404"))
        self.check(run, 1, "offset 7 (0x7)", "path      SEQUENCE[1].SEQUENCE[0]\n",
                   "[04]", "library   0x10103")
        self.assertEqual(len(run.lines), 4)

    def test_nothing_hidden_in_text_reaches_the_terminal(self):
        named = der.sequence(der.context(2, HOSTILE_TEXT, primitive=True))
        for arguments, data in [("dump", HOSTILE), ("json", HOSTILE), ("json --lines", HOSTILE),
                                *((f"decode -t GeneralNames {more}", named) for more in ("", "--json", "--lines"))]:
            out = Run(*arguments.split(), data=data).raw.replace(b"\n", b"")
            self.assertTrue(out.decode().isprintable(), arguments)
        text = HOSTILE_TEXT[:-3]  # without what is no UTF-8
        for arguments in (["json"], ["json", "--compact"], ["json", "--lines"]):
            run = Run(*arguments, data=der.wrap(0x0C, text))
            self.assertIn(json.dumps(text.decode()).casefold(), run.out.casefold())
        run = Run("decode", "--json", "-t", "utf8string", data=der.wrap(0x0C, text))
        self.assertEqual(json.loads(run.out), text.decode())
        shown = Run("dump", data=HOSTILE).lines[1]
        self.assertIn(r"'a\u{1B}[31m\u{202E}b\u{2028}c\u{7F}\u{85}\u{FEFF}d\r\ne\xFF\xC0\x80'", shown)

    def test_colour_follows_option_and_environment(self):
        for arguments, variables, colored in [
                ([], {}, False), (["--color=always"], {}, True), ([], {"CLICOLOR_FORCE": "1"}, True),
                ([], {"CLICOLOR_FORCE": "1", "NO_COLOR": "1"}, False), ([], {"CLICOLOR_FORCE": "0"}, False),
                (["--color=never"], {"CLICOLOR_FORCE": "1"}, False)]:
            run = Run("dump", *arguments, data=NULL, **variables)
            self.assertEqual("\x1b[" in run.out, colored, (arguments, variables))
        for term, colored in (("xterm", True), ("dumb", False)):
            self.assertEqual(b"\x1b[" in on_terminal(["dump"], NULL, term)[1], colored, term)


class Errors(Case):
    def test_each_fault_is_named_with_place_and_expectation(self):
        for octets, offset, path, found in [
                ("3004020401020304", 2, "SEQUENCE[0].INTEGER", "INTEGER with 4 octets"),
                ("30023080", 4, "SEQUENCE[0].SEQUENCE[0]", "the end of the element around it"),
                ("3080020105", 5, "SEQUENCE[1]", "the end of the input"), ("308000810000", 2, None, "not 00 00"),
                ("300405000000", 4, "SEQUENCE[1].END-OF-CONTENTS", "nothing of indefinite length"),
                ("02800000", 0, "INTEGER", "primitive INTEGER of indefinite length"),
                ("1f0100", 0, None, "tag number 1 in the long form"), ("04ff", 1, None, "length octet FF"),
                ("1fffffffffffffffffffff7f00", 0, None, "more than 64 bits"),
                ("0489ffffffffffffffffff", 1, None, "does not fit 63 bits"),
                ("048440000000", 0, "OCTET STRING", "1073741824 octets"),
                ("3004010201ff", 2, "SEQUENCE[0].BOOLEAN", "primitive BOOLEAN with 2 octets"),
                ("a080100200000000", 2, "[0][0].SEQUENCE", "primitive SEQUENCE")]:
            with self.subTest(octets):
                error = Run("json", "--lines", "--in-form=der", data=bytes.fromhex(octets)).records()[0]["error"]
                self.assertEqual((error["exit"], error["offset"]), (1, offset), error)
                self.assertIn(found, error["found"])
                self.assertTrue(error["expected"] and error["octets"]["hex"], error)
                self.assertIn(path, (None, error.get("path")))

    def test_deep_nesting_ends_well_on_a_small_stack(self):
        depth, definite = 50000, b""
        for _ in range(depth):
            definite = der.sequence(definite)
        text = on_small_stack(["json", "--compact"], definite).stdout
        self.assertEqual(on_small_stack(["der"], text).stdout, definite)
        indefinite = b"\x30\x80" * depth + b"\0\0" * depth
        extension = der.extension("1.2.3", indefinite)
        for command, octets, code, lines in [
                (["dump", "--color=never"], indefinite, 0, 2 * depth + 1),
                (["check", "--in-form=der"], indefinite, 1, depth),
                (["check", "--in-form=der"], der.wrap(0x30, b"\1\1\1" * depth), 1, depth),
                (["decode", "-t", "Extension"], extension, 0, depth + 4),
                (["decode", "-t", "Extension", "--compact"], extension, 0, 1)]:
            done = on_small_stack(command, octets)
            self.assertEqual((done.returncode, done.stdout.count(b"\n"), done.stderr), (code, lines, b""), command)
            self.assertLess(len(done.stdout), 400 * depth)
        done = on_small_stack(["json"], indefinite)
        self.assertEqual(done.returncode, 4)
        self.assertIn(b"128 elements of indefinite length", done.stderr)

    def test_a_broken_standard_output_ends_the_run(self):
        with open("/dev/full", "wb") as full:
            for arguments in (["types"], ["json"], ["--help"]):
                done = subprocess.run([QUARN, *arguments], input=SEQUENCE, stdout=full, stderr=subprocess.PIPE,
                                      env=ENVIRONMENT, check=False)
                self.assertEqual(done.returncode, 3)
                self.assertIn(b"cannot write to the standard output: No space left", done.stderr)
        self.file("many/1", der.wrap(4, bytes(99999)))
        self.file("many/2", der.wrap(4, bytes(99999)))
        for command, out in [('exec "$@" /dev/full', "/dev/full: No space left on device"),
                             ('ulimit -f 8; exec "$@" out', "out: File too large")]:
            done = subprocess.run(["sh", "-c", command, "-", QUARN, "convert", "--to=hex", "-r", "many", "-o"],
                                  cwd=self.path, capture_output=True, text=True, env=ENVIRONMENT, check=False)
            self.assertEqual((done.returncode, done.stderr), (3, f"quarn: cannot write to {out}\n"))
            self.assertEqual(os.listdir(self.path), ["many"])
        script = 'set -o pipefail; (sleep 0.1; printf "\\5\\0") | "$0" dump | true'
        done = subprocess.run(["bash", "-c", script, QUARN], capture_output=True, env=ENVIRONMENT, check=False)
        self.assertEqual((done.returncode, done.stderr), (128 + 13, b""))


class Tables(Case):
    def test_types_are_found_by_part_of_the_name_and_by_pattern(self):
        self.assertEqual(len(Run("types").lines), 421)
        validity = Run("types", "validity").out
        for text in ("    Validity ::= SEQUENCE {\n", "stands in   TBSCertificate.validity", "quarn_x509validity_new"):
            self.assertIn(text, validity)
        self.assertIn("bindRequest           BindRequest,", Run("types", "protocolop").out)  # which has no id
        self.assertIn("[APPLICATION 16] IMPLICIT INTEGER\n\nstands in   ProtocolOp.", Run("types", "349").out)
        self.assertIn("ReducedHashtree, ", Run("types", "OctetStrings").out)  # by the second of its ids
        clearance, = json.loads(Run("types", "--json", "Clearance").out)
        self.assertIn("attribute 2.5.4.55", clearance["named_by"])
        self.assertEqual(clearance["components"][1],
                         {"name": "classList", "type_id": 3, "type": "BIT STRING", "tag": "", "presence": ""})
        rows = json.loads(Run("types", "--json", "*Time").out)
        self.assertEqual([row["name"] for row in rows][:3], ["time", "utctime", "gentime"])
        self.check(Run("types", "zzz"), 1, "no type's name matches 'zzz'")

    def test_codes_are_explained(self):
        run = Run("error", "0x10203", "66062", "0x10103", "0x10000")
        self.check(run, 0)
        for text in ("Bad length", "decode boolean fail", "decoding  boolean", "stream", "general",
                     "QUARN_STREAM_ERROR_END"):
            self.assertIn(text, run.out)
        self.assertEqual(Run("error", "--json", "0x1020d").records()[0]["encoding"], ["boolean"])
        self.check(Run("error", "1", "0x10203"), 5, "no library has a code 0x1")


if __name__ == "__main__":
    unittest.main()
