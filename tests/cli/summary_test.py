#!/usr/bin/env python3
"""Tests what the command says about single notes and lists of lines: summary_test.py PATH_TO_CORVANE"""

import json
import os
import pty
import re
import subprocess
import unittest

from command import COMMAND, CommandTest, run

MARK = b"\xef\xbb\xbf"
ESCAPE = re.compile(r"\x1b\[[0-9;]*m")
KEYS = ["file", "title", "subtitle", "tags", "links", "wikiLinks", "codeBlockCount", "todoCount", "doneCount",
        "spaceIndentedLineCount", "tabIndentedLineCount"]


class OutputTest(CommandTest):
    def output(self, *args, stdin=b"", **options):
        """What is printed when nothing goes wrong."""
        result = run(*args, stdin=stdin if isinstance(stdin, bytes) else stdin.encode(), **options)
        self.assertEqual((result.stderr, result.returncode), (b"", 0))
        return result.stdout.decode()

    def on_terminal(self, *args, stdin=b"", **environment):
        """What a terminal gets, with its line endings."""
        primary, terminal = pty.openpty()
        subprocess.run([COMMAND, *args], input=stdin, stdout=terminal, timeout=60,
                       env={"TERM": "xterm", **environment})
        os.close(terminal)
        shown = os.read(primary, 10_000).decode()
        os.close(primary)
        return shown


class Summary(OutputTest):
    def summary(self, note, *args):
        return json.loads(self.output("summary", *args, stdin=note))

    def test_all_members_in_their_order(self):
        note = ("---\nkey: [[no]]\n---\n# Trip *to* [Rome](https://rome.example)\n#travel/italy #😀 #ﬀ\n"
                "Pack 😀 for [[Italy/Food|food]]\n- [ ] shoes\n  - [x] hat\n\t- [x] map\n\n```\n[[no]]\n```\n"
                "[Rome](https://rome.example) ![](a%20b.png) [[Italy]] [[Italy]] #z<b>\n\n    code\n")
        line = self.output("summary", self.file("n.md", note), stdin=b"not read")
        self.assertEqual(line.count("\n"), 1)
        summary = json.loads(line, object_pairs_hook=list)
        self.assertEqual([key for key, _ in summary], KEYS)

        def offset(text):
            return len(note[:note.index(text)].encode("utf-16-le")) // 2

        links = [("Italy/Food", offset("[[Italy/")), ("Italy", offset("[[Italy]]")), ("Italy", offset("[[Italy]] #"))]
        values = json.loads(line)
        self.assertEqual(values.pop("file"), str(self.folder / "n.md"))
        self.assertTrue(values.pop("subtitle").startswith("Pack 😀 for food shoes hat map"))
        self.assertEqual(values, {
            "title": "Trip to Rome", "tags": ["travel", "travel/italy", "z", "😀", "ﬀ"],
            "links": ["https://rome.example", "a%20b.png"],
            "wikiLinks": [{"title": title, "offset": at} for title, at in links],
            "codeBlockCount": 2, "todoCount": 1, "doneCount": 2,
            "spaceIndentedLineCount": 1, "tabIndentedLineCount": 1})

    def test_nothing_to_say(self):
        for note in (b"", MARK, b"\n \r\n"):
            summary = self.summary(note)
            self.assertEqual([summary[key] for key in KEYS], ["-", "", "", [], [], [], 0, 0, 0, 0, 0], note)

    def test_a_byte_order_mark_is_no_text(self):
        note = b"---\na: b\n---\nTitle [[x]]\r\nnext"
        self.assertEqual(self.summary(MARK + note), self.summary(note))
        self.assertEqual(self.summary(MARK + note)["title"], "Title x")
        self.assertEqual(self.summary(b"a\n" + MARK + b"b")["subtitle"], "\ufeffb")

    def test_rules(self):
        self.assertEqual(self.summary("a\n=\n")["title"], "a")
        self.assertEqual(self.summary("#t [[w]]", "--rules", "commonmark")["tags"], [])
        self.assertEqual(self.summary("#t [[w]]", "--rules", "commonmark")["wikiLinks"], [])

    def test_output_is_safe_for_a_terminal(self):
        name = "a\x1b[31m\n\x7f\u0085é.md"
        line = self.output("summary", self.file(name, "b\x1b[0m \x9b c\x7f"))
        self.assertEqual(re.findall(r"[\0-\x09\x0b-\x1f\x7f-\x9f]", line), [])
        self.assertEqual(line.count("\n"), 1)
        self.assertEqual(json.loads(line)["file"], str(self.folder / name))
        self.assertEqual(json.loads(line)["title"], "b\x1b[0m \x9b c\x7f")


