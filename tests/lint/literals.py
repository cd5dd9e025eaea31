"""Keeps colours, sizes and fonts of the window in Theme.qml, and markup out of its texts."""

import re

from lintlib import (Findings, projectFiles, readText, rootArgument, withoutComments,
                     withoutCommentsAndStrings)

# In QML with its strings.
LITERALS = (
    (re.compile(r"""["']#[0-9a-fA-F]{3,8}["']"""), "literal colour: name it in Theme.qml"),
    (re.compile(r"\bQt\.(?:rgba|hsla|hsva|color)\s*\("),
     "literal colour: name it in Theme.qml"),
    (re.compile(r"""\b\w*[cC]olor\s*:[^\n;]*?(?<![(,=] )(?<!\()["'](?!transparent\b)\w+["']"""),
     "literal colour: name it in Theme.qml"),
    (re.compile(r"\b(?:pixelSize|pointSize)\s*:[^\n;]*\b\d"),
     "literal type size: take one of Theme's"),
    (re.compile(r"""\bfamily\s*:[^\n;]*["']"""), "literal font family: take one of Theme's"),
    (re.compile(r"\bQt\.font\s*\("), "literal font: take one of Theme's"),
    (re.compile(r"\b(?:\w*[sS]pacing|\w*[mM]argins?|\w*[pP]adding|radius)\s*:\s*[1-9][\d.]*\s*(?:[;}]|$)",
                re.MULTILINE),
     "literal distance or radius: take one of Theme's"),
    (re.compile(r"\btextFormat\s*:(?!\s*\w+\.PlainText\b)"),
     "texts are plain, so that none becomes markup or fetches a picture: use Text.PlainText"),
)
TEXT = re.compile(r"\b(Text|Label)\s*\{")
PLAIN = re.compile(r"\btextFormat\s*:\s*Text\.PlainText\b")


def ownLines(text, opening):
    """What stands directly between the braces that open at `opening`, without nested objects."""
    depth, kept = 0, []
    for character in text[opening:]:
        depth += (character == "{") - (character == "}")
        if depth == 0:
            break
        if depth == 1:
            kept.append(character)
    return "".join(kept)


def main():
    root = rootArgument()
    findings = Findings()
    for file in projectFiles(root, ".qml", under="src"):
        if file.name == "Theme.qml":
            continue
        text = withoutComments(readText(root / file))
        for pattern, message in LITERALS:
            for match in pattern.finditer(text):
                findings.addAt(file, text, match.start(), message)
        bare = withoutCommentsAndStrings(readText(root / file))
        for match in TEXT.finditer(bare):
            if not PLAIN.search(ownLines(bare, match.end() - 1)):
                findings.addAt(file, bare, match.start(),
                               f"a {match[1]} guesses whether its text is markup: set"
                               " textFormat: Text.PlainText, or use a component that does")
    findings.finish()


main()
