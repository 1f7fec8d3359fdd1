#!/usr/bin/env python3
"""Writes the Unicode functions of corvane/scan/generated/.

Inputs: the npm package @unicode/unicode-13.0.0, version 1.6.17, for general categories, bidirectional
classes, scripts and case folding; and the unicodedata module of this Python for canonical decompositions,
which never change once a character is assigned, so that any Python that knows Unicode 13 or later writes
the same files. `node` must be there to read the package.

Each function is a balanced tree of comparisons: a binary search for the last range that begins at or below
the character, written out in code. Unassigned code points and lone surrogates are in no class and map to
themselves.
"""

import argparse
import json
import os
import shutil
import subprocess
import sys
import unicodedata
from pathlib import Path

PACKAGE = "@unicode/unicode-13.0.0"
PACKAGE_VERSION = "1.6.17"
ROOT = Path(__file__).resolve().parent.parent
OUTPUT = ROOT / "corvane" / "scan" / "generated"
SURROGATES = range(0xD800, 0xE000)
COMBINING_MARKS = range(0x300, 0x370)

READ_PACKAGE = """
const folder = process.argv[1] + "/";
const ranges = name => Array.from(require(folder + name + "/ranges.js"), r => [r.begin, r.end]);
const pairs = name => Array.from(require(folder + name + "/code-points.js"), ([c, to]) => [c, [to].flat()]);
const named = (group, names) => Object.fromEntries(names.map(name => [name, ranges(group + "/" + name)]));
console.log(JSON.stringify({
    version: require(folder + "package.json").version,
    classes: {
        ...named("General_Category", [
            "Punctuation", "Open_Punctuation", "Close_Punctuation", "Symbol", "Currency_Symbol", "Decimal_Number",
            "Letter", "Unassigned"]),
        ...named("Bidi_Class", ["Left_To_Right", "Right_To_Left", "Arabic_Letter"]),
        ...named("Script", ["Latin", "Greek", "Cyrillic"])},
    common: pairs("Case_Folding/C"),
    full: pairs("Case_Folding/F")}));
"""


# Inputs


class Database:
    """The raw data: sets of code points, and maps from code points."""

    def __init__(self, package):
        data = json.loads(subprocess.check_output(["node", "-e", READ_PACKAGE, str(package.resolve())]))
        if data["version"] != PACKAGE_VERSION:
            sys.exit(f"{package} is version {data['version']}, not {PACKAGE_VERSION}")
        self.classes = {name: set_of(ranges) for name, ranges in data["classes"].items()}
        self.common_folding = {c: to[0] for c, to in data["common"]}
        self.full_folding = dict(data["full"])

    def union(self, *names):
        return set().union(*(self.classes[name] for name in names))

    def punctuation(self):
        """By category, but below U+0080 the ASCII punctuation of CommonMark, which has symbols in it."""
        ascii_set = {c for c in range(0x21, 0x7F) if not chr(c).isalnum()}
        return ascii_set | {c for c in self.classes["Punctuation"] if c >= 0x80}

    def base_letters(self):
        """What a letter with diacritics decomposes into first, if that is Latin, Greek or Cyrillic."""
        letters = self.union("Latin", "Greek", "Cyrillic") & self.classes["Letter"]
        bases = {}
        for c in range(0x10000):
            if c in SURROGATES or c in COMBINING_MARKS or c in self.classes["Unassigned"]:
                continue
            base = ord(unicodedata.normalize("NFD", chr(c))[0])
            if base != c and base in letters:
                bases[c] = base
        return bases


def set_of(ranges):
    return {c for begin, end in ranges for c in range(begin, end)} - set(SURROGATES)


# Segments: (first, last, value) in order, where value is the C++ expression for all of first..last


def class_segments(members):
    segments = []
    for c in sorted(members):
        if segments and segments[-1][1] == c - 1:
            segments[-1][1] = c
        else:
            segments.append([c, c, "true"])
    return segments


def map_segments(mapping, patterns, may_hold_fixed_points):
    """Covers the mapping by the longest runs that one of the patterns explains.

    A pattern takes a code point and what it and its successor map to, and answers a pair: a function that
    all of the run must obey, and its expression.
    """

    def value(c):
        return mapping.get(c, c if may_hold_fixed_points else None)

    segments = []
    for c in sorted(mapping):
        if segments and c <= segments[-1][1]:
            continue
        runs = []
        for pattern in patterns:
            function, expression = pattern(c, value(c), value(c + 1))
            end = c
            while value(end) is not None and value(end) == function(end):
                end += 1
            while end > c and end - 1 not in mapping:
                end -= 1
            runs.append((end - 1, expression))
        last, expression = max(runs, key=lambda run: run[0])
        segments.append([c, last, expression])
    return segments


