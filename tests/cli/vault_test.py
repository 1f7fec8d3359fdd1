#!/usr/bin/env python3
"""Tests what the command writes into a folder of notes: vault_test.py PATH_TO_CORVANE"""

import errno
import fcntl
import itertools
import os
import pty
import random
import resource
import shlex
import shutil
import signal
import subprocess
import tempfile
import threading
import time
import unittest
from pathlib import Path

from command import COMMAND

# Makes one call of the command fail or go along with something: the call SHIM_CALL, for the SHIM_NTH time, or from
# then on with SHIM_ALWAYS, fails with SHIM_ERRNO, sends itself SHIM_SIGNAL, or runs SHIM_RUN in a shell first.
# ALSO_CALL and so on do that to another call. Each write does the half of what it should. With SHIM_STILL the clock
# of the file system stands still, and with SHIM_OLD files can't change places at once.
SHIM = r"""
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

static const char* setting(const char* plan, const char* name) {
    char both[32];
    snprintf(both, sizeof both, "%s_%s", plan, name);
    return getenv(both);
}

static int follow(const char* plan, int* calls, const char* call) {
    const char* wanted = setting(plan, "CALL");
    if (!wanted || strcmp(wanted, call) != 0) return 0;
    const int more = __sync_add_and_fetch(calls, 1) - atoi(setting(plan, "NTH"));
    if (more < 0 || (more > 0 && !setting(plan, "ALWAYS"))) return 0;
    if (setting(plan, "SIGNAL")) kill(getpid(), atoi(setting(plan, "SIGNAL")));
    if (setting(plan, "RUN")) {
        unsetenv("LD_PRELOAD");
        if (system(setting(plan, "RUN")) != 0) abort();
    }
    return setting(plan, "ERRNO") ? atoi(setting(plan, "ERRNO")) : 0;
}

static int fails(const char* call) {
    static int calls[2];
    const int first = follow("SHIM", &calls[0], call), other = follow("ALSO", &calls[1], call);
    errno = first ? first : other;
    return errno != 0;
}

ssize_t write(int file, const void* bytes, size_t size) {
    ssize_t (*real)(int, const void*, size_t) = dlsym(RTLD_NEXT, "write");
    if (fails("write")) return -1;
    return real(file, bytes, getenv("SHIM_CALL") && size > 1 ? size / 2 : size);
}

int fsync(int file) {
    int (*real)(int) = dlsym(RTLD_NEXT, "fsync");
    return fails("fsync") ? -1 : real(file);
}

int fstat(int file, struct stat* status) {
    int (*real)(int, struct stat*) = dlsym(RTLD_NEXT, "fstat");
    const int result = real(file, status);
    if (getenv("SHIM_STILL")) memset(&status->st_mtim, 0, 2 * sizeof status->st_mtim);
    return result;
}

int fstatat(int folder, const char* name, struct stat* status, int flags) {
    int (*real)(int, const char*, struct stat*, int) = dlsym(RTLD_NEXT, "fstatat");
    if (fails("fstatat")) return -1;
    const int result = real(folder, name, status, flags);
    if (getenv("SHIM_STILL")) memset(&status->st_mtim, 0, 2 * sizeof status->st_mtim);
    return result;
}

int fchmod(int file, mode_t mode) {
    int (*real)(int, mode_t) = dlsym(RTLD_NEXT, "fchmod");
    return fails("fchmod") ? -1 : real(file, mode);
}

int unlinkat(int folder, const char* name, int flags) {
    int (*real)(int, const char*, int) = dlsym(RTLD_NEXT, "unlinkat");
    return fails("unlinkat") ? -1 : real(folder, name, flags);
}

int renameat(int from, const char* a, int to, const char* b) {
    int (*real)(int, const char*, int, const char*) = dlsym(RTLD_NEXT, "renameat");
    return fails("renameat") ? -1 : real(from, a, to, b);
}

int renameat2(int from, const char* a, int to, const char* b, unsigned flags) {
    int (*real)(int, const char*, int, const char*, unsigned) = dlsym(RTLD_NEXT, "renameat2");
    if (getenv("SHIM_OLD")) {
        errno = EINVAL;
        return -1;
    }
    return fails("renameat2") ? -1 : real(from, a, to, b, flags);
}
"""

RENAME = ["rename-tag", "a", "b"]

# Notes and what is left of them when the tag "a" is called "b".
NOTES = {
    "plain.md": (b"# a\n\n#a\n", b"# a\n\n#b\n"),
    "untouched.md": (b"# a\n\\#a `#a` #ab\n", b"# a\n\\#a `#a` #ab\n"),
    "empty.md": (b"", b""),
    "crlf.md": (b"#a\r\nx\r\n\r\n#a/c\r\n", b"#b\r\nx\r\n\r\n#b/c\r\n"),
    "cr.md": (b"#a\rx\r#a", b"#b\rx\r#b"),
    "mixed.markdown": (b"#a\nx\r\n#a\r\r\n#a", b"#b\nx\r\n#b\r\r\n#b"),
    "mark.TXT": (b"\xef\xbb\xbf#a x\xef\xbb\xbfy\n", b"\xef\xbb\xbf#b x\xef\xbb\xbfy\n"),
    "sub/no ending.md": (b"x\ny\n#a", b"x\ny\n#b"),
    "sub/odd.md": ("#a \0 \ufffd \uffff \U0010ffff \x1b\n".encode(), "#b \0 \ufffd \uffff \U0010ffff \x1b\n".encode()),
    "sub/sub/far.md": (b"#a\n" + b"x\n" * 6 + b"#a\n" + b"y\n" * 7 + b"#a",
                       b"#b\n" + b"x\n" * 6 + b"#b\n" + b"y\n" * 7 + b"#b"),
    "sub/new\nline\t\"\\\x1b.md": (b"#a\n", b"#b\n"),
    "\u00fc \U0001f600.md": (b"#a\n", b"#b\n"),
    "\udcff\udc9b.md": (b"#a\n", b"#b\n"),
    ".hidden.md": (b"#a\n", b"#a\n"),
    ".git/note.md": (b"#a\n", b"#a\n"),
    "note.org": (b"#a\n", b"#a\n"),
    ".md": (b"#a\n", b"#a\n"),
    "folder.md/x.md": (b"#a\n", b"#b\n"),
}
CHANGED = sum(old != new for old, new in NOTES.values())
COUNTED = CHANGED + 2


