"""The history is searched and cleared, and the settings window, which is open beside it, knows at
once."""

import desktop
import watched
from desktop import expect, wait_for

PROMPT = ("text", "Search command history")
SERVICES = "Command brew services list, operation servicesList, "


def three_commands_are_copied(window, catalog):
    desktop.copy_services_list(window)
    desktop.copy_services_list(window)
    window.key("ctrl+3")
    window.press("push button", "Load Cached All")
    window.says(f"Showing 250 of {catalog.count} packages")
    first = catalog.formulae[0]["name"]
    window.tab_to("list item", contains=f"{first}, Formula, ")
    window.key("Return")
    window.get("heading", first)
    window.tab_to("push button", "Preview Info command")
    desktop.copy_command(window, "Preview Info command")
    window.key("Escape")
    window.get("heading", "Browse Catalog")


def the_history_is_searched(window):
    window.key("ctrl+7")
    wait_for("all records", lambda: len(window.find_all("list item", contains="Command brew ")) == 3)
    window.key("ctrl+f")
    window.has_focus(*PROMPT)
    window.type("services")
    window.says("2 of 3 commands")
    wait_for("two records", lambda: len(window.find_all("list item", contains=SERVICES)) == 2)
    window.reads(("list", "Sections"), ("heading", "History"), ("push button", "Clear History"),
                 PROMPT, ("list", "Command history"))


def the_keys_lead_through_what_was_found(window):
    window.key("Down")
    wait_for("the list to have the keyboard",
             lambda: ("list", "Command history") in window.focused())


def nothing_is_found(window):
    window.key("ctrl+f")
    window.type("no such command")
    window.says("No History Matches")
    window.get("heading", "No History Matches")
    window.tab_to("push button", "Clear Search")
    window.key("space")
    window.gone("heading", "No History Matches")
    window.has_focus(*PROMPT)
    wait_for("all records", lambda: len(window.find_all("list item", contains="Command brew ")) == 3)


def the_settings_window_counts_them(window):
    window.key("ctrl+comma")
    settings = window.get("frame", "Quillmere Settings")
    window.get("heading", "Settings", inside=settings)
    # What has the keyboard comes into view.
    window.tab_to("push button", "Clear Command History")
    window.get("label", "Stored Records: 3", inside=settings)


def what_is_not_confirmed_stays(window):
    window.give_keyboard_to("Quillmere")
    window.press("push button", "Clear History")
    window.get("dialog", "Clear Command History?")
    window.has_focus("push button", "Cancel")
    window.key("Return")
    window.gone("dialog", "Clear Command History?")
    window.get("label", "Stored Records: 3")
    window.get("list item", contains=SERVICES)


def the_history_is_cleared(window):
    window.press("push button", "Clear History")
    alert = window.get("dialog", "Clear Command History?")
    window.press("push button", "Clear History", inside=alert)
    window.says("Command history cleared")
    window.get("heading", "No Command History")
    window.get("label", "Stored Records: 0", inside=window.get("frame", "Quillmere Settings"))


def the_settings_window_is_closed(window):
    window.give_keyboard_to("Quillmere Settings")
    window.key("Escape")
    window.gone("frame", "Quillmere Settings")
    window.give_keyboard_to("Quillmere")


def tell(stage):
    with desktop.temporary_home() as home:
        catalog = stage.catalog(f"{home}/served")
        catalog.remember(home)
        window = stage.open(home)
        window.step(desktop.take_first_steps)
        window.step(three_commands_are_copied, catalog)
        window.step(the_history_is_searched)
        window.step(the_keys_lead_through_what_was_found)
        window.step(nothing_is_found)
        window.step(the_settings_window_counts_them)
        window.step(what_is_not_confirmed_stays)
        window.step(the_history_is_cleared)
        window.step(the_settings_window_is_closed)
        window.quit()

        window = stage.open(home)
        window.key("ctrl+7")
        window.get("heading", "No Command History")
        expect(not window.find("list item", contains="Command brew "), "the history came back")
        window.quit()


if __name__ == "__main__":
    watched.tell(tell)
