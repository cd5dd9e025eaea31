"""The whole road of one command, from choosing a prefix to finding the run after a restart."""

import os
import subprocess

import desktop
from desktop import Window, expect, wait_for

SERVICES_LIST = "brew services list"
LOCATIONS = [
    ("brew executable", "bin/brew", "Readable"),
    ("Formula Cellar", "Cellar", "Readable (2 items)"),
    ("Caskroom", "Caskroom", "Readable (1 items)"),
    ("Linked formulae", "var/homebrew/linked", "Readable (1 items)"),
    ("Homebrew Library", "Library/Homebrew", "Readable (1 items)"),
    ("Tap metadata", "Library/Taps", "Readable (1 items)"),
    ("Cache", "var/homebrew/cache", "Readable (1 items)"),
]


def open_preview(window):
    window.key("ctrl+6")
    window.press("push button", "Preview services list command")
    window.get("dialog", "Command Preview")


def without_a_prefix_nothing_runs(window):
    open_preview(window)
    window.press("push button", "Run Command")
    window.get("dialog", "Cannot Run Command")
    window.get("label", "Select a Homebrew prefix before running commands.")
    window.press("push button", "OK")
    window.gone("dialog", "Cannot Run Command")
    window.key("Escape")
    window.gone("dialog", "Command Preview")


def a_prefix_is_chosen_and_its_locations_shown(window, prefix):
    window.key("ctrl+8")
    window.get("label", "No Homebrew prefix is selected.")
    window.press("push button", "Select Homebrew Prefix")
    desktop.come_to_chooser(window)
    window.key("Escape")
    desktop.leave_chooser(window)
    window.get("label", "No Homebrew prefix is selected.")

    window.press("push button", "Select Homebrew Prefix")
    desktop.come_to_chooser(window)
    # The chooser starts at home, where the demo prefix is the only folder.
    window.get("label", os.path.basename(prefix))
    window.key("Down")
    window.click("push button", "Select Prefix")
    desktop.leave_chooser(window)
    window.get("label", "Looks like a Homebrew prefix")
    for location in LOCATIONS:
        window.get("list item", ", ".join(location))


def the_command_is_copied(window):
    open_preview(window)
    window.get("label", SERVICES_LIST)
    window.press("push button", "Copy Command")
    wait_for("the copied command", lambda: window.clipboard() == SERVICES_LIST)
    window.key("Escape")
    window.gone("dialog", "Command Preview")
    expect(window.clipboard() == SERVICES_LIST, "the copy went with the sheet")
    window.key("ctrl+7")
    window.get("list item", contains=f"Command {SERVICES_LIST}, operation servicesList, "
                                     "target no target, source Services, copied ")


def the_command_is_run(window):
    open_preview(window)
    window.press("push button", "Run Command")
    window.get("label", "Completed with exit code 0")
    for step in ("Prepared command", "Listing services", "Capturing list", "Finished"):
        window.get("list item", f"{step}, complete")
    window.get("label", contains="Found 3 services")
    window.get("label", contains="1 started, 1 stopped")
    window.press("push button", "Show command-line output")
    window.get("list item", contains="app [quillmere] Process launched with pid ")
    window.get("list item", contains="postgresql@17 started anna")
    window.press("push button", "Hide command-line output")
    window.press("push button", "Close")
    window.gone("dialog", "Command Preview")


def history_has_both(window):
    window.key("ctrl+7")
    start = f"Command {SERVICES_LIST}, operation servicesList, target no target, source Services, "
    wait_for("both records", lambda: len(window.find_all("list item", contains=start)) == 2)
    newest, oldest = (node.name for node in window.find_all("list item", contains=start))
    expect(newest.startswith(start + "executed "), newest)
    expect(oldest.startswith(start + "copied "), oldest)


def the_prefix_is_remembered(window, prefix):
    window.key("ctrl+8")
    window.get("push button", "Change Prefix")
    window.get("label", "Looks like a Homebrew prefix")
    wait_for("the path", lambda: any(prefix in node.name for node in window.everything()))


def the_prefix_is_forgotten_when_confirmed(window):
    window.press("push button", "Reset Selected Prefix")
    window.get("dialog", "Reset Homebrew Prefix?")
    window.key("Escape")
    window.gone("dialog", "Reset Homebrew Prefix?")
    window.get("push button", "Change Prefix")
    window.press("push button", "Reset Selected Prefix")
    window.press("push button", "Reset Prefix")
    window.get("push button", "Select Homebrew Prefix")
    window.gone("label", "Looks like a Homebrew prefix")


def tell(program, demo_prefix):
    with desktop.temporary_home() as home:
        prefix = os.path.join(home, "prefix")
        subprocess.run([demo_prefix, prefix], check=True)

        window = Window(program, home)
        desktop.take_first_steps(window)
        without_a_prefix_nothing_runs(window)
        a_prefix_is_chosen_and_its_locations_shown(window, prefix)
        the_command_is_copied(window)
        the_command_is_run(window)
        history_has_both(window)
        window.quit()

        window = Window(program, home)
        history_has_both(window)
        the_prefix_is_remembered(window, prefix)
        the_prefix_is_forgotten_when_confirmed(window)
        window.quit()


if __name__ == "__main__":
    desktop.tell(tell)