def run(*args, env=None, **options):
    environment = {**os.environ, **{name: str(value) for name, value in (env or {}).items()}}
    return subprocess.run([COMMAND, "vault", *map(str, args)], stdin=subprocess.DEVNULL, env=environment,
                          timeout=250, **{"capture_output": True, **options})


def unprivileged():
    """Options for a command that permissions hold for."""
    return {"user": 65534, "group": 65534, "extra_groups": []} if os.geteuid() == 0 else {}


class VaultTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.outside = Path(folder.name)
        self.folder = self.outside / "notes"
        self.folder.mkdir()

    def file(self, name, content=b"#a\n"):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        return path

    def files(self, notes):
        for name, content in notes.items():
            self.file(name, content)

    def content(self):
        """All files below the folder, hidden ones too."""
        paths = (Path(folder) / name for folder, _, names in os.walk(self.folder) for name in names)
        return {str(path.relative_to(self.folder)): path.read_bytes() for path in paths if path.is_file()}

    def shim(self, call, nth=1, also=None, **what):
        """The second plan is a dictionary with "call", "nth" and so on."""
        compiler = shutil.which("cc") or shutil.which("gcc") or shutil.which("clang")
        if not compiler:
            self.skipTest("needs a C compiler")
        library = self.outside / "shim.so"
        if not library.exists():
            source = self.outside / "shim.c"
            source.write_text(SHIM)
            subprocess.run([compiler, "-shared", "-fPIC", "-O1", "-o", library, source, "-ldl"], check=True)
        settings = {f"SHIM_{name.upper()}": value for name, value in what.items()}
        settings.update({f"ALSO_{name.upper()}": value for name, value in (also or {}).items()})
        sanitizer = os.environ.get("ASAN_OPTIONS", "") + ":verify_asan_link_order=0"
        return {"LD_PRELOAD": library, "ASAN_OPTIONS": sanitizer, "SHIM_CALL": call, "SHIM_NTH": nth, **settings}

    def hidden(self):
        """What the command has left, by name."""
        names = [name for name in os.listdir(self.folder) if name.startswith(".corvane-")]
        return {name: (self.folder / name).read_bytes() for name in names}

    def has_leases(self):
        """Whether the file system tells that somebody has a file open for writing."""
        if not hasattr(fcntl, "F_SETLEASE"):
            return False
        path = self.outside / "leased"
        path.write_bytes(b"")
        with open(path, "rb") as file:
            try:
                fcntl.fcntl(file, fcntl.F_SETLEASE, fcntl.F_RDLCK)
                fcntl.fcntl(file, fcntl.F_SETLEASE, fcntl.F_UNLCK)
                return True
            except OSError:
                return False

    def assert_skips(self, result, reasons):
        """Each of the names with a part of its reason on a line of its own, and nothing more."""
        lines = result.stderr.decode().splitlines()
        self.assertEqual((result.returncode, lines[0]), (1, f"corvane: skipped: {len(reasons)}"), lines)
        self.assertEqual([line.partition(": ")[0] for line in lines[1:]], ["  " + name for name in sorted(reasons)])
        for line in lines[1:]:
            name, _, reason = line.strip().partition(": ")
            self.assertIn(reasons[name], reason)


