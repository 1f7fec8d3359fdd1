"""What the tests of the command share. Its path is the first argument of each script."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

if len(sys.argv) < 2:
    sys.exit(sys.modules["__main__"].__doc__)
COMMAND = os.path.abspath(sys.argv.pop(1))


def run(*args, stdin=b"", **options):
    """Runs the command; the result has bytes in stdout and stderr."""
    words = [arg if isinstance(arg, bytes) else str(arg) for arg in args]
    return subprocess.run([COMMAND, *words], input=stdin, capture_output=True, timeout=250, **options)


class CommandTest(unittest.TestCase):
    """Tests with a folder of their own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def file(self, name, content):
        path = self.folder / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return path
