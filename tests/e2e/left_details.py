"""A package that is open goes when another section is chosen, and the section that is come back to
begins at its root."""

import desktop
import watched
from desktop import expect

BACK = ("push button", "Back")


def the_catalog_is_loaded(window, catalog):
    window.key("ctrl+3")
    window.press("push button", "Load Cached All")
    window.says(f"Showing 250 of {catalog.count} packages")


def a_package_is_opened(window, formula):
    window.tab_to("list item", contains=", Formula, version ")
    window.move_down_to("list item", contains=f"{formula['name']}, Formula, version ")
    window.key("Return")
    window.get("heading", formula["name"])
    window.has_focus(*BACK)
    expect(not window.find("heading", "Browse Catalog"), "the list is read under the package")


def a_dependency_is_opened_from_it(window, formula):
    dependency = formula["dependencies"][0]
    window.tab_to("push button", dependency)
    window.key("Return")
    window.get("heading", dependency)
    window.has_focus(*BACK)
    window.key("alt+Left")
    window.get("heading", formula["name"])
    window.press("push button", dependency)
    window.get("heading", dependency)


def another_section_discards_them(window):
    window.key("ctrl+2")
    window.get("heading", "Scan Installed Packages")
    window.gone(*BACK)
    window.key("ctrl+3")
    window.get("heading", "Browse Catalog")
    expect(not window.find(*BACK), "the package is still open")
    window.get("list", contains="Showing 250 of ")


def the_same_section_keeps_it(window, formula):
    window.key("ctrl+3")
    window.get("heading", formula["name"])
    window.get(*BACK)


def what_most_others_need_is_opened(window, name):
    window.key("Escape")
    window.get("heading", "Browse Catalog")
    window.key("ctrl+f")
    window.has_focus("text", "Package search")
    window.type(name)
    window.key("Return")
    window.get("list", contains=" matches from ")
    window.tab_to("list item", contains=", Formula, version ")
    window.move_down_to("list item", contains=f"{name}, Formula, version ")
    window.key("Return")
    window.get("heading", name)
    window.has_focus(*BACK)


def the_last_of_all_that_need_it_is_reached(window, dependants):
    window.tab_to("push button", dependants[0])
    window.key("End")
    window.has_focus("push button", dependants[-1])


def the_sidebar_discards_it_too(window):
    window.press("list item", "Cleanup")
    window.get("heading", "Scan For Cleanup Guidance")
    window.gone(*BACK)
    window.press("list item", "Browse")
    window.get("heading", "Browse Catalog")
    expect(not window.find(*BACK), "the package is still open")


def an_installed_package_is_discarded_as_well(window):
    window.key("ctrl+2")
    window.press("push button", "Scan Read-Only Inventory")
    window.says("Showing 49 of 49 packages")
    window.tab_to("list item", contains="brotli, installed ")
    window.key("Return")
    window.get("heading", "brotli")
    window.key("ctrl+4")
    window.get("heading", "9 updates")
    window.key("ctrl+2")
    window.get("list item", contains="brotli, installed ")
    expect(not window.find(*BACK), "the package is still open")


def tell(stage):
    with desktop.temporary_home() as folder:
        home = f"{folder}/home"
        catalog = stage.catalog(f"{folder}/served")
        stage.furnish(home, catalog, used=True)
        formula = next(record for record in catalog.formulae if record["dependencies"])
        window = stage.open(home)
        window.step(the_catalog_is_loaded, catalog)
        window.step(a_package_is_opened, formula)
        window.step(a_dependency_is_opened_from_it, formula)
        window.step(another_section_discards_them)
        window.step(a_package_is_opened, formula)
        window.step(the_same_section_keeps_it, formula)
        needed = catalog.the_most_needed()
        window.step(what_most_others_need_is_opened, needed)
        window.step(the_last_of_all_that_need_it_is_reached, catalog.dependants_of(needed))
        window.step(the_sidebar_discards_it_too)
        window.step(an_installed_package_is_discarded_as_well)
        window.quit()


if __name__ == "__main__":
    watched.tell(tell)
