"""C and C++ text in lines of at most 100 columns, laid out as clang-format would."""

import textwrap

WIDTH = 100


def declaration(opening, items, closing):
    """opening(item, item)closing, broken where it is too long."""
    line = opening + ", ".join(items) + closing
    if len(line) <= WIDTH:
        return line
    if len(opening) > WIDTH:
        end = opening.rindex(" ") + (2 if "*" in opening else 1)
        return opening[:end].rstrip() + "\n" + declaration(opening[end:], items, closing)
    indent = " " * len(opening)
    lines = [("" if position == 0 else indent) + item for position, item in enumerate(items)]
    lines[0] = opening + lines[0]
    end = [","] * (len(items) - 1) + [closing]
    aligned = [line + tail for line, tail in zip(lines, end)]
    if max(len(line) for line in aligned) <= WIDTH:
        return "\n".join(aligned)
    rest = "    " + ", ".join(items) + closing
    if len(rest) <= WIDTH:
        return opening + "\n" + rest
    return opening + "\n" + "\n".join("    " + item + tail for item, tail in zip(items, end))


def call(opening, items, closing):
    """The same for arguments, which share lines."""
    lines = [opening]
    indent = " " * len(opening)
    for position, item in enumerate(items):
        text = item + (closing if position == len(items) - 1 else ",")
        blank = "" if lines[-1] in (opening, indent) else " "
        if len(lines[-1] + blank + text) > WIDTH:
            lines.append(indent)
            blank = ""
        lines[-1] += blank + text
    return "\n".join(lines)


def comment(parts):
    """A documentation comment of paragraphs; a list of lines stands as it is. Lines that start with @ follow close."""
    if len(parts) == 1 and len(parts[0]) <= WIDTH - len("/**  */"):
        return f"/** {parts[0]} */"
    lines = ["/**"]
    for position, part in enumerate(parts):
        tagged = [isinstance(one, str) and one.startswith("@") for one in parts[max(position - 1, 0):position + 1]]
        if position and not all(tagged):
            lines.append(" *")
        if isinstance(part, str):
            indent = " " * (part.index("  ") + 2) if tagged[-1] and "  " in part else ""
            part = textwrap.wrap(part, WIDTH - 3, subsequent_indent=indent, break_on_hyphens=False)
        lines += [f" * {line}".rstrip() for line in part]
    return "\n".join([*lines, " */"])


def paragraphs(lines):
    """Lines of text with blank lines between paragraphs; one that starts with @ begins one too."""
    made = [""]
    for line in lines:
        if not line or line.startswith("@"):
            made.append("")
        made[-1] += (" " if made[-1] and line else "") + line
    return [paragraph for paragraph in made if paragraph]


def c_string(text):
    escaped = text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n")
    return f'"{escaped}"'
