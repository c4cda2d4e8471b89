"""What `openssl asn1parse` finds in files. All of a kind are read by one process: starting openssl is what costs."""

import re

from der import openssl


class Parsed:
    """An element as `openssl asn1parse` prints it, and those in it."""
    PATTERN = re.compile(r" *(\d+):d=(\d+) +hl=(\d+) +l= *(\d+|inf) +(prim|cons): (.{0,18})")

    def __init__(self, start, depth, header, length, form, what):
        self.start, self.depth, self.content = int(start), int(depth), int(start) + int(header)
        self.end = 0 if length == "inf" else self.content + int(length)
        self.constructed, self.what, self.parts = form == "cons", what.strip(), []

    def strings(self, octets):
        """Contents in hex of all primitive elements; the segments of an OCTET STRING are joined."""
        if not self.constructed:
            return [octets[self.content:self.end].hex().upper()]
        found = [string for part in self.parts if part.what != "EOC" for string in part.strings(octets)]
        segments = {part.what for part in self.parts} == {"OCTET STRING", "EOC"}
        return ["".join(found)] if segments or self.what == "OCTET STRING" else found


def elements(octets):
    """What openssl finds in encodings that follow one another."""
    found, levels = [], []
    for line in openssl("asn1parse", "-inform", "DER", data=octets).decode("utf-8", "replace").splitlines():
        if match := Parsed.PATTERN.match(line):
            element = Parsed(*match.groups())
            del levels[element.depth:]
            (levels[-1].parts if levels else found).append(element)
            if element.what == "EOC" and levels:
                levels[-1].end = element.end
            levels.append(element)
    return found


def facts(folders):
    """By "type/file", the contents of all primitive elements."""
    paths = [path for folder in folders for path in sorted(folder.glob("*.der"))]
    octets = b"".join(path.read_bytes() for path in paths)
    found = elements(octets)
    return {f"{path.parent.name}/{path.name}": element.strings(octets)
            for path, element in zip(paths, found, strict=True)}