def shifted(c, to, _):
    delta = to - c
    expression = f"c + {hex_of(delta)}" if delta > 0 else f"c - {hex_of(-delta)}"
    return lambda at: at + delta, expression


def next_of_pair(c, *_):
    """Capitals and small letters alternate, and each pair begins with its capital."""
    if c % 2 == 0:
        return lambda at: at | 1, "c | 1"
    return lambda at: at + at % 2, "c + (c & 1)"


def constant(_, to, __):
    return lambda at: to, char16_literal(to)


def alternating(c, to, next_to):
    """The bases of capitals and small letters by turns."""
    if next_to is None or chr(to).lower() != chr(next_to).lower():
        return constant(c, to, next_to)
    even, odd = (to, next_to) if c % 2 == 0 else (next_to, to)
    return lambda at: odd if at % 2 else even, f"alternating(c, {char16_literal(even)}, {char16_literal(odd)})"


# C++


def hex_of(c):
    return f"0x{c:X}"


def escaped(c):
    return chr(c) if 0x20 < c < 0x7F else f"\\u{c:04X}"


def char16_literal(c):
    return f"u'{escaped(c)}'"


def tree(segments, default, indent):
    """Lines for characters not below the first segment."""
    pad = "    " * indent
    if len(segments) == 1:
        (first, last, value), following = segments[0]
        if last + 1 == following:
            return [f"{pad}return {value};"]
        test = f"c == {hex_of(first)}" if first == last else f"c <= {hex_of(last)}"
        return [f"{pad}return {test};" if value == "true" else f"{pad}return {test} ? {value} : {default};"]
    middle = len(segments) // 2
    split = hex_of(segments[middle][0][0])
    left = tree(segments[:middle], default, indent + 1)
    right = tree(segments[middle:], default, indent)
    if len(left) == 1:
        return [f"{pad}if (c < {split}) {left[0].strip()}", *right]
    return [f"{pad}if (c < {split}) {{", *left, f"{pad}}}", *right]


def function(signature, segments, default):
    """A function with the characters of ASCII, the most frequent ones, split off first."""
    followers = [segment[0] for segment in segments[1:]] + [None]
    ascii_part = [s for s in zip(segments, followers) if s[0][0] < 0x80]
    rest = [s for s in zip(segments, followers) if s[0][0] >= 0x80]
    assert all(last < 0x80 for (_, last, _), _ in ascii_part)
    lines = [f"{signature} {{"]
    first = hex_of(segments[0][0])
    if ascii_part and rest:
        lines += ["    if (c < 0x80) {", f"        if (c < {first}) return {default};"]
        lines += tree(ascii_part, default, 2) + ["    }"]
        first = hex_of(rest[0][0][0])
    lines += [f"    if (c < {first}) return {default};", *tree(rest or ascii_part, default, 1), "}"]
    return "\n".join(lines)


def predicate(name, members):
    return function(f"bool {name}(char32_t c)", class_segments(members), "false")


def source(inputs, functions):
    header = (
        "// Written by tools/generate_unicode.py; do not edit.\n"
        f"// Unicode 13.0.0: {inputs}.\n"
        '#include "corvane/scan/Unicode.h"\n\nnamespace Ondo {\n\n'
    )
    return header + "\n\n".join(functions) + "\n\n} // namespace Ondo\n"


def from_package(what):
    return f"{what} of {PACKAGE} {PACKAGE_VERSION} (npm)"


def members_by_predicate(database):
    return {
        "isUnicodePunctuation": database.punctuation(),
        "isUnicodeOpenPunctuation": database.classes["Open_Punctuation"],
        "isUnicodeClosePunctuation": database.classes["Close_Punctuation"],
        "isUnicodeSymbol": database.classes["Symbol"],
        "isUnicodeCurrencySymbol": database.classes["Currency_Symbol"],
        "isUnicodeDecimalNumber": database.classes["Decimal_Number"],
        "isBidiLeftToRight": database.classes["Left_To_Right"],
        "isBidiRightToLeft": database.union("Right_To_Left", "Arabic_Letter"),
    }


