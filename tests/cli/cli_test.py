#!/usr/bin/env python3
"""Tests the command from outside: cli_test.py PATH_TO_CORVANE"""

import json
import os
import pty
import random
import re
import subprocess
import threading
import unittest
from pathlib import Path

from command import COMMAND, CommandTest, run

WELCOME = Path(__file__).resolve().parents[2] / "examples" / "welcome.md"
RULES = ("commonmark", "extended", "simplified")

# Lone bytes, broken, overlong, surrogate and too large sequences, at the end and in the middle.
BAD_UTF8 = [
    b"\x80", b"ab\xff", b"a\xc3", b"a\xc3(", b"\xc0\x80", b"\xc1\xbf", b"\xe2\x82", b"\xe2\x82A", b"\xe0\x80\x80",
    b"ab\xed\xa0\x80", b"\xed\xbf\xbf", b"\xf0\x80\x80\x80", b"\xf0\x9f\x98", b"x\xf0\x9f\x98\xc3", b"\xf4\x90\x80\x80",
    b"\xf5\x80\x80\x80", b"\xc3\xa9\xf8", b"a" * (2**20 - 1) + b"\xc3(", b"a" * 2**20 + b"\xe2\x82",
]

NUMBERS = '"range" is not an array of two whole numbers'
BAD_LINES = [
    ("x", "not JSON"),
    ("{", "not JSON"),
    ("{'range':[0,0],'text':''}", "not JSON"),
    ('{"range":[0,0],"text":""} {}', "not JSON"),
    ('{"range":[0,0],"text":"a\tb"}', "not JSON"),
    (r'{"range":[0,0],"text":"\ud83d"}', "surrogate"),
    ('{"range":[0,0],"text":""}\0', "NUL"),
    ("[" * 1_000_000, "nested too deeply"),
    ('{"text":' + "[" * 1_000_000, "nested too deeply"),
    ('{"text":' * 1_000_000, "nested too deeply"),
    ("[]", "not an object"),
    ("null", "not an object"),
    ('{"range":[0,0]}', 'no member "text"'),
    ('{"text":""}', 'no member "range"'),
    ('{"range":[0,0],"text":"","more":1}', 'unknown member "more"'),
    ('{"range":[0,0],"text":"","te\\nxt":1}', "unknown member"),
    ('{"range":[0,0],"text":"","text":""}', "twice"),
    ('{"range":[0,0],"text":null}', '"text" is not a string'),
    ('{"range":[0,0],"text":["a"]}', '"text" is not a string'),
    ('{"range":{"a":1},"text":""}', NUMBERS),
    ('{"range":[0],"text":""}', NUMBERS),
    ('{"range":[0,0,0],"text":""}', NUMBERS),
    ('{"range":["0","0"],"text":""}', NUMBERS),
    ('{"range":[true,0],"text":""}', NUMBERS),
    ('{"range":[-1,0],"text":""}', NUMBERS),
    ('{"range":[0,0.5],"text":""}', NUMBERS),
    ('{"range":[0,1e2],"text":""}', NUMBERS),
    ('{"range":[0,9223372036854775808],"text":""}', NUMBERS),
    ('{"range":[0,123456789012345678901234567890],"text":""}', NUMBERS),
    ('{"range":[0,1e999],"text":""}', "too large"),
    ('{"range":[5,0],"text":""}', "outside the text of 4 code units"),
    ('{"range":[4,1],"text":""}', "outside"),
    ('{"range":[9223372036854775807,9223372036854775807],"text":""}', "outside"),
    ('{"range":[1,9223372036854775807],"text":""}', "outside"),
]

BAD_USAGE = [
    ([], "a command is missing"),
    (["--"], "a command is missing"),
    (["paint"], "no command paint"),
    ([""], "no command"),
    (["--paint"], "--paint"),
    (["html", "--paint"], "--paint"),
    (["html", "a", "b"], "b"),
    (["html", "--check"], "--check"),
    (["html", "--rules"], "--rules"),
    (["html", "--rules", "Extended"], "Extended"),
    (["html", "--rules", "1"], "--rules"),
    (["html", "--rules", "a\nb"], "--rules"),
    (["html", "--rules", "extended", "--rules", "extended"], "--rules"),
    (["edit"], "--script"),
    (["edit", "note.md", "--script"], "--script"),
    (["edit", "note.md", "--script", "s", "--print", "json"], "--print"),
    (["edit", "--script", "-"], "standard input"),
    (["edit", "-", "--script", "-"], "standard input"),
    (["annotate", "--range"], "--range"),
    (["annotate", "--range", ""], "--range"),
    (["annotate", "--range", "1"], "--range"),
    (["annotate", "--range", "1,"], "--range"),
    (["annotate", "--range", ",1"], "--range"),
    (["annotate", "--range", "-1,1"], "--range"),
    (["annotate", "--range", "+1,1"], "--range"),
    (["annotate", "--range", "1, 1"], "--range"),
    (["annotate", "--range", "1,1,1"], "--range"),
    (["annotate", "--range", "0x1,1"], "--range"),
    (["annotate", "--range", "0,9223372036854775808"], "--range"),
    (["annotate", "--range", "0,0", "--range", "0,0"], "--range"),
    (["show", "--color"], "--color"),
    (["show", "--color", "maybe"], "maybe"),
    (["show", "--check"], "--check"),
    (["type", "--every", "0"], "--every"),
    (["type", "--every", "-1"], "--every"),
    (["type", "--every", "1.5"], "--every"),
    (["type", "--every", "x"], "--every"),
    (["type", "--every", "99999999999999999999"], "--every"),
    (["op"], "NAME is missing; the names are indent, outdent, "),
    (["op", "bold", "--range", "0,0"], "there is no bold; the names are indent, "),
    (["op", "Indent", "--range", "0,0"], "there is no Indent"),
    (["op", "indent"], "--range is required"),
    (["op", "indent", "--range", "0,-1"], "--range"),
    (["op", "indent", "--range", "0,0", "--selection", "1"], "--selection"),
    (["op", "indent", "3", "note.md", "--range", "0,0"], "too many: note.md; the command is indent [FILE]"),
    (["op", "toggleInlineStyle", "--range", "0,0"], "STYLE is missing behind toggleInlineStyle"),
    (["op", "toggleInlineStyle", "note.md", "--range", "0,0"], "STYLE: note.md is not a number"),
    (["op", "updateWikiLinks", "a", "b", "1"], "SKIP_IN_TITLE: 1 is not yes or no"),
    (["op", "renameTag", "a"], "TO is missing behind renameTag"),
    (["op", "mutateTable", "1"], "--range is required"),
    (["op", "toggleInlineStyle", "-1", "--range", "0,0"], "STYLE: -1 is not a number"),
    (["op", "toggleInlineStyle", "0x1", "--range", "0,0"], "STYLE: 0x1"),
    (["op", "toggleBlockStyle", "99999999999999999999", "--range", "0,0"], "STYLE: 99999999999999999999"),
    (["op", "toggleBlockStyle", "1", "a", "b", "--range", "0,0"], "the command is toggleBlockStyle STYLE [FILE]"),
    (["correct"], "NAME is missing; the names are fencedCodeCorrectionIn, "),
    (["correct", "indent", "--range", "0,0", "--text", "a"], "there is no indent; the names are fenced"),
    (["correct", "calloutCorrectionIn", "--text", "a"], "--range is required"),
    (["correct", "selectionCorrectionIn", "--range", "0,0", "--text", "a"], "selectionCorrectionIn takes none"),
    (["correct", "calloutCorrectionIn", "--range", "0,0"], "--text is required"),
    (["correct", "calloutCorrectionIn", "--range", "0,0", "--text", "a\udcff"], "--text: invalid UTF-8 at byte offset 1"),
    (["correct", "calloutCorrectionIn", "a", "b"], "b"),
    (["keys"], "--script is required"),
    (["keys", "-", "--script", "-"], "standard input"),
    (["keys", "--script", "-", "--print", "text"], "--print"),
]

