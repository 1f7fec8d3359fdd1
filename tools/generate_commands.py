#!/usr/bin/env python3
"""Writes docs/commands.md: every command and correction, with an example that is run.

    tools/generate_commands.py build/release/apps/cli/corvane [--check]

A row of the tables in corvane/client/CVNTextOperation.cpp without an example here is an error, and so is an
example that changes nothing.
"""

import argparse
import json
import re
import shlex
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
OUTPUT = ROOT / "docs" / "commands.md"
FOLD = '<!-- {"fold":true} -->'

# A note with its caret ‸ or selection ⟦…⟧, and the arguments of the command.
COMMANDS = {
    "indent": ("- a\n- b‸\n",),
    "outdent": ("- a\n  - b‸\n",),
    "toggleInlineStyle": ("some ⟦words⟧\n", "0"),
    "toggleBlockStyle": ("a ‸task\n", "8"),
    "insertNewlineInRange": ("1. a\n2. b‸\n",),
    "normalizeIndentationInRange": ("⟦- a\n    - b⟧\n",),
    "deletePrevious": ("# ‸Title\n",),
    "deleteNext": ("- a‸\n- b\n",),
    "toggleTask": ("⟦- [ ] a\n- [x] b⟧\n", "0"),
    "normalizeCalloutInRange": ("> [!note]‸\n",),
    "renumberOrderedListInRange": ("1. a\n5. b‸\n6. c\n",),
    "removeStrayMetaCommentInRange": (f"⟦once a heading {FOLD}⟧\n",),
    "addTagToTop": ("# Title‸\nText\n", "work"),
    "addTagToBottom": ("# Title\nText‸\n", "two words"),
    "removeTag": ("Text #work #home‸\n", "work"),
    "renameTag": ("#work/now and #work‸\n", "work", "job"),
    "escapeTag": ("Text #work‸\n", "work"),
    "appendText": ("# Title‸\n\nText\n\n#work\n", "More"),
    "appendTextExact": ("Text‸", "More"),
    "prependText": ("# Title‸\n#work\nText\n", "More"),
    "updateWikiLinks": ("See [[Plan]] and [[Plan/Week|week]]‸\n", "Plan", "Old plan", "no"),
    "updateLinksURL": ("![map](my%20map.png)‸\n", "my map.png", "map.png"),
    "removeLinkWithURL": ("Text ![map](map.png)‸\n", "map.png"),
    "insertThematicBreak": ("Text\n\n‸\n",),
    "insertTable": ("Text\n\n‸\n",),
    "toggleFoldInRange": ("# Title\n\n## Part\nText‸\n",),
    "foldAllHeadingSelectionRange": ("# Title‸\n\n## Part\nText\n",),
    "unfoldAllHeadingSelectionRange": (f"# Title‸\n\n## Part{FOLD}\nText\n",),
    "unfoldAtRangeEdges": (f"## Part{FOLD}\nText‸\n",),
    "escapePipesInRange": ("⟦a|b⟧\n",),
    "insertFootnoteWithDefinitionText": ("Text‸\n", "source"),
    "insertFootnoteDefinitionWithText": ("Text[^1‸]\n", "source"),
    "renameUnusedFootnoteDefinitionsIn": ("Text‸\n\n[^1]: source\n",),
    "renumberFootnotesIn": ("a[^7] b[^2]‸\n\n[^2]: two\n[^7]: seven\n",),
    "reorderFootnoteDefinitionsIn": ("Text‸\n\n[^2]: two\n[^1]: one\n",),
    "moveLinesUpIn": ("- a\n- b‸\n",),
    "moveLinesDownIn": ("- a‸\n- b\n",),
    "selectAllTextIn": ("```\nco‸de\n```\n",),
    "mutateTable": ("| a | b |\n|---|---|\n| c | ‸d |\n", "1"),
    "jumpTableCell": ("| a‸ | b |\n|---|---|\n", "0"),
    "normalizeTables": ("|a‸|long|\n|-|-:|\n|b|c|\n",),
}

# The note, and the text that is typed or pasted; of a selection, the one that is dragged, as it is drawn.
CORRECTIONS = {
    "fencedCodeCorrectionIn": ("``‸\n", "`"),
    "listItemSpaceCorrectionIn": ("- ‸a\n", " b"),
    "calloutCorrectionIn": ("> [!note]‸\n", "x"),
    "mathBlockCorrectionIn": ("$‸\nText\n", "$"),
    "tableSpaceCorrectionIn": ("|a|\n|-|\n|‸|\n", "x"),
    "pasteCorrectionIn": ("> Buy‸ today\n", "milk\n- bread"),
    "selectionCorrectionIn": ("⟦a⟧ **bold** text\n", "⟦a **bold⟧** text\n"),
    "invalidCharacterCorrectionIn": ("a‸\n", "\r\nb"),
    "deleteWhitespaceCorrectionIn": ("one ⟦two⟧ three\n", ""),
}

