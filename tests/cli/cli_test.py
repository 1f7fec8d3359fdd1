#!/usr/bin/env python3
"""Tests the command from outside: cli_test.py PATH_TO_CORVANE"""

import json
import os
import pty
import random
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

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
    (["type", "--every", "0"], "--every"),
    (["type", "--every", "-1"], "--every"),
    (["type", "--every", "1.5"], "--every"),
    (["type", "--every", "x"], "--every"),
    (["type", "--every", "99999999999999999999"], "--every"),
]


def run(*args, stdin=b"", **options):
    """Runs the command; the result has bytes in stdout and stderr."""
    return subprocess.run([COMMAND, *map(str, args)], input=stdin, capture_output=True, timeout=250, **options)


def edit_line(offset, length, text):
    return json.dumps({"range": [offset, length], "text": text}) + "\n"


class CommandTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def file(self, name, content):
        path = self.folder / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return path

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


class Printing(CommandTest):
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
        for name in ("html", "tree", "edit", "type"):
            result = run(name, "--help")
            self.assertEqual((result.returncode, result.stderr), (0, b""))
            self.assertRegex(result.stdout.decode(), rf"Example:\n.*corvane {name}")


class Editing(CommandTest):
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


class Typing(CommandTest):
    def type(self, note, *args):
        result = run("type", *args, stdin=note.encode())
        self.assertEqual((result.returncode, result.stderr), (0, b""))
        return dict(line.split(": ") for line in result.stdout.decode().splitlines())

    def test_statistics(self):
        shown = self.type("# a\n\nb 😀 c\n\n> 😀\n", "--every", "1", "--check")
        self.assertEqual(list(shown), ["keystrokes", "microseconds, median", "microseconds, p95", "microseconds, p99",
                                       "microseconds, max", "mean redraw length", "full reparses", "nodes alive",
                                       "equal to a fresh parse"])
        self.assertEqual(shown["keystrokes"], str(16 + 2 * 2))
        self.assertEqual(shown["equal to a fresh parse"], "yes")
        times = [float(shown["microseconds, " + name]) for name in ("median", "p95", "p99", "max")]
        self.assertEqual(times, sorted(times))
        self.assertGreater(float(shown["mean redraw length"]), 1)

    def test_one_of_every_n_paragraphs_is_changed_from_the_last(self):
        note = "a\n\n" * 5
        for every, changed in [(1, 5), (2, 3), (4, 2), (5, 1), (1_000_000_000, 1)]:
            with self.subTest(every=every):
                self.assertEqual(int(self.type(note, "--every", every)["keystrokes"]), len(note) + 2 * changed)

    def test_notes_at_the_edge(self):
        for note in ("", "\n", "😀", "\0", "a\r\n\r\nb", "```\n", "- \n\n\n"):
            with self.subTest(note=note):
                self.assertEqual(self.type(note, "--every", "1", "--check")["equal to a fresh parse"], "yes")

    def test_the_welcome_note(self):
        for rules in RULES:
            with self.subTest(rules=rules):
                shown = self.type(WELCOME.read_text(), "--every", "1", "--check", "--rules", rules)
                self.assertEqual(shown["equal to a fresh parse"], "yes")

    def test_progress_shows_on_a_terminal_alone(self):
        primary, terminal = pty.openpty()
        self.addCleanup(os.close, primary)
        result = subprocess.run([COMMAND, "type"], input=b"abc", stdout=subprocess.PIPE, stderr=terminal, timeout=60)
        os.close(terminal)
        self.assertTrue(result.stdout.startswith(b"keystrokes: 5\n"))
        self.assertIn(b"\rtyping 1 of 3", os.read(primary, 1000))


class Refusing(CommandTest):
    def test_usage(self):
        for args, part in BAD_USAGE:
            with self.subTest(args=args):
                self.assert_refused(2, [part], *args)

    def test_files_that_cannot_be_read(self):
        empty = self.file("empty", "")
        missing = self.folder / "no\nsuch.md"
        for command in (["html"], ["tree"], ["type"], ["edit", empty, "--script"], ["edit", "--script", empty]):
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


class Ending(CommandTest):
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
        for args in (["html"], ["tree"], ["type"], ["--help"]):
            with self.subTest(args=args), open("/dev/full", "wb") as full:
                result = subprocess.run([COMMAND, *args], input=b"a", stdout=full, stderr=subprocess.PIPE, timeout=60)
                self.assertEqual(result.returncode, 1)
                self.assertRegex(result.stderr.decode(), r"\Acorvane: standard output: [^\n]+\n\Z")


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    COMMAND = os.path.abspath(sys.argv.pop(1))
    unittest.main()