BAD_KEYS = [
    ("entre", "there is no key entre; the keys are text:TEXT, paste:TEXT, select:OFFSET,LENGTH, drag:OFFSET,LENGTH, enter, tab"),
    ("Enter", "there is no key Enter"),
    ("enter enter", "there is no key enter enter"),
    ("enter:2", "there is no key enter:2"),
    ("text", "the key is text:TEXT"),
    ("select*2", "the key is select:OFFSET,LENGTH"),
    ("left*", "how often"),
    ("left*0", "how often"),
    ("left*-1", "how often"),
    ("left*10001", "how often"),
    ("left*2x", "how often"),
    ("text:a\\", "escape"),
    ("text:\\x", "escape"),
    ("text:\\ud83d", "escape"),
    ("paste:\tb", "escape"),
    ("select:", "two whole numbers"),
    ("select:-1,0", "two whole numbers"),
    ("select:0,1 ", "two whole numbers"),
    ("select:5,0", "the range [5,0] reaches outside the text of 4 code units"),
    ("select:4,1", "outside"),
    ("select:9223372036854775807,9223372036854775807", "outside"),
]

# Drawn notes: what stands there, the keys, and what a person wants then. "‸" is the caret, "⟦…⟧" a selection.
DRAWN_KEYS = [
    # Text, as everywhere
    ("‸", ['text:a\\tb \\"c"', "paste:\\r\\nd"], 'a\tb "c"\nd‸'),
    ("a⟦b⟧c", ["text:x"], "ax‸c"),
    ("a⟦b⟧c", ["paste:"], "a‸c"),
    ("a⟦b⟧c", ["backspace"], "a‸c"),
    ("a⟦b⟧c", ["delete"], "a‸c"),
    ("a⟦b⟧c", ["enter"], "a\n‸c"),
    ("a😀‸😀b", ["backspace", "delete"], "a‸b"),
    ("a\r\n‸b", ["backspace"], "a‸b"),
    ("a‸\r\nb", ["delete"], "a‸b"),
    ("‸", ["backspace", "delete", "left", "right", "up", "down", "shift-tab"], "‸"),
    ("a‸b", ["tab"], "a\t‸b"),
    ("a‸b", ["shift-tab"], "a‸b"),
    # Arrows
    ("a⟦b⟧c", ["left"], "a‸bc"),
    ("a⟦b⟧c", ["right"], "ab‸c"),
    ("a😀\r\nb‸", ["left*2"], "a😀‸\r\nb"),
    ("‸a😀\r\nb", ["right*3"], "a😀\r\n‸b"),
    ("a😀c‸\n\nd\r\nefgh", ["down*3"], "a😀c\n\nd\r\nefg‸h"),
    ("a😀cd\n\nd\r\nefg‸h", ["up*3"], "a😀c‸d\n\nd\r\nefgh"),
    ("abc\nd‸\nef", ["up", "left", "down"], "abc\n‸d\nef"),
    ("ab\ncd‸", ["down"], "ab\ncd‸"),
    ("ab‸\ncd", ["up"], "‸ab\ncd"),
    # Styles
    ("‸", ["bold", "bold"], "‸"),
    ("a ‸", ["bold", "text:b", "bold", "text: c"], "a **b** c‸"),
    ("a ‸", ["bold", "text:b ", "italic", "text:c", "italic", "bold"], "a **b *c***‸"),
    ("a ‸", ["code", "text:*b", "code"], "a `*b`‸"),
    ("a ==b‸==", ["enter", "text:."], "a ==b==.‸"),
    ("one tw‸o three", ["bold"], "one **tw‸o** three"),
    ("one **tw‸o** three", ["bold"], "one tw‸o three"),
    ("a ⟦b c⟧ d", ["strikethrough"], "a ~~⟦b c⟧~~ d"),
    ("a ⟦b c⟧ d", ["strikethrough", "strikethrough"], "a ⟦b c⟧ d"),
    ("⟦one\ntwo⟧", ["italic"], "⟦*one*\n*two*⟧"),
    ("⟦one\ntwo⟧", ["italic", "italic"], "⟦one\ntwo⟧"),
    # Blocks
    ("# ti‸tle", ["heading-2"], "## ti‸tle"),
    ("## ti‸tle", ["heading-2"], "ti‸tle"),
    ("⟦a\nb⟧", ["bullets"], "⟦* a\n* b⟧"),
    ("⟦a\nb⟧", ["quote", "quote"], "⟦a\nb⟧"),
    ("a‸", ["tasks"], "- [ ] a‸"),
    ("x\n⟦a\nb⟧\ny", ["fence"], "x\n```\n⟦a\nb⟧\n```\ny"),
    ("x\n⟦a\nb⟧\ny", ["fence", "fence"], "x\n⟦a\nb⟧\ny"),
    ("> a\n> ⟦b⟧\n", ["fence"], "> a\n> ```\n> ⟦b⟧\n> ```\n"),
    ("a\n\n⟦b\nc⟧\n\nd", ["callout-tip", "callout-tip"], "a\n\n‸b\nc\n\nd"),
    ("> [!NOTE] a‸", ["callout-tip"], "> [!TIP] a‸"),
    # Enter
    ("- a‸b", ["enter"], "- a\n- ‸b"),
    ("- [x] a‸", ["enter"], "- [x] a\n- [ ] ‸"),
    ("> a‸", ["enter", "text:b"], "> a\n> b‸"),
    ("> a\n> ‸", ["enter"], "> a\n\n‸"),
    ("> - a‸", ["enter", "enter", "enter"], "> - a\n\n‸"),
    ("- ‸", ["enter"], "‸"),
    ("- a\n  - b‸", ["enter*3", "text:c"], "- a\n  - b\n\nc‸"),
    ("- a\r\n- b‸\r\n", ["enter", "text:c", "enter*2", "text:d"], "- a\r\n- b\n- c\n\nd‸\r\n"),
    ("> - [x] a‸", ["enter", "text:b"], "> - [x] a\n> - [ ] b‸"),
    ("> $$\n> a‸\n> $$", ["enter", "text:b"], "> $$\n> a\n> b‸\n> $$"),
    ("- ```\n  a‸\n  ```", ["enter", "text:b"], "- ```\n  a\n  b‸\n  ```"),
    ("| a |\n|---|\n| b |‸", ["enter", "text:c"], "| a |\n|---|\n| b |\nc‸"),
    ("# ‸a", ["enter"], "\n# ‸a"),
    ("```\na‸\n```\n", ["enter"], "```\na\n‸\n```\n"),
    # Tab
    ("- a\n- b‸", ["tab"], "- a\n  - b‸"),
    ("1. a\n2. b‸", ["tab"], "1. a\n   1. b‸"),
    ("- a\n  - b‸", ["shift-tab"], "- a\n- b‸"),
    # Backspace and delete
    ("## ‸a", ["backspace"], "‸a"),
    ("- a\n- ‸b", ["backspace"], "- a\n‸b"),
    ("> a\n> ‸b", ["backspace"], "> a‸b"),
    ("| a |\n|---|\n‸| b |", ["backspace"], "| a |\n|---|‸\n| b |"),
    ("‸## a", ["delete"], "‸# a"),
    ("> a‸\n> b", ["delete"], "> a‸b"),
    ("- a‸\n- b", ["delete"], "- a‸b"),
    # Corrections
    ("‸", ["text:```"], "```‸\n```"),
    ("```‸\na\n```", ["text:`"], "````‸\na\n````"),
    ("> [!TIP]‸", ["text:a"], "> [!TIP] a‸"),
    ("> [!TIP]‸", ["enter", "text:a"], "> [!TIP]\n> a‸"),
    ("- ‸", ["text: a"], "- a‸"),
    ("‸", ["text:$$", "enter"], "$$\n‸\n$$"),
    ("| a |\n|---|\n|‸|", ["text:b c"], "| a |\n|---|\n| b c‸ |"),
    ("a‸ b", ["paste:word"], "a word‸ b"),
    ("> a‸", ["paste:\\r\\nb"], "> a\n> b‸"),
    ("- ‸", ["paste:- [ ] milk"], "- milk‸"),
    ("one ⟦two⟧ three", ["backspace"], "one ‸three"),
    ("one ⟦two⟧ three", ["delete"], "one ‸three"),
    ("a x‸ b", ["backspace"], "a ‸ b"),
    ("⟦a⟧ **b** c", ["drag:0,4"], "⟦a **b**⟧ c"),
    ("⟦a⟧ **b** c", ["drag:0,2"], "⟦a ⟧**b** c"),
    # Lines, tasks, folds
    ("a\nb‸\nc", ["move-up"], "b‸\na\nc"),
    ("a‸\nb\nc", ["move-down*2"], "b\nc\na‸"),
    ("a‸\nb", ["move-up"], "a‸\nb"),
    ("- [ ] a‸", ["toggle-task"], "- [x] a‸"),
    ("⟦- [ ] a\n- [x] b⟧", ["check", "uncheck"], "⟦- [ ] a\n- [ ] b⟧"),
    ("1. a\n1. b‸\n1. c", ["renumber"], "1. a\n2. b‸\n3. c"),
    ("# a\n‸b\n", ["fold"], '# a‸<!-- {"fold":true} -->\nb\n'),
    ("# a\n‸b\n", ["fold", "fold"], "# a‸\nb\n"),
    ("t\n\n# a‸\nb\n", ["fold-all", "unfold-all"], "t\n\n# a‸\nb\n"),
    ("```\na‸\n```", ["select-all"], "```\n⟦a\n⟧```"),
    ("```\na‸\n```", ["select-all*2"], "⟦```\na\n```⟧"),
    # Tables
    ("| a‸ | b |\n|---|---|\n", ["tab"], "| a | ⟦b⟧ |\n|---|---|\n"),
    ("| a‸ | b |\n|---|---|\n", ["tab", "shift-tab"], "| ⟦a⟧ | b |\n|---|---|\n"),
    ("| a‸ | b |\n|---|---|\n", ["next-cell", "previous-cell"], "| ⟦a⟧ | b |\n|---|---|\n"),
    ("| a‸ |\n|---|\n", ["row-below", "text:b", "align-tables"], "| a   |\n|-----|\n| b‸   |\n"),
    ("|a‸|b|\n|-|-|\n", ["column-right"], "|b|‸a|\n|-|-|\n"),
    ("|a|b‸|\n|-|-|\n", ["align-right"], "|a|b‸|\n|-|-:|\n"),
]


