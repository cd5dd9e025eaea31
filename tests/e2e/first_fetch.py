"""A new user goes on without a prefix, fetches the catalog, finds a package and copies a command."""

import desktop
import watched
from desktop import expect, wait_for

SECTIONS = ("list", "Sections")


def label_of(formula):
    version = formula["versions"]["stable"]
    return f"{formula['name']}, Formula, version {version}, {formula['desc']}"


def the_first_steps_are_taken(window):
    window.get("dialog", "Welcome to Quillmere")
    window.has_focus("push button", "Continue Catalog-Only")
    window.key("Escape")
    window.get("dialog", "Welcome to Quillmere")
    window.key("Return")
    window.gone("dialog", "Welcome to Quillmere")
    window.has_focus("list item", "Dashboard")


def the_catalog_is_empty_until_it_is_asked_for(window, server):
    window.key("ctrl+3")
    window.get("heading", "Browse Catalog")
    window.get("heading", "No Packages Found")
    for button in ("Load Cached All", "Load Cached Formulae", "Load Cached Casks"):
        expect(not window.is_on(button), f"{button} offers what is not there")
    window.reads(SECTIONS, ("heading", "Browse Catalog"), ("push button", "Fetch All"),
                 ("text", "Package search"), ("heading", "No Packages Found"))
    expect(server.requests == [], f"asked without being told to: {server.requests}")


def the_catalog_is_fetched(window, server, catalog):
    window.tab_to("push button", "Fetch All")
    window.key("Return")
    window.says("Fetching Homebrew package metadata...")
    progress = window.get("progress bar", "Fetching Homebrew package metadata...")
    wait_for("bytes", lambda: "MB" in progress.description or "kB" in progress.description)
    window.says(f"Showing 250 of {catalog.count} packages")
    window.get("list", contains=f"Showing 250 of {catalog.count} packages - Catalog fresh ")
    window.has_focus("push button", "Fetch All")
    expect(server.requests == ["GET /api/formula.json", "GET /api/cask.json"],
           f"asked for {server.requests}")
    for button in ("Load Cached All", "Load Cached Formulae", "Load Cached Casks"):
        expect(window.is_on(button), f"{button} is off")


def the_package_is_searched(window, formula):
    window.key("ctrl+f")
    window.has_focus("text", "Package search")
    field = window.get("text", "Package search")
    expect(field.description.endswith("press Return or choose Search."),
           f"the field is described as {field.description!r}")
    window.type(formula["name"])
    wait_for("the text", lambda: window.text_of("text", "Package search") == formula["name"])
    window.get("list", contains="Showing 250 of ")
    window.key("Return")
    window.get("list", contains=" matches from ")
    window.get("list item", label_of(formula))
    window.reads(SECTIONS, ("heading", "Browse Catalog"), ("push button", "Fetch All"),
                 ("text", "Package search"), ("list item", label_of(formula)))


def the_list_is_narrowed_to_formulae(window):
    window.press("radio button", "Formulae")
    wait_for("formulae alone", lambda: not window.find("list item", contains=", Cask, "))


def the_package_is_opened(window, formula):
    window.tab_to("list item", contains=", Formula, ")
    window.move_down_to("list item", label_of(formula))
    window.key("Return")
    window.get("heading", formula["name"])
    window.has_focus("push button", "Back")


def the_package_is_told_of(window, formula):
    window.get("label", formula["desc"])
    window.get("label", f"License: {formula['license']}")
    for dependency in formula["dependencies"]:
        window.get("push button", dependency)
    window.reads(SECTIONS, ("push button", "Back"), ("heading", formula["name"]),
                 ("heading", "Metadata"), ("heading", "Local State"), ("heading", "Dependencies"),
                 ("heading", "Reverse Dependencies"))
    window.tab_to("push button", "Preview Install command")
    window.reads(SECTIONS, ("heading", "Freshness"), ("heading", "Command Preview"),
                 ("push button", "Preview Install command"),
                 ("push button", "Preview Uninstall command"))


def the_command_is_previewed_and_copied(window, formula):
    command = f"brew install {formula['name']}"
    window.key("Return")
    window.has_focus("push button", "Copy Command")
    window.get("label", command)
    window.key("Return")
    window.says("Command copied")
    wait_for("the copied command", lambda: window.clipboard() == command)
    window.key("Escape")
    window.gone("dialog", "Command Preview")
    window.has_focus("push button", "Preview Install command")


def the_history_has_it(window, formula):
    window.key("ctrl+7")
    window.get("list item", contains=f"Command brew install {formula['name']}, operation "
                                     f"install, target {formula['name']}, source Browse, copied ")
    window.reads(SECTIONS, ("heading", "History"), ("push button", "Clear History"),
                 ("list", "Command history"))


def tell(stage):
    with desktop.temporary_home() as home:
        catalog = stage.catalog(f"{home}/served")
        formula = catalog.a_formula()
        with stage.server(catalog, home, piece=400_000, pause=8) as server:
            window = stage.open(home, server.variables)
            window.step(the_first_steps_are_taken)
            window.step(the_catalog_is_empty_until_it_is_asked_for, server)
            window.step(the_catalog_is_fetched, server, catalog)
            window.step(the_package_is_searched, formula)
            window.step(the_list_is_narrowed_to_formulae)
            window.step(the_package_is_opened, formula)
            window.step(the_package_is_told_of, formula)
            window.step(the_command_is_previewed_and_copied, formula)
            window.step(the_history_has_it, formula)
            window.quit()
            expect(len(server.requests) == 2, f"asked for {server.requests}")


if __name__ == "__main__":
    watched.tell(tell)
