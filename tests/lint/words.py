"""Finds references that a reader of this repository cannot follow: to numbered chapters of papers
that are not here, and to folders of one developer's machine."""

import re

from lintlib import Findings, projectFiles, readText, rootArgument

# Spelled apart, so that this file passes its own check.
PAPERS = "|".join((
    r"\bParts?" + r" [0-9]+\.[0-9]",
    r"\bthe sp" + r"ec\b",
    r"\bsp" + r"ec\.md\b",
    r"\bas " + "specified",
    r"\bedge cases " + "worth testing",
    r"\bleft to the " + "implementer",
    r"(?<!entry )\bspecif" + r"ications?\b(?! of the desktop)",
))
FOLDERS = r"(?<![\w.~$}/-])/(?:wo" + r"rk|ro" + r"ot)/"
WORDS = re.compile(f"(?P<paper>{PAPERS})|(?P<folder>{FOLDERS})", re.IGNORECASE)


def messageFor(match):
    if match["paper"]:
        return f'"{match[0]}" sends the reader to a paper that is not here: give the reason itself'
    return f'"{match[0]}" exists on one machine only: use a relative path or a temporary folder'


def main():
    root = rootArgument()
    findings = Findings()
    for file in projectFiles(root):
        text = readText(root / file)
        for match in WORDS.finditer(text or ""):
            findings.addAt(file, text, match.start(), messageFor(match))
        for match in WORDS.finditer(file.as_posix()):
            findings.add(file, 1, f'the file name: {messageFor(match)}')
    findings.finish()


main()