def edit_line(offset, length, text):
    return json.dumps({"range": [offset, length], "text": text}) + "\n"


class PrintTest(CommandTest):
    def assert_prints(self, expected, *args, stdin=b""):
        result = run(*args, stdin=stdin)
        self.assertEqual((result.stderr, result.returncode), (b"", 0))
        self.assertEqual(result.stdout.decode(), expected)

    def assert_refused(self, code, parts, *args, stdin=b"", **options):
        """One line on standard error with all of `parts`, nothing on standard output."""
        result = run(*args, stdin=stdin, **options)
        message = result.stderr.decode()
        self.assertEqual((result.returncode, result.stdout), (code, b""), message)
        self.assertRegex(message, r"\Acorvane: [^\n]+\n\Z")
        for part in parts:
            self.assertIn(part, message)


class Printing(PrintTest):
    def test_html_and_tree(self):
        tree = "document\n  paragraph\n    text(a)\n    line_ending(\\n)\n"
        for args, note, expected in [
            (["html"], "# a\n", "<h1>a</h1>\n"),
            (["html"], "", ""),
            (["html", "-"], "é 😀", "<p>é 😀</p>\n"),
            (["html"], "#\n", "<p>#</p>\n"),
            (["html", "--rules", "extended"], "#\n", "<p>#</p>\n"),
            (["html", "--rules=commonmark"], "#\n", "<h1></h1>\n"),
            (["html", "--rules", "commonmark"], "a\n=\n", "<h1>a</h1>\n"),
            (["html", "--rules", "simplified"], "a\n=\n", "<p>a\n=</p>\n"),
            (["tree"], "a\n", tree),
            (["tree", "--rules", "simplified", "-"], "a\n", tree),
            (["tree"], "", "document()\n"),
        ]:
            with self.subTest(args=args, note=note):
                self.assert_prints(expected, *args, stdin=note.encode())

    def test_a_file_may_have_the_name_of_a_command(self):
        self.file("tree", "a")
        result = run("html", "tree", cwd=self.folder)
        self.assertEqual(result.stdout, b"<p>a</p>\n")

    def test_help(self):
        self.assertRegex(run("--version").stdout.decode(), r"\Acorvane \d+\.\d+\.\d+\n\Z")
        self.assertIn(b"edit", run("--help").stdout)
        for name in ("html", "tree", "annotate", "show", "edit", "type", "op", "correct", "keys"):
            result = run(name, "--help")
            self.assertEqual((result.returncode, result.stderr), (0, b""))
            self.assertRegex(result.stdout.decode(), rf"Example:\n.*corvane {name}")