def case_folding_functions(database):
    common = map_segments(database.common_folding, [shifted, next_of_pair], True)
    full = [
        [c, c, f'u"{"".join(map(escaped, to))}"sv']
        for c, to in sorted(database.full_folding.items())
    ]
    return [
        "using namespace std::string_view_literals;",
        function("char32_t commonCaseFolding(char32_t c)", common, "c"),
        function("std::u16string_view fullCaseFolding(char32_t c)", full, 'u""sv'),
    ]


def base_letter_functions(database):
    helper = (
        "static constexpr char16_t alternating(char16_t c, char16_t even, char16_t odd) {\n"
        "    return (c & 1) == 0 ? even : odd;\n}"
    )
    segments = map_segments(database.base_letters(), [constant, alternating], False)
    return [helper, function("char16_t baseLetter(char16_t c)", segments, "c")]


def sources(database):
    predicates = {name: predicate(name, members) for name, members in members_by_predicate(database).items()}
    categories = [text for name, text in predicates.items() if name.startswith("isUnicode")]
    bidi = [text for name, text in predicates.items() if name.startswith("isBidi")]
    return {
        "GeneralCategory.cpp": source(from_package("General_Category"), categories),
        "BidiClass.cpp": source(from_package("Bidi_Class"), bidi),
        "CaseFolding.cpp": source(from_package("Case_Folding"), case_folding_functions(database)),
        "BaseLetter.cpp": source(
            "decompositions of Python's unicodedata, " + from_package("categories and scripts"),
            base_letter_functions(database),
        ),
    }


# Summary of the raw data, for the tests


def checksum(numbers):
    total = 0
    for number in numbers:
        total = (total * 31 + number) % 2**64
    return total


def print_summary(database):
    """Count and checksum of each function, over all code points that are members or do not map to themselves."""
    rows = {name: sorted(members) for name, members in members_by_predicate(database).items()}
    sizes = {name: len(members) for name, members in rows.items()}
    mappings = {
        "commonCaseFolding": {c: [to] for c, to in database.common_folding.items()},
        "fullCaseFolding": database.full_folding,
        "baseLetter": {c: [to] for c, to in database.base_letters().items()},
    }
    for name, mapping in mappings.items():
        rows[name] = [number for c, to in sorted(mapping.items()) for number in (c, *to)]
        sizes[name] = len(mapping)
    for name, numbers in rows.items():
        print(f'{{"{name}", {sizes[name]}, 0x{checksum(numbers):016X}}},')


# Command


def write(files):
    OUTPUT.mkdir(parents=True, exist_ok=True)
    for name, text in files.items():
        (OUTPUT / name).write_bytes(text.encode())


def check(files):
    """The names of committed files that differ from what would be written, or should not be there."""
    committed = {path.name: path.read_bytes().decode() for path in OUTPUT.glob("*.cpp")}
    return sorted(name for name in files.keys() | committed.keys() if files.get(name) != committed.get(name))


def main():
    parser = argparse.ArgumentParser(description="Writes the Unicode functions of corvane/scan/generated/.")
    modules = Path(os.environ.get("CORVANE_NPM") or ROOT / "build" / "npm" / "node_modules")
    parser.add_argument("--package", type=Path, default=modules / PACKAGE, help=f"the folder of {PACKAGE}")
    parser.add_argument("--check", action="store_true", help="compare with the committed files, write nothing")
    parser.add_argument("--summary", action="store_true", help="print the rows that the tests compare with")
    arguments = parser.parse_args()
    if int(unicodedata.unidata_version.split(".")[0]) < 13:
        sys.exit(f"this Python knows only Unicode {unicodedata.unidata_version}")
    if not arguments.package.is_dir() or not shutil.which("node"):
        sys.exit(f"needs node and the folder {arguments.package}, from: npm install {PACKAGE}@{PACKAGE_VERSION}")

    database = Database(arguments.package)
    if arguments.summary:
        print_summary(database)
        return
    files = sources(database)
    if not arguments.check:
        write(files)
        return
    different = check(files)
    for name in different:
        print(f"corvane/scan/generated/{name} is not what tools/generate_unicode.py writes", file=sys.stderr)
    sys.exit(1 if different else 0)


if __name__ == "__main__":
    main()
