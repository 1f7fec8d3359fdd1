#!/usr/bin/env python3
"""Tests what the command tells about a folder of notes: vault_read_test.py PATH_TO_CORVANE"""

import json
import os
import pty
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

from command import COMMAND

PEN = re.compile(r"\x1b\[[0-9;]*m")

# Texts of notes, and the tags of all as they are printed.
TAGS = [
    ({"a.md": "#b #a/c", "b.md": "#a #a/c/d #a/c/d"}, "a (2)\n  c (2)\n    d (1)\nb (1)\n"),
    # A tag counts once in a note, however it is written, and spelt as in most notes; else as in the first one.
    ({"a.md": "#Work/now #work #WORK"}, "WORK (1)\n  now (1)\n"),
    ({"a.md": "#work", "b.md": "#Work/x", "c.md": "#Work"}, "Work (3)\n  x (1)\n"),
    ({"a.md": "#b\n#B #ÄB", "b.md": "#äb", "c.md": "#A"}, "A (1)\nB (1)\nÄB (2)\n"),
    ({"a.md": "#É", "b.md": "#é", "c.md": "#e"}, "e (1)\nÉ (2)\n"),
    # What lies below a tag stands there, whatever sorts before "/".
    ({"a.md": "#a/b# #a b# #a-b #a!"}, "a (1)\n  b (1)\na b (1)\na-b (1)\n"),
    ({"a.md": "#a\\/b/c# #a/b"}, "a (1)\n  b (1)\na/b (1)\n  c (1)\n"),
    ({"a.md": "# heading\n`#code` \\#escaped", "b.md": ""}, ""),
]

# Texts of notes, and where their links lead.
LINKS = [
    ({"a.md": "# One\n[[Two]]", "b.md": "Two\n---\n[[one|an alias]]"}, "a.md\n  -> b.md\nb.md\n  -> a.md\n2 links in 2 notes, 0 broken\n"),
    # Titles and names of files, of any case; folders and extensions are no part of them.
    ({"x/File Name.md": "# Title", "b.md": "[[title]] [[FILE NAME]] [[x/File Name]] [[File Name.md]]"},
     "b.md\n  -> x/File Name.md (2)\n  broken -> x / File Name\n  broken -> File Name.md\n4 links in 1 note, 2 broken\n"),
    ({"ä.md": "# STRASSE", "b.md": "[[straße]] [[Ä]]"}, "b.md\n  -> ä.md (2)\n2 links in 1 note, 0 broken\n"),
    ({"v1.2.md": "", "b.md": "[[v1.2]] [[v1]]"}, "b.md\n  -> v1.2.md\n  broken -> v1\n2 links in 1 note, 1 broken\n"),
    ({"p/a.md": "# A", "q/a.txt": "# B", "c.md": "# a\n[[A]] [[B]] [[a/H]]"},
     "c.md\n  -> c.md, p/a.md, q/a.txt\n  -> q/a.txt\n  -> c.md, p/a.md, q/a.txt / H\n3 links in 1 note, 0 broken\n"),
    # Headers; a link with nothing else leads into its own note.
    ({"a.md": "# A\n[[/Here]] [[b/One]] [[B]] [[B/one]] [[B/Two/x]]", "b.md": ""},
     "a.md\n  -> a.md / Here\n  -> b.md / One (2)\n  -> b.md\n  -> b.md / Two/x\n5 links in 1 note, 0 broken\n"),
    # Of broken ones in their order.
    ({"a.md": "[[y]] [[x]] [[Y]] [[y/h]]"}, "a.md\n  broken -> y (2)\n  broken -> x\n  broken -> y / h\n4 links in 1 note, 4 broken\n"),
    ({"a.md": "# a/b\n[[a\\/b]] [[a/b]]", "c.md": "---\ntitle: T\n---\n\n# [[a]] c\n"},
     "a.md\n  -> a.md\n  -> a.md / b\nc.md\n  -> a.md\n3 links in 2 notes, 0 broken\n"),
    ({"a.md": "`[[a]]` [a](b.md) \\[[c]] [[]]"}, "0 links in 0 notes, 0 broken\n"),
]