def annotation(note, *args):
    """The printed runs, as (offset, length, key, value)."""
    result = run("annotate", *args, stdin=note.encode())
    assert (result.returncode, result.stderr) == (0, b""), result.stderr
    runs = [json.loads(line) for line in result.stdout.decode().splitlines()]
    return [(*each["range"], each["key"], each["value"]) for each in runs]


class Annotating(PrintTest):
    def test_a_run_is_a_line(self):
        self.assert_prints(
            '{"range":[0,11],"key":"CVNDirection","value":1}\n'
            '{"range":[3,7],"key":"CVNStrong","value":true}\n'
            '{"range":[3,2],"key":"CVNStrongMarker","value":1}\n'
            '{"range":[8,2],"key":"CVNStrongMarker","value":2}\n', "annotate", stdin="😀 **a😀**\n".encode())
        self.assert_prints("", "annotate")

    def test_values(self):
        info = {"listLevel": 0, "itemIndex": 0, "listType": 1, "listSubType": 1, "taskType": 2,
                "orderedListItemNumber": 1, "relativeListLevel": 0}
        for note, key, value in [
            ("- [x] a", "CVNListItem", info),
            ("[[a|é\"]]", "CVNWikiLinkAlias", 'é"'),
            ("|a|b|\n|-|-|\n", "CVNTable", {"ColumnCount": 2, "RowCount": 1}),
            ('a <!-- {"b":[1,-2.5,null,{"é":false}]} -->', "CVNMetadata", {"b": [1, -2.5, None, {"é": False}]}),
            ("a <!-- {} -->", "CVNMetadata", {}),
        ]:
            with self.subTest(note=note):
                found = [run[3] for run in annotation(note) if run[2] == key]
                self.assertEqual(found, [value])
                if value == info:
                    self.assertEqual(list(found[0]), list(info))

    def test_order(self):
        for rules in RULES:
            runs = annotation(WELCOME.read_text(), "--rules", rules)
            self.assertGreater(len(runs), 100)
            self.assertEqual(runs, sorted(runs, key=lambda run: (run[0], run[2])))

    def test_a_range_shows_what_lies_inside(self):
        text = WELCOME.read_text()
        length = len(text.encode("utf-16-le")) // 2
        everything = annotation(text)
        fold = next(run for run in everything if run[2] == "CVNFold" and run[1] > 150)
        chooser = random.Random(1)
        ranges = [(0, length), (0, 0), (length, 0), (length - 1, 1), (fold[0] + 100, 5), (fold[0] + 30, fold[1])]
        for _ in range(40):
            start = chooser.randint(0, length)
            ranges.append((start, chooser.randint(0, min(300, length - start))))
        for start, size in ranges:
            clipped = [(max(at, start), min(at + count, start + size), *rest) for at, count, *rest in everything]
            expected = [(at, end - at, *rest) for at, end, *rest in clipped if at < end]
            with self.subTest(start=start, size=size):
                self.assertEqual(annotation(text, "--range", f"{start},{size}"),
                                 sorted(expected, key=lambda run: (run[0], run[2])))

    def test_a_range_outside_the_text(self):
        for outside in ("5,0", "4,1", "0,5", "9223372036854775807,9223372036854775807"):
            with self.subTest(range=outside):
                self.assert_refused(2, [outside, "outside the text of 4 code units"], "annotate", "--range", outside,
                                    stdin="a😀b".encode())


ESCAPE = re.compile(r"\x1b\[[0-9;]*m")