class Changes(VaultTest):
    def test_only_the_bytes_of_the_tag_change(self):
        for jobs in (1, 2, 7):
            self.files({name: old for name, (old, _) in NOTES.items()})
            result = run(self.folder, *RENAME, "--jobs", jobs)
            self.assertEqual((result.stderr, result.returncode), (b"", 0))
            self.assertEqual(self.content(), {name: new for name, (_, new) in NOTES.items()})
            lines = result.stdout.decode().splitlines()
            self.assertEqual(lines[-1], f"changed {CHANGED} of {COUNTED} notes")
            self.assertEqual(len(lines), CHANGED + 1)
            self.assertIn("sub/no ending.md", lines)
            self.assertIn("sub/new␊line\t\"\\␛.md", lines)

    def test_the_patch_of_a_dry_run_does_what_the_run_does(self):
        self.files({name: old for name, (old, _) in NOTES.items()})
        before = {name: (self.folder / name).stat() for name in NOTES}
        result = run(self.folder, *RENAME, "--dry-run")
        self.assertEqual((result.stderr, result.returncode), (b"", 0))
        self.assertTrue(result.stdout.endswith(b"\nwould change %d of %d notes\n" % (CHANGED, COUNTED)))
        for name, stat in before.items():
            now = (self.folder / name).stat()
            self.assertEqual((now.st_mtime_ns, now.st_ctime_ns), (stat.st_mtime_ns, stat.st_ctime_ns), name)
        self.assertEqual(self.content(), {name: old for name, (old, _) in NOTES.items()})
        if not shutil.which("patch"):
            self.skipTest("needs patch")
        subprocess.run(["patch", "-p1", "-s", "-F0"], input=result.stdout, cwd=self.folder, check=True)
        self.assertEqual(self.content(), {name: new for name, (_, new) in NOTES.items()})

    def test_the_form_of_a_patch(self):
        self.file("sub/a.md", b"1\n2\n3\n4\n#a\n6\n7\n8\n9\n10\n11\n#a\n13\n14\n15\n16\n17\n18\n19\n#a")
        result = run(self.folder, *RENAME, "--dry-run")
        self.assertEqual(result.stdout.decode(), "--- a/sub/a.md\n+++ b/sub/a.md\n@@ -2,14 +2,14 @@\n 2\n 3\n 4\n-#a\n"
                         "+#b\n 6\n 7\n 8\n 9\n 10\n 11\n-#a\n+#b\n 13\n 14\n 15\n@@ -17,4 +17,4 @@\n 17\n 18\n 19\n-#a\n"
                         "\\ No newline at end of file\n+#b\n\\ No newline at end of file\nwould change 1 of 1 note\n")

    def test_actions(self):
        for args, old, new in [
            (["rename-tag", "#a", "#x y/z"], "#a/b c", "#x y/z/b# c"),
            (["rename-tag", "a/b", "c"], "#a #a/b", "#a #c"),
            (["remove-tag", "a"], "x #a y #a/b", "x y "),
            (["remove-tag", "#a/b#"], "x #a/b y", "x #a y"),
            (["rename-note", "Old", "New/[x]"], "[[old]] [[Old/h|x]] [[Older]] #Old",
             r"[[New\/\[x\]]] [[New\/\[x\]/h|x]] [[Older]] #Old"),
            (["rename-note", "[[Old]]", " [[ New,x ]] "], "[[old|x]]", "[[New,x|x]]"),
            (["rename-note", "[Old,x]", "[b]"], r"[[\[old,x\]]]", r"[[\[b\]]]"),
            (["rename-tag", " #a ", "#c d#"], "#a", "#c d#"),
            (["rename-note", "a", "b", "--rules", "commonmark"], "[[a]]", "[[a]]"),
            (["rename-note", "gone", "b"], "[[a]]", "[[a]]"),
        ]:
            with self.subTest(args=args):
                note = self.file("n.md", old.encode())
                self.assertEqual(run(self.folder, *args).returncode, 0)
                self.assertEqual(note.read_text(), new)

    def test_what_can_not_be_written_everywhere_is_left_and_named(self):
        reason = "#a is left in it where %s can't be written"
        for args, old, new, left in [
            (["rename-tag", "a", "two words"], "x **#A** y #a/b", "x **#A** y #two words/b#", reason % "#two words#"),
            (["rename-tag", "a", "two words"], "x **#a/b** y", None, reason % "#two words#"),
            (["rename-tag", "a", "a/c d"], "#a x **#a** y", "#a/c d# x **#a** y", reason % "#a/c d#"),
            (["rename-tag", "a", "A"], "#a #A", "#A #A", None),
            (["rename-tag", "a", "a/a"], "#a #a/a", "#a/a #a/a/a", None),
            (["rename-tag", "a/b", "a"], "#a/b/b #a/b", "#a/b #a", None),
            (["rename-tag", "a", "a"], "#a", None, None),
            (["remove-tag", "a/b"], "#a/b/a/b #A/B", "#a #A", None),
            (["rename-note", "a", "b"], "[[A/a]] [[b/a]]", "[[b/a]] [[b/a]]", None),
        ]:
            with self.subTest(args=args, old=old):
                note = self.file("n.md", old.encode())
                self.file("z.md", b"x")
                for more in (["--dry-run"], []):
                    result = run(self.folder, *args, *more)
                    self.assertEqual(result.stderr.decode(), f"corvane: not changed everywhere: 1\n  n.md: {left}\n" if left else "")
                    self.assertEqual(result.returncode, 1 if left else 0)
                    self.assertTrue(result.stdout.endswith(b"change%s %d of 2 notes\n" % (b"" if more else b"d", new is not None)))
                self.assertEqual(note.read_text(), new or old)

    def test_what_no_note_has(self):
        self.files({"n.md": b"`#gone` [[a]] [[a/gone]]", "o.md": b"\\[[gone]] #agone #two words#"})
        for args, said in [
            (["rename-tag", "gone", "x"], "no note has the tag #gone"),
            (["remove-tag", "two words/x"], "no note has the tag #two words/x#"),
            (["rename-note", "gone", "x"], "no note links to gone"),
            (["rename-note", "\x1b[31m", "x"], "no note links to ␛[31m"),
            (["rename-note", "a", "A"], None),
        ]:
            for more in (["--dry-run"], []):
                with self.subTest(args=args, more=more):
                    result = run(self.folder, *args, *more)
                    self.assertEqual((result.stderr, result.returncode), (b"", 0))
                    self.assertEqual("no note" in result.stdout.decode(), said is not None)
                    if said:
                        verb = "would change" if more else "changed"
                        self.assertEqual(result.stdout.decode(), f"{said}\n{verb} 0 of 2 notes\n")
        self.file("bad.md", b"\xff")
        self.assertEqual(run(self.folder, "remove-tag", "gone").stdout, b"no other note has the tag #gone\nchanged 0 of 3 notes\n")

    def test_what_makes_no_sense_is_refused_before_a_note_is_touched(self):
        self.file("n.md")
        for args, code, part in [
            ([], 2, "DIR"),
            ([self.folder], 2, "ACTION"),
            ([self.folder, "rename"], 2, "there is no action rename; the actions are summary, tags, "),
            ([self.folder, "rename-tag", "a"], 2, "TO is missing; the action is rename-tag FROM TO"),
            ([self.folder, "remove-tag", "a", "b"], 2, "too many: b"),
            ([self.folder, "rename-tag", "a", "##"], 2, 'TO: no tag can be called "##"'),
            ([self.folder, "rename-tag", "a", "c#"], 2, 'TO: no tag can be called "c#"; "c" would do'),
            ([self.folder, "rename-tag", "a", "/x//y/"], 2, 'TO: no tag can be called "/x//y/"; "x/y" would do'),
            ([self.folder, "rename-tag", "a", "x\ty"], 2, "TO: no tag"),
            ([self.folder, "rename-tag", "a\n", "b"], 2, "FROM: no tag"),
            ([self.folder, "remove-tag", "a/"], 2, 'TAG: no tag can be called "a/"; "a" would do'),
            ([self.folder, "rename-note", "[[a/b]]", "c"], 2, "OLD: write the title alone"),
            ([self.folder, "rename-note", "a", "b\tc"], 2, "NEW: no note"),
            ([self.folder, "rename-tag", " / ", "b"], 2, "FROM: no tag"),
            ([self.folder, "rename-tag", "a", "b//c"], 2, "TO: no tag"),
            ([self.folder, "rename-tag", "a", "b" * 600], 2, "TO: no tag"),
            ([self.folder, "remove-tag", "\udcff"], 2, "TAG: invalid UTF-8"),
            ([self.folder, "rename-note", "a", " \t"], 2, "NEW: no note"),
            ([self.folder, "rename-note", "a\nb", "c"], 2, "OLD: no note"),
            ([self.folder, *RENAME, "--json"], 2, "no --json"),
            ([self.folder, *RENAME, "--jobs", "0"], 2, "--jobs"),
            ([self.folder / "n.md", *RENAME], 1, "Not a directory"),
            ([self.folder / "gone", *RENAME], 1, "No such file"),
            (["", *RENAME], 1, "No such file"),
        ]:
            with self.subTest(args=args):
                result = run(*args)
                self.assertEqual((result.returncode, result.stdout), (code, b""), result.stderr)
                self.assertIn(part, result.stderr.decode())
                self.assertEqual(self.content(), {"n.md": b"#a\n"})

    def test_a_note_keeps_what_is_not_text(self):
        for mode in (0o600, 0o640, 0o666, 0o755, 0o200 | 0o444):
            path = self.file(f"{mode}.md")
            path.chmod(mode)
        owned = self.file("owned.md")
        if os.geteuid() == 0:
            os.chown(owned, 1234, 4321)
        attributes = {}
        if hasattr(os, "setxattr"):
            try:
                os.setxattr(owned, "user.colour", b"re\0d")
                attributes = {"user.colour": b"re\0d"}
            except OSError as error:
                self.assertEqual(error.errno, errno.ENOTSUP)
        before = {path: path.stat() for path in self.folder.iterdir()}
        previous = os.umask(0o077)
        self.addCleanup(os.umask, previous)
        self.assertEqual(run(self.folder, *RENAME).returncode, 0)
        for path, stat in before.items():
            now = path.stat()
            self.assertNotEqual(now.st_ino, stat.st_ino)
            self.assertEqual((now.st_mode, now.st_uid, now.st_gid), (stat.st_mode, stat.st_uid, stat.st_gid), path)
        for name, value in attributes.items():
            self.assertEqual(os.getxattr(owned, name), value)

    def test_links(self):
        """Of the links none is followed, but for the folder itself; what they lead to stays."""
        elsewhere = self.outside / "elsewhere"
        elsewhere.mkdir()
        (elsewhere / "n.md").write_bytes(b"#a\n")
        self.file("real/n.md")
        os.symlink(elsewhere / "n.md", self.folder / "out.md")
        os.symlink(elsewhere, self.folder / "out")
        os.symlink("real/n.md", self.folder / "in.md")
        os.symlink(".", self.folder / "loop")
        os.symlink("gone", self.folder / "broken.md")
        os.symlink(self.folder, self.outside / "link")
        result = run(self.outside / "link", *RENAME)
        self.assertEqual((result.stdout, result.stderr), (b"real/n.md\nchanged 1 of 1 note\n", b""))
        self.assertEqual((self.folder / "in.md").read_bytes(), b"#b\n")
        self.assertTrue((self.folder / "in.md").is_symlink())
        self.assertEqual((elsewhere / "n.md").read_bytes(), b"#a\n")

    def test_a_few_descriptors(self):
        """Fewer than eight threads want."""
        names = [f"{i}/{i}.md" for i in range(80)]
        for limit in (12, 20, 30):
            for more in ([], ["--jobs", 8]):
                with self.subTest(limit=limit, more=more):
                    self.files(dict.fromkeys(names, b"#a\n"))
                    result = run(self.folder, *RENAME, *more,
                                 preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_NOFILE, (limit, limit)))
                    self.assertEqual((result.stderr, result.returncode), (b"", 0))
                    self.assertEqual({*self.content().values()}, {b"#b\n"})

    def test_ten_thousand_notes(self):
        for i in range(10_000):
            self.file(f"{i % 40}/{i}.md", b"# Title\n\nSome *text*.\n" + (b"\n#a\n" if i % 50 == 0 else b""))
        result = run(self.folder, *RENAME)
        self.assertTrue(result.stdout.endswith(b"\nchanged 200 of 10000 notes\n"))
        names = result.stdout.splitlines()[:-1]
        self.assertEqual(names, sorted(b"%d/%d.md" % (i % 40, i) for i in range(0, 10_000, 50)))
        self.assertEqual(run(self.folder, *RENAME).stdout, b"no note has the tag #a\nchanged 0 of 10000 notes\n")

    def test_a_terminal_gets_no_control_characters(self):
        self.file("\x1b]0;x\x07.md", b"#a \x1b[31m\xc2\x9b\n")
        main, side = pty.openpty()
        run(self.folder, *RENAME, "--dry-run", capture_output=False, stdout=side, stderr=side)
        run(self.folder, *RENAME, capture_output=False, stdout=side, stderr=side)
        os.close(side)
        printed = os.read(main, 100_000).decode()
        os.close(main)
        self.assertIn("#b ␛[31m", printed)
        self.assertIn("␛]0;x␇.md\r\nchanged 1 of 1 note", printed)
        printed = printed.replace("\r\x1b[K", "")  # takes the progress away
        self.assertFalse({c for c in printed if ord(c) < 32} - {"\n", "\r"})


