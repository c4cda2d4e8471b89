"""A small builder and reader of DER, so that the corpus needs no word of the library it tests."""

import itertools
import re
import subprocess


def wrap(identifier, *parts, indefinite=False):
    """One element: identifier octet (or octets), then the parts as its content."""
    content = b"".join(parts)
    head = bytes([identifier]) if isinstance(identifier, int) else identifier
    if indefinite:
        return head + b"\x80" + content + b"\0\0"
    size = len(content)
    long = size.to_bytes((size.bit_length() + 7) // 8, "big")
    return head + (bytes([size]) if size < 128 else bytes([0x80 | len(long)]) + long) + content


def sequence(*parts):
    return wrap(0x30, *parts)


def set_of(*parts):
    return wrap(0x31, *sorted(parts))


def context(number, *parts, primitive=False):
    return wrap((0x80 if primitive else 0xA0) | number, *parts)


def integer(value, identifier=2):
    return wrap(identifier, value.to_bytes((value + (value < 0)).bit_length() // 8 + 1, "big", signed=True))


def oid(text):
    first, second, *rest = map(int, text.split("."))
    content = b""
    for arc in [first * 40 + second, *rest]:
        groups = [arc & 0x7F]
        while arc := arc >> 7:
            groups.insert(0, 0x80 | arc & 0x7F)
        content += bytes(groups)
    return wrap(6, content)


def octet_string(octets):
    return wrap(4, octets)


def bit_string(octets, unused=0, identifier=3):
    return wrap(identifier, bytes([unused]), octets)


def text(words, identifier=0x0C):
    """A character string; the identifier chooses the type: UTF8String if none is given."""
    codings = {0x1E: "utf-16-be", 0x1C: "utf-32-be", 0x0C: "utf-8"}
    return wrap(identifier, words.encode(codings.get(identifier, "latin-1")))


def time(digits):
    """UTCTime or GeneralizedTime, by the number of digits."""
    return wrap(0x17 if len(digits) == 13 else 0x18, digits.encode())


def boolean(value):
    return wrap(1, b"\xff" if value else b"\0")


def rdn(*values):
    return set_of(*[sequence(oid(kind), value) for kind, value in values])


def name(*rdns):
    return sequence(*rdns)


def extension(kind, value, critical=False):
    return sequence(oid(kind), boolean(True) if critical else b"", octet_string(value))


def attribute(kind, *values):
    return sequence(oid(kind), set_of(*values))


SHA256 = sequence(oid("2.16.840.1.101.3.4.2.1"))
ECDSA_WITH_SHA256 = sequence(oid("1.2.840.10045.4.3.2"))


class Element:
    """One element of definite length that is read: first identifier octet, all of them, content, all octets of it."""

    def __init__(self, octets, at=0):
        self.identifier, start = octets[at], at + 1
        if self.identifier & 0x1F == 0x1F:
            while octets[start] & 0x80:
                start += 1
            start += 1
        self.tag, size, start = octets[at:start], octets[start], start + 1
        if size & 0x80:
            start += size & 0x7F
            size = int.from_bytes(octets[start - (size & 0x7F):start], "big")
        if start + size > len(octets):
            raise IndexError("an element is longer than what it is in")
        self.content, self.octets = octets[start:start + size], octets[at:start + size]

    def parts(self):
        return elements(self.content)


def elements(octets):
    """The elements that follow one another."""
    at, found = 0, []
    while at < len(octets):
        found.append(Element(octets, at))
        at += len(found[-1].octets)
    return found


def run(*command, cwd=None, data=b""):
    """Runs a command; its output, or an error that shows what it says."""
    command = [str(word) for word in command]
    try:
        done = subprocess.run(command, input=data, capture_output=True, cwd=cwd, timeout=60, check=False)
    except FileNotFoundError as error:
        raise RuntimeError(str(error)) from error
    if done.returncode != 0:
        raise RuntimeError(f"{' '.join(command)}: {done.stderr.decode()}")
    return done.stdout


def openssl(*arguments, **options):
    return run("openssl", *arguments, **options)


def recipes(lines):
    """First word, number and rest of each line, once for each choice out of every {a|b} in it."""
    for line in lines.strip().split("\n"):
        name, _, command = line.partition(" ")
        for number, parts in enumerate(itertools.product(*[part.split("|") for part in re.split("[{}]", command)])):
            yield name, number, "".join(parts)