# A pattern, the titles of notes, and what is found in them, best first, with the score and the indexes.
FOUND = [
    ("ab", ["xab", "ba", "abc"], [("abc", 23, [0, 1]), ("xab", 22, [1, 2])]),
    ("ÄB", ["ab", "A\u0308b", "ａｂ"], [("ab", 23, [0, 1]), ("A\u0308b", 23, [0, 2]), ("ａｂ", 23, [0, 1])]),
    ("strasse", ["Straße"], [("Straße", 48, [0, 1, 2, 3, 4, 5])]),
    # Of what has its letters just anywhere nothing is shown, unless there is nothing else.
    ("ab", ["x a b", "ab"], [("ab", 23, [0, 1])]),
    ("ab", ["x a b", "y a b"], [("x a b", 0, [2, 4]), ("y a b", 0, [2, 4])]),
    ("a\u0301", ["b a"], [("b a", 0, [2])]),
    ("ü", ["👍 U"], [("👍 U", 0, [3])]),
    ("", ["a"], []),
    ("\u0301", ["a"], []),
    ("x", ["a"], []),
]

# A pattern, the name of a file, the title in it, and where the pattern is: what is found, and how it is drawn.
NAMES = [
    ("ab", "x/ab.md", "a b", "name", [0, 1], "a b\tx/⟦ab⟧.md"),
    ("ab", "x/a b.md", "ab", "title", [0, 1], "⟦ab⟧\tx/a b.md"),
    ("ab", "ab.md", "ab", "title", [0, 1], "⟦ab⟧\tab.md"),
    ("ab", "ab/😀ab.c.markdown", "", "name", [2, 3], "😀ab.c\tab/😀⟦ab⟧.c.markdown"),
    ("abc", "ab.c.md", "cab", "name", [0, 1, 3], "cab\t⟦ab⟧.⟦c⟧.md"),
    ("md", "x/md/n.md", "x", None, [], ""),
]


def run(folder, *args, **options):
    return subprocess.run([COMMAND, "vault", folder, *args], capture_output=True, timeout=100, **options)


def lines(text):
    return [json.loads(line) for line in text.splitlines()]


