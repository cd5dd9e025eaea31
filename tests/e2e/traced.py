"""Tells a story with every window under a trace, and has each trace judged when its window closes:
    desktop.py traced.py STORY.py ARGUMENTS..."""

import configparser
import os
import runpy
import subprocess
import sys
import time

import desktop
import judge
from desktop import Failed

SKIPPED = 77
# What a user asks for the catalog with.
ASKING = ("Fetch All", "Fetch Formulae", "Fetch Casks", "Refresh Catalog")


def may_trace():
    return subprocess.run(
        ["strace", "-o", "/dev/null", "true"], stderr=subprocess.DEVNULL
    ).returncode == 0


class TracedWindow(desktop.Window):
    """One start of the program that is judged when it has ended."""

    count = 0

    def __init__(self, program, home, wrapper=(), variables=None):
        TracedWindow.count += 1
        self._home = home
        self._log = f"{home}/calls-{TracedWindow.count}"
        self._server = (variables or {}).get("https_proxy", "").removeprefix("http://")
        self._brews = set()
        self._shown = set()
        self._asked_at = []
        self._remember_prefix()
        super().__init__(program, home, [*judge.STRACE, "-o", self._log, *wrapper], variables)

    def _remember_prefix(self):
        settings = configparser.ConfigParser(interpolation=None)
        settings.optionxform = str
        settings.read(f"{self._home}/.config/Quillmere/Quillmere.conf")
        prefix = settings.get("General", "selectedHomebrewPrefixPath", fallback=None)
        if prefix:
            self._brews.add(os.path.join(prefix, "bin/brew"))

    def everything(self, inside=None):
        for node in super().everything(inside):
            if desktop.role_of(node) == "label" and node.name.startswith("brew "):
                self._shown.add(node.name)
            yield node

    def press(self, role, name, inside=None):
        self._note(name)
        super().press(role, name, inside)

    def _move_to(self, key, times, role, name, contains):
        self._note(name)
        super()._move_to(key, times, role, name, contains)

    def _note(self, name):
        if name in ASKING:
            self._asked_at.append(time.time())

    def has_ended(self):
        super().has_ended()
        self._remember_prefix()
        # The last is no folder of the program but of the watch that stories are told under.
        own_folders = [f"{self._home}/{folder}"
                       for folder in (".cache/Quillmere", ".config/Quillmere",
                                      ".local/share/Quillmere", "report")]
        with open(self._log, encoding="utf-8", errors="replace") as lines:
            judgement = judge.judge(lines, os.getcwd(), own_folders, self._brews, self._shown,
                                    self._server, self._asked_at)
        print(f"judged: {len(judgement.writes)} writes in our own folders, "
              f"{len(judgement.connections)} connections, executed {judgement.commands}")
        if not judgement.writes:
            raise Failed("the trace shows no write at all: it proves nothing")


if __name__ == "__main__":
    if not may_trace():
        print("skipped: this machine lets nobody trace system calls")
        sys.exit(SKIPPED)
    desktop.Window = TracedWindow
    sys.argv = sys.argv[1:]
    runpy.run_path(sys.argv[0], run_name="__main__")
    if TracedWindow.count == 0:
        sys.exit("traced: the story opened no window")
