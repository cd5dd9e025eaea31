"""Every QML file of src/ belongs to a module, so that the modules' own qmllint targets see it."""

import sys
from pathlib import Path

from lintlib import Findings, projectFiles, rootArgument


def main():
    root = rootArgument()
    findings = Findings()
    build = (Path(sys.argv[2]) / "build.ninja").read_text()
    for file in projectFiles(root, ".qml", under="src"):
        if str(root / file) not in build:
            findings.add(file, 1, "belongs to no module: name it under QML_FILES in the"
                         " CMakeLists.txt of its folder")
    findings.finish()


main()