class Showing(PrintTest):
    def show(self, note, *args):
        result = run("show", *args, stdin=note if isinstance(note, bytes) else note.encode())
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return result.stdout.decode()

    def paint(self, note, *args):
        return self.show(note, "--color", "always", *args)

    def test_plain(self):
        fold = '<!-- {"fold":true} -->'
        for note, expected in [
            ("", ""),
            ("# a\n\n**b** > c\n* * *", None),
            ("- [ ] a\n- [x] b\n  1. [ ] c\n  * [X] d\n", "- ☐ a\n- ☑ b\n  1. [ ] c\n  * ☑ d\n"),
            ("> - [x] a [ ]\n", "> - ☑ a [ ]\n"),
            ("[x] a", None),
            (f"# a {fold}\n\nb\n\n## c\n\nd\n\n# e\n", "# a …\n\n# e\n"),
            (f"# a {fold}\r\nb\r\n\r\n# c", "# a …\r\n\r\n# c"),
            (f"# a {fold}\nb\n", "# a …\n"),
            (f"# a {fold}\nb", "# a …"),
            (f"- a {fold}\n  - b\n\n  c\n- d\n", "- a …\n- d\n"),
            (f"# a {fold}\nb\n# c {fold}\nd\n", "# a …\n# c …\n"),
            (f"`{fold}`\n", None),
            ("é中😀\u2028\n", None),
            ("שלום\n", None),
        ]:
            with self.subTest(note=note):
                self.assertEqual(self.show(note), note if expected is None else expected)
                self.assertEqual(self.show(note, "--color", "never"), note if expected is None else expected)

    def test_control_characters_show_as_signs(self):
        note = "a\x1b[31m\0\x07\x08\x7f\x9b1m\x85\tb\r\nc\rd"
        expected = "a␛[31m␀␇␈␡␛[1m␛E\tb\r\nc\nd"
        self.assertEqual(self.show(note), expected)
        for form in ("{}", "`{}`", "# {}", "> {}", "```\n{}\n```", "[{}](x)", "<b {}>", "| {} |\n|-|\n", "$$\n{}\n$$"):
            painted = ESCAPE.sub("", self.paint(form.format(note)))
            self.assertEqual(re.findall(r"[\0-\x08\x0b\x0c\x0e-\x1f\x7f-\x9f]|\r(?!\n)", painted), [])

    def test_painting_hides_no_text(self):
        text = WELCOME.read_text()
        for rules in RULES:
            with self.subTest(rules=rules):
                plain = self.show(text, "--rules", rules)
                painted = ESCAPE.sub("", self.paint(text, "--rules", rules))
                for drawn, sign in [(r"^─+$|^-+$", "---"), ("▌", ">"), (" ⇠", "")]:
                    painted = re.sub(drawn, sign, painted, flags=re.MULTILINE)
                self.assertEqual(painted, re.sub(r"^(-+|\* \* \*)$", "---", plain, flags=re.MULTILINE))

    def test_each_line_leaves_the_terminal_as_it_was(self):
        for line in self.paint(WELCOME.read_text()).split("\n"):
            self.assertRegex((["\x1b[0m"] + ESCAPE.findall(line))[-1], r"\A\x1b\[0m\Z")

    def style_of(self, word, note):
        """The escape sequence in force where the word stands in the painted note."""
        painted = self.paint(note)
        self.assertIn(word, painted)
        return (["\x1b[0m"] + ESCAPE.findall(painted[:painted.index(word)]))[-1][2:-1].split(";")

    def test_styles(self):
        bold, dim, italic, underline, strike = "12349"
        for note, word, attributes in [
            ("word", "word", ""),
            ("**word**", "word", bold),
            ("**word**", "**", dim),
            ("**a *word***", "word", bold + italic),
            ("~word~", "word", underline),
            ("~~word~~", "word", strike),
            ("# word", "word", bold + underline),
            ("# word", "#", dim),
            ("word\n---", "---", dim),
            ("## *word*", "word", bold + italic),
            ("[word](url)", "word", underline),
            ("[word](url)", "url", dim),
            ("[[word]]", "word", underline),
            ("https://word.com", "word", underline),
            ("---\nword: x\n---\n", "word", dim),
            ('a <!-- {"word":1} -->', "word", dim),
            ("|a|\n|---|\n", "---", dim),
            ("- [ ] a", "-", dim),
            ("- [ ] a", "☐", ""),
            ("* * *", "─────", dim),
            ("\\word\\*", "*", ""),
            ("שלום", "⇠", dim),
            ("`a` שלום\n", "⇠", dim),
        ]:
            with self.subTest(note=note, word=word):
                self.assertEqual("".join(code for code in self.style_of(word, note) if code in "12349"), attributes)

    def test_colours(self):
        plain = self.style_of("word", "word")
        for form in ("`word`", "    word", "```\nword\n```", "$word$", "#word", "&amp; ![word](x)", "> [!TIP] word",
                     "[^word]\n\n[^word]: x"):
            with self.subTest(form=form):
                self.assertNotEqual(self.style_of("word", form), plain)
        inks = {pen: self.style_of("word", f"=={pen}word==")[-2:] for pen in ["", "🔴", "🔵", "🟢", "🟡", "🟣"]}
        self.assertEqual(inks[""], inks["🟡"])
        self.assertEqual(len({tuple(ink) for ink in inks.values()}), 5)
        for literal, color in [("#ff8700", "208"), ("rgb(0, 135, 255)", "33"), ("rgb(0%,100%,0%)", "46"), ("#000000", "16"),
                               ("hsl(240, 100%, 50%)", "21"), ("hsl(-120,100%,50%)", "21"), ("rgb(999,-5,0)", "196")]:
            with self.subTest(literal=literal):
                self.assertEqual(self.style_of(literal[1:], literal)[-3:], ["48", "5", color])
        self.assertEqual(self.style_of("rgb", "rgb(1.2.3,4,5)"), ["0"])
        bars = [line[:line.index("▌")] for line in self.paint("> [!TIP]\n> a\n> > b\n\n> c\n").split("\n") if "▌" in line]
        self.assertEqual(len(set(ESCAPE.findall(bars[1])) & set(ESCAPE.findall(bars[2]))), 1)
        self.assertNotEqual(bars[1], bars[3])

    def test_nothing_leaks_from_one_line_or_literal_to_another(self):
        self.assertEqual(self.paint("שלום\n" * 3).count("⇠"), 3)
        self.assertEqual(self.style_of("rgb", "#ff0000\n\nrgb(1.2.3,4,5)"), ["0"])
        callouts = self.paint("> [!TIP]\n> > [!CAUTION]\n> > x\n> > > q\n>\n> y\n").splitlines()
        self.assertEqual(len({re.search(r"38;5;(\d+)m▌", line)[1] for line in callouts}), 1)
        self.assertEqual(self.paint("a", "--color", "never"), "a")
        self.assertEqual(self.paint("a"), "a\n")
        self.assertEqual(self.show("a\u202eb\u2066c"), "a␦b␦c")
        self.assertIn(b'"a\\u009b\\u007f"', run("annotate", stdin="[[a\x9b\x7f]]".encode()).stdout)

    def test_when_there_are_colours(self):
        for variables, arguments, is_terminal, expected in [
            ({}, [], False, False),
            ({}, [], True, True),
            ({"NO_COLOR": ""}, [], True, True),
            ({"NO_COLOR": "0"}, [], True, False),
            ({"TERM": "dumb"}, [], True, False),
            ({}, ["--color", "never"], True, False),
            ({}, ["--color", "auto"], False, False),
            ({"NO_COLOR": "1"}, ["--color", "always"], False, True),
        ]:
            with self.subTest(variables=variables, arguments=arguments, is_terminal=is_terminal):
                primary, terminal = pty.openpty()
                self.addCleanup(os.close, primary)
                environment = {"TERM": "xterm", **variables}
                output = terminal if is_terminal else subprocess.PIPE
                result = subprocess.run([COMMAND, "show", *arguments], input=b"**a**", stdout=output, timeout=60,
                                        env=environment)
                os.close(terminal)
                shown = os.read(primary, 1000) if is_terminal else result.stdout
                self.assertEqual(b"\x1b" in shown, expected)

    def test_long_notes_take_no_long_time(self):
        for note in ("**a** `b` " * 50_000, "- [ ] *a*\n" * 30_000, "> " * 50 + "a\n" * 30_000, WELCOME.read_text() * 100):
            self.assertIn("a", self.paint(note))


