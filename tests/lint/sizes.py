"""Keeps files short enough to be read in one go, and folders small enough to be looked over."""

from collections import Counter

from lintlib import CODE, Findings, projectFiles, readText, rootArgument

FEWER_LINES_THAN = {".h": 400, ".cpp": 400, ".qml": 150}
SCREENS = "src/screens"


def mostFiles(folder):
    """How many files may lie in a folder of src/; folders in it do not count."""
    if folder == SCREENS:
        return 2
    isFeature = folder.startswith(SCREENS + "/") and folder != SCREENS + "/components"
    return 30 if isFeature else 60


def main():
    root = rootArgument()
    findings = Findings()
    for file in projectFiles(root, *CODE, ".qml"):
        lines = readText(root / file).count("\n")
        limit = FEWER_LINES_THAN[file.suffix]
        if lines >= limit:
            findings.add(file, limit, f"{lines} lines, the limit is {limit - 1}: split it by what"
                         " its parts are for")
    folders = Counter(str(file.parent) for file in projectFiles(root, under="src"))
    for folder, count in folders.items():
        if count > mostFiles(folder):
            findings.addFolder(folder, f"{count} files, the limit is {mostFiles(folder)}: split it by"
                               " what its files are for")
    findings.finish()


main()
