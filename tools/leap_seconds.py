#!/usr/bin/env python3
"""Makes util/gen/leap_seconds.inc: the days that ended with an inserted leap second.

    tools/leap_seconds.py            write the table
    tools/leap_seconds.py --check    compare it with what would be written; exit 1 if it differs

The source is the IERS list as the tzdata package installs it. A line such as

    2287785600      11      # 1 Jan 1972

gives the seconds since 1900 from which on UTC is so many seconds behind atomic time. Each step by
one is a second inserted at the end of the day before.
"""

import datetime
import pathlib
import sys

SOURCE = pathlib.Path("/usr/share/zoneinfo/leap-seconds.list")
TARGET = pathlib.Path(__file__).resolve().parent.parent / "util/gen/leap_seconds.inc"


def insertions(lines):
    """The days that ended with 23:59:60, oldest first."""
    days = []
    offset = None
    for line in lines:
        fields = line.split("#")[0].split()
        if not fields:
            continue
        start = datetime.datetime(1900, 1, 1) + datetime.timedelta(seconds=int(fields[0]))
        behind = int(fields[1])
        if offset is not None:
            if behind != offset + 1:
                sys.exit(f"{SOURCE}: not an inserted second: {line.strip()}")
            days.append((start - datetime.timedelta(days=1)).date())
        offset = behind
    return days


def main(arguments):
    if arguments not in ([], ["--check"]):
        sys.exit(__doc__)
    if not SOURCE.exists():
        if arguments:
            print(f"{SOURCE} is not installed; nothing compared")
            return 0
        sys.exit(f"{SOURCE} is missing; the Debian package tzdata has it")
    days = insertions(SOURCE.read_text(encoding="ascii").splitlines())
    text = f"// Made from {SOURCE} by tools/leap_seconds.py; do not edit.\n"
    text += "".join(f"{{{day.year}, {day.month}, {day.day}}},\n" for day in days)
    if not arguments:
        TARGET.parent.mkdir(exist_ok=True)
        TARGET.write_text(text, encoding="ascii")
        return 0
    if TARGET.exists() and TARGET.read_text(encoding="ascii") == text:
        return 0
    print(f"{TARGET} differs from what {SOURCE} gives; run tools/leap_seconds.py", file=sys.stderr)
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
