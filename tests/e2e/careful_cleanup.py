"""A cleanup is previewed and asks in the stronger way; whoever does not agree loses nothing."""

import os

import desktop
import watched
from desktop import expect

SECTIONS = ("list", "Sections")
PREVIEW = ("push button", "Preview cleanup command")
ALERT = "Review carefully before running"


def files_in(prefix):
    return sorted(os.path.join(folder, name)
                  for folder, _, names in os.walk(prefix) for name in names)


def old_versions_are_found(window):
    window.key("ctrl+5")
    window.get("heading", "Scan For Cleanup Guidance")
    window.tab_to("push button", "Scan Read-Only Inventory")
    window.key("Return")
    window.says("Scan finished. Detected 16 older installed versions across 13 packages.")
    window.get("list item", "curl, Formula, current 8.18.0, older versions 8.15.0, 8.16.0, 8.17.0")
    window.reads(SECTIONS, ("heading", "Cleanup Guidance"), ("push button", "Scan Again"),
                 ("heading", "What Cleanup Does"), ("heading", "Old Versions"),
                 ("list", "Old Versions"))


def the_cache_is_told_of(window, prefix):
    window.tab_to(*PREVIEW)
    window.get("label", f"Location: {prefix}/var/homebrew/cache")
    window.get("label", contains="Estimated size: ")
    window.reads(SECTIONS, ("heading", "Cache"), ("heading", "Command Preview"), PREVIEW)


def the_cleanup_is_previewed(window):
    window.key("Return")
    window.has_focus("push button", "Copy Command")
    window.get("label", "brew cleanup")
    window.get("label", "Risk Level: Medium")
    window.get("label", "Asks Homebrew to remove old downloads and outdated package versions.")
    window.tab_to("push button", "Run Command")


def it_asks_carefully_and_is_refused(window, key):
    window.key("Return")
    window.get("dialog", ALERT)
    window.get("label", "This may delete Homebrew cache files and older package versions.")
    window.has_focus("push button", "Cancel")
    window.key(key)
    window.gone("dialog", ALERT)
    window.has_focus("push button", "Run Command")


def nothing_ran(window, prefix, files):
    window.key("Escape")
    window.gone("dialog", "Command Preview")
    window.has_focus(*PREVIEW)
    expect(files_in(prefix) == files, "a cleanup that nobody agreed to removed something")


def the_history_has_nothing_of_it(window, before):
    window.key("ctrl+7")
    window.get("heading", "History")
    expect(newest_record(window) == before, "a run that never was is in the history")


def newest_record(window):
    return window.get("list item", contains="Command brew ").name


def the_history_begins(window):
    window.key("ctrl+7")
    window.get("heading", "History")


def tell(stage):
    with desktop.temporary_home() as folder:
        home = f"{folder}/home"
        prefix = stage.furnish(home, stage.catalog(f"{folder}/served"), used=True)
        files = files_in(prefix)
        window = stage.open(home)
        window.step(the_history_begins)
        newest = newest_record(window)
        window.step(old_versions_are_found)
        window.step(the_cache_is_told_of, prefix)
        window.step(the_cleanup_is_previewed)
        window.step(it_asks_carefully_and_is_refused, "Return")
        window.step(it_asks_carefully_and_is_refused, "Escape")
        window.step(nothing_ran, prefix, files)
        window.step(the_history_has_nothing_of_it, newest)
        window.quit()


if __name__ == "__main__":
    watched.tell(tell)
