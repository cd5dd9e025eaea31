"""Finds what the code must not do, each with the reason why."""

import re

from lintlib import (CODE, Findings, projectFiles, readText, rootArgument, withoutComments,
                     withoutCommentsAndStrings)

ANYWHERE = "src"
# Where, what, where it is right after all (a file or folder, or None), and why it is wrong.
RULES = [(where, re.compile(pattern), exempt, why) for where, pattern, exempt, why in (
    (ANYWHERE, r"\bprocessEvents\b", None,
     "runs arbitrary code in the middle of a function: await instead"),
    (ANYWHERE, r"\bQEventLoop\b", None, "a nested loop: await instead"),
    (ANYWHERE, r"(?:\.|->)exec\(\)", "src/app/main.cpp", "a nested loop: open() and await instead"),
    (ANYWHERE, r"\bQThread::[mu]?sleep\b|\bsleep_(?:for|until)\b|\b[un]?(?:ano)?sleep\s*\(", None,
     "sleeping blocks a thread and only guesses: wait for the event"),
    (ANYWHERE, r"\bwaitFor(?:Finished|Started|ReadyRead|BytesWritten|Done)\b", None,
     "blocks the thread: await it"),
    (ANYWHERE, r"\bQtConcurrent::blocking", None, "blocks the thread: await it"),
    (ANYWHERE, r"\bco_await\s+QtConcurrent::run\s*\(", None,
     "g++ 12 destroys what the call was given twice: name the future, then await it"),
    (ANYWHERE, r"(?<![\w.>:])(?:std::|::)?(?:system|popen)\s*\(", None,
     "starts a shell: only the prefix's bin/brew is ever run, with its argument vector"),
    (ANYWHERE, r'"(?:/usr)?(?:/bin/)?(?:ba|da)?sh"', None,
     "starts a shell: only the prefix's bin/brew is ever run, with its argument vector"),
    (ANYWHERE, r"\b(?:QProcess|posix_spawnp?|v?fork|execv[pe]*|execl[pe]*)\b(?!Environment)",
     "src/execution", "only execution/ starts processes"),
    (ANYWHERE, r"\b(?:q?putenv|q?unsetenv|setenv)\b", None,
     "the environment is shared by all threads: give the child its own"),
    (ANYWHERE, r"(?m)^[ \t]*#[ \t]*define\b", None,
     "a macro knows no scope: use constexpr, a template or a function"),
    ("src/commands", r"\b(?:QElapsedTimer|QTimer|currentDateTime\w*|\w+_clock)\b", None,
     "commands/ knows no clock: take the time as an argument"),
    ("src/guidance", r"\b(?:QElapsedTimer|QTimer|currentDateTime\w*|\w+_clock)\b", None,
     "guidance/ knows no clock: take the time as an argument"),
    ("src/prefix", r"\b(?:QSaveFile|WriteOnly|ReadWrite|QTemporary\w+|mkpath|removeRecursively)\b",
     None, "prefix/ only reads"),
    ("src/prefix", r"\bQ(?:Network\w+|TcpSocket)\b", None, "prefix/ knows no network"),
    ("src/inventory", r"\bQ(?:Network\w+|TcpSocket)\b", None, "inventory/ knows no network"),
    ("src/catalog", r"\bQSettings\b", None, "catalog/ knows no settings"),
    ("src/screens", r"\bQ(?:File|Dir|SaveFile|FileInfo|DirIterator|Network\w+|TcpSocket)\b", None,
     "screens/ touches no files and no network: call the folder that does"),
)]
# Left for later means left undone. Spelled apart, so that this file passes its own check.
UNFINISHED = re.compile(r"\b(?:TO" + "DO|FIX" + "ME|XX" + "X|HA" + r"CK)\b")


def isAwaited(text, position):
    """Whether the statement around `position` awaits: QCoro names its awaitables as the blocking
    calls are named."""
    begin = max(text.rfind(end, 0, position) for end in ";{}")
    return "co_await" in text[begin + 1:position]


# The brackets of a lambda that captures something: neither an index nor an attribute.
CAPTURES = re.compile(r"(?:(?<=[(,{=?:&|<>!])|(?<=co_await)|(?<=return))\s*\[(?![\[\]])[^\]]+\]")


def awaitedExpression(text, begin):
    """The expression that begins at `begin`: up to its end, or that of the brackets around it."""
    depth = 0
    for position in range(begin, len(text)):
        character = text[position]
        depth += (character in "([{") - (character in ")]}")
        if depth < 0 or (depth == 0 and character in ";,"):
            return text[begin:position]
    return text[begin:]


def checkAwaitedCaptures(findings, file, text):
    for wait in re.finditer(r"\bco_await\b", text):
        if CAPTURES.search("co_await" + awaitedExpression(text, wait.end())):
            findings.addAt(file, text, wait.start(), "co_await of a lambda with captures: g++ 12 "
                           "destroys them twice: make the lambda before, in a statement of its own")


def isExempt(file, exempt):
    return exempt is not None and (str(file) == exempt or str(file).startswith(exempt + "/"))


def main():
    root = rootArgument()
    findings = Findings()
    for file in projectFiles(root, *CODE, ".qml", under="src"):
        text = withoutComments(readText(root / file))
        for where, pattern, exempt, why in RULES:
            if not str(file).startswith(where + "/") or isExempt(file, exempt):
                continue
            for match in pattern.finditer(text):
                if not isAwaited(text, match.start()):
                    findings.addAt(file, text, match.start(), f"{match[0].strip()}: {why}")
    for file in projectFiles(root, *CODE):
        text = withoutCommentsAndStrings(readText(root / file))
        checkAwaitedCaptures(findings, file, text)
        if re.search(r"(?m)^TEST(?:_[FP])?\(", text) and not file.name.endswith("Tests.cpp"):
            findings.add(file, 1, "holds tests: a file of tests is named …Tests.cpp")
    for file in projectFiles(root):
        text = readText(root / file)
        for match in UNFINISHED.finditer(text or ""):
            findings.addAt(file, text, match.start(), f"{match[0]}: finish it or open an issue")
    findings.finish()


main()
