"""Holds the includes and the QML imports of src/ to the table src/arrows.txt."""

import re

from lintlib import CODE, Findings, projectFiles, readText, rootArgument, withoutComments

APP_VALUES = {"app/AppCapabilities.h", "app/AppSection.h", "app/AppSection.cpp"}
COMPONENTS = "screens/components"
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*["<]([^">]+)[">]', re.MULTILINE)
IMPORT = re.compile(r'^[ \t]*import[ \t]+(Quillmere[.\w]*|"[^"]*")', re.MULTILINE)


def readTable(root, findings):
    """Folder to the list of folders that it may use. A folder may use only what stands above it in
    the table, so that a table without a finding has no loop."""
    table = {}
    for number, line in enumerate((root / "src/arrows.txt").read_text().splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        folder, _, uses = (part.strip() for part in line.partition(":"))
        for used in uses.split():
            if used not in table:
                findings.add("src/arrows.txt", number,
                             f"{folder} -> {used}: a folder may use only folders of the lines above"
                             " it; this arrow makes a loop or names no folder")
        table[folder] = uses.split()
    return table


def ownerOf(path):
    """The row of the table that a file, named from src/ on, belongs to."""
    if path in APP_VALUES:
        return "app-values"
    if path.startswith(COMPONENTS + "/"):
        return COMPONENTS
    return path.partition("/")[0]


def ownerOfModule(uri):
    name = uri.removeprefix("Quillmere").lstrip(".").lower()
    return COMPONENTS if name == "components" else name or "app"


def isAllowed(table, user, used):
    """The components are the lower floor of screens: they may use what screens may, not screens."""
    if user == used:
        return True
    if user == COMPONENTS:
        return used in table.get("screens", [])
    if used == COMPONENTS:
        return user == "screens" or "screens" in table.get(user, [])
    return used in table.get(user, [])


def checkIncludes(table, file, user, text, findings):
    for match in INCLUDE.finditer(text):
        included = match[1]
        used = ownerOf(included)
        isOurs = used in table or used == COMPONENTS
        if isOurs and not isAllowed(table, user, used):
            findings.addAt(file, text, match.start(1),
                           f"{user} may not use {used} (src/arrows.txt): move the code to the folder"
                           " that may, or hand the value in from above")
        isGenerated = "/" not in included and re.search(r"\.moc$|^moc_", included)
        if '"' in match[0] and not isOurs and not isGenerated:
            findings.addAt(file, text, match.start(1),
                           f'"{included}" names no folder of src/arrows.txt: name our headers from'
                           " src/ on and foreign ones in angle brackets")


def checkImports(table, file, user, text, findings):
    for match in IMPORT.finditer(text):
        if match[1].startswith('"'):
            findings.addAt(file, text, match.start(1),
                           f"import {match[1]}: import the module by its name, not its folder")
        elif not isAllowed(table, user, ownerOfModule(match[1])):
            findings.addAt(file, text, match.start(1),
                           f"{user} may not import {match[1]} (src/arrows.txt)")


def main():
    root = rootArgument()
    findings = Findings()
    table = readTable(root, findings)
    for file in projectFiles(root, *CODE, ".qml", under="src"):
        user = ownerOf(str(file.relative_to("src")))
        if user not in table and user != COMPONENTS:
            findings.add(file, 1, f"{user} is no row of src/arrows.txt: add it there")
            continue
        text = withoutComments(readText(root / file))
        check = checkImports if file.suffix == ".qml" else checkIncludes
        check(table, file, user, text, findings)
    findings.finish()


main()
