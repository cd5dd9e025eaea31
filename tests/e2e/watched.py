"""The window under a watch that notes how long it lets its user wait, step by step of a story.

Where the environment variable QUILLMERE_STORY_REPORTS names a folder, each start leaves its report
there; responsiveness.py makes a table of them. No story fails for what its watch says."""

import json
import os
import subprocess
import sys

import desktop
from catalog import Catalog, Server
from desktop import Window

WORST_SHOWN = 3
# How long the demo's Homebrew takes for all that it does, in percent of what is usual.
PACE = 20


class WatchedWindow(Window):
    """One start of the program with its watch."""

    def __init__(self, program, home, variables, packages):
        self._report = f"{home}/report/report.json"
        os.makedirs(os.path.dirname(self._report), exist_ok=True)
        self._packages = packages
        super().__init__(program, home,
                         variables={"QUILLMERE_STORY_REPORT": self._report, **(variables or {})})

    def step(self, what, *arguments):
        """Carries out one step of the story, whose name is that of the function."""
        name = what.__name__.replace("_", " ")
        print(name, flush=True)
        self.process.stdin.write(f"{name}\n")
        self.process.stdin.flush()
        what(self, *arguments)

    def has_ended(self):
        super().has_ended()
        with open(self._report, encoding="utf-8") as file:
            report = json.load(file)
        report["startMs"] = report["firstFrameAt"] - self.started * 1000
        print(summary(report))
        reports = os.environ.get("QUILLMERE_STORY_REPORTS")
        if reports:
            name = os.path.basename(sys.argv[0]).removesuffix(".py")
            with open(f"{reports}/{name}-{os.getpid()}-{self.process.pid}.json", "w",
                      encoding="utf-8") as file:
                json.dump({"story": name, "packages": self._packages, **report}, file)


class Stage:
    """What a story is told with: the programs of a build, and the real catalog if there is one."""

    def __init__(self, build, real_data):
        self._build = build
        self._real_data = real_data
        self._packages = 0

    def catalog(self, folder):
        catalog = Catalog(f"{self._build}/tests/e2e/made_up_catalog", self._real_data, folder)
        self._packages = catalog.count
        return catalog

    def server(self, catalog, folder, **manner):
        return Server(f"{self._build}/tests/e2e/catalog_server", catalog, f"{folder}/authority.pem",
                      **manner)

    def open(self, home, variables=None):
        return WatchedWindow(f"{self._build}/tests/e2e/quillmere_story", home, variables,
                             self._packages)

    def furnish(self, home, catalog, used):
        """A home with a Homebrew of its own, for somebody new or for somebody who has used the
        program; what that Homebrew knows stands in the catalog before all else. Returns its
        prefix."""
        subprocess.run([f"{self._build}/demo/demo_home", *(["--used"] if used else []), home],
                       check=True)
        os.chmod(home, 0o700)
        catalog.remember(home)
        with open(f"{home}/homebrew/var/pace", "w", encoding="utf-8") as pace:
            pace.write(f"{PACE}\n")
        return f"{home}/homebrew"


def tell(story):
    """Runs a story with the stage that the arguments of its program describe."""
    desktop.tell(lambda *arguments: story(Stage(*arguments)))


def place(gap):
    """What the UI thread did in a gap, the longest first."""
    works = [f"{work['what']}{' > ' + work['within'] if work['within'] else ''} {work['ms']:.0f}"
             for work in gap["works"]]
    return "; ".join(works) or "many small ones, or none of its own"


def summary(report):
    lines = [f"first frame after {report['startMs']:.0f} ms; {report['asked']} times asked, longest "
             f"wait {report['longestMs']:.1f} ms, {report['overAFrame']} over a frame"]
    for gap in report["worst"][:WORST_SHOWN]:
        lines.append(f"  {gap['ms']:.0f} ms ({gap['computedMs']:.0f} computing, "
                     f"{gap['queuedMs']:.0f} without a processor) "
                     f"in {gap['step']!r}: {place(gap)}")
    return "\n".join(lines)
