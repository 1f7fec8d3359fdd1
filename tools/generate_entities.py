#!/usr/bin/env python3
"""Writes the named character references of corvane/inline/generated/.

Input: the list of the HTML standard as html.entities.html5 of this Python has it. The list is closed: the
standard adds no names, so that any Python writes the same file.

The rows stand in the ASCII order of the published names, semicolons included. Names are then cut by their
last character, which in names that end in a semicolon is that, and otherwise a letter. So the rows do not
quite ascend, which the lookups count on; the checks here hold the list to its known figures.
"""

import argparse
import sys
from html.entities import html5
from itertools import pairwise
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
OUTPUT = ROOT / "corvane" / "inline" / "generated" / "Entities.cpp"
WIDTH = 110

HEADER = """\
// Written by tools/generate_entities.py; do not edit.
// The named character references of the HTML standard, by html.entities of Python.
#include "corvane/inline/Entity.h"

namespace Ondo::Inline {

"""


def table():
    """Rows of (name, first code point, second or 0)."""
    rows = []
    for published, text in sorted(html5.items()):
        first, second = map(ord, text.ljust(2, "\0"))
        rows.append((published[:-1], first, second))
    return rows


def check_figures(rows):
    names = [name for name, _, _ in rows]
    figures = {
        "rows": (len(rows), 2231),
        "names with a semicolon": (sum(name.endswith(";") for name in html5), 2125),
        "descents": (sum(a > b for a, b in pairwise(names)), 18),
        "equal neighbours": (sum(a == b for a, b in pairwise(names)), 3),
        "longest name": (max(map(len, names)), 31),
    }
    for what, (found, expected) in figures.items():
        assert found == expected, f"{what}: {found}, not {expected}"
    assert all(name.isascii() and name.isalnum() for name in names)
    assert all(0 < first <= 0x10FFFF and second <= 0xFFFF for _, first, second in rows)
    assert sum(map(len, names)) <= 0xFFFF


# C++


def wrapped(pieces, indent, joint):
    """The pieces on lines as long as may be."""
    lines = []
    for piece in pieces:
        if lines and len(lines[-1]) + len(joint) + len(piece) < WIDTH:  # leaves room for a quotation mark
            lines[-1] += joint + piece
        else:
            lines.append(indent + piece)
    return lines


def row_pieces(rows):
    start = 0
    for name, first, second in [*rows, ("", 0, 0)]:
        yield f"{{0x{first:X}, 0x{second:X}, {start}}},"
        start += len(name)


def source(rows):
    literals = [line + '"' for line in wrapped((name for name, _, _ in rows), '    u"', "")]
    return "\n".join([
        HEADER + "constinit const Entity::Row Entity::rows[] = {",
        *wrapped(row_pieces(rows), "    ", " "),
        "};\n\nconstinit const char16_t Entity::names[] =",
        *literals,
    ]) + ";\n\n} // namespace Ondo::Inline\n"


# Command


def main():
    parser = argparse.ArgumentParser(description=f"Writes {OUTPUT.relative_to(ROOT)}.")
    parser.add_argument("--check", action="store_true", help="compare with the committed file, write nothing")
    arguments = parser.parse_args()

    rows = table()
    check_figures(rows)
    text = source(rows)
    if not arguments.check:
        OUTPUT.parent.mkdir(parents=True, exist_ok=True)
        OUTPUT.write_bytes(text.encode())
    elif not OUTPUT.is_file() or OUTPUT.read_bytes().decode() != text:
        sys.exit(f"{OUTPUT.relative_to(ROOT)} is not what tools/generate_entities.py writes")


if __name__ == "__main__":
    main()
