"""Each of the four resets of the settings is asked for, not confirmed, asked for again and
confirmed, and the next start of the program knows what was reset."""

import os

import desktop
import watched
from catalog import cache_of
from desktop import expect, wait_for


class Reset:
    """One reset: its button and the two texts of its alert, what says that it happened and what is
    announced."""

    def __init__(self, button, title, message, confirmation, sign, announcement):
        self.button = button
        self.title = title
        self.message = message
        self.confirmation = confirmation
        self.sign = sign
        self.announcement = announcement


PREFIX = Reset(
    "Reset Selected Prefix", "Reset Homebrew Prefix?",
    "Quillmere will forget the selected prefix path and local scan marker. It will not change "
    "Homebrew files.",
    "Reset Prefix", ("label", "Last Scan: Never"), "Homebrew prefix reset")
CACHE = Reset(
    "Clear Metadata Cache", "Clear Metadata Cache?",
    "Quillmere will remove locally cached catalog metadata and freshness markers. It will not "
    "change Homebrew files.",
    "Clear Cache", ("label", "Last Refresh: Never"), "Metadata cache cleared")
HISTORY = Reset(
    "Clear Command History", "Clear Command History?",
    "Quillmere will remove locally stored command history records.",
    "Clear History", ("label", "Stored Records: 0"), "Command history cleared")
ONBOARDING = Reset(
    "Reset Onboarding", "Reset Onboarding?",
    "Quillmere will show onboarding again the next time the main window is active.",
    "Reset Onboarding", ("dialog", "Welcome to Quillmere"), "Onboarding reset")


def settings_are_opened(window):
    window.key("ctrl+8")
    window.get("heading", "Settings")


def values_of(window):
    """All that the settings say, from top to bottom."""
    return [node.name for node in window.find_all("label", contains=": ")]


def ask(window, reset):
    window.tab_to("push button", reset.button)
    window.key("Return")
    window.get("dialog", reset.title)
    window.get("label", reset.message)
    window.has_focus("push button", "Cancel")


def it_is_asked_for_and_not_confirmed(window, reset):
    window.tab_to("push button", reset.button)
    before = values_of(window)
    for key in ("Escape", "Return"):  # Return presses Cancel.
        ask(window, reset)
        window.key(key)
        window.gone("dialog", reset.title)
        window.has_focus("push button", reset.button)
    expect(not window.find(*reset.sign), f"{reset.sign} without a confirmation")
    expect(values_of(window) == before, f"from {before} to {values_of(window)}")


def it_is_confirmed(window, reset):
    ask(window, reset)
    window.key("Tab")
    window.has_focus("push button", reset.confirmation)
    window.key("space")
    window.gone("dialog", reset.title)
    window.says(reset.announcement)
    window.get(*reset.sign)


def the_refresh_is_remembered_still(window):
    window.tab_to("push button", CACHE.button)
    expect(not window.find(*CACHE.sign), "the prefix took the catalog with it")


def the_files_are_gone(window, home):
    wait_for("an empty cache", lambda: not any(name.endswith(".json")
                                               for name in os.listdir(cache_of(home))))
    # Its button has nothing left to do, and the keyboard went on to the next.
    window.has_focus("push button", HISTORY.button)
    expect(not window.is_on(CACHE.button), "what is empty can be cleared")


def the_first_steps_are_taken_again(window):
    desktop.take_first_steps(window)
    window.get("label", "Completed: Yes")
    window.has_focus("push button", ONBOARDING.button)


def the_next_start_knows(window):
    window.get("label", "Catalog metadata unavailable. Refresh catalog metadata when ready.")
    window.get("label", "Catalog-only mode")
    settings_are_opened(window)
    window.get("push button", "Select Homebrew Prefix")
    for reset in (CACHE, HISTORY):
        window.tab_to("push button", HISTORY.button)
        window.get(*reset.sign)


def tell(stage):
    with desktop.temporary_home() as folder:
        home = f"{folder}/home"
        stage.furnish(home, stage.catalog(f"{folder}/served"), used=True)
        window = stage.open(home)
        window.step(settings_are_opened)
        window.step(it_is_asked_for_and_not_confirmed, PREFIX)
        window.step(it_is_confirmed, PREFIX)
        window.step(the_refresh_is_remembered_still)
        window.step(it_is_asked_for_and_not_confirmed, CACHE)
        window.step(it_is_confirmed, CACHE)
        window.step(the_files_are_gone, home)
        window.step(it_is_asked_for_and_not_confirmed, HISTORY)
        window.step(it_is_confirmed, HISTORY)
        window.step(it_is_asked_for_and_not_confirmed, ONBOARDING)
        window.step(it_is_confirmed, ONBOARDING)
        window.step(the_first_steps_are_taken_again)
        window.quit()

        window = stage.open(home)
        window.step(the_next_start_knows)
        window.quit()


if __name__ == "__main__":
    watched.tell(tell)
