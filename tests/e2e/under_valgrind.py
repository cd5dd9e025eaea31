"""Tells a story with every window under valgrind, which finds what reads or writes where it should
not and what is never given back:
    desktop.py under_valgrind.py SUPPRESSIONS STORY.py ARGUMENTS..."""

import os
import runpy
import sys

import desktop
from desktop import Failed

# What a window that runs fifty times slower may take.
desktop.PATIENCE = 900.0
SUPPRESSIONS = os.path.abspath(sys.argv[1])
VALGRIND = ["valgrind", "--quiet", "--leak-check=full", "--show-leak-kinds=definite",
            "--errors-for-leak-kinds=definite", "--num-callers=40", "--trace-children=no",
            "--child-silent-after-fork=yes", f"--suppressions={SUPPRESSIONS}"]


class WatchedMemory(desktop.Window):
    """One start of the program that may make no mistake with its memory."""

    def __init__(self, program, home, wrapper=(), variables=None):
        self._log = f"{home}/memory"
        import pyatspi

        pyatspi.setTimeout(int(desktop.PATIENCE * 1000), -1)
        # Code that is made at run time cannot be looked at.
        super().__init__(program, home, [*VALGRIND, f"--log-file={self._log}", *wrapper],
                         {"QV4_FORCE_INTERPRETER": "1", **(variables or {})})

    def has_ended(self):
        super().has_ended()
        with open(self._log, encoding="utf-8", errors="replace") as log:
            # Other lines tell of system calls that valgrind does not know.
            report = [line for line in log if line.startswith("==")]
        if report:
            raise Failed("".join(report))


if __name__ == "__main__":
    desktop.Window = WatchedMemory
    sys.argv = sys.argv[2:]
    runpy.run_path(sys.argv[0], run_name="__main__")