class Editing(PrintTest):
    def edit(self, note, script, *args):
        return run("edit", self.file("note.md", note), "--script", "-", *args, stdin=script.encode())

    def test_each_edit_works_on_the_text_before_it(self):
        script = edit_line(0, 0, "# ") + "\n \t\r\n" + edit_line(3, 1, "XY").replace("\n", "\r\n") + edit_line(5, 1, "")
        result = self.edit("abc\n", script, "--check", "--print", "text")
        lines = result.stdout.decode().splitlines()
        self.assertEqual(lines[3:], ["# aXY"])
        for line in lines[:3]:
            (offset, length), *_ = json.loads(line)["redraw"]
            self.assertEqual(offset, 0)
            self.assertGreater(length, 0)

    def test_print(self):
        for choice, command in [("tree", "tree"), ("html", "html"), ("text", None), ("none", None)]:
            with self.subTest(print=choice):
                expected = run(command, stdin=b"b\n").stdout if command else {"text": b"b\n", "none": b""}[choice]
                self.assertEqual(self.edit("b\n", "", "--print", choice).stdout, expected)

    def test_text_comes_out_as_it_went_in(self):
        for note in (b"", b"\0", b"a\r\nb\rc\n", b"\xef\xbb\xbfa", b"a\0b", "é中😀\n".encode(),
                     b"a" * (2**20 - 1) + "é".encode(), b"a" * (2**20 - 3) + "😀".encode()):
            with self.subTest(note=note[-8:]):
                self.assertEqual(self.edit(note, "", "--print", "text").stdout, note)

    def test_a_split_pair_shows_as_replacement_character(self):
        result = self.edit("a😀b", edit_line(1, 1, ""), "--print", "text", "--check")
        self.assertEqual(result.stdout.decode(), '{"redraw":[[0,3]]}\na\ufffdb')
        result = self.edit("a😀b", edit_line(1, 1, "") + edit_line(1, 1, "😀"), "--print", "text")
        self.assertTrue(result.stdout.decode().endswith("a😀b"))

    def test_edges(self):
        script = edit_line(4, 0, "e") + edit_line(0, 5, "") + edit_line(0, 0, "") + edit_line(0, 0, "z")
        result = self.edit("abcd", script, "--print", "text", "--check")
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        self.assertTrue(result.stdout.endswith(b"]}\nz"))

    def test_random_edits_keep_the_tree_of_a_fresh_parse(self):
        text = WELCOME.read_text().encode("utf-16-le")
        chooser = random.Random(1)
        for rules in RULES:
            script, length = "", len(text) // 2
            for _ in range(60):
                offset = chooser.randint(0, length)
                removed = min(chooser.choice([0, 1, 1, 3, 40]), length - offset)
                added = chooser.choice(["", "x", "\n", "- ", "> ", "`", "*", "\n\n", "```\n", "    ", "|", "$$\n", "[a]: b"])
                script += edit_line(offset, removed, added)
                length += len(added) - removed
            with self.subTest(rules=rules):
                result = run("edit", WELCOME, "--rules", rules, "--script", "-", "--check", stdin=script.encode())
                self.assertEqual((result.returncode, result.stderr.decode()), (0, ""))
                self.assertEqual(result.stdout.count(b"\n"), 60)


class Typing(PrintTest):
    def type(self, note, *args):
        result = run("type", *args, stdin=note.encode())
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return result.stdout.decode()

    def numbers(self, shown):
        """The rows of the table and the lines below it, each by its name."""
        rows = re.findall(r"^  ([a-z ]+?) +([0-9.]+) +([0-9.]+) +([0-9.]+) +([0-9.]+)$", shown, re.MULTILINE)
        return {name: [float(number) for number in numbers] for name, *numbers in rows}, dict(
            re.findall(r"^([a-z ]+): (.*)$", shown, re.MULTILINE))

    def test_statistics(self):
        shown = self.type("# a\n\nb 😀 c\n\n> 😀\n", "--every", "1", "--check")
        table, lines = self.numbers(shown)
        self.assertEqual(len(shown.splitlines()), len(table) + len(lines) + 1)
        self.assertIn("microseconds   median       p95       p99       max\n", shown)
        self.assertEqual(list(table), ["replace", "extend", "annotate", "total"])
        for numbers in table.values():
            self.assertEqual(numbers, sorted(numbers))
        self.assertLessEqual(max(table["replace"][3], table["extend"][3], table["annotate"][3]), table["total"][3])
        self.assertEqual(list(lines), ["keystrokes", "mean length restyled", "full reparses", "nodes alive",
                                       "equal to a fresh parse", "painted like a fresh note"])
        self.assertEqual(lines["keystrokes"], str(16 + 2 * 2))
        self.assertGreater(float(lines["mean length restyled"]), 1)
        self.assert_holds(shown)

    def assert_holds(self, shown):
        self.assertTrue(shown.endswith("equal to a fresh parse: yes\npainted like a fresh note: yes\n"), shown)

    def test_one_of_every_n_paragraphs_is_changed_from_the_last(self):
        note = "a\n\n" * 5
        for every, changed in [(1, 5), (2, 3), (4, 2), (5, 1), (1_000_000_000, 1)]:
            with self.subTest(every=every):
                shown = self.type(note, "--every", every)
                self.assertEqual(int(self.numbers(shown)[1]["keystrokes"]), len(note) + 2 * changed)

    def test_notes_at_the_edge(self):
        for note in ("", "\n", "😀", "\0", "a\r\n\r\nb", "```\n", "- \n\n\n", "# a\n```\n# b\n```\n# c\n",
                     '# a <!-- {"fold":true} -->\n## b\n\nc\n\n# d\n', "[a]\n\n> [b]\n\n[a]: b\n[b]: c\n"):
            with self.subTest(note=note):
                self.assert_holds(self.type(note, "--every", "1", "--check"))

    def test_the_welcome_note(self):
        for rules in RULES:
            with self.subTest(rules=rules):
                self.assert_holds(self.type(WELCOME.read_text(), "--every", "1", "--check", "--rules", rules))

    def test_progress_of_what_takes_time_shows_on_a_terminal(self):
        long = b"a b\n\n" * 500
        for note, terminal_kind, is_shown in [(long, "xterm", True), (long, "dumb", False), (b"abc", "xterm", False)]:
            with self.subTest(size=len(note), terminal=terminal_kind):
                primary, terminal = pty.openpty()
                shown = bytearray()

                def read_to_bar():
                    while not shown.endswith(b"|"):
                        shown.extend(os.read(primary, 100_000))

                reader = threading.Thread(target=read_to_bar, daemon=True)
                reader.start()  # a terminal holds only a few kilobytes
                result = subprocess.run([COMMAND, "type", "--check"], input=note, stdout=subprocess.PIPE, stderr=terminal,
                                        timeout=200, env={**os.environ, "TERM": terminal_kind})
                os.write(terminal, b"|")
                reader.join()
                os.close(terminal)
                os.close(primary)
                self.assertTrue(result.stdout.startswith(b"keystrokes: "))
                lines = rb"(\r(re)?typing \d+ of \d+)+\r\x1b\[K"
                self.assertRegex(shown, rb"\A(" + lines + rb")+\|\Z" if is_shown else rb"\A\|\Z")


