"""A new user chooses a prefix, scans it, finds a package among what is installed and asks Homebrew
about it."""

import os

import desktop
import watched
from desktop import expect, wait_for

SECTIONS = ("list", "Sections")


def a_folder_that_is_no_prefix_is_refused(window):
    window.get("dialog", "Welcome to Quillmere")
    window.tab_to("push button", "Select Homebrew Prefix")
    window.key("Return")
    desktop.come_to_chooser(window)
    window.click("label", "documents")
    window.click("push button", "Select Prefix")
    desktop.leave_chooser(window)
    window.get("dialog", "Select a Homebrew Prefix")
    window.has_focus("push button", "Cancel")


def the_prefix_is_chosen(window):
    window.tab_to("push button", "Select Another Folder")
    window.key("Return")
    window.gone("dialog", "Select a Homebrew Prefix")
    desktop.come_to_chooser(window)
    window.click("label", "homebrew")
    window.click("push button", "Select Prefix")
    desktop.leave_chooser(window)
    window.gone("dialog", "Welcome to Quillmere")
    window.has_focus("list item", "Dashboard")


def nothing_was_scanned_yet(window, prefix):
    window.key("ctrl+2")
    window.get("heading", "Scan Installed Packages")
    window.get("label", f"Selected prefix: {prefix}. Scan local formula and cask directories in "
                        "read-only mode.")
    window.reads(SECTIONS, ("heading", "Scan Installed Packages"),
                 ("push button", "Scan Read-Only Inventory"))


def the_prefix_is_scanned(window):
    window.tab_to("push button", "Scan Read-Only Inventory")
    window.key("Return")
    window.says("Showing 49 of 49 packages")
    window.get("list", contains="Showing 49 of 49 packages - Inventory fresh ")
    window.get("list item", "expat, installed 2.7.3, latest known 2.7.4, source homebrew/core")
    window.reads(SECTIONS, ("heading", "Local inventory"), ("push button", "Scan Again"),
                 ("text", "Package search"), ("radio button", "All"))


def casks_alone_are_listed(window):
    window.tab_to("radio button", "All")
    window.key("Right")
    window.key("Right")
    window.has_focus("radio button", "Casks")
    wait_for("casks alone", lambda: not window.find("list item", contains="expat, installed "))
    window.get("list item", "Google Chrome, installed latest, latest known latest, "
                            "source homebrew/cask")
    window.key("Left")
    window.key("Left")
    window.has_focus("radio button", "All")


def the_packages_are_searched(window):
    window.key("ctrl+f")
    window.has_focus("text", "Package search")
    window.type("POSTGRES")
    wait_for("the text", lambda: window.text_of("text", "Package search") == "POSTGRES")
    window.key("Return")
    window.get("list item", contains="postgresql@17, installed 17.6, ")
    wait_for("the others to go", lambda: not window.find("list item", contains="expat, "))


def the_package_is_opened(window):
    window.tab_to("list item", contains="postgresql@17, installed ")
    window.key("Return")
    window.get("heading", "postgresql@17")
    window.get("label", "Installed version: 17.6")
    window.get("label", "Local source: Installed on request")
    window.has_focus("push button", "Back")


def brew_is_asked_about_it(window):
    window.tab_to("push button", "Preview Info command")
    window.key("Return")
    window.has_focus("push button", "Copy Command")
    window.get("label", "brew info postgresql@17")
    window.tab_to("push button", "Run Command")
    window.key("Return")
    window.get("label", "Completed with exit code 0")
    window.tab_to("push button", "Close")
    window.key("Return")
    window.gone("dialog", "Command Preview")
    window.has_focus("push button", "Preview Info command")


def the_list_is_as_it_was(window):
    window.key("Escape")
    window.gone("heading", "postgresql@17")
    window.get("list item", contains="postgresql@17, installed 17.6, ")
    wait_for("the row to have the keyboard again", lambda: any(
        "postgresql@17, installed " in name for _, name in window.focused()))
    expect(window.text_of("text", "Package search") == "POSTGRES", "the search was forgotten")


def tell(stage):
    with desktop.temporary_home() as folder:
        home = f"{folder}/home"
        prefix = stage.furnish(home, stage.catalog(f"{folder}/served"), used=False)
        os.mkdir(f"{home}/documents")
        window = stage.open(home)
        window.step(a_folder_that_is_no_prefix_is_refused)
        window.step(the_prefix_is_chosen)
        window.step(nothing_was_scanned_yet, prefix)
        window.step(the_prefix_is_scanned)
        window.step(casks_alone_are_listed)
        window.step(the_packages_are_searched)
        window.step(the_package_is_opened)
        window.step(brew_is_asked_about_it)
        window.step(the_list_is_as_it_was)
        window.quit()


if __name__ == "__main__":
    watched.tell(tell)
