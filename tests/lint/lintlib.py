"""What the lints share: which files to read, how to blank out comments, how to report."""

import re
import subprocess
import sys
from pathlib import Path

CODE = (".h", ".cpp")


def projectFiles(root, *suffixes, under="."):
    """The files that belong to the project, as paths below `root`: those that git knows or would
    take, or simply all where `root` is no git work tree (the lints' own test makes such folders)."""
    git = ["git", "-C", str(root), "-c", "safe.directory=*", "ls-files", "-z", "--cached",
           "--others", "--exclude-standard", "--", under]
    inWorkTree = (root / ".git").exists()
    if inWorkTree:
        listed = subprocess.run(git, capture_output=True, check=True, text=True).stdout
        names = [Path(name) for name in listed.split("\0") if name]
    else:
        names = [path.relative_to(root) for path in (root / under).rglob("*")]
    return sorted({name for name in names
                   if (root / name).is_file() and (not suffixes or name.suffix in suffixes)})


def readText(path):
    """The text of a file, or None where it is not text."""
    try:
        return path.read_text(encoding="utf-8")
    except UnicodeDecodeError:
        return None


_TOKENS = re.compile(r"""
      (?P<comment>//[^\n]*|/\*.*?\*/)
    | R"\((?P<raw>.*?)\)"
    | (?P<string>"(?:\\.|[^"\\\n])*"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])*')
    """, re.VERBOSE | re.DOTALL)


def _blank(text):
    return re.sub(r"[^\n]", " ", text)


def withoutComments(text):
    """C++ or QML with its comments blanked out; every line keeps its number."""
    return _TOKENS.sub(lambda m: _blank(m[0]) if m["comment"] else m[0], text)


def withoutCommentsAndStrings(text):
    return _TOKENS.sub(lambda m: _blank(m[0]), text)


class Findings:
    """Collects what a lint objects to; `finish` prints it and ends the program."""

    def __init__(self):
        self._lines = []

    def add(self, file, line, message):
        self._lines.append(f"{file}:{line}: {message}")

    def addFolder(self, folder, message):
        self._lines.append(f"{folder}: {message}")

    def addAt(self, file, text, position, message):
        self.add(file, text.count("\n", 0, position) + 1, message)

    def finish(self):
        print("\n".join(self._lines) if self._lines else "nothing to object to")
        sys.exit(1 if self._lines else 0)


def readArrows(root):
    """src/arrows.txt: of each folder, its line and the folders that it may use, as they are written."""
    rows = {}
    for number, line in enumerate((root / "src/arrows.txt").read_text().splitlines(), 1):
        if line.strip() and not line.startswith("#"):
            folder, _, uses = line.partition(":")
            rows[folder.strip()] = (number, uses.split())
    return rows


def rootArgument():
    return Path(sys.argv[1]).resolve()