def drawn(text, selection):
    """A text with its selection, in UTF-16 code units, drawn in."""
    units = text.encode("utf-16-le")
    start, end = 2 * selection[0], 2 * sum(selection)
    marks = ("⟦", "⟧") if end > start else ("‸", "")
    return (units[:start].decode("utf-16-le") + marks[0] + units[start:end].decode("utf-16-le") + marks[1] +
            units[end:].decode("utf-16-le"))


def undrawn(drawing):
    """The text of a drawing and its selection."""
    places = [len(part.encode("utf-16-le")) // 2 for part in re.split("[‸⟦⟧]", drawing)]
    return re.sub("[‸⟦⟧]", "", drawing), [places[0], places[1] if "⟦" in drawing else 0]


class Commanding(PrintTest):
    """op and correct."""

    def results(self, *args, note=""):
        result = run(*args, stdin=note.encode())
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return json.loads(result.stdout)

    def test_lists(self):
        operations, corrections = (run(command, "--list").stdout.decode() for command in ("op", "correct"))
        self.assertIn("\nindent\n", "\n" + operations)
        self.assertRegex(operations, r"\ntoggleBlockStyle STYLE\n    Headings, .*\n    STYLE is a number: .*\b8 tasks\b")
        for usage in re.findall(r"^\w.*$", operations, re.MULTILINE):
            name, *parameters = usage.split()
            arguments = ["yes" if parameter == "SKIP_IN_TITLE" else "0" for parameter in parameters]
            self.assertIsInstance(self.results("op", name, *arguments, "-", "--range", "0,0"), list)
        for name in re.findall(r"^\w+", corrections, re.MULTILINE):
            text = "" if name.startswith("selection") else "a"
            self.assertIsInstance(self.results("correct", name, "--range", "0,0", "--text", text), list)

    def test_commands_on_the_whole_note_need_no_range(self):
        note = "#a [[b/c|d]]\n"
        for words, expected in [
            (["renameTag", "a", "é f"], "#é f# [[b/c|d]]\n"),
            (["removeTag", "a"], "[[b/c|d]]\n"),
            (["updateWikiLinks", "b", "x", "no"], "#a [[x/c|d]]\n"),
            (["updateWikiLinks", "b", "x", "yes"], note),
            (["appendTextExact", "-x", "-"], note + "-x"),
        ]:
            with self.subTest(words=words):
                self.assertEqual(self.results("op", "--apply", "--", *words, note=note)["text"], expected)

    def test_the_selection_is_corrected_in_the_text_as_it_stands(self):
        words = ["correct", "selectionCorrectionIn", "--range", "0,1", "--selection"]
        self.assertEqual(self.results(*words, "0,5", note="a **b**"),
                         [{"range": [0, 0], "text": "", "selection": [0, 7]}])
        self.assert_refused(2, ["0,8", "of 7 code units"], *words, "0,8", stdin=b"a **b**")

    def test_one_result_stands_as_it_is_applied(self):
        style = ["op", "toggleInlineStyle", "0", "--range"]
        self.assertEqual(self.results(*style, "3,1", "--apply", note="😀 b c"), {
            "text": "😀 **b** c", "selection": [5, 1], "redraw": [0, 10]})
        last = self.results(*style, "3,1", note="😀 b c")[-1]
        self.assertEqual(last["selection"], [5, 1])
        self.assertEqual([*last], ["range", "text", "selection"])
        self.assertEqual(self.results(*style, "3,1", "--selection", "0,0", note="😀 b c")[-1]["selection"], [0, 0])

    def test_no_opinion(self):
        args = ["op", "indent", "--range", "0,1"]
        self.assertEqual(self.results(*args, note="a"), [])
        self.assertEqual(self.results(*args, "--selection", "1,0", "--apply", note="a"), {
            "text": "a", "selection": [1, 0], "redraw": None})

    def test_the_file_stands_behind_the_arguments(self):
        note = self.file("3", "a")
        self.assertEqual(self.results("op", "toggleBlockStyle", "3", note, "--range", "0,1", "--apply")["text"], "#### a")
        self.assertEqual(self.results("op", "--range", "0,0", "toggleBlockStyle", "--", "3", note)[0]["text"], "#### ")

    def test_rules(self):
        args = ["op", "toggleBlockStyle", "0", "--range", "0,0", "--apply"]
        self.assertEqual(self.results(*args, note="#\n")["text"], "# #\n")
        self.assertEqual(self.results(*args, "--rules", "commonmark", note="#\n")["text"], "\n")

    def test_a_correction_sees_the_edit_before_it_is_made(self):
        args = ["correct", "calloutCorrectionIn", "--range", "8,0"]
        self.assertEqual(self.results(*args, "--text", "a", note="> [!TIP]"),
                         [{"range": [8, 0], "text": " a", "selection": [10, 0]}])
        self.assertEqual(self.results(*args, "--text= a", note="> [!TIP]"), [])
        self.assertEqual(self.results(*args, "--text", "\"é\n😀", "--selection", "8,3", note="> [!TIP]"),
                         [{"range": [8, 0], "text": " \"é\n😀", "selection": [9, 3]}])

    def test_ranges_outside_the_text(self):
        for outside in ("5,0", "4,1", "0,5", "9223372036854775807,9223372036854775807"):
            for option in ("--range", "--selection"):
                ranges = ["--range", "0,0", option, outside] if option == "--selection" else [option, outside]
                with self.subTest(option=option, range=outside):
                    parts = [f"{option}: {outside} reaches outside the text of 4 code units"]
                    self.assert_refused(2, parts, "op", "indent", *ranges, stdin="a😀b".encode())
        correct = ["correct", "calloutCorrectionIn", "--range", "1,2", "--text", "xyz", "--selection"]
        self.assertEqual(self.results(*correct, "5,0", note="a😀b"), [])
        self.assert_refused(2, ["6,0", "of 5 code units"], *correct, "6,0", stdin="a😀b".encode())


class Keys(PrintTest):
    def press(self, keys, *args, note=""):
        """The objects that are printed."""
        script = self.file("script.keys", "\n".join(keys))
        result = run("keys", self.file("note.md", note), "--script", script, *args)
        self.assertEqual((result.stderr.decode(), result.returncode), ("", 0))
        return [json.loads(line) for line in result.stdout.decode().splitlines()]

    def test_drawn_notes(self):
        for before, keys, expected in DRAWN_KEYS:
            text, selection = undrawn(before)
            select = "select:{},{}".format(*selection)
            with self.subTest(before=before, keys=keys):
                state = self.press([select, *keys], "--check", note=text)[-1]
                self.assertEqual(drawn(**state), expected)

    def test_a_page(self):
        for script in sorted((Path(__file__).parent / "keys").glob("*.keys")):
            for rules in RULES:
                result = run("keys", "--script", script, "--rules", rules, "--check")
                with self.subTest(script=script.name, rules=rules):
                    self.assertEqual((result.stderr.decode(), result.returncode), ("", 0))
                    if rules == "extended":
                        self.maxDiff = None
                        self.assertEqual(json.loads(result.stdout)["text"], script.with_suffix(".md").read_text())

    def test_every_key_in_every_place(self):
        names = [name for name in run("keys", "--list").stdout.decode().split("\n") if name and ":" not in name]
        names.remove("select-all")  # and the next text would be all there is
        self.assertGreater(len(names), 30)
        length = len(WELCOME.read_text().encode("utf-16-le")) // 2
        chooser = random.Random(1)
        for rules in RULES:
            keys = []
            for _ in range(400):
                start = chooser.randint(0, length // 2)
                keys += [f"select:{start},{chooser.choice([0, 0, 1, 9])}", chooser.choice(names)]
                keys += ["text:" + chooser.choice("a`$| *-")] * 3
            with self.subTest(rules=rules):
                self.press(keys, "--check", "--rules", rules, note=WELCOME.read_text())

    def test_an_empty_note_is_the_start(self):
        self.assert_prints('{"text":"a","selection":[1,0]}\n', "keys", "--script", "-", stdin=b"text:a")
        self.assert_prints('{"text":"","selection":[0,0]}\n', "keys", "--script", "-")
        script = self.file("s", "# nothing\r\n\n \t\n  text:b \r\n  left*1  \nleft \t*1\n")
        self.assert_prints('{"text":"ab ","selection":[1,0]}\n', "keys", "-", "--script", script, stdin=b"a")

    def test_trace(self):
        lines = self.press(["text:ab", "", "left", "enter", "backspace"], "--trace")
        self.assertEqual(lines[0], {
            "line": 1, "key": "text:a", "by": "edit", "text": "a", "selection": [1, 0], "redraw": [0, 1]})
        self.assertEqual([(line["line"], line["key"], line["by"], line["text"]) for line in lines[1:-1]], [
            (1, "text:b", "edit", "ab"), (3, "left", None, "ab"), (4, "enter", "edit", "a\nb"),
            (5, "backspace", "deletePrevious", "ab")])
        self.assertIsNone(lines[2]["redraw"])
        self.assertEqual(lines[-1], {"text": "ab", "selection": [1, 0]})
        (typed, *_, last) = self.press(["text:a"], "--trace", note="> [!TIP]")
        self.assertEqual((typed["by"], last["selection"]), ("calloutCorrectionIn", [10, 0]))


class Refusing(PrintTest):
    def test_usage(self):
        for args, part in BAD_USAGE:
            with self.subTest(args=args):
                self.assert_refused(2, [part], *args)

    def test_key_scripts(self):
        note = self.file("note.md", "a😀b")
        for line, part in BAD_KEYS:
            with self.subTest(line=line):
                script = self.file("s.keys", "\n# a\nleft\n" + line + "\nright\n")
                self.assert_refused(1, [f"{script}: line 4: ", part], "keys", note, "--script", script, "--trace")

    def test_files_that_cannot_be_read(self):
        empty = self.file("empty", "")
        missing = self.folder / "no\nsuch.md"
        for command in (["html"], ["tree"], ["annotate"], ["show"], ["type"], ["edit", empty, "--script"], ["edit", "--script", empty],
                        ["op", "toggleInlineStyle", "1", "--range", "0,0"],
                        ["correct", "calloutCorrectionIn", "--range", "0,0", "--text", "a"], ["keys", "--script"],
                        ["keys", "--script", empty]):
            with self.subTest(command=command):
                self.assert_refused(1, ["no?such.md", "No such file"], *command, missing)
                self.assert_refused(1, [str(self.folder), "directory"], *command, self.folder)
                self.assert_refused(1, ['""'], *command, "")

    def test_invalid_utf8(self):
        for note in BAD_UTF8:
            with self.subTest(note=note[-8:]):
                with self.assertRaises(UnicodeDecodeError) as raised:
                    note.decode()
                where = f"byte offset {raised.exception.start}\n"
                self.assert_refused(1, ["standard input", where], "html", stdin=note)
        path = self.file("bad", b"a\n\xff")
        self.assert_refused(1, [str(path), "byte offset 2\n"], "type", path)
        self.assert_refused(1, [str(path), "byte offset 2\n"], "edit", "--script", path)

    def test_script_lines(self):
        note = self.file("note.md", "a😀b")
        for line, part in BAD_LINES:
            with self.subTest(line=line[:80]):
                script = self.file("s.jsonl", "\n" + edit_line(0, 1, "a") + "\n" + line + "\n" + edit_line(0, 0, ""))
                self.assert_refused(1, [f"{script}: line 4: ", part], "edit", note, "--script", script)
        self.assert_refused(1, ["standard input: line 1: "], "edit", note, "--script", "-", stdin=b"x")


class Ending(PrintTest):
    def test_a_closed_pipe_is_no_error(self):
        big = self.file("big.md", "paragraph\n\n" * 20_000)
        for blocked in (False, True):
            with self.subTest(sigpipe_ignored=blocked):
                child = subprocess.Popen([COMMAND, "tree", big], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                         restore_signals=not blocked)
                self.assertEqual(child.stdout.readline(), b"document\n")
                child.stdout.close()
                self.assertEqual(child.stderr.read(), b"")
                child.stderr.close()
                child.wait(timeout=60)

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_a_full_disk_is_an_error(self):
        for args in (["html"], ["tree"], ["annotate"], ["show"], ["type"], ["--help"]):
            with self.subTest(args=args), open("/dev/full", "wb") as full:
                result = subprocess.run([COMMAND, *args], input=b"a", stdout=full, stderr=subprocess.PIPE, timeout=60)
                self.assertEqual(result.returncode, 1)
                self.assertRegex(result.stderr.decode(), r"\Acorvane: standard output: [^\n]+\n\Z")


if __name__ == "__main__":
    unittest.main()
