"""An update is found, previewed, confirmed and watched; the next scan no longer lists it, and the
history knows of the run."""

import os

import desktop
import watched
from desktop import expect, wait_for

SECTIONS = ("list", "Sections")
PREVIEW = ("push button", "Preview upgrade command for jq")
ALERT = "Confirm brew upgrade jq"
RECORD = "Command brew upgrade jq, operation upgrade, target jq, source Updates, executed "


def updates_are_found(window):
    window.key("ctrl+4")
    window.get("heading", "Scan For Updates")
    window.tab_to("push button", "Scan Read-Only Inventory")
    window.key("Return")
    window.get("heading", "9 updates")
    window.get("label", "5 need review")
    window.get("list item", "jq, Formula, Update available, installed 1.7.1, latest known 1.8.1, "
                            "tap homebrew/core")
    window.reads(SECTIONS, ("heading", "Updates"), ("push button", "Scan Again"),
                 ("heading", "9 updates"), ("list", "Packages"), ("heading", "Outdated"), PREVIEW)


def the_upgrade_is_previewed(window):
    window.tab_to("push button", contains="Preview upgrade command for ")
    window.move_down_to(*PREVIEW)
    window.key("Return")
    window.has_focus("push button", "Copy Command")
    window.get("label", "brew upgrade jq")


def what_is_not_confirmed_does_not_run(window, prefix):
    window.tab_to("push button", "Run Command")
    window.key("Return")
    window.get("dialog", ALERT)
    window.has_focus("push button", "Cancel")
    window.key("Escape")
    window.gone("dialog", ALERT)
    window.has_focus("push button", "Run Command")
    expect(os.listdir(f"{prefix}/Cellar/jq") == ["1.7.1"], "it ran without a confirmation")


def the_upgrade_is_watched(window):
    window.key("Return")
    window.get("dialog", ALERT)
    window.key("Tab")
    window.key("Return")
    window.get("label", "Running")
    window.get("push button", "Cancel")
    window.get("label", "Completed with exit code 0")


def the_sheet_gives_the_keyboard_back(window):
    window.tab_to("push button", "Close")
    window.key("Return")
    window.gone("dialog", "Command Preview")
    window.has_focus(*PREVIEW)


def it_is_no_update_any_more(window, prefix):
    expect("1.8.1" in os.listdir(f"{prefix}/Cellar/jq"), os.listdir(f"{prefix}/Cellar/jq"))
    window.press("push button", "Scan Again")
    window.get("heading", "8 updates")
    window.gone(*PREVIEW)


def the_history_has_it(window):
    window.key("ctrl+7")
    record = window.get("list item", contains=RECORD)
    expect(record.description == "Executed. Upgraded jq 1.7.1 to 1.8.1",
           f"the record says {record.description!r}")


def tell(stage):
    with desktop.temporary_home() as folder:
        home = f"{folder}/home"
        prefix = stage.furnish(home, stage.catalog(f"{folder}/served"), used=True)
        window = stage.open(home)
        window.step(updates_are_found)
        window.step(the_upgrade_is_previewed)
        window.step(what_is_not_confirmed_does_not_run, prefix)
        window.step(the_upgrade_is_watched)
        window.step(the_sheet_gives_the_keyboard_back)
        window.step(it_is_no_update_any_more, prefix)
        window.step(the_history_has_it)
        window.quit()


if __name__ == "__main__":
    watched.tell(tell)
