"""A command is previewed, copied, run and found again without a pointer."""

import os
import subprocess
import sys

import desktop
from desktop import Failed, Window, wait_for

PREVIEW = ("push button", "Preview services list command")


def tab_to(window, role, name):
    """Tabs on until the control has the keyboard, at most once around."""
    for _ in range(20):
        if (role, name) in window.focused():
            return
        before = window.focused()
        window.key("Tab")
        wait_for("the focus to move", lambda: window.focused() != before)
    raise Failed(f"Tab does not lead to {role} {name!r}")


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
    tab_to(window, *PREVIEW)
    window.key("Return")
    window.has_focus("push button", "Copy Command")
    for control in ("Run Command", "Cancel", "Copy Command"):
        tab_to(window, "push button", control)
    window.key("Escape")
    window.gone("dialog", "Command Preview")
    window.has_focus(*PREVIEW)


def return_copies(window):
    window.key("Return")
    window.has_focus("push button", "Copy Command")
    window.key("Return")
    wait_for("the copied command", lambda: window.clipboard() == "brew services list")


def space_runs(window):
    tab_to(window, "push button", "Run Command")
    window.key("space")
    window.get("label", "Completed with exit code 0")
    tab_to(window, "push button", "Show command-line output")
    window.key("space")
    window.get("list item", contains="postgresql@17 started")
    tab_to(window, "push button", "Close")
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
    try:
        tell(*sys.argv[1:])
    except Failed as failure:
        sys.exit(f"keyboard_alone: {failure}")
