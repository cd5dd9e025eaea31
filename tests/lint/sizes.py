"""Keeps files short enough to be read in one go."""

from lintlib import CODE, Findings, projectFiles, readText, rootArgument

FEWER_THAN = {".h": 400, ".cpp": 400, ".qml": 150}


def main():
    root = rootArgument()
    findings = Findings()
    for file in projectFiles(root, *CODE, ".qml"):
        lines = readText(root / file).count("\n")
        limit = FEWER_THAN[file.suffix]
        if lines >= limit:
            findings.add(file, limit, f"{lines} lines, the limit is {limit - 1}: split it by what"
                         " its parts are for")
    findings.finish()


main()
