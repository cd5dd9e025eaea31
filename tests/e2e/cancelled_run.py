"""A run that would never end is cancelled: nothing of it lives on, and the history says so."""

import os
import subprocess

import desktop
from desktop import Window, expect, wait_for

# Starts a tool in a process group of its own, as brew does for its downloads.
ENDLESS_BREW = """#!/bin/bash
set -m
sleep 301 &
echo $$ $! > "${0%/*}/../started"
echo "==> Downloading"
trap 'echo "Error: SIGTERM" >&2; exit 1' TERM
wait
"""


def tell(program, demo_prefix):
    with desktop.temporary_home() as home:
        prefix = os.path.join(home, "prefix")
        subprocess.run([demo_prefix, prefix], check=True)
        with open(f"{prefix}/bin/brew", "w", encoding="utf-8") as brew:
            brew.write(ENDLESS_BREW)
        desktop.remember_prefix(home, prefix)

        window = Window(program, home)
        window.key("ctrl+6")
        window.press("push button", "Preview services list command")
        window.press("push button", "Run Command")
        window.get("label", "Running")
        wait_for("the start", lambda: os.path.exists(f"{prefix}/started"))
        with open(f"{prefix}/started", encoding="utf-8") as started:
            processes = started.read().split()
        window.press("push button", "Cancel")
        window.get("label", "Cancelled")
        wait_for("the end of all", lambda: not any(desktop.is_alive(pid) for pid in processes))
        window.press("push button", "Close")
        window.gone("dialog", "Command Preview")
        window.key("ctrl+7")
        record = window.get("list item", contains="source Services, executed ")
        expect(record.description == "Cancelled before Homebrew had told all",
               f"the record says {record.description!r}")
        window.quit()


if __name__ == "__main__":
    desktop.tell(tell)
