#!/usr/bin/env python3
"""Tests that the examples of the command in README.md are true: readme_test.py PATH_TO_CORVANE"""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from command import COMMAND

PROJECT = Path(__file__).resolve().parents[2]


def examples():
    """Of each line that is typed, and what is printed below it."""
    blocks = re.findall(r"^```console\n(\$ corvane .*?)^```$", (PROJECT / "README.md").read_text(), re.MULTILINE | re.DOTALL)
    for block in blocks:
        for example in re.split(r"^\$ ", block, flags=re.MULTILINE)[1:]:
            typed, _, printed = example.partition("\n")
            yield typed, printed


class Readme(unittest.TestCase):
    def test_examples(self):
        outside = tempfile.TemporaryDirectory()
        self.addCleanup(outside.cleanup)
        folder = shutil.copytree(PROJECT / "examples", Path(outside.name, "examples"))
        os.symlink(COMMAND, Path(outside.name, "corvane"))
        environment = {**os.environ, "PATH": outside.name + os.pathsep + os.environ["PATH"]}
        actions = set()
        for typed, printed in examples():
            if "jq" in typed and not shutil.which("jq"):
                continue
            with self.subTest(typed=typed):
                result = subprocess.run(["sh", "-c", typed], cwd=folder, env=environment, capture_output=True, timeout=60)
                self.assertEqual((result.stdout.decode(), result.stderr, result.returncode), (printed, b"", 0))
            actions.add(tuple(re.findall(r"corvane (\w+)(?: notes ([\w-]+))?", typed)[0]))
        self.assertLessEqual({("stats", ""), ("fuzzy", ""), ("vault", "tags"), ("vault", "links"), ("vault", "find"),
                              ("vault", "rename-tag")}, actions)


if __name__ == "__main__":
    unittest.main()