class Skipping(VaultTest):
    def test_notes_that_can_not_be_taken(self):
        good = {"a.md": b"#a\n", "z.md": b"#a\n"}
        bad = {"bad.md": b"#a \xff\n", "cut.md": b"#a \xe2\x82", "surrogate.md": b"#a \xed\xa0\x80", "ro.md": b"#a\n"}
        self.files({**good, **bad, "ro, but without the tag.md": b"#b\n"})
        (self.folder / "ro.md").chmod(0o444)
        (self.folder / "ro, but without the tag.md").chmod(0o444)
        os.mkfifo(self.folder / "pipe.md")
        reasons = {"bad.md": "invalid UTF-8 at byte offset 3", "cut.md": "byte offset 3", "surrogate.md": "byte offset 3",
                   "ro.md": "read-only", "pipe.md": "not a regular file"}
        for more, words in ((["--dry-run"], b"would change"), ([], b"changed")):
            result = run(self.folder, *RENAME, *more)
            self.assert_skips(result, reasons)
            self.assertTrue(result.stdout.endswith(words + b" 2 of 8 notes\n"))
        renamed = dict.fromkeys([*good, "ro, but without the tag.md"], b"#b\n")
        self.assertEqual(self.content(), {**renamed, **bad})

    def test_a_pipe_that_somebody_writes_to(self):
        """Only to open it would let the writer go on."""
        pipe = self.folder / "pipe.md"
        os.mkfifo(pipe)
        with subprocess.Popen(["sh", "-c", f"echo kept > '{pipe}'"]) as writer:
            time.sleep(0.2)
            result = run(self.folder, *RENAME)
            time.sleep(0.2)
            self.assertIsNone(writer.poll())
            self.assertEqual(pipe.read_bytes(), b"kept\n")
        self.assert_skips(result, {"pipe.md": "not a regular file"})

    def test_several_names_of_a_file(self):
        """Which of them is read first depends on the threads."""
        names = [f"{i:02}{name}.md" for i in range(30) for name in ("", " too")]
        for first, second in zip(names[::2], names[1::2]):
            os.link(self.file(first), self.folder / second)
        os.link(self.file("n.md"), self.outside / "elsewhere")
        os.link(self.file("without the tag.md", b"#b\n"), self.outside / "elsewhere too")
        before = self.content()
        for more in (["--dry-run"], ["--jobs", 1], ["--jobs", 8]):
            result = run(self.folder, *RENAME, *more)
            self.assert_skips(result, dict.fromkeys([*names, "n.md"], "it has several names (hard links)"))
            self.assertEqual(self.content(), before)

    def test_folders_that_are_too_deep(self):
        """The first one that can't be reached is named, and all above it are done."""
        leaf = "d" * 200
        most = (os.pathconf(self.folder, "PC_PATH_MAX") - 1 - len(os.fsencode(self.folder))) // (len(leaf) + 1)
        folder = os.open(self.folder, os.O_RDONLY)
        for _ in range(most + 3):
            os.mkdir(leaf, dir_fd=folder)
            below = os.open(leaf, os.O_RDONLY, dir_fd=folder)
            os.close(folder)
            folder = below
            with open(os.open("n.md", os.O_WRONLY | os.O_CREAT, dir_fd=folder), "wb") as note:
                note.write(b"#a\n")
        os.close(folder)
        result = run(self.folder, *RENAME)
        self.assert_skips(result, {"/".join([leaf] * (most + 1)): os.strerror(errno.ENAMETOOLONG)})
        self.assertTrue(result.stdout.endswith(b"\nchanged %d of %d notes\n" % (most, most)))

    def test_permissions(self):
        options = unprivileged()
        if options and subprocess.run([COMMAND, "--version"], capture_output=True, **options).returncode != 0:
            self.skipTest("the command is out of reach for an unprivileged user")
        for name in ("closed/n.md", "listed only/n.md", "listed only/x.png", "listed only/sub/n.md", "fixed/n.md",
                     "unreadable.md", "foreign.md", "good.md"):
            path = self.file(name)
            if options:
                for one in (self.outside, self.folder, path.parent, path):
                    os.chown(one, 65534, 65534)
        if options:
            os.chown(self.folder / "foreign.md", 0, 0)
            (self.folder / "foreign.md").chmod(0o666)
        else:
            (self.folder / "foreign.md").chmod(0)
        (self.folder / "unreadable.md").chmod(0)
        for name, mode in (("closed", 0), ("listed only", 0o444), ("fixed", 0o555)):
            (self.folder / name).chmod(mode)
            self.addCleanup((self.folder / name).chmod, 0o755)
        result = run(self.folder, *RENAME, **options)
        self.assert_skips(result, {
            "closed": "Permission denied", "listed only/n.md": "Permission denied",
            "listed only/sub": "Permission denied", "fixed/n.md": "its folder is read-only",
            "unreadable.md": "Permission denied", "foreign.md": "owner" if options else "Permission denied"})
        self.assertEqual(result.stdout, b"good.md\nchanged 1 of 5 notes\n")

    def test_notes_that_change_meanwhile(self):
        """Somebody changes the note when its new text is on the disk already."""
        same_stamp = "touch -r n.md ../stamp; printf '#A\\n' > n.md; touch -r ../stamp n.md"
        for command, left, *clock in [
            ("printf '#a more\\n' > n.md", b"#a more\n"),
            ("printf '#A\\n' > n.md", b"#A\n"),
            (same_stamp, b"#A\n"),
            ("printf '#a else\\n' > ../x; mv ../x n.md", b"#a else\n"),
            ("cp n.md ../x; mv ../x n.md", b"#a\n"),
            ("rm n.md", None),
            ("printf '#a\\n' > ../x; ln -sf ../x n.md", b"#a\n"),
            ("chmod 600 n.md", b"#a\n"),
            ("printf '#A\\n' > n.md", b"#A\n", "still"),
        ]:
            with self.subTest(command=command, clock=clock):
                note = self.file("n.md")
                note.chmod(0o644)
                env = self.shim("fsync", run=f"cd '{self.folder}' && {command}", **dict.fromkeys(clock, 1))
                result = run(self.folder, *RENAME, env=env)
                self.assert_skips(result, {"n.md": ""})
                self.assertEqual(result.stdout, b"changed 0 of 1 note\n")
                self.assertEqual(note.read_bytes() if note.exists() else None, left)
                self.assertEqual(os.listdir(self.folder), ["n.md"] if left else [])
                if left:
                    note.unlink()

    def test_notes_that_change_at_the_last_moment(self):
        """Behind the last look at the note, when the files are about to change places."""
        for command, left in [
            ("printf '#a else\\n' > ../x; mv ../x n.md", b"#a else\n"),
            ("cp n.md ../x; mv ../x n.md", b"#a\n"),
            ("rm n.md", None),
            ("printf '#a\\n' > ../x; ln -sf ../x n.md", b"#a\n"),
            ("(printf '#a more\\n' > n.md) & sleep 0.2", b"#a more\n"),
            ("(printf 'more\\n' >> n.md) & sleep 0.2", b"#a\nmore\n"),
        ]:
            with self.subTest(command=command):
                note = self.file("n.md")
                env = self.shim("renameat2", run=f"cd '{self.folder}' && {command}")
                if "&" in command and not self.has_leases():
                    continue
                self.assert_skips(run(self.folder, *RENAME, env=env), {"n.md": ""})
                self.assertEqual(note.read_bytes() if note.exists() else None, left)
                self.assertEqual(os.listdir(self.folder), ["n.md"] if left else [])
                if left:
                    note.unlink()

    SAVE = "printf '#a {0}' > ../x && mv ../x n.md"

    def assert_present(self, result, save):
        """The note is what was saved, or a hidden file which the reason names is; others are only the command's own."""
        reasons = result.stderr.decode()
        unnamed = [content for name, content in self.hidden().items() if f" in {name}\n" not in reasons]
        self.assertLessEqual({*unnamed}, {b"#b\n"})
        self.assertIn(save, self.content().values(), reasons)

    def test_notes_that_are_saved_twice_at_the_last_moment(self):
        """Before the files change places, and before they are about to do so again."""
        for command, left in [
            (self.SAVE.format("second"), {"n.md": b"#a second"}),
            ("rm n.md", {}),
            ("rm n.md; mkdir n.md; echo > n.md/x", {"n.md/x": b"\n"}),
        ]:
            with self.subTest(command=command):
                self.file("n.md")
                first, then = (f"cd '{self.folder}' && {one}" for one in (self.SAVE.format("first"), command))
                result = run(self.folder, *RENAME, env=self.shim(
                    "renameat2", run=first, also={"call": "renameat2", "nth": 2, "run": then}))
                self.assert_skips(result, {"n.md": "it was changed meanwhile; what another program wrote is in "})
                self.assert_present(result, b"#a first")
                self.assertEqual(sorted(self.content().values()), sorted([b"#a first", *left.values()]))
                shutil.rmtree(self.folder)
                self.folder.mkdir()

    def test_a_look_that_fails_when_a_note_is_saved(self):
        """At the last moment; where the file is not known, it may be the only one."""
        saved = self.outside / "saved"
        command = f"cd '{self.folder}' && {self.SAVE.format('saved')} && touch '{saved}'"
        count = 0
        for nth in range(1, 9):
            for always in ({}, {"always": 1}):
                with self.subTest(nth=nth, always=always):
                    note = self.file("n.md")
                    result = run(self.folder, *RENAME, env=self.shim(
                        "renameat2", run=command, also={"call": "fstatat", "nth": nth, "errno": errno.EIO, **always}))
                    self.assertEqual(result.returncode, 1)
                    if saved.exists():
                        self.assert_present(result, b"#a saved")
                        self.assertEqual(note.read_bytes(), b"#a saved")
                        saved.unlink()
                        count += 1
                    else:
                        self.assertEqual(note.read_bytes(), b"#a\n")
                    for name in self.hidden():
                        (self.folder / name).unlink()
        self.assertGreater(count, 6)

    def test_two_runs_and_a_save_at_the_last_moment(self):
        """The second run begins while the first puts the note in place, and may not do so too."""
        self.file("n.md")
        second = shlex.quote(COMMAND) + " vault . rename-tag a c 2> ../second; true"
        command = f"cd '{self.folder}' && {self.SAVE.format('saved')}; {second}"
        result = run(self.folder, *RENAME, env=self.shim("renameat2", run=command))
        self.assertEqual((self.outside / "second").read_text(),
                         "corvane: skipped: 1\n  n.md: another program has locked its folder\n")
        self.assert_skips(result, {"n.md": "it was changed meanwhile"})
        self.assertEqual(self.content(), {"n.md": b"#a saved"})

    def test_runs_and_saves_at_the_same_time(self):
        """Each save of programs that save by renaming is the note, or is in a hidden file that a run names."""
        end = time.monotonic() + 4
        complaints, lost = [], []

        def work():
            while time.monotonic() < end:
                result = run(self.folder, "rename-tag", *random.sample("abc", 2))
                complaints.append(result.stderr.decode())

        def is_present(note, save):
            """What changes places while it is looked for may be missed once."""
            try:
                return save in note.read_bytes() or any(save in content for content in self.hidden().values())
            except FileNotFoundError:
                return False

        def edit(note):
            for number in itertools.count():
                save = b"#a\n%s %d\n" % (note.name.encode(), number)
                note.with_suffix(".new").write_bytes(save)
                os.rename(note.with_suffix(".new"), note)
                if time.monotonic() > end + 0.5:
                    break
                time.sleep(random.random() * 0.004)
                if not any(is_present(note, save[2:]) or time.sleep(0.01) for _ in range(20)):
                    lost.append(save)

        notes = [self.file(f"{i}.md") for i in range(8)]
        threads = [threading.Thread(target=work) for _ in range(3)]
        threads += [threading.Thread(target=edit, args=(note,)) for note in notes]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(lost, [])
        self.assertEqual([name for name in self.hidden() if f" in {name}\n" not in "".join(complaints)], [])

    def test_a_note_that_another_program_has_open(self):
        if not self.has_leases():
            self.skipTest("the file system does not tell who has a file open")
        note = self.file("n.md")
        self.file("read.md")
        with open(note, "ab") as writer, open(self.folder / "read.md", "rb"):
            result = run(self.folder, *RENAME)
            self.assert_skips(result, {"n.md": "another program has it open for writing"})
            self.assertEqual(result.stdout, b"read.md\nchanged 1 of 2 notes\n")
            writer.write(b"more\n")
        self.assertEqual(note.read_bytes(), b"#a\nmore\n")
        self.assertEqual(run(self.folder, *RENAME).returncode, 0)
        self.assertEqual(note.read_bytes(), b"#b\nmore\n")

    def test_a_folder_that_becomes_a_link_meanwhile(self):
        """A link out of the notes takes the place of a folder, before its note is read or while it is replaced."""
        self.file("n.md")
        self.file("sub/n.md")
        elsewhere = self.outside / "elsewhere"
        elsewhere.mkdir()
        command = f"cd '{self.folder}' && mv sub ../moved && ln -s ../elsewhere sub"
        for nth, left in ((1, b"#a\n"), (3, b"#b\n")):
            with self.subTest(nth=nth):
                (elsewhere / "n.md").write_bytes(b"#a\n")
                result = run(self.folder, *RENAME, "--jobs", 1, env=self.shim("fsync", nth, run=command))
                self.assertEqual((result.returncode, (self.folder / "n.md").read_bytes()), (nth == 1, b"#b\n"))
                self.assertEqual((self.outside / "moved/n.md").read_bytes(), left)
                self.assertEqual((elsewhere / "n.md").read_bytes(), b"#a\n")
                self.assertEqual(os.listdir(elsewhere), ["n.md"])
            (self.folder / "sub").unlink()
            shutil.rmtree(self.outside / "moved")
            self.files({"n.md": b"#a\n", "sub/n.md": b"#a\n"})