class FolderTest(unittest.TestCase):
    def folder(self, notes):
        """A folder with notes: their names and texts, or bytes."""
        made = tempfile.TemporaryDirectory()
        self.addCleanup(made.cleanup)
        for name, text in notes.items():
            path = Path(made.name, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(text if isinstance(text, bytes) else text.encode())
        return made.name

    def output(self, folder, *args):
        """What is printed, the same for any number of threads, when nothing goes wrong."""
        results = [run(folder, *args, "--jobs", jobs) for jobs in ("1", "4")]
        for result in results:
            self.assertEqual((result.stderr, result.returncode), (b"", 0))
        self.assertEqual(results[0].stdout, results[1].stdout)
        return results[0].stdout.decode()


class SummaryTest(FolderTest):
    def test_lines_are_those_of_single_notes_in_order_of_paths(self):
        notes = {f"{i % 7}/{i}.md": f"# Title {i}\n\n[[{i}]] #t{i} [x](y{i})\n- [ ] z\n" * (i % 50) for i in range(300)}
        notes |= {"mark.md": b"\xef\xbb\xbf---\nx: y\n---\n# Mark\n", "crlf.TXT": "# A\r\n\r\nb\r\n", "z b.markdown": ""}
        folder = self.folder(notes)
        names = sorted(notes, key=str.encode)
        one_by_one = subprocess.run([COMMAND, "summary", *names], cwd=folder, capture_output=True, check=True).stdout
        self.assertEqual(self.output(folder, "summary"), one_by_one.decode())
        self.assertEqual([line["file"] for line in lines(one_by_one)], names)

    def test_memory_does_not_grow_with_the_notes(self):
        if b"__asan_init" in Path(COMMAND).read_bytes():
            self.skipTest("the address sanitizer keeps what was freed")
        note = "".join(f"[{i}](https://example.org/{i}) " for i in range(600))
        megabytes = []
        for count in (100, 2000):
            folder = self.folder({f"{i}.md": note for i in range(count)})
            with subprocess.Popen([COMMAND, "vault", folder, "summary", "--jobs", "2"], stdout=subprocess.PIPE) as process:
                size = sum(len(line) for line in process.stdout)
                _, status, usage = os.wait4(process.pid, 0)
                process.returncode = os.waitstatus_to_exitcode(status)
            self.assertEqual(process.returncode, 0)
            self.assertGreater(size, count * 10_000)
            megabytes.append(usage.ru_maxrss / 1024)
        self.assertLess(megabytes[1], megabytes[0] + 10)

    def test_who_reads_may_stop(self):
        folder = self.folder({f"{i}.md": f"# x\n#t{i}\n" * 200 for i in range(500)})
        for action in (["summary"], ["links"], ["tags"], ["find", "x", "--json"]):
            with self.subTest(action=action):
                reader, writer = os.pipe()
                os.close(reader)
                with subprocess.Popen([COMMAND, "vault", folder, *action], stdout=writer, stderr=subprocess.PIPE,
                                      restore_signals=False) as process:
                    os.close(writer)
                    self.assertEqual((process.communicate(timeout=100)[1], process.returncode), (b"", 1))


class TagsTest(FolderTest):
    def test_tree(self):
        for notes, expected in TAGS:
            with self.subTest(notes=notes):
                self.assertEqual(self.output(self.folder(notes), "tags"), expected)

    def test_json(self):
        folder = self.folder({"a.md": "#Work/now #a\\/b/c#", "b.md": "#work/later"})
        expected = [("a\\/b", 1), ("a\\/b/c", 1), ("Work", 2), ("Work/later", 1), ("Work/now", 1)]
        self.assertEqual(lines(self.output(folder, "tags", "--json")), [{"tag": tag, "count": count} for tag, count in expected])

    def test_rules_without_tags_and_wikilinks(self):
        folder = self.folder({"a.md": "#a [[b]]"})
        self.assertEqual(self.output(folder, "tags", "--rules", "commonmark"), "")
        self.assertEqual(self.output(folder, "links", "--rules", "commonmark"), "0 links in 0 notes, 0 broken\n")


class LinksTest(FolderTest):
    def test_text(self):
        for notes, expected in LINKS:
            with self.subTest(notes=notes):
                self.assertEqual(self.output(self.folder(notes), "links"), expected)

    def test_json(self):
        folder = self.folder({"a.md": "# A\n😀 [[B]] [[b/H|x]] [[/I]]\n[[none]]\n", "b.md": "", "c/B.md": "# c\n[[a]]"})
        self.assertEqual(lines(self.output(folder, "links", "--json")), [
            {"file": "a.md", "offset": 7, "title": "B", "targets": ["b.md", "c/B.md"]},
            {"file": "a.md", "offset": 13, "title": "b", "header": "H", "targets": ["b.md", "c/B.md"]},
            {"file": "a.md", "offset": 23, "title": "", "header": "I", "targets": ["a.md"]},
            {"file": "a.md", "offset": 30, "title": "none", "targets": []},
            {"file": "c/B.md", "offset": 4, "title": "a", "targets": ["a.md"]},
        ])

    def test_a_link_to_a_note_that_can_not_be_read_is_not_broken(self):
        result = run(self.folder({"a.md": "[[bad]] [[worse]]", "bad.md": b"# worse\xff"}), "links")
        self.assertEqual(result.stdout.decode(), "a.md\n  -> bad.md\n  broken -> worse\n2 links in 1 note, 1 broken\n")
        self.assertEqual((result.stderr, result.returncode), (b"corvane: skipped: 1\n  bad.md: invalid UTF-8 at byte offset 7\n", 1))

    def test_many_links(self):
        folder = self.folder({"a.md": "".join(f"[[{i}]] " for i in range(50_000)), "b.md": "[[a]]" * 50_000})
        output = self.output(folder, "links").splitlines()
        self.assertEqual((len(output), *output[-3:]), (50_004, "b.md", "  -> a.md (50000)", "100000 links in 2 notes, 50000 broken"))


class FindTest(FolderTest):
    def test_titles(self):
        for pattern, titles, expected in FOUND:
            with self.subTest(pattern=pattern, titles=titles):
                folder = self.folder({f"{i}.md": f"# {title}\n{pattern} x\n" for i, title in enumerate(titles)})
                found = [{"file": f"{titles.index(title)}.md", "title": title, "in": "title", "score": score, "indexes": indexes}
                         for title, score, indexes in expected]
                self.assertEqual(lines(self.output(folder, "find", pattern, "--json")), found)
                self.assertEqual(self.output(folder, "find", pattern), "".join(f"{one['title']}\t{one['file']}\n" for one in found))

    def test_title_or_name(self):
        for pattern, name, title, place, indexes, drawing in NAMES:
            with self.subTest(pattern=pattern, name=name):
                folder = self.folder({name: f"# {title}\n\n{pattern}" if title else ""})
                found = [(line["in"], line["indexes"]) for line in lines(self.output(folder, "find", pattern, "--json"))]
                self.assertEqual(found, [(place, indexes)] if place else [])
                drawn = self.output(folder, "find", pattern, "--color", "always").replace("\x1b[0;1;38;5;172m", "⟦")
                drawn = PEN.sub("", re.sub("(⟦[^\x1b]*)\x1b\\[0m", r"\1⟧", drawn))
                self.assertEqual(drawn, drawing + "\n" * bool(drawing))
                self.assertEqual(self.output(folder, "find", pattern), re.sub("[⟦⟧]", "", drawing) + "\n" * bool(drawing))

    def test_equals_by_name_and_notes_without_a_title_by_file(self):
        folder = self.folder({"z/b.md": "x y", "a.md": "# X y", "x y.md": "", "y.md": "---\nx: y\n---\n", "n.md": "# no"})
        self.assertEqual(self.output(folder, "find", "xy"), "X y\ta.md\nx y\tx y.md\nx y\tz/b.md\n")

    def test_a_pattern_that_is_no_text(self):
        result = run(self.folder({}), "find", b"a\xff")
        self.assertEqual((result.stdout, result.returncode), (b"", 2))
        self.assertIn(b"PATTERN: invalid UTF-8 at byte offset 1", result.stderr)


class EmptyTest(FolderTest):
    def test_a_folder_without_notes(self):
        folder = self.folder({"a.org": "#a", ".a.md": "#a"})
        for action in (["summary"], ["tags"], ["links"], ["find", "x"], ["rename-tag", "a", "b"], ["remove-tag", "a"],
                       ["rename-note", "a", "b"]):
            with self.subTest(action=action):
                result = run(folder, *action)
                self.assertEqual((result.stderr.decode(), result.returncode), (f"corvane: there are no notes in {folder}\n", 0))
                self.assertLessEqual(len(result.stdout.splitlines()), 1)


class DisplayTest(FolderTest):
    ODD = {"x\n\x1b[2J\xc2\x9b.md": "# \x1b]0;x\x07\n\n#a\x1bb [[\x1b[31m\u009b\u202e]]\n", os.fsdecode(b"x\xfe.md"): "", "x.md": b"\xff"}

    def on_terminal(self, *args, environment=None):
        """What a terminal gets."""
        main, side = pty.openpty()
        with subprocess.Popen([COMMAND, "vault", *args], stdout=side, stderr=side, env=environment) as process:
            os.close(side)
            output = b""
            try:
                while part := os.read(main, 4096):
                    output += part
            except OSError:
                pass  # the other side is closed
        os.close(main)
        return output.decode().replace("\r\n", "\n")

    def test_control_characters(self):
        made = tempfile.TemporaryDirectory()
        self.addCleanup(made.cleanup)
        for name, text in self.ODD.items():
            path = os.path.join(os.fsencode(made.name), os.fsencode(name))
            with open(path, "wb") as file:
                file.write(text if isinstance(text, bytes) else text.encode())
        for action in (["tags"], ["links"], ["find", "x"]):
            for colors in ("always", "never"):
                with self.subTest(action=action, colors=colors):
                    output = run(made.name, *action, "--color", colors).stdout.decode()
                    self.assertGreater(len(output), 5)
                    self.assertEqual(bool(PEN.search(output)), colors == "always")
                    self.assertNotRegex(PEN.sub("", output), "[\x00-\x08\x0b-\x1f\x7f-\x9f\u202e]")
        for action in (["summary"], ["tags", "--json"], ["links", "--json"], ["find", "x", "--json"]):
            output = run(made.name, *action).stdout.decode()
            self.assertNotRegex(output, "[\x00-\x09\x0b-\x1f\x7f-\x9f]")
            self.assertGreater(len(lines(output)), 0)

    def test_a_terminal(self):
        folder = self.folder({"a.md": "# Title\n[[b]]", "b.md": "#tag"})
        plain = {"TERM": "dumb"}
        for args in (["tags"], ["links"], ["find", "tl"]):
            with self.subTest(args=args):
                painted = self.on_terminal(folder, *args, environment={"TERM": "xterm"})
                self.assertRegex(painted, PEN)
                piped = self.output(folder, *args)
                self.assertEqual(PEN.sub("", painted).replace("\x1b[K", "").split("\r")[-1], piped)
                self.assertTrue(self.on_terminal(folder, *args, environment=plain).endswith(piped))

    def test_what_is_skipped_is_named_and_the_others_come(self):
        folder = self.folder({"a.md": "# x #t", "bad.md": b"\xff", "z.md": "# x #t"})
        for action, count in ((["summary"], 2), (["tags"], 1), (["links"], 1), (["find", "x"], 2)):
            with self.subTest(action=action):
                result = run(folder, *action)
                self.assertEqual((result.stderr, result.returncode), (b"corvane: skipped: 1\n  bad.md: invalid UTF-8 at byte offset 0\n", 1))
                self.assertEqual(len(result.stdout.splitlines()), count)


if __name__ == "__main__":
    unittest.main()