class Stats(OutputTest):
    def test_counts(self):
        for note, counts in [
            (b"", [0, 0, 0]),
            (MARK, [0, 0, 0]),
            (MARK + b"a", [1, 1, 0]),
            (b"one two-three don't\r\n\r\n four\rfive", [6, 3, 1]),
            ("日本語 abc".encode(), [4, 1, 0]),
            (b"a " * 500, [500, 1, 120]),
        ]:
            with self.subTest(note=note[:30]):
                line = self.output("stats", stdin=note)
                self.assertEqual(list(json.loads(line).items()),
                                 list(zip(["file", "wordsCount", "paragraphCount", "readTime"], ["-", *counts])))


class Files(OutputTest):
    """What summary and stats have in common."""

    def each(self, *files, stdin=b""):
        for command in ("summary", "stats"):
            with self.subTest(command=command):
                result = run(command, *files, stdin=stdin, cwd=self.folder)
                names = [json.loads(line)["file"] for line in result.stdout.decode().splitlines()]
                yield names, result.returncode, result.stderr.decode()

    def test_the_order_is_that_of_the_arguments(self):
        self.file("b.md", "b")
        self.file("a.md", "a")
        self.file("-x", "x")
        for names, code, errors in self.each("b.md", "-", "a.md", "b.md", "./-x", stdin=b"in"):
            self.assertEqual((names, code, errors), (["b.md", "-", "a.md", "b.md", "./-x"], 0, ""))

    def test_who_cannot_be_read_is_named_and_the_others_come(self):
        self.file("a.md", "a")
        self.file("bad\x1b.md", b"ab\xc3(")
        (self.folder / "folder").mkdir()
        for names, code, errors in self.each("missing.md", "bad\x1b.md", "a.md", "folder", "", "-"):
            self.assertEqual((names, code), (["a.md", "-"], 1))
            self.assertEqual([line.split(": ", 2)[:2] for line in errors.splitlines()],
                             [["corvane", name] for name in ("missing.md", "bad?.md", "folder", '""')] +
                             [["corvane", "4 of 6 files left out"]])
            self.assertIn("invalid UTF-8 at byte offset 2", errors)

    def test_a_single_one_that_cannot_be_read(self):
        self.file("bad.md", b"\xff")
        for file in ("bad.md", "missing.md", "."):
            for names, code, errors in self.each(file):
                self.assertEqual((names, code), ([], 1))
                self.assertRegex(errors, rf"\Acorvane: {re.escape(file)}: [^\n]+\n\Z")
        for names, code, errors in self.each(stdin=b"a\xff"):
            self.assertEqual((names, code), ([], 1))
            self.assertIn("standard input: invalid UTF-8 at byte offset 1", errors)

    def test_names_in_brackets(self):
        for name in ("[b,c]", "[[b]]"):
            self.file(name, "x")
            for names, code, errors in self.each(name, name):
                self.assertEqual((names, code, errors), ([name, name], 0, ""))

    def test_a_name_that_is_not_utf8(self):
        (self.folder / os.fsdecode(b"a\xff.md")).write_text("a")
        for names, code, errors in self.each(os.fsdecode(b"a\xff.md")):
            self.assertEqual((names, code, errors), (["a\ufffd.md"], 0, ""))