class Faults(VaultTest):
    OLD = b"#a " + b"x" * 20_000
    NEW = b"#b " + b"x" * 20_000

    def setUp(self):
        super().setUp()
        self.names = [f"{i:02}.md" for i in range(20)]
        self.files({name: self.OLD for name in self.names})

    def assert_old_or_new(self):
        """Each note is whole; returns the number of new ones."""
        content = self.content()
        self.assertEqual([name for name in self.names if content[name] not in (self.OLD, self.NEW)], [])
        return sum(content[name] == self.NEW for name in self.names)

    def assert_no_more_files(self):
        self.assertEqual(sorted(os.listdir(self.folder)), self.names)

    def test_a_call_that_fails(self):
        for call, nth, error, *more in [
            ("write", 1, errno.ENOSPC), ("write", 8, errno.EDQUOT), ("fsync", 1, errno.EIO),
            ("renameat2", 1, errno.EIO), ("renameat", 1, errno.EROFS, "old"),
        ]:
            with self.subTest(call=call, nth=nth):
                self.files({name: self.OLD for name in self.names})
                env = self.shim(call, nth, errno=error, **dict.fromkeys(more, 1))
                result = run(self.folder, *RENAME, "--jobs", 1, env=env)
                self.assert_skips(result, {"00.md": os.strerror(error)})
                self.assertTrue(result.stdout.endswith(b"\nchanged 19 of 20 notes\n"))
                self.assertEqual(self.assert_old_or_new(), 19)
                self.assert_no_more_files()

    def test_permissions_that_can_not_be_kept(self):
        result = run(self.folder, *RENAME, "--jobs", 1, env=self.shim("fchmod", 2, errno=errno.EPERM))
        self.assert_skips(result, {"01.md": "permissions can't be kept"})
        self.assertEqual(self.assert_old_or_new(), 19)
        self.assert_no_more_files()

    def test_a_note_that_is_changed_but_maybe_not_for_good(self):
        result = run(self.folder, *RENAME, "--jobs", 1, env=self.shim("fsync", 2, errno=errno.EIO))
        self.assert_skips(result, {"00.md": "it was changed, but may not be on the disk yet"})
        self.assertEqual(self.assert_old_or_new(), 20)

    def test_an_old_text_that_can_not_be_removed(self):
        result = run(self.folder, *RENAME, "--jobs", 1, env=self.shim("unlinkat", errno=errno.EIO))
        (name, content), = self.hidden().items()
        self.assert_skips(result, {"00.md": f"it was changed, but its old text is left in {name}: Input/output error"})
        self.assertEqual((self.assert_old_or_new(), content), (20, self.OLD))

    def test_no_room(self):
        """As on a full disk, for all notes that are longer than a little."""
        self.file("short.md")

        def limit():
            resource.setrlimit(resource.RLIMIT_FSIZE, (8192, 8192))

        result = run(self.folder, *RENAME, preexec_fn=limit)
        self.assert_skips(result, {name: "can't be written" for name in self.names})
        self.assertEqual(result.stdout, b"short.md\nchanged 1 of 21 notes\n")
        self.assertEqual(self.assert_old_or_new(), 0)
        self.assertEqual(sorted(os.listdir(self.folder)), [*self.names, "short.md"])

    def test_a_full_disk(self):
        disk = self.outside / "disk"
        disk.mkdir()
        mount = ["mount", "-t", "tmpfs", "-o", "size=480k", "none", disk]
        if os.geteuid() != 0 or not shutil.which("mount") or subprocess.run(mount, capture_output=True).returncode != 0:
            self.skipTest("needs to mount a file system")
        self.addCleanup(subprocess.run, ["umount", disk], check=True)
        self.folder = disk
        self.files({name: self.OLD for name in self.names[:19]})
        self.file("fill", b"x" * (os.statvfs(disk).f_bavail * os.statvfs(disk).f_bsize))
        result = run(disk, *RENAME)
        self.assert_skips(result, {name: os.strerror(errno.ENOSPC) for name in self.names[:19]})
        self.names = self.names[:19]
        self.assertEqual(self.assert_old_or_new(), 0)
        self.assertEqual(sorted(os.listdir(disk)), [*self.names, "fill"])

    def test_a_kill(self):
        for call in ("write", "fsync", "fchmod", "renameat2", "unlinkat"):
            for nth in (1, 7, 19):
                for jobs in (1, 2):
                    with self.subTest(call=call, nth=nth, jobs=jobs):
                        self.files({name: self.OLD for name in self.names})
                        env = self.shim(call, nth, signal=int(signal.SIGKILL))
                        self.assertEqual(run(self.folder, *RENAME, "--jobs", jobs, env=env).returncode, -signal.SIGKILL)
                        self.assert_old_or_new()
                        result = run(self.folder, *RENAME)  # what was left does not matter to the next run
                        self.assertEqual((result.returncode, self.assert_old_or_new()), (0, 20))

    def test_an_interrupt(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            for call in ("write", "fsync", "renameat2"):
                with self.subTest(number=number, call=call):
                    self.files({name: self.OLD for name in self.names})
                    env = self.shim(call, 3, signal=int(number))
                    # A shell has what it runs in the background ignore some, and commands take that over.
                    result = run(self.folder, *RENAME, "--jobs", 1, env=env,
                                 preexec_fn=lambda number=number: signal.signal(number, signal.SIG_DFL))
                    changed = self.assert_old_or_new()
                    self.assertLess(changed, 4)
                    self.assertEqual(result.returncode, 1)
                    self.assertEqual(result.stderr.decode(),
                                     f"corvane: stopped by a signal; not looked at: {20 - changed} notes\n")
                    names = "".join(name + "\n" for name in self.names[:changed])
                    self.assertEqual(result.stdout.decode(), f"{names}changed {changed} of 20 notes\n")
                    self.assert_no_more_files()

    def test_output_that_nobody_takes(self):
        """The run goes on to its end all the same, and says what it has to."""
        self.file("bad.md", b"\xff")
        reader, writer = os.pipe()
        os.close(reader)
        with open("/dev/full", "wb") as full:
            for stdout, message in ((writer, ""), (full, "corvane: standard output: No space left on device\n")):
                self.files({name: self.OLD for name in self.names})
                result = run(self.folder, *RENAME, capture_output=False, stdout=stdout, stderr=subprocess.PIPE,
                             restore_signals=True)
                self.assertEqual(result.stderr.decode(),
                                 "corvane: skipped: 1\n  bad.md: invalid UTF-8 at byte offset 0\n" + message)
                self.assertEqual(result.returncode, 1)
                self.assertEqual(self.assert_old_or_new(), 20)
        os.close(writer)

    def test_runs_at_the_same_time(self):
        """Each note is taken by one of them, or by each in turn; none is lost."""
        commands = [[COMMAND, "vault", self.folder, "rename-tag", "a", to] for to in "bc"]
        runs = [subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE) for command in commands]
        for one in runs:
            one.communicate(timeout=100)
        self.assertLessEqual({*self.content().values()}, {self.NEW, self.NEW.replace(b"#b", b"#c")})
        self.assert_no_more_files()


if __name__ == "__main__":
    unittest.main()
