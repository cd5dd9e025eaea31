"""Holds the includes and the QML imports of src/ to the table src/arrows.txt."""

import re

from lintlib import CODE, Findings, projectFiles, readArrows, readText, rootArgument, withoutComments

APP_VALUES = {"app/AppCapabilities.h", "app/AppSection.h", "app/AppSection.cpp"}
ALL_SCREENS = "screens/*"
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*["<]([^">]+)[">]', re.MULTILINE)
IMPORT = re.compile(r'^[ \t]*import[ \t]+(Quillmere[.\w]*|"[^"]*")', re.MULTILINE)


def isScreen(folder):
    return folder.startswith("screens/")


class Table:
    """Which folder may use which. A folder may use only what stands above it in the table, so that
    a table without a finding has no loop."""

    def __init__(self, root, findings):
        self._rows = readArrows(root)
        self._allowed = {}
        self._needed = set()
        for folder, (line, uses) in self._rows.items():
            for used in uses:
                if used not in self._allowed and used != ALL_SCREENS:
                    findings.add("src/arrows.txt", line,
                                 f"{folder} -> {used}: a folder may use only folders of the lines"
                                 " above it; this arrow makes a loop or names no folder")
            screens = set(filter(isScreen, self._allowed)) if ALL_SCREENS in uses else set()
            self._allowed[folder] = set(uses) | screens

    def ownerOf(self, path):
        """The row that a file, named from src/ on, belongs to; its folder where there is none."""
        if path in APP_VALUES:
            return "app-values"
        folder = path.rpartition("/")[0]
        return folder if folder in self._rows else path.partition("/")[0]

    def ownerOfModule(self, uri):
        """The folder that is the module: Quillmere.Browse is screens/browse, or else browse."""
        name = uri.rpartition(".")[2].lower()
        return f"screens/{name}" if f"screens/{name}" in self._rows else name

    def __contains__(self, folder):
        return folder in self._rows

    def isFolder(self, folder):
        """Whether a path begins in one of ours, be it a row or, as screens, what rows lie in."""
        return folder in self._rows or any(row.startswith(folder + "/") for row in self._rows)

    def allows(self, user, used):
        self._needed.add((user, used))
        return user == used or used in self._allowed[user]

    def reportUnneeded(self, findings):
        for folder, (line, uses) in self._rows.items():
            for used in uses:
                if used != ALL_SCREENS and (folder, used) not in self._needed:
                    findings.add("src/arrows.txt", line,
                                 f"{folder} -> {used}: nothing in {folder} uses it; remove the arrow")


def checkIncludes(table, file, user, text, findings):
    for match in INCLUDE.finditer(text):
        included = match[1]
        used = table.ownerOf(included)
        isOurs = table.isFolder(used)
        if isOurs and not table.allows(user, used):
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
        elif not table.allows(user, table.ownerOfModule(match[1])):
            findings.addAt(file, text, match.start(1),
                           f"{user} may not import {match[1]} (src/arrows.txt)")


def main():
    root = rootArgument()
    findings = Findings()
    table = Table(root, findings)
    for file in projectFiles(root, *CODE, ".qml", under="src"):
        user = table.ownerOf(str(file.relative_to("src")))
        if user not in table:
            findings.add(file, 1, f"{user} is no row of src/arrows.txt: add it there")
            continue
        text = withoutComments(readText(root / file))
        check = checkImports if file.suffix == ".qml" else checkIncludes
        check(table, file, user, text, findings)
    table.reportUnneeded(findings)
    findings.finish()


main()
