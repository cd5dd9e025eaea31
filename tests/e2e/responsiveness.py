#!/usr/bin/env python3
"""Tells every story with the programs of a build and prints how long the window let its user wait.

    tests/e2e/responsiveness.py build/release [REGULAR EXPRESSION OF STORIES]

For each start of the program: the time to its first frame, the longest wait, how many were longer
than a frame, and how many would have been with a processor for itself; then the worst with the step of the story, the part of it that the UI thread
computed, the part for which the machine had no processor left for it, and what it did. The real catalog is there if it lies beside the checkout or in the
folder that QUILLMERE_REAL_DATA names."""

import json
import os
import subprocess
import sys
import tempfile

from watched import place

SHOWN = 8
FRAME = 16


def reports_of(build, stories):
    with tempfile.TemporaryDirectory(prefix="quillmere-reports-") as folder:
        told = subprocess.run(
            ["ctest", "--test-dir", build, "--output-on-failure", "--no-tests=error",
             "-R", f"^e2e/{stories}"],
            env=dict(os.environ, QUILLMERE_STORY_REPORTS=folder), stdout=sys.stderr, check=False)
        reports = []
        for name in sorted(os.listdir(folder)):
            with open(f"{folder}/{name}", encoding="utf-8") as file:
                reports.append(json.load(file))
        return reports, told.returncode


def own_part(gap):
    """What the program is to blame for: a wait less what the machine was busy with others."""
    return gap["ms"] - gap["queuedMs"]


def line(gap):
    return (f"| {gap['story']}: {gap['step']} | {gap['ms']:.0f} ms | {gap['computedMs']:.0f} ms "
            f"| {gap['queuedMs']:.0f} ms "
            f"| {place(gap)} |")


def main(build, stories=""):
    reports, status = reports_of(build, stories)
    print(f"told with a catalog of {max(report['packages'] for report in reports)} packages\n")
    print("| story | first frame | longest wait | over a frame | its own | of |\n"
          "|---|---|---|---|---|---|")
    for report in reports:
        own = sum(own_part(gap) > FRAME for gap in report["worst"])
        print(f"| {report['story']} | {report['startMs']:.0f} ms | {report['longestMs']:.1f} ms "
              f"| {report['overAFrame']} | {own} | {report['asked']} |")
    gaps = [{"story": report["story"], **gap} for report in reports for gap in report["worst"]]
    gaps.sort(key=own_part, reverse=True)
    print("\n| the worst | wait | computed | without a processor | doing |\n|---|---|---|---|---|")
    print("\n".join(line(gap) for gap in gaps[:SHOWN]))
    return status


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