HEADER = """\
# Commands and corrections

<!-- Written by tools/generate_commands.py; do not edit. -->

What an editor can ask for, by the names of `CVNTextOperation`, of the C header and of `corvane op` and
`corvane correct`. The examples are run: on the left the note with its caret `‸` or selection `⟦…⟧`, on the
right what comes out. How they are asked is in [hosting.md](hosting.md).
"""


def parse(drawing):
    """Text, and the selection as OFFSET,LENGTH. All characters of the examples are one code unit."""
    caret = drawing.find("‸")
    if caret >= 0:
        return drawing.replace("‸", ""), f"{caret},0"
    start, end = drawing.index("⟦"), drawing.index("⟧") - 1
    return drawing.replace("⟦", "").replace("⟧", ""), f"{start},{end - start}"


def draw(text, selection):
    start, length = selection
    if length == 0:
        return f"{text[:start]}‸{text[start:]}"
    return f"{text[:start]}⟦{text[start : start + length]}⟧{text[start + length :]}"


def beside(left, right):
    """Two notes in a block of code, a line beside its like."""
    rows = [note.removesuffix("\n").split("\n") for note in (left, right)]
    count = max(map(len, rows))
    rows = [lines + [""] * (count - len(lines)) for lines in rows]
    width = max(map(len, rows[0]))
    return "".join(f"    {a.ljust(width)}   │ {b}".rstrip() + "\n" for a, b in zip(*rows))


class Corvane:
    def __init__(self, path):
        self.path = path

    def run(self, *words, text=""):
        run = subprocess.run([self.path, *words], input=text.encode(), capture_output=True, check=False)
        if run.returncode != 0:
            sys.exit(f"{' '.join(words)}: {run.stderr.decode()}")
        return run.stdout.decode()

    def rows(self, command):
        """Of each row the line that tells how it is called, and what stands below."""
        lists = re.findall(r"^(\S.*)\n((?:    .*\n)*)", self.run(command, "--list"), re.MULTILINE)
        return [(usage, [line.strip() for line in about.splitlines()]) for usage, about in lists]

    def after_command(self, name, drawing, arguments):
        text, selection = parse(drawing)
        out = json.loads(
            self.run("op", name, *arguments, "-", "--range", selection, "--apply", text=text)
        )
        return draw(out["text"], out["selection"])

    def after_correction(self, name, drawing, typed):
        text, at = parse(drawing)
        is_selection = name == "selectionCorrectionIn"
        edit = ["--selection", parse(typed)[1]] if is_selection else ["--text", typed]
        words = ["correct", name, "-", "--range", at, *edit]
        results = json.loads(self.run(*words, text=text))
        for result in results:
            start, length = result["range"]
            text = text[:start] + result["text"] + text[start + length :]
        return draw(text, results[-1]["selection"]) if results else drawing


def code(text):
    """A text as a code span, its line endings as escapes."""
    shown = text.removesuffix("\n").replace("\r", "\\r").replace("\n", "\\n")
    return f"`` {shown} ``" if "`" in shown else f"`{shown}`"


def example(usage, about, call, before, after):
    name = usage.split()[0]
    if after == before:
        sys.exit(f"the example of {name} changes nothing")
    lines = [f"\n### {usage}\n\n", about[0] + "\n" + "".join(f"\n- {line}" for line in about[1:]), "\n"]
    if len(about) > 1:
        lines.append("\n")
    return "".join(lines) + (call + "\n\n" if call else "") + beside(before, after)


def page(corvane):
    out = HEADER + "\n## Commands\n"
    for usage, about in corvane.rows("op"):
        name = usage.split()[0]
        drawing, *arguments = COMMANDS.pop(name)
        call = f"`{shlex.join([name, *arguments])}`:" if arguments else ""
        out += example(usage, about, call, drawing, corvane.after_command(name, drawing, arguments))
    out += "\n## Corrections\n"
    for usage, about in corvane.rows("correct"):
        drawing, typed = CORRECTIONS.pop(usage)
        if usage == "selectionCorrectionIn":
            call = f"The selection is to become {code(typed)}:"
        else:
            call = f"The range is to become {code(typed)}:" if typed else "The range is to be deleted:"
        out += example(usage, about, call, drawing, corvane.after_correction(usage, drawing, typed))
    if COMMANDS or CORRECTIONS:
        sys.exit(f"examples without a row: {[*COMMANDS, *CORRECTIONS]}")
    return out


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("corvane", help="the command")
    parser.add_argument("--check", action="store_true", help="compare with the file instead of writing it")
    arguments = parser.parse_args()
    text = page(Corvane(arguments.corvane))
    if not arguments.check:
        OUTPUT.write_text(text, encoding="utf-8")
    elif OUTPUT.read_text(encoding="utf-8") != text:
        sys.exit(f"{OUTPUT.relative_to(ROOT)} is not what its generator writes")


if __name__ == "__main__":
    main()