class Fuzzy(OutputTest):
    def hits(self, pattern, lines, *args):
        """(number, score, indexes, text) of each line that matches."""
        printed = self.output("fuzzy", "--json", *args, "--", pattern, stdin=lines)
        return [tuple(json.loads(line).values()) for line in printed.split("\n")[:-1]]

    def test_forms(self):
        lines = "x😀abc\nnone\na b\tc\x1b\nabc\n"
        self.assertEqual(self.output("fuzzy", "abc", stdin=lines), "26\t0,1,2\tabc\n23\t3,4,5\tx😀abc\n1\t0,2,4\ta b\tc␛\n")
        self.assertEqual(self.output("fuzzy", "abc", "--json", stdin=lines),
                         '{"line":4,"score":26,"indexes":[0,1,2],"text":"abc"}\n'
                         '{"line":1,"score":23,"indexes":[3,4,5],"text":"x😀abc"}\n'
                         '{"line":3,"score":1,"indexes":[0,2,4],"text":"a b\\tc\\u001b"}\n')
        colored = self.output("fuzzy", "abc", "--color", "always", stdin=lines)
        self.assertEqual(ESCAPE.sub("", colored), "26  abc\n23  x😀abc\n 1  a b\tc␛\n")
        self.assertEqual(self.output("fuzzy", "--", "-", self.file("f", "--\n")), "1\t0\t--\n")

    def test_lines(self):
        for lines, expected in [
            ("", []),
            ("\n\r\n\r", []),
            ("a", [1]),
            ("a\n", [1]),
            ("\r\na\r\ra\n\na\r\n", [2, 4, 6]),
            ("a\u2028a\x0ba\n", [1]),
            (MARK + b"a", [1]),
        ]:
            with self.subTest(lines=lines):
                hits = self.hits("a", lines)
                self.assertEqual([hit[0] for hit in hits], expected)
                self.assertEqual([hit[2] for hit in hits], [[0]] * len(expected))

    def test_ties_stay_in_the_order_of_the_lines(self):
        lines = ["xa", "ya", "a", "za", "ab", "b"] * 20
        numbers = [hit[0] for hit in self.hits("a", "\n".join(lines))]
        best = [i + 1 for i, line in enumerate(lines) if line[0] == "a"]
        others = [i + 1 for i, line in enumerate(lines) if line[1:] == "a"]
        self.assertEqual(numbers, best + others)

    def test_no_match(self):
        for pattern, lines in [("", "a\n"), ("\u0301", "e\u0301\n"), ("ba", "ab\n"), ("A", "a\n"), ("e", "é\n"), ("a", "")]:
            with self.subTest(pattern=pattern):
                args = ["--fold"] if pattern == "\u0301" else []
                self.assertEqual(self.hits(pattern, lines, *args), [])

    def test_fold(self):
        for pattern, line, indexes in [
            ("strasse", "STRAßE", [0, 1, 2, 3, 4, 5]),
            ("ß", "miss", [2, 3]),
            ("s", "aß", [1]),
            ("ǆ", "xǄ", [1]),
            ("Ǆ", "xǅ", [1]),
            ("ete", "Été", [0, 1, 2]),
            ("ete", "E\u0301te\u0301", [0, 2, 3]),
            ("e\u0301t", "été", [0, 1]),
            ("İi", "iI", [0, 1]),
            ("fin", "a ﬁne", [2, 3]),
            ("in", "ﬁne", [0, 1]),
            ("ab", "ＡｘＢ", [0, 2]),
            ("a b", "ａ\u3000ｂ", [0, 1, 2]),
            ("😀b", "é😀É😀B", [4, 6]),
            ("\U00010428x", "e\u0301\U00010400X", [2, 4]),
            ("αω", "Άώ", [0, 1]),
            ("иж", "Йж", [0, 1]),
            ("\U0001d41a", "\U0001d41a", [0]),
        ]:
            with self.subTest(pattern=pattern, line=line):
                self.assertEqual([hit[2:] for hit in self.hits(pattern, line + "\n", "--fold")], [(indexes, line)])
                self.assertEqual(self.hits(pattern, line + "\n"),
                                 [] if pattern not in line else [(1, 1, [0], line)])

    def test_highlight(self):
        for pattern, line, drawn in [
            ("abd", "xabcd", "x⟦ab⟧c⟦d⟧"),
            ("😀", "a😀\U0001f3fdb", "a⟦😀\U0001f3fd⟧b"),
            ("e", "x e\u0301\u0323x", "x ⟦e\u0301\u0323⟧x"),
            ("ss", "aßb", "a⟦ß⟧b"),
            ("👩", "👩\u200d🚀x", "⟦👩\u200d🚀⟧x"),
            ("\x07", "a\x07\x9b", "a⟦␇⟧␛["),
            ("a", "a\u202eb", "⟦a⟧␦b"),
        ]:
            with self.subTest(line=line):
                shown = self.output("fuzzy", "--fold", "--color=always", pattern, stdin=line + "\n")
                shown = re.sub(r"\A.*?  ", "", shown, count=1)
                self.assertTrue(set(ESCAPE.findall(shown)) <= {"\x1b[0;1;38;5;172m", "\x1b[0m"})
                self.assertEqual(shown.replace("\x1b[0;1;38;5;172m", "⟦").replace("\x1b[0m", "⟧"), drawn + "\n")

    def test_colours_are_for_terminals(self):
        for args, environment, expected in [
            ([], {}, True),
            ([], {"NO_COLOR": "1"}, False),
            ([], {"NO_COLOR": ""}, True),
            ([], {"TERM": "dumb"}, False),
            (["--color", "never"], {}, False),
            (["--json"], {}, False),
            (["--json", "--color", "always"], {}, False),
        ]:
            with self.subTest(args=args, environment=environment):
                self.assertEqual("\x1b" in self.on_terminal("fuzzy", "a", *args, stdin=b"a\n", **environment), expected)
        self.assertNotIn("\x1b", self.output("fuzzy", "a", stdin="a\n"))

    def test_refusals(self):
        bad = self.file("bad", b"a\n\xff")
        for code, part, args in [
            (2, "PATTERN is required", []),
            (2, "more", ["a", str(bad), "more"]),
            (2, "PATTERN: invalid UTF-8 at byte offset 1", [b"a\xff"]),
            (1, "invalid UTF-8 at byte offset 2", ["a", str(bad)]),
            (1, "no such", ["a", str(self.folder / "no such")]),
            (1, "directory", ["a", str(self.folder)]),
        ]:
            with self.subTest(part=part):
                result = run("fuzzy", *args)
                self.assertEqual((result.returncode, result.stdout), (code, b""))
                self.assertRegex(result.stderr.decode(), r"\Acorvane: [^\n]+\n\Z")
                self.assertIn(part, result.stderr.decode())

    def test_long_lists_and_lines(self):
        titles = "".join(f"Notes about the {i}th Überraschung of the year\n" for i in range(100_000))
        for lines, pattern in [(titles, "nübe"), ("a" * 2_000_000 + "\n", "a" * 1000 + "b"), ("é" * 1_000_000, "e" * 1000),
                               ("\r" * 2_000_000, "a")]:
            self.assertEqual(run("fuzzy", "--fold", pattern, stdin=lines.encode()).returncode, 0)


