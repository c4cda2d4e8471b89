"""C and C++ text in lines of at most 100 columns, laid out as clang-format would."""

import textwrap

WIDTH = 100


def declaration(opening, items, closing):
    """opening(item, item)closing, broken where it is too long."""
    line = opening + ", ".join(items) + closing
    if len(line) <= WIDTH:
        return line
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


def comment(text, indent=""):
    """A documentation comment of one paragraph."""
    line = f"{indent}/** {text} */"
    if len(line) <= WIDTH:
        return line
    lines = textwrap.wrap(text, WIDTH - len(indent) - 3, break_on_hyphens=False)
    return "\n".join([f"{indent}/**", *(f"{indent} * {one}" for one in lines), f"{indent} */"])


def block(paragraphs):
    """A documentation comment of paragraphs; a list of lines stands as it is."""
    lines = ["/**"]
    for position, paragraph in enumerate(paragraphs):
        if position:
            lines.append(" *")
        if isinstance(paragraph, str):
            paragraph = textwrap.wrap(paragraph, WIDTH - 3, break_on_hyphens=False)
        lines += [f" * {line}".rstrip() for line in paragraph]
    return "\n".join([*lines, " */"])


def paragraphs(lines):
    """Lines of text with blank lines between paragraphs."""
    made = []
    for line in [*lines, ""]:
        if line:
            made = [*made, line] if not made or made[-1] is None else [*made[:-1], made[-1] + " " + line]
        elif made and made[-1] is not None:
            made.append(None)
    return [paragraph for paragraph in made if paragraph is not None]
