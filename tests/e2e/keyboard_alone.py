"""A command is previewed, copied, run and found again without a pointer."""

import os
import subprocess

import desktop
from desktop import Window, wait_for

PREVIEW = ("push button", "Preview services list command")


def sections_answer_to_arrows_and_shortcuts(window):
    window.has_focus("list item", "Dashboard")
    window.key("Down")
    window.has_focus("list item", "Installed")
    for digit, section in enumerate(
        ["Dashboard", "Installed", "Browse", "Updates", "Cleanup", "Services", "History",
         "Settings", "About & Legal"], start=1,
    ):
        window.key(f"ctrl+{digit}")
        wait_for(section, lambda: window.is_selected("list item", section))


def the_sheet_keeps_the_keyboard_and_gives_it_back(window):
    window.key("ctrl+6")
    window.tab_to(*PREVIEW)
    window.key("Return")
    window.has_focus("push button", "Copy Command")
    for control in ("Run Command", "Cancel", "Copy Command"):
        window.tab_to("push button", control)
    window.key("Escape")
    window.gone("dialog", "Command Preview")
    window.has_focus(*PREVIEW)


def return_copies(window):
    window.key("Return")
    window.has_focus("push button", "Copy Command")
    window.key("Return")
    wait_for("the copied command", lambda: window.clipboard() == "brew services list")


def space_runs(window):
    window.tab_to("push button", "Run Command")
    window.key("space")
    window.get("label", "Completed with exit code 0")
    window.tab_to("push button", "Show command-line output")
    window.key("space")
    window.get("list item", contains="postgresql@17 started")
    window.tab_to("push button", "Close")
    window.key("Return")
    window.gone("dialog", "Command Preview")
    window.has_focus(*PREVIEW)


def tell(program, demo_prefix):
    with desktop.temporary_home() as home:
        prefix = os.path.join(home, "prefix")
        subprocess.run([demo_prefix, prefix], check=True)
        desktop.remember_prefix(home, prefix)
        window = Window(program, home)
        sections_answer_to_arrows_and_shortcuts(window)
        the_sheet_keeps_the_keyboard_and_gives_it_back(window)
        return_copies(window)
        space_runs(window)
        window.quit()


if __name__ == "__main__":
    desktop.tell(tell)
