"""Whoever quits in the middle of a fetch, a scan, a search or a run is not kept waiting, and nothing
is left behind that could have been ended."""

import os

import desktop
import watched
from catalog import cache_of
from desktop import expect, wait_for

LOADING = "Fetching Homebrew package metadata..."
SCAN = ("push button", "Scan Read-Only Inventory")
STILL_RUNNING = "A Command Is Still Running"
NOT_WAITING = "Quit Without Waiting?"

# Starts a tool in a process group of its own, as brew does for its downloads.
BREW = """#!/bin/bash
cd "${0%%/*}/.."
set -m
(trap '' %(ignored)s; while [ -e bin/brew ] && [ ! -e release ]; do sleep 0.05; done) &
trap '%(answer)s' TERM
echo $$ $! > started
while [ -e bin/brew ] && [ ! -e release ]; do wait; done
"""
OBEDIENT = BREW % {"ignored": "HUP", "answer": "exit 1"}
DEAF = BREW % {"ignored": "TERM", "answer": ":"}


def a_fetch_is_under_way(window):
    window.key("ctrl+3")
    window.press("push button", "Fetch All")
    progress = window.get("progress bar", LOADING)
    wait_for("bytes", lambda: "B" in progress.description)


def a_scan_begins(window):
    window.key("ctrl+2")
    window.press(*SCAN)


def a_document_is_being_read(window):
    window.key("ctrl+3")
    window.press("push button", "Load Cached All")


def a_search_begins(window, catalog):
    window.key("ctrl+3")
    window.press("push button", "Load Cached All")
    window.says(f"Showing 250 of {catalog.count} packages")
    window.key("ctrl+f")
    window.has_focus("text", "Package search")
    window.type("a")
    window.key("Return")


def a_run_is_under_way(window, prefix):
    window.key("ctrl+6")
    window.press("push button", "Preview services list command")
    window.get("label", "brew services list")
    window.press("push button", "Run Command")
    wait_for("the start", lambda: os.path.exists(f"{prefix}/started"))


def it_is_kept_at_first(window):
    window.key("ctrl+q")
    window.get("dialog", STILL_RUNNING)
    window.press("push button", "Keep Running")
    window.gone("dialog", STILL_RUNNING)
    window.get("label", "Running")


def it_is_cancelled_for_the_quit(window):
    window.key("ctrl+q")
    window.get("dialog", STILL_RUNNING)
    window.press("push button", "Cancel Command and Quit")


def it_does_not_end_and_is_left(window):
    window.get("label", "Quillmere quits when brew services list has ended.")
    window.key("ctrl+q")
    window.get("dialog", NOT_WAITING)
    window.press("push button", "Quit Now")


def replace_brew(prefix, script):
    """Puts a script in the place of bin/brew; none of its runs has begun."""
    os.remove(f"{prefix}/bin/brew")
    with open(f"{prefix}/bin/brew", "w", encoding="utf-8") as brew:
        brew.write(script)
    os.chmod(f"{prefix}/bin/brew", 0o755)
    if os.path.exists(f"{prefix}/started"):
        os.remove(f"{prefix}/started")


def processes_of(prefix):
    with open(f"{prefix}/started", encoding="utf-8") as started:
        return started.read().split()


def all_end(processes):
    wait_for("the end of all", lambda: not any(desktop.is_alive(pid) for pid in processes))


def tell_of_a_fetch(stage, folder):
    home = f"{folder}/new"
    os.mkdir(home, 0o700)
    with stage.server(stage.catalog(f"{folder}/served"), home, piece=2_000, pause=10) as server:
        window = stage.open(home, server.variables)
        window.step(desktop.take_first_steps)
        window.step(a_fetch_is_under_way)
        window.quit()
        expect(not os.path.exists(cache_of(home)) or not os.listdir(cache_of(home)),
               "half a document was kept")


def tell_of_the_others(stage, home, prefix, catalog):
    # So many that a scan is not over at once.
    for number in range(5000):
        os.makedirs(f"{prefix}/Cellar/rack-{number}/1.0")
    for beginning, arguments in ((a_scan_begins, []), (a_document_is_being_read, []),
                                 (a_search_begins, [catalog])):
        window = stage.open(home)
        window.step(beginning, *arguments)
        window.quit()

    replace_brew(prefix, OBEDIENT)
    window = stage.open(home)
    window.step(a_run_is_under_way, prefix)
    window.step(it_is_kept_at_first)
    window.step(it_is_cancelled_for_the_quit)
    window.has_ended()
    all_end(processes_of(prefix))

    replace_brew(prefix, DEAF)
    window = stage.open(home)
    window.step(a_run_is_under_way, prefix)
    window.step(it_is_cancelled_for_the_quit)
    window.step(it_does_not_end_and_is_left)
    window.has_ended()
    processes = processes_of(prefix)
    expect(any(desktop.is_alive(pid) for pid in processes), "nobody was left, so nothing was shown")
    with open(f"{prefix}/release", "w", encoding="utf-8"):
        pass
    all_end(processes)


def tell(stage):
    with desktop.temporary_home() as folder:
        tell_of_a_fetch(stage, folder)
        home = f"{folder}/home"
        catalog = stage.catalog(f"{folder}/served")
        prefix = stage.furnish(home, catalog, used=True)
        tell_of_the_others(stage, home, prefix, catalog)


if __name__ == "__main__":
    watched.tell(tell)
