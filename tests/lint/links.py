"""Finds links and pictures of the documentation that lead nowhere: to a file that the project has
not, or to a heading that its page has not. Other hosts are not asked."""

import os
import re
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote

from lintlib import Findings, projectFiles, readText, rootArgument

FENCED = re.compile(r"^```.*?^```", re.MULTILINE | re.DOTALL)
INLINE_CODE = re.compile(r"`[^`\n]*`")
LINK = re.compile(r"\]\(\s*<?([^)\s>]+)|^\[[^\]]+\]:\s*<?([^\s>]+)", re.MULTILINE)
HEADING = re.compile(r"^#{1,6} +(.+)$", re.MULTILINE)
ELSEWHERE = re.compile(r"[a-z][a-z0-9+.-]*:|//", re.IGNORECASE)


def blank(match):
    return re.sub(r"[^\n]", " ", match[0])


def anchorOf(heading):
    """The name that a heading gets on a page."""
    return re.sub(r"[^\w\- ]", "", heading.strip().lower()).replace(" ", "-")


class Page(HTMLParser):
    """The links of a page, each with its line, and the names in it that links may lead to."""

    def __init__(self, file, text):
        super().__init__()
        self.links = []
        self.anchors = set()
        if file.suffix == ".html":
            self.feed(text)
        else:
            self.readMarkdown(FENCED.sub(blank, text))

    def readMarkdown(self, text):
        self.anchors.update(anchorOf(match[1]) for match in HEADING.finditer(text))
        for match in LINK.finditer(INLINE_CODE.sub(blank, text)):
            self.links.append((text.count("\n", 0, match.start()) + 1, match[1] or match[2]))

    def handle_starttag(self, tag, attrs):
        for name, value in attrs:
            if name == "id":
                self.anchors.add(value)
            elif name in ("href", "src"):
                self.links.append((self.getpos()[0], value or ""))


def main():
    root = rootArgument()
    findings = Findings()
    files = projectFiles(root)
    known = set(files).union(*(file.parents for file in files))
    pages = {file: Page(file, readText(root / file)) for file in files
             if file.suffix in (".md", ".html")}
    for file, page in pages.items():
        for line, link in page.links:
            if ELSEWHERE.match(link):
                continue
            path, _, anchor = unquote(link).partition("#")
            target = Path(os.path.normpath(file.parent / path)) if path else file
            if target not in known:
                findings.add(file, line, f"{link} leads nowhere: there is no {target.as_posix()}")
            elif anchor and target in pages and anchor not in pages[target].anchors:
                findings.add(file, line, f"{link}: {target.as_posix()} has no heading {anchor}")
    findings.finish()


main()
