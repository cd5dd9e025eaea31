"""Every section is read from the sidebar over its header to its content, in a home that has
something to show."""

import desktop
import watched
from desktop import expect

SECTIONS = ("list", "Sections")
# What each section's header says, and what is read behind it.
LANDMARKS = [
    ("Dashboard", [("heading", "Quillmere"), ("panel", "Catalog"), ("panel", "Local Homebrew"),
                   ("panel", "Command Safety"), ("panel", "Privacy"),
                   ("push button", "View Installed")]),
    ("Installed", [("heading", "Local inventory"), ("push button", "Scan Again"),
                   ("text", "Package search"), ("panel", "Package type")]),
    ("Browse", [("heading", "Browse Catalog"), ("push button", "Fetch All"),
                ("text", "Package search"), ("panel", "Package type")]),
    ("Updates", [("heading", "Updates"), ("push button", "Scan Again"), ("heading", "9 updates"),
                 ("list", "Packages")]),
    ("Cleanup", [("heading", "Cleanup Guidance"), ("push button", "Scan Again"),
                 ("panel", "What Cleanup Does"), ("panel", "Old Versions"),
                 ("list", "Old Versions")]),
    ("Services", [("heading", "Services Guidance"), ("panel", "What Services Are"),
                  ("panel", "Live Status"), ("panel", "Command Preview"),
                  ("push button", "Preview services list command")]),
    ("History", [("heading", "History"), ("push button", "Clear History"),
                 ("text", "Search command history"), ("list", "Command history")]),
    ("Settings", [("heading", "Settings"), ("panel", "Homebrew Prefix"),
                  ("push button", "Change Prefix")]),
    ("About & Legal", [("heading", "Quillmere"), ("panel", "Homebrew Disclaimer"),
                       ("panel", "Privacy Summary")]),
]


def all_is_loaded(window):
    window.key("ctrl+2")
    window.press("push button", "Scan Read-Only Inventory")
    window.says("Showing 49 of 49 packages")
    window.key("ctrl+3")
    window.press("push button", "Load Cached All")
    window.get("list", contains="Showing 250 of ")


def a_section_is_read(window, number, name, landmarks):
    window.key(f"ctrl+{number}")
    for landmark in landmarks:
        window.get(*landmark)
    window.reads(SECTIONS, *(("list item", title) for title, _ in LANDMARKS), *landmarks)
    nameless = [desktop.role_of(node) for node in window.everything()
                if not node.name and desktop.role_of(node) in
                ("push button", "text", "list item", "heading", "list", "radio button")]
    expect(not nameless, f"{name} has nameless {nameless}")


def all_sections_are_read(window):
    for number, (name, landmarks) in enumerate(LANDMARKS, start=1):
        a_section_is_read(window, number, name, landmarks)


def all_sections_are_shown_again(window):
    for number, (_, landmarks) in enumerate(LANDMARKS, start=1):
        window.key(f"ctrl+{number}")
        window.get(*landmarks[-1])


def tell(stage):
    with desktop.temporary_home() as folder:
        home = f"{folder}/home"
        stage.furnish(home, stage.catalog(f"{folder}/served"), used=True)
        window = stage.open(home)
        window.step(all_is_loaded)
        window.step(all_sections_are_read)
        window.step(all_sections_are_shown_again)
        window.quit()


if __name__ == "__main__":
    watched.tell(tell)