class Helping(OutputTest):
    def test_examples(self):
        """The lines that the help shows are printed like that."""
        helps = {name: self.output(name, "--help") for name in ("summary", "stats", "fuzzy")}
        for name, text in helps.items():
            self.assertRegex(text, rf"Examples?:\n.*corvane {name}")
        shown = json.loads(re.sub(r"\n\s*", "", re.search(r'\{"file".*?\}\n(?=A tag)', helps["summary"], re.DOTALL)[0]))
        self.assertEqual(list(shown), list(json.loads(self.output("summary"))))
        self.assertIn(self.output("fuzzy", "rea", "--json", stdin="readme\n"), helps["fuzzy"])
        self.assertIn(self.output("fuzzy", "rea", stdin="readme\n").strip().replace("\t", "<tab>"), helps["fuzzy"])


class Ending(OutputTest):
    def test_a_closed_pipe_is_no_error(self):
        big = self.file("big.md", "line of a note #tag\n" * 20_000)
        many = [self.file("a.md", "a")] * 3_000
        for args in (["summary", *many], ["stats", *many], ["fuzzy", "a", big]):
            with self.subTest(args=args[0]):
                child = subprocess.Popen([COMMAND, *args], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                         restore_signals=False)
                self.assertTrue(child.stdout.readline())
                child.stdout.close()
                self.assertEqual(child.stderr.read(), b"")
                child.stderr.close()
                self.assertEqual(child.wait(timeout=60), 1)

    @unittest.skipUnless(os.path.exists("/dev/full"), "needs /dev/full")
    def test_a_full_disk_is_an_error(self):
        note = self.file("a.md", "a")
        for args in (["summary", note], ["summary", *[note] * 1_000], ["stats", note, note], ["fuzzy", "a", note]):
            with self.subTest(args=args[:1]), open("/dev/full", "wb") as full:
                result = subprocess.run([COMMAND, *args], stdout=full, stderr=subprocess.PIPE, timeout=60)
                self.assertEqual(result.returncode, 1)
                self.assertRegex(result.stderr.decode(), r"\Acorvane: standard output: [^\n]+\n\Z")


if __name__ == "__main__":
    unittest.main()
