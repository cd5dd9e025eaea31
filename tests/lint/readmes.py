"""Holds the README.md of each folder of src/ to its 20 lines, to the code and to src/arrows.txt."""

import re

from lintlib import CODE, Findings, projectFiles, readArrows, readText, rootArgument

LINES = 20
HEADINGS = ("Owns:", "Must never know:", "Entry types:", "Threads:", "May use:")
NAME = re.compile(r"`([A-Za-z_]\w*(?:::\w+)*)(?:\(\))?`")
FILE = re.compile(r"`([\w/.-]+\.(?:h|cpp|qml|txt|cmake))`")


def checkNames(root, file, text, findings):
    folder = file.parent
    code = "\n".join(readText(root / source) for source in
                     projectFiles(root, *CODE, ".qml", under=str(folder)))
    stems = {source.stem for source in projectFiles(root, ".qml", under=str(folder))}
    words = set(re.findall(r"\w+", code)) | stems
    for match in NAME.finditer(text):
        if not set(match[1].split("::")) <= words:
            findings.addAt(file, text, match.start(),
                           f"{match[1]} is no name in the code of {folder}: correct it")
    for match in FILE.finditer(text):
        if not any((root / base / match[1]).is_file() for base in (".", "src", folder)):
            findings.addAt(file, text, match.start(), f"there is no file {match[1]}")


def checkArrows(file, text, allowed, findings):
    match = re.search(r"^May use:(.*)$", text, re.MULTILINE)
    if not match:
        return
    named = [] if match[1].strip() == "nothing." else re.findall(r"[\w/*-]+", match[1])
    if named != allowed:
        expected = ", ".join(allowed) or "nothing"
        findings.addAt(file, text, match.start(),
                       f'src/arrows.txt says otherwise; write "May use: {expected}."')


def main():
    root = rootArgument()
    findings = Findings()
    for folder, (_, allowed) in readArrows(root).items():
        if not (root / "src" / folder).is_dir():
            continue
        path = root / "src" / folder / "README.md"
        file = path.relative_to(root)
        if not path.is_file():
            findings.add(file, 1, f"missing; it needs the lines {', '.join(HEADINGS)}")
            continue
        text = readText(path)
        if len(text.splitlines()) > LINES:
            findings.add(file, LINES + 1, f"longer than {LINES} lines: say less")
        for heading in HEADINGS:
            if not re.search("^" + re.escape(heading) + r"[ \t]*\S", text, re.MULTILINE):
                findings.add(file, 1, f'the line "{heading} …" is missing')
        checkNames(root, file, text, findings)
        checkArrows(file, text, allowed, findings)
    findings.finish()


main()
